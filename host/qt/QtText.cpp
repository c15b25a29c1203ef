#include "host/qt/QtText.h"

#include <string>

namespace desktop {

QString ToQt(const CString& text) {
  QString result;
  result.reserve(text.GetLength());
  for (const wchar_t c : text.View()) {
    const auto code = static_cast<char32_t>(c);
    if (code < 0x10000) {
      result.append(QChar(static_cast<char16_t>(code)));
    } else {
      result.append(QChar(QChar::highSurrogate(code)));
      result.append(QChar(QChar::lowSurrogate(code)));
    }
  }
  return result;
}

CString FromQt(const QString& text) {
  std::wstring result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
      result.push_back(static_cast<wchar_t>(QChar::surrogateToUcs4(c, text[++i])));
    else
      result.push_back(static_cast<wchar_t>(c.unicode()));
  }
  return CString(std::move(result));
}

namespace {

bool IsControl(wchar_t c) {
  return (c < 0x20 && c != L'\n' && c != L'\t') || (c >= 0x7F && c < 0xA0);
}

} // namespace

QString Shown(const CString& text) {
  const std::wstring_view from = text.View();
  std::wstring shown;
  shown.reserve(from.size());
  for (std::size_t i = 0; i < from.size(); ++i) {
    const wchar_t c = from[i];
    if (c == L'\r' && i + 1 < from.size() && from[i + 1] == L'\n') continue;
    shown.push_back(IsControl(c) || (c >= 0xD800 && c < 0xE000) ? L'\xFFFD' : c);
  }
  return ToQt(CString(std::move(shown)));
}

QString Plain(const CString& caption) {
  return Shown(caption).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace desktop
