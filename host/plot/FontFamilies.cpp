#include "host/plot/FontFamilies.h"

namespace plot {
namespace {

// What is drawn for every character that no family before it has.
constexpr const char* kSans = "DejaVu Sans,WenQuanYi Micro Hei,Noto Sans CJK SC,sans-serif";
constexpr const char* kSerif = "Noto Serif CJK SC,WenQuanYi Micro Hei,Noto Sans CJK SC,serif";

struct Row {
  const wchar_t* file; // without its ending
  const char* family;
  bool serif;
};
// Font files of the systems that drawings come from.
constexpr Row kRows[] = {
    {L"simsun", "SimSun,NSimSun", true},
    {L"simhei", "SimHei", false},
    {L"simkai", "KaiTi,SimKai", true},
    {L"simfang", "FangSong,SimFang", true},
    {L"stsong", "STSong", true},
    {L"stfangso", "STFangsong", true},
    {L"msyh", "Microsoft YaHei", false},
    {L"msyhbd", "Microsoft YaHei", false},
    {L"arial", "Arial,Liberation Sans", false},
    {L"arialbd", "Arial,Liberation Sans", false},
    {L"times", "Times New Roman,Liberation Serif", true},
    {L"tahoma", "Tahoma", false},
    {L"verdana", "Verdana", false},
    {L"cour", "Courier New,Liberation Mono", false},
    {L"calibri", "Calibri,Carlito", false},
};

} // namespace

std::string FamiliesOf(const scene::Font& font) {
  if (!font.family.IsEmpty()) return font.family.ToUtf8() + "," + kSans;
  CString stem = font.file;
  stem.MakeLower();
  const int slash =
      stem.ReverseFind(L'\\') > stem.ReverseFind(L'/') ? stem.ReverseFind(L'\\') : stem.ReverseFind(L'/');
  stem = stem.Mid(slash + 1);
  const int point = stem.ReverseFind(L'.');
  if (point >= 0) stem = stem.Left(point);
  for (const Row& row : kRows)
    if (stem == row.file) return std::string(row.family) + "," + (row.serif ? kSerif : kSans);
  // Stroke fonts and files that nobody knows.
  return kSans;
}

} // namespace plot
