#include "plugins/workbench/PipeQuestions.h"

#include "host/afx/Numbers.h"
#include "host/ed/acutPrintf.h"
#include "plugin/base/NumberText.h"
#include "plugin/base/Tolerance.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerService.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugins/workbench/Asking.h"

namespace workbench {
namespace {

constexpr double kDiameterTolerance = 0.001; // mm

// Asks for a line of text with a list behind "?". Nothing means Escape; an empty line gives the preset.
template <typename List>
std::optional<CString> AskWithList(const CString& subject, const CString& preset, List list) {
  while (true) {
    const auto answer = ed::AskText({subject + L" [列表(?)] <" + preset + L">:", L"?", 0, {}});
    if (answer.isCancelled()) return std::nullopt;
    if (answer.isNone()) return preset;
    if (answer.hasValue()) return CString(answer.text).Trim();
    list();
  }
}

void ListMaterials(const CStringArray& names) {
  for (int i = 0; i < names.GetSize(); ++i) acutPrintf(L"\n%d %s", i + 1, names[i]);
  acutPrintf(L"\n");
}

// The material of the name, or of the number in the catalogue's order.
const CZPPipeMaterial* FindMaterial(const CString& text, const CStringArray& names) {
  const auto* catalogue = CZPPipeMaterialManager::GetInstance();
  if (const auto* material = catalogue->GetPipeMaterial(text)) return material;
  const int number = _wtoi(text);
  const bool isNumber = number >= 1 && number <= names.GetSize() && ZP::itoa(number) == text;
  return isNumber ? catalogue->GetPipeMaterial(names[number - 1]) : nullptr;
}

CString DiametersOf(const CZPPipeMaterial& material) {
  CStringArray names;
  material.GetAllPipeName(names);
  CString all;
  for (const CString& name : names) all += (all.IsEmpty() ? L"" : L" ") + name;
  return all;
}

} // namespace

const CZPPipeMaterial* AskMaterial(const CString& preset) {
  const auto* catalogue = CZPPipeMaterialManager::GetInstance();
  const auto* first = catalogue->GetInitialPipeMaterial();
  if (!first) {
    Refuse(L"管材目录是空的。", L"先用 KOR_GJGLQ（管材管径管理器）建立管材");
    return nullptr;
  }
  CStringArray names;
  catalogue->GetAllPipeMaterialName(names);
  const CString shown = catalogue->GetPipeMaterial(preset) ? preset : first->GetName();
  while (true) {
    const auto text = AskWithList(L"管材", shown, [&] { ListMaterials(names); });
    if (!text) return nullptr;
    if (const auto* material = FindMaterial(*text, names)) return material;
    Refuse(L"目录中没有管材“" + *text + L"”。", L"管材名，或列表中的序号 1 到 " + ZP::itoa(names.GetSize()));
  }
}

const CZPPipeMaterial* MaterialOf(const AcDbObjectId& pipe) {
  CString name;
  CZPMainPipe(pipe).GetMaterial(name);
  return CZPPipeMaterialManager::GetInstance()->GetPipeMaterial(name);
}

CString PipeNameOf(const CZPPipeMaterial& material, const SZPPipeDNData& row) {
  return material.m_strPrefix + ZP::ftoa(row.dbNominal, 2, true);
}

std::optional<SZPPipeDNData> FindDiameter(const CZPPipeMaterial& material, double nominal) {
  for (const auto& row : material.m_arrDNData)
    if (ZP::IsEqual(row.dbNominal, nominal, kDiameterTolerance)) return row;
  return std::nullopt;
}

std::optional<SZPPipeDNData> AskDiameter(const CZPPipeMaterial& material, double preset) {
  if (material.m_arrDNData.GetSize() == 0) {
    Refuse(L"管材“" + material.GetName() + L"”没有管径。", L"先用 KOR_GJGLQ（管材管径管理器）建立管径");
    return std::nullopt;
  }
  const auto shown = FindDiameter(material, preset).value_or(material.m_arrDNData.GetAt(0));
  while (true) {
    const auto text = AskWithList(L"管径", PipeNameOf(material, shown),
                                  [&] { acutPrintf(L"\n%s\n", DiametersOf(material)); });
    if (!text) return std::nullopt;
    SZPPipeDNData row;
    if (material.GetPipeDNData(*text, row)) return row;
    const wchar_t* end = nullptr;
    const double nominal = afx::wcstod(*text, &end);
    if (end != text->GetString() && *end == 0)
      if (const auto found = FindDiameter(material, nominal)) return found;
    Refuse(L"管材“" + material.GetName() + L"”没有管径“" + *text + L"”。", DiametersOf(material));
  }
}

std::optional<CString> AskLayerIdentifier(const CString& preset, const wchar_t* const* usual) {
  const auto* scheme = CZPManagerLayer::GetInstance();
  if (scheme->Categories().GetSize() == 0) {
    Refuse(L"图层方案“" + scheme->GetPlanName() + L"”是空的。",
           L"数据文件夹中有图层方案的安装（zpcad --data）");
    return std::nullopt;
  }
  while (true) {
    const auto text = AskWithList(L"图层标识", preset, [&] {
      for (const wchar_t* const* identifier = usual; *identifier; ++identifier)
        if (scheme->IsExist(*identifier))
          acutPrintf(L"\n%s（%s）", *identifier, ZP::GetMngUserLayer(*identifier));
      acutPrintf(L"\n");
    });
    if (!text) return std::nullopt;
    if (scheme->IsExist(*text)) return text;
    CString identifier;
    if (scheme->GetKorLayer(*text, identifier)) return identifier;
    Refuse(L"图层方案“" + scheme->GetPlanName() + L"”中没有图层标识“" + *text + L"”。",
           L"方案中的图层标识或图层名；? 列出常用的");
  }
}

} // namespace workbench
