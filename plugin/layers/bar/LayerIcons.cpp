#include "plugin/layers/bar/LayerIcons.h"

namespace {

struct Icon {
  const wchar_t* name;
  const wchar_t* picture; // what stands inside the svg element of 16 by 16
};

constexpr const wchar_t* kBase =
    LR"(<rect x="6" y="12" width="4" height="1.4" fill="#66707c"/><rect x="6.6" y="14" width="2.8" height="1.4" fill="#66707c"/>)";

constexpr Icon kIcons[] = {
    {L"开",
     LR"(<path d="M8 1a4.6 4.6 0 0 0-2.6 8.4c.5.4.8 1 .8 1.8h3.6c0-.8.3-1.4.8-1.8A4.6 4.6 0 0 0 8 1z" fill="#ffd23c" stroke="#a87800" stroke-width=".8"/>)"},
    {L"解冻",
     LR"(<g stroke="#e08a00" stroke-width="1.3" stroke-linecap="round"><path d="M8 1v1.6M8 13.4V15M1 8h1.6M13.4 8H15M3.05 3.05l1.1 1.1M11.85 11.85l1.1 1.1M3.05 12.95l1.1-1.1M11.85 4.15l1.1-1.1"/></g><circle cx="8" cy="8" r="3.4" fill="#ffc83c" stroke="#c27800" stroke-width=".8"/>)"},
    {L"解锁",
     LR"(<path d="M9.6 7V4.4a2.7 2.7 0 0 1 5.2-.6" fill="none" stroke="#66707c" stroke-width="1.5"/><rect x="2" y="7" width="9.4" height="7.4" rx="1" fill="#f0c84a" stroke="#8a6a10" stroke-width=".8"/>)"},
    {L"关",
     LR"(<path d="M8 1a4.6 4.6 0 0 0-2.6 8.4c.5.4.8 1 .8 1.8h3.6c0-.8.3-1.4.8-1.8A4.6 4.6 0 0 0 8 1z" fill="#5b6b84" stroke="#2f3a4c" stroke-width=".8"/>)"},
    {L"冻结",
     LR"(<g stroke="#2f86c8" stroke-width="1.3" stroke-linecap="round" fill="none"><path d="M8 1.2v13.6M2.1 4.6l11.8 6.8M2.1 11.4l11.8-6.8"/><path d="M6.2 2.4L8 4l1.8-1.6M6.2 13.6L8 12l1.8 1.6M2.2 7l2.2-1-.3-2.4M13.8 9l-2.2 1 .3 2.4M2.2 9l2.2 1-.3 2.4M13.8 7l-2.2-1 .3-2.4"/></g>)"},
    {L"锁定",
     LR"(<path d="M5 7.4V5a3 3 0 0 1 6 0v2.4" fill="none" stroke="#66707c" stroke-width="1.5"/><rect x="3.3" y="7" width="9.4" height="7.4" rx="1" fill="#d8921e" stroke="#7a4a08" stroke-width=".8"/><rect x="7.4" y="9.4" width="1.2" height="2.8" fill="#7a4a08"/>)"},
};

// The two bulbs stand on a base.
bool IsBulb(const Icon& icon) {
  return &icon == &kIcons[layers::kOnIcon] || &icon == &kIcons[layers::kOffIcon];
}

} // namespace

std::vector<CString> layers::LayerIcons() {
  std::vector<CString> pictures;
  for (const Icon& icon : kIcons)
    pictures.push_back(CString(LR"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16">)") +
                       icon.picture + (IsBulb(icon) ? kBase : L"") + L"</svg>");
  return pictures;
}

std::vector<CString> layers::LayerIconNames() {
  std::vector<CString> names;
  for (const Icon& icon : kIcons) names.push_back(icon.name);
  return names;
}
