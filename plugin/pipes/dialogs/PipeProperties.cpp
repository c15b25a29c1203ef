#include "plugin/pipes/dialogs/PipeProperties.h"

#include <variant>

#include "plugin/base/NumberText.h"
#include "plugin/graph/PropertyRows.h"

namespace {

using Kind = CPropTreeItem::Kind;

struct Property {
  const wchar_t* group; // begins one; null goes on with the last
  const wchar_t* label;
  Kind kind;
  std::variant<double CZPPipeMaterial::*, CString CZPPipeMaterial::*> member;
  std::vector<CString> choices;
};

const std::vector<Property>& Properties() {
  static const std::vector<Property> properties = {
      {L"基本参数", L"绝对粗糙度(mm)", Kind::number, &CZPPipeMaterial::m_dRoughness, {}},
      {L"标注参数", L"前缀字符", Kind::choice, &CZPPipeMaterial::m_strPrefix, {L"DN", L"De", L"φ", L"%%C"}},
      {nullptr,
       L"参数A",
       Kind::choice,
       &CZPPipeMaterial::m_strParamA,
       {L"公称直径", L"外径", L"内径", L"壁厚"}},
      {nullptr, L"连接字符", Kind::combo, &CZPPipeMaterial::m_strConnector, {L"×", L"*", L"无"}},
      {nullptr,
       L"参数B",
       Kind::choice,
       &CZPPipeMaterial::m_strParamB,
       {L"公称直径", L"外径", L"内径", L"壁厚", L"无"}},
      {nullptr, L"后缀字符", Kind::text, &CZPPipeMaterial::m_strSuffix, {}},
      {nullptr, L"沿线标注距离(mm)", Kind::number, &CZPPipeMaterial::m_dAlongDistance, {}},
  };
  return properties;
}

CString TextOf(const CZPPipeMaterial& material, const Property& property) {
  if (const auto* number = std::get_if<double CZPPipeMaterial::*>(&property.member))
    return ZP::ftoa(material.**number, 2, true);
  return material.*std::get<CString CZPPipeMaterial::*>(property.member);
}

} // namespace

void pipes::BuildPipeProperties(CPropTree& list) {
  AddPropertyRows(list, Properties());
}

void pipes::ShowPipeProperties(CPropTree& list, const CZPPipeMaterial* material) {
  const UiQuietly quietly(list);
  int index = 0;
  for (const Property& property : Properties()) {
    list.SetText(index, material ? TextOf(*material, property) : CString());
    list.SetReadOnly(index, !material);
    ++index;
  }
}

void pipes::ReadPipeProperties(const CPropTree& list, CZPPipeMaterial& material) {
  int index = 0;
  for (const Property& property : Properties()) {
    if (const auto* number = std::get_if<double CZPPipeMaterial::*>(&property.member))
      material.** number = list.GetNumber(index);
    else
      material.*std::get<CString CZPPipeMaterial::*>(property.member) = list.GetText(index);
    ++index;
  }
}
