// One sub-key: its name and its value. A node of its own it gets only when a caller asks for one or when it
// has sub-keys itself, since most sub-keys of a catalogue are plain fields.
#pragma once

#include "plugin/base/idp/CompactValue.h"

class CIDPEx;

namespace idp {

struct SubKey {
  CompactValue key;
  CompactValue ownValue;  // in use while there is no node
  CIDPEx* node = nullptr; // freed by the table; its value is the sub-key's then

  explicit SubKey(CompactValue name) : key(std::move(name)) {}
  SubKey(SubKey&&) noexcept = default;
  SubKey& operator=(SubKey&&) noexcept = default;

  // A gap in the table, waiting to be closed.
  bool IsRemoved() const { return key.GetKind() == CompactValue::Kind::Nothing; }
  void Remove();

  CompactValue& Value();
  bool HasSubKeys() const;
  CIDPEx& Node(); // makes one if there is none
};

} // namespace idp
