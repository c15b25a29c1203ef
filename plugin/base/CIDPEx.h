// A hierarchical store of keys and values, the content of a parameter file (".idp"): at the same time the
// root of a file and each node below it. docs/formats/idp.md describes the file.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/CInterDpData.h"
#include "plugin/base/ZpExport.h"

// Keys and values may be any text. A value is a text, an integer or a double and is meant to be read through
// the overload that wrote it. Read through another one it is converted: between the numbers (towards zero,
// cut to the range of int, not-a-number gives 0), from text as _wtoi and _wtof read it, to text in the
// shortest form that reads back exactly.
class ZP_EXPORT CIDPEx : public CInterDpData {
 public:
  CIDPEx();           // an empty tree whose value is the empty text
  ~CIDPEx() override; // frees the tree, writes nothing

  // Replaces this node's value and sub-keys by those of the file. 0 for a file that is missing, unreadable,
  // damaged, nested deeper than 1024 nodes or longer than 256 MiB; the tree is then empty and usable. All but
  // a missing file is told to the message log, with position and reason.
  int Open(CString path);

  // Writes this node and all below it, creating or replacing the file at once or not at all, and creating
  // the folders that lead to it. An old file that is damaged, or that MarkForeign named, is first copied to
  // NAME.rescued-N. 0, with the old file in its place and the reason in the message log, on failure: the
  // disk refuses, no copy can be made, or Open could not read the result (too deep, too long).
  int Save(CString path);

  // Tells that the file at path, although readable, has a version mark that its reader does not know: the
  // next Save to that path, by whichever tree, keeps a copy. ZP::CheckVersionMark is the usual way to call
  // it.
  static void MarkForeign(CString path);

  // The sub-key's node, or null. Borrowed: valid until it is removed or the root is destroyed.
  CIDPEx* GetSubItem(CString key);

  // Non-zero if the key exists; else 0, and out stays as it was.
  int GetSubValue(CString key, int& out);
  int GetSubValue(CString key, double& out);
  int GetSubValue(CString key, CString& out);

  // Creates the sub-key behind the others if it is missing, else replaces its value and keeps what is below.
  void SetSubValue(CString key, CString value);
  void SetSubValue(CString key, int value);
  void SetSubValue(CString key, double value);

  // This node's own value.
  void GetValue(CString& out);
  void SetValue(CString value);

 private:
  idp::CompactValue* FindValue(const CString& key);
  idp::CompactValue& MakeValue(const CString& key);
};
