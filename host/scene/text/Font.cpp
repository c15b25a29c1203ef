#include "host/scene/text/Font.h"

bool scene::Font::isStroked() const {
  if (!family.IsEmpty()) return false;
  CString name = file;
  name.MakeLower();
  const auto ends = [&](const wchar_t* ending) { return name.View().ends_with(ending); };
  return !ends(L".ttf") && !ends(L".ttc") && !ends(L".otf") && !ends(L".pfb");
}

std::size_t std::hash<scene::Font>::operator()(const scene::Font& font) const noexcept {
  const std::hash<CString> text;
  std::size_t value = text(font.file);
  value = value * 31 + text(font.bigFile);
  value = value * 31 + text(font.family);
  return value * 8 + (font.bold ? 1 : 0) + (font.italic ? 2 : 0) + (font.vertical ? 4 : 0);
}
