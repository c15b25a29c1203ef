// What the user gives the attributes of an insertion.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"

#include <optional>
#include <vector>

class AcDbAttributeDefinition;
class AcDbBlockReference;

namespace commands {

struct AttributeValue {
  const AcDbAttributeDefinition* definition;
  CString text;
};

// Asks for the value of each attribute that the block defines and that is neither constant nor preset; Enter
// takes the definition's. Without the variable ATTREQ nothing is asked. Nothing for Escape.
std::optional<std::vector<AttributeValue>> AskAttributes(const AcDbObjectId& block);

// Gives a reference that is in no drawing yet its attributes.
void AddAttributes(AcDbBlockReference& reference, const std::vector<AttributeValue>& values);

} // namespace commands
