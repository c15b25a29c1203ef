// WB_SCKW: crossing bends where selected pipes of different elevations meet. Symbols of an earlier run that
// are selected too are made anew.
#include "host/ed/WildcardMatch.h"
#include "host/ed/acutPrintf.h"
#include "plugin/layers/LayerService.h"
#include "plugin/tools/ZPKwCl.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"

namespace workbench {
namespace {

constexpr const wchar_t* kRadiusName = L"扣弯\\半径";
constexpr const wchar_t* kBrokenName = L"扣弯\\断开";
constexpr double kUsualRadius = 50;
constexpr Range kRadii{0.001, 100000}; // drawing units

struct Options {
  double radius = kUsualRadius;
  bool broken = true;
  CString layers; // names with commas between; none for all
};

CStringArray NamesOf(const CString& list) {
  CStringArray names;
  int at = 0;
  while (at >= 0) {
    CString name = list.Tokenize(L",，", at);
    if (at >= 0 && !name.Trim().IsEmpty()) names.Add(name);
  }
  return names;
}

// The first name, or pattern, that no layer of the drawing has.
std::optional<CString> UnknownName(const CStringArray& names) {
  CStringArray layers;
  ZP::GetCurDwgAllLayer(layers);
  for (int i = 0; i < names.GetSize(); ++i) {
    bool isKnown = false;
    for (int k = 0; k < layers.GetSize() && !isKnown; ++k)
      isKnown = ed::MatchesPattern(layers[k].View(), names[i].View(), true);
    if (!isKnown) return names[i];
  }
  return std::nullopt;
}

// These give false for Escape.
bool AskRadius(Options& options) {
  const auto radius = AskNumber(L"半径", options.radius, kRadii);
  if (radius) options.radius = *radius;
  return radius.has_value();
}

bool AskSymbol(Options& options) {
  const CString preset = options.broken ? L"断开" : L"整圆";
  const auto answer = ed::AskKeyword({L"符号 [断开(B)/整圆(F)] <" + preset + L">:", L"断开,B 整圆,F", 0, {}});
  if (answer.isCancelled()) return false;
  if (!answer.isNone()) options.broken = answer.isKeyword(L"断开");
  return true;
}

bool AskLayers(Options& options) {
  while (true) {
    const auto layers = AskOptionalText(L"限于图层，逗号分隔，可用通配符", options.layers);
    if (!layers) return false;
    const auto unknown = UnknownName(NamesOf(*layers));
    if (!unknown) {
      options.layers = *layers;
      return true;
    }
    Refuse(L"图形中没有图层“" + *unknown + L"”。", L"图形中的图层名；- 为不限图层");
  }
}

bool AskOptions(Options& options) {
  while (true) {
    acutPrintf(L"\n半径 %s，%s，%s。\n", NumberText(options.radius), options.broken ? L"断开的圆" : L"整圆",
               options.layers.IsEmpty() ? CString(L"不限图层") : L"限于图层 " + options.layers);
    const auto answer = ed::AskKeyword(
        {L"[选择管线(S)/半径(R)/符号(M)/图层(L)] <选择管线>:", L"选择管线,S 半径,R 符号,M 图层,L", 0, {}});
    if (answer.isCancelled()) return false;
    if (answer.isNone() || answer.isKeyword(L"选择管线")) return true;
    if (answer.isKeyword(L"半径") && !AskRadius(options)) return false;
    if (answer.isKeyword(L"符号") && !AskSymbol(options)) return false;
    if (answer.isKeyword(L"图层") && !AskLayers(options)) return false;
  }
}

} // namespace

void MakeBends() {
  Options options;
  options.radius = Remembered(kRadiusName, options.radius);
  options.broken = Remembered(kBrokenName, 1.0) != 0.0;
  if (!AskOptions(options)) return;
  Remember(kRadiusName, options.radius);
  Remember(kBrokenName, options.broken ? 1.0 : 0.0);
  ZPKwCl bends(options.broken, options.radius);
  bends.SetFiltrationLayer(NamesOf(options.layers));
  bends.Go();
}

} // namespace workbench
