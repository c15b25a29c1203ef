// The settings are extended data of layer 0: the one record that every drawing has, that no purge removes,
// and that extended data may stand on in every version since R11.
#include "plugin/graph/DrawingSettings.h"

#include <cmath>

#include "host/afx/Numbers.h"
#include "host/db/AcDbDatabase.h"
#include "plugin/graph/LayerZero.h"
#include "plugin/graph/Xdata.h"

namespace {

// Keys of at most 31 bytes in any code page, so that they are application names in old drawings too.
struct NumberSetting {
  const wchar_t* key;
  double preset;
};

constexpr NumberSetting kOutDwgScale{L"ZP_出图比例", 100};
constexpr NumberSetting kDrawingScale{L"ZP_绘图比例", 1};
// The smallest height for Chinese text of GB/T 50001, and for letters and digits one that reads as the same
// size beside it and keeps clear of the smallest allowed, 2.5.
constexpr NumberSetting kChineseHeight{L"ZP_中文字高", 3.5};
constexpr NumberSetting kWesternHeight{L"ZP_西文字高", 3};
constexpr const wchar_t* kTextStyleKey = L"ZP_文字样式";
constexpr const wchar_t* kFontTypeKey = L"ZP_字体方式";
constexpr int kOwnTextStyle = 1;

bool Read(const wchar_t* key, CString& value) {
  AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  return drawing && ZP::GetXdata(ZP::LayerZero(*drawing), key, value);
}

bool Write(const wchar_t* key, const CString& value) {
  AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  if (!drawing) return false;
  const AcDbObjectId layer = ZP::LayerZero(*drawing);
  CString old;
  if (ZP::GetXdata(layer, key, old) && old == value) return true; // no change to undo or save
  return ZP::SetXdata(layer, key, value) != 0;
}

bool IsMeasure(double value) {
  return std::isfinite(value) && value > 0;
}

// A value that some other program damaged counts as none.
double GetNumber(const NumberSetting& setting) {
  CString text;
  if (!Read(setting.key, text)) return setting.preset;
  const wchar_t* end = nullptr;
  const double value = afx::wcstod(text, &end);
  return IsMeasure(value) && *end == L'\0' ? value : setting.preset;
}

bool SetNumber(const NumberSetting& setting, double value) {
  return IsMeasure(value) && Write(setting.key, CString::FromUtf8(afx::ShortestDouble(value)));
}

} // namespace

double ZP::GetOutDwgScale() {
  return GetNumber(kOutDwgScale);
}
bool ZP::SetOutDwgScale(double scale) {
  return SetNumber(kOutDwgScale, scale);
}
double ZP::GetDrawingScale() {
  return GetNumber(kDrawingScale);
}
bool ZP::SetDrawingScale(double scale) {
  return SetNumber(kDrawingScale, scale);
}
double ZP::GetZwZg() {
  return GetNumber(kChineseHeight);
}
bool ZP::SetZwZg(double height) {
  return SetNumber(kChineseHeight, height);
}
double ZP::GetXwZg() {
  return GetNumber(kWesternHeight);
}
bool ZP::SetXwZg(double height) {
  return SetNumber(kWesternHeight, height);
}

CString ZP::GetTextStyle() {
  CString name;
  if (Read(kTextStyleKey, name) && !name.IsEmpty()) return name;
  const AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  return (drawing ? drawing->header().text("$TEXTSTYLE") : std::nullopt).value_or(L"Standard");
}

bool ZP::SetTextStyle(const CString& name) {
  return !name.IsEmpty() && Write(kTextStyleKey, name);
}

int ZP::GetFontType() {
  CString text;
  return Read(kFontTypeKey, text) && text == L"0" ? 0 : kOwnTextStyle;
}

int ZP::SetFontType(int type) {
  return (type == 0 || type == kOwnTextStyle) && Write(kFontTypeKey, type == 0 ? L"0" : L"1") ? 1 : 0;
}
