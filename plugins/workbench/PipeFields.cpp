#include "plugins/workbench/PipeFields.h"

#include "plugin/base/NumberText.h"
#include "plugin/pipes/CZPPipeMaterial.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/PipeQuestions.h"

namespace workbench {
namespace {

constexpr int kDecimals = 5; // those that a pipe keeps
constexpr Range kNoRange{0, 0};
constexpr Range kAmounts{0, 1e9};
constexpr Range kCodes{0, 99999};

// Numbers. The getters and setters are those of the kind of pipe that has them.
template <typename Pipe, auto Get> std::optional<CString> ReadNumber(const AcDbObjectId& id) {
  double value = 0;
  if (!(Pipe(id).*Get)(value)) return std::nullopt;
  return NumberText(value, kDecimals);
}

template <typename Pipe, auto Get, auto Set>
bool ChangeNumber(const PipeField& field, const AcDbObjectId& id) {
  Pipe pipe(id);
  double value = 0;
  (pipe.*Get)(value);
  const auto answer = AskNumber(field.subject(), value, field.range);
  // Enter writes nothing: a length that is measured stays measured.
  if (answer && *answer != value) (pipe.*Set)(*answer);
  return answer.has_value();
}

#define WB_NUMBER(Pipe, Name)                                                                                \
  ReadNumber<Pipe, &Pipe::Get##Name>, ChangeNumber<Pipe, &Pipe::Get##Name, &Pipe::Set##Name>

double DiameterOf(const AcDbObjectId& id) {
  double nominal = 0;
  CZPMainPipe(id).GetDN(nominal);
  return nominal;
}

std::optional<CString> ReadMaterial(const AcDbObjectId& id) {
  CString name;
  if (!CZPMainPipe(id).GetMaterial(name)) return std::nullopt;
  return name;
}

bool ChangeDiameter(const PipeField&, const AcDbObjectId& id) {
  const auto* material = MaterialOf(id);
  if (!material) material = AskMaterial(L""); // its own is gone from the catalogue
  if (!material) return false;
  const auto diameter = AskDiameter(*material, DiameterOf(id));
  if (!diameter) return false;
  CZPMainPipe(id).SetMaterial(material->GetName());
  CZPMainPipe(id).SetDN(diameter->dbNominal);
  return true;
}

bool ChangeMaterial(const PipeField& field, const AcDbObjectId& id) {
  const auto* material = AskMaterial(ReadMaterial(id).value_or(L""));
  if (!material) return false;
  CZPMainPipe(id).SetMaterial(material->GetName());
  // The new one may lack the old diameter.
  return FindDiameter(*material, DiameterOf(id)) || ChangeDiameter(field, id);
}

std::optional<CString> ReadCode(const AcDbObjectId& id) {
  int code = 0;
  if (!CZPRiserPipe(id).GetCode(code)) return std::nullopt;
  return ZP::itoa(code);
}

bool ChangeCode(const PipeField& field, const AcDbObjectId& id) {
  int code = 0;
  CZPRiserPipe(id).GetCode(code);
  const auto answer = AskInteger(field.subject(), code, field.range);
  if (answer) CZPRiserPipe(id).SetCode(*answer);
  return answer.has_value();
}

std::optional<CString> ReadPrefix(const AcDbObjectId& id) {
  CString prefix;
  if (!CZPRiserPipe(id).GetPreLable(prefix)) return std::nullopt;
  return prefix;
}

bool ChangePrefix(const PipeField& field, const AcDbObjectId& id) {
  const auto prefix = AskOptionalText(field.subject(), ReadPrefix(id).value_or(L""));
  if (prefix) CZPRiserPipe(id).SetPreLable(*prefix);
  return prefix.has_value();
}

std::optional<CString> ReadLayer(const AcDbObjectId& id) {
  CString identifier;
  if (!CZPMainPipe(id).GetLayerId(identifier)) return std::nullopt;
  return identifier;
}

bool ChangeLayer(const PipeField&, const AcDbObjectId& id) {
  constexpr const wchar_t* usual[] = {L"采暖供水干管", L"采暖回水干管", L"供水干管",     L"回水干管",
                                      L"冷凝水干管",   L"采暖供水立管", L"采暖回水立管", L"供水立管",
                                      L"回水立管",     nullptr};
  CString identifier;
  if (!AskPlacingLayer(ReadLayer(id).value_or(usual[0]), usual, identifier)) return false;
  CZPMainPipe(id).SetLayerId(identifier);
  return true;
}

constexpr PipeField kFields[] = {
    {L"图层标识", L"Y", L"", true, true, kNoRange, ReadLayer, ChangeLayer},
    {L"管材", L"M", L"", true, true, kNoRange, ReadMaterial, ChangeMaterial, true},
    {L"管径", L"D", L"mm", true, true, kNoRange, ReadNumber<CZPMainPipe, &CZPMainPipe::GetDN>, ChangeDiameter,
     true},
    {L"相对标高", L"E", L"m", true, false, kElevations, WB_NUMBER(CZPMainPipe, Elevation)},
    {L"始点标高", L"S", L"m", false, true, kElevations, WB_NUMBER(CZPRiserPipe, StartElevation)},
    {L"终点标高", L"T", L"m", false, true, kElevations, WB_NUMBER(CZPRiserPipe, EndElevation)},
    {L"编号前缀", L"P", L"", false, true, kNoRange, ReadPrefix, ChangePrefix},
    {L"编号", L"N", L"", false, true, kCodes, ReadCode, ChangeCode},
    {L"长度", L"L", L"m", true, false, kAmounts, WB_NUMBER(CZPMainPipe, Length)},
    {L"流量", L"F", L"m³/h", true, true, kAmounts, WB_NUMBER(CZPMainPipe, FlowRate), true},
    {L"流速", L"V", L"m/s", true, true, kAmounts, WB_NUMBER(CZPMainPipe, FlowVelocity)},
    {L"比摩阻", L"R", L"Pa/m", true, true, kAmounts, WB_NUMBER(CZPMainPipe, BMZ)},
    {L"沿程阻力", L"Z", L"Pa", true, true, kAmounts, WB_NUMBER(CZPMainPipe, YcZl)},
};

#undef WB_NUMBER

} // namespace

CString PipeField::subject() const {
  const CString name = title;
  return *unit ? name + L"(" + unit + L")" : name;
}

std::span<const PipeField> PipeFields() {
  return kFields;
}

} // namespace workbench
