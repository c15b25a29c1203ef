#include "host/scene/text/TextMetrics.h"

bool scene::IsFullWidth(wchar_t c) {
  const auto code = static_cast<unsigned>(c);
  return (code >= 0x1100 && code < 0x1160) || (code >= 0x2E80 && code < 0xA4D0) ||
         (code >= 0xAC00 && code < 0xD7A4) || (code >= 0xF900 && code < 0xFB00) ||
         (code >= 0xFE30 && code < 0xFE70) || (code >= 0xFF00 && code < 0xFF61) ||
         (code >= 0x20000 && code < 0x40000);
}

double scene::EstimatedMetrics::advance(const Font&, std::wstring_view text) const {
  double sum = 0;
  for (const wchar_t c : text) sum += IsFullWidth(c) ? 1.0 : 0.7;
  return sum;
}
