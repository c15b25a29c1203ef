#include "plugin/fancoil/dialogs/CKTFCUManagerPropTree.h"

#include <variant>

#include "host/afx/Numbers.h"
#include "plugin/base/ExactText.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/PropertyRows.h"

namespace {

using Data = SKTFCUEquipmentData;
using Kind = CPropTreeItem::Kind;

struct Parameter {
  const wchar_t* group; // begins one; null goes on with the last
  const wchar_t* label;
  Kind kind;
  std::variant<CString Data::*, int Data::*, double Data::*> member;
  std::vector<CString> choices;
};

constexpr const wchar_t* kMakerLabel = L"厂家名称";
constexpr const wchar_t* kBlockLabel = L"图块名";

const std::vector<Parameter>& Parameters() {
  static const std::vector<Parameter> parameters = {
      {L"一般参数", kMakerLabel, Kind::text, &Data::szFactory, {}},
      {nullptr, L"设备型号", Kind::text, &Data::szMode, {}},
      {nullptr, L"安装形式", Kind::choice, &Data::szInstallStyle, {L"明装", L"暗装", L""}},
      {nullptr, L"结构形式", Kind::choice, &Data::szStructStyle, {L"立式", L"卧式", L""}},
      {nullptr, L"制热量(kW)", Kind::number, &Data::dbHCapacity, {}},
      {nullptr, L"水流量(l/s)", Kind::number, &Data::dbWaterFlow, {}},
      {nullptr, L"水压降(kPa)", Kind::number, &Data::dbWPD, {}},
      {nullptr, L"功率(W)", Kind::number, &Data::dbPower, {}},
      {nullptr, L"噪音(dBa)", Kind::number, &Data::dbNoiseLevel, {}},
      {nullptr, L"工作压力(MPa)", Kind::number, &Data::dbWorkPress, {}},
      {nullptr, kBlockLabel, Kind::text, &Data::szDwgPath, {}},
      {L"风量", L"风量高速(m^3/h)", Kind::number, &Data::dbAirFlowH, {}},
      {nullptr, L"风量中速(m^3/h)", Kind::number, &Data::dbAirFlowM, {}},
      {nullptr, L"风量低速(m^3/h)", Kind::number, &Data::dbAirFlowL, {}},
      {L"冷量", L"全冷量(kW)", Kind::number, &Data::dbCTHCapacity, {}},
      {nullptr, L"显冷量(kW)", Kind::number, &Data::dbCSHCapacity, {}},
      {L"尺寸", L"实际长(mm)", Kind::number, &Data::dbLength, {}},
      {nullptr, L"实际宽(mm)", Kind::number, &Data::dbWidth, {}},
      {nullptr, L"实际高(mm)", Kind::number, &Data::dbHeight, {}},
      {L"电机", L"电机形式", Kind::text, &Data::szMotorStyle, {}},
      {nullptr, L"电机数量", Kind::integer, &Data::nMotorCount, {}},
      {L"盘管", L"盘管形式", Kind::text, &Data::szCoilStyle, {}},
      {nullptr, L"盘管数量", Kind::integer, &Data::nCoilCount, {}},
      {L"风机", L"风机形式", Kind::text, &Data::szFanStyle, {}},
      {nullptr, L"风机数量", Kind::integer, &Data::nFanCount, {}},
  };
  return parameters;
}

bool IsName(const CString& label) {
  return label == kMakerLabel || label == kBlockLabel;
}

CString TextOf(double value) {
  return ZP::ExactText(value);
}
CString TextOf(int value) {
  return ZP::itoa(value);
}
const CString& TextOf(const CString& text) {
  return text;
}

void SetFromText(double& value, const CString& text) {
  value = afx::wcstod(text, nullptr);
}
void SetFromText(int& value, const CString& text) {
  value = _wtoi(text);
}
void SetFromText(CString& value, const CString& text) {
  value = text;
}

// Calls visit(item, parameter) for each parameter that stands at its place.
template <class Visit> void ForEachItem(const CPropTree& list, Visit visit) {
  int item = 0;
  for (const Parameter& parameter : Parameters()) {
    if (item == list.GetItemCount()) return;
    const CPropTreeItem& found = list.Item(item);
    if (found.kind == parameter.kind && found.label == parameter.label) visit(item, parameter);
    ++item;
  }
}

} // namespace

void CKTFCUManagerPropTree::Fill(bool readOnly) {
  const UiQuietly quietly(*this);
  DeleteAll();
  AddPropertyRows(*this, Parameters());
  for (int item = 0; item < GetItemCount(); ++item) SetReadOnly(item, readOnly || IsName(Item(item).label));
}

void CKTFCUManagerPropTree::EnableNames(bool enable) {
  for (int item = 0; item < GetItemCount(); ++item)
    if (IsName(Item(item).label)) SetReadOnly(item, !enable);
}

void CKTFCUManagerPropTree::Show(const SKTFCUEquipmentData* data) {
  const UiQuietly quietly(*this);
  ForEachItem(*this, [&](int item, const Parameter& parameter) {
    SetText(item,
            data ? std::visit([&](auto member) -> CString { return TextOf(data->*member); }, parameter.member)
                 : CString());
  });
}

void CKTFCUManagerPropTree::Read(SKTFCUEquipmentData& data) const {
  ForEachItem(*this, [&](int item, const Parameter& parameter) {
    std::visit([&](auto member) { SetFromText(data.*member, GetText(item)); }, parameter.member);
  });
}
