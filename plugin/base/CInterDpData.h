// The part of a parameter node that holds its key, value and sub-keys, with the operations that work on all
// below it at once. Callers have a CIDPEx, which is one of these.
#pragma once

#include <cstddef>
#include <string>

#include "host/afx/CString.h"
#include "plugin/base/CSubKeyNames.h"
#include "plugin/base/ZpExport.h"
#include "plugin/base/idp/CompactValue.h"

class ZP_EXPORT CInterDpData {
 public:
  virtual ~CInterDpData();
  CInterDpData(const CInterDpData&) = delete;
  CInterDpData& operator=(const CInterDpData&) = delete;

  CSubKeyNames SubKeyNames;

  // Removes all sub-keys with all that lies below them. The node's own value stays, and so does the node in
  // its parent. Always 1.
  short ClearDataFromMemory();

  // Removes one sub-key with all below it. 1, or 0 when there is no such key.
  short DeleteSubKey(CString key);

  // Replaces this node's value and sub-keys by those of a memory image: the bytes "IDP1", the length of the
  // rest as 8 bytes little-endian, and the text of a parameter file. The caller guarantees that the buffer
  // holds the 12 bytes of the head and as many bytes behind it as the head states. 1 on success; 0, with an
  // empty and usable tree and the reason in the message log, for null, another head, a length that cannot
  // be right (under 7 bytes or over 256 MiB) or a damaged text.
  short ReadDataFromBuffer(void* buffer);

  // As above, for a buffer whose size in bytes is known: a head that is cut off or states more than there is
  // gives 0. Bytes behind the image are ignored. Use this one wherever the buffer comes from a drawing.
  short ReadDataFromBuffer(const void* buffer, std::size_t size);

  // Makes such an image of this node and all below it. 1, or 0 with image empty when the tree is nested too
  // deep or too long to be read back.
  short WriteDataToBuffer(std::string& image) const;

 protected:
  CInterDpData();

 private:
  friend struct idp::NodeAccess;

  idp::CompactValue m_value;
};
