#include "host/commands/AttributeValues.h"

#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/acutPrintf.h"

namespace commands {
namespace {

// False for Escape.
bool ask(AttributeValue& value) {
  CString prompt =
      value.definition->prompt().IsEmpty() ? value.definition->tag() : value.definition->prompt();
  if (!value.text.IsEmpty()) prompt += L" <" + value.text + L">";
  const auto answer = ed::AskText({prompt + L":", {}, 0, {}});
  if (answer.hasValue()) value.text = answer.text;
  return !answer.isCancelled();
}

} // namespace

std::optional<std::vector<AttributeValue>> AskAttributes(const AcDbObjectId& block) {
  std::vector<AttributeValue> values;
  for (const auto& id : AcDbBlockTableRecord::cast(block.object())->entities()) {
    const auto* definition = AcDbAttributeDefinition::cast(id.object());
    if (definition && !definition->isErased() && !definition->isConstant())
      values.push_back({definition, definition->textString()});
  }
  if (values.empty() || SystemVariables::integer(L"ATTREQ") == 0) return values;
  acutPrintText(L"\n输入属性值\n");
  for (auto& value : values)
    if (!value.definition->isPreset() && !ask(value)) return std::nullopt;
  bool verifying = false;
  for (auto& value : values) {
    if (!value.definition->isVerifiable() || value.definition->isPreset()) continue;
    if (!verifying) acutPrintText(L"\n验证属性值\n");
    verifying = true;
    if (!ask(value)) return std::nullopt;
  }
  return values;
}

void AddAttributes(AcDbBlockReference& reference, const std::vector<AttributeValue>& values) {
  for (const auto& value : values) {
    auto attribute = std::make_unique<AcDbAttribute>();
    if (attribute->setAttributeFromBlock(value.definition, reference.blockTransform()) != Acad::eOk) continue;
    attribute->setTextString(value.text);
    reference.appendAttribute(attribute.release());
  }
}

} // namespace commands
