#include "plugin/base/idp/SubKey.h"

#include "plugin/base/CIDPEx.h"
#include "plugin/base/idp/NodeAccess.h"

namespace idp {

void SubKey::Remove() {
  delete node;
  node = nullptr;
  key.SetNothing();
  ownValue.SetNothing();
}

CompactValue& SubKey::Value() {
  return node ? NodeAccess::Value(*node) : ownValue;
}

bool SubKey::HasSubKeys() const {
  return node && !node->SubKeyNames.IsEmpty();
}

CIDPEx& SubKey::Node() {
  if (!node) {
    node = new CIDPEx;
    NodeAccess::Value(*node) = std::move(ownValue);
  }
  return *node;
}

} // namespace idp
