// The printf-like formatter behind CString::Format. Directives are taken apart here; numbers are printed by
// fmt from a directive that is rebuilt with a conversion that fits the argument.
#include <algorithm>
#include <optional>

#include <fmt/printf.h>
#include <fmt/xchar.h>

#include "host/afx/FormatArgument.h"

namespace afx {
namespace {

constexpr int kMostWidth = 4096;

struct Directive {
  std::wstring flags;
  int width = 0;
  int precision = -1; // -1: none given
  wchar_t conversion = 0;
};

class Formatter {
 public:
  Formatter(std::wstring_view format, const FormatArgument* arguments, int count)
      : m_format(format), m_arguments(arguments), m_count(count) {}

  std::wstring Run() {
    while (m_at < m_format.size()) {
      const std::size_t percent = std::min(m_format.find(L'%', m_at), m_format.size());
      m_out.append(m_format, m_at, percent - m_at);
      m_at = percent;
      if (m_at < m_format.size()) TakeDirective();
    }
    return std::move(m_out);
  }

 private:
  wchar_t Peek() const { return m_at < m_format.size() ? m_format[m_at] : L'\0'; }

  bool Skip(std::wstring_view wanted) {
    if (m_format.substr(m_at, wanted.size()) != wanted) return false;
    m_at += wanted.size();
    return true;
  }

  const FormatArgument* NextArgument() { return m_next < m_count ? &m_arguments[m_next++] : nullptr; }

  // Digits or a star. A missing argument for a star counts as no number.
  std::optional<int> TakeNumber() {
    if (Skip(L"*")) {
      const FormatArgument* argument = NextArgument();
      if (!argument) return std::nullopt;
      return static_cast<int>(std::clamp<std::int64_t>(argument->AsSigned(), -kMostWidth, kMostWidth));
    }
    std::optional<int> number;
    for (; Peek() >= L'0' && Peek() <= L'9'; ++m_at)
      number = std::min(number.value_or(0) * 10 + (Peek() - L'0'), kMostWidth);
    return number;
  }

  void TakeDirective() {
    const std::size_t start = m_at++;
    if (Skip(L"%")) {
      m_out += L'%';
      return;
    }
    const int firstArgument = m_next;
    Directive directive;
    while (Peek() && std::wstring_view(L"-+ #0").find(Peek()) != std::wstring_view::npos)
      directive.flags += m_format[m_at++];
    directive.width = TakeNumber().value_or(0);
    if (directive.width < 0) {
      directive.flags += L'-';
      directive.width = -directive.width;
    }
    if (Skip(L".")) directive.precision = std::max(TakeNumber().value_or(0), -1);
    SkipLength();
    directive.conversion = Peek();
    if (directive.conversion == 0 ||
        std::wstring_view(L"diuoxXcCsSfFeEgGaApn").find(directive.conversion) == std::wstring_view::npos) {
      // No directive after all: the percent sign stands for itself and the rest is ordinary text.
      m_out += L'%';
      m_at = start + 1;
      m_next = firstArgument;
      return;
    }
    ++m_at;
    if (const FormatArgument* argument = NextArgument()) Print(directive, *argument);
  }

  // The argument knows its own size, so these say nothing.
  void SkipLength() {
    for (const std::wstring_view length :
         {L"I64", L"I32", L"hh", L"ll", L"h", L"l", L"L", L"I", L"w", L"z", L"t", L"j"})
      if (Skip(length)) return;
  }

  void Print(const Directive& directive, const FormatArgument& argument) {
    switch (directive.conversion) {
    case L'd':
    case L'i':
      // An unsigned number beyond the signed range would turn negative.
      if (argument.GetKind() == FormatArgument::Kind::Unsigned)
        PrintNumber(directive, L'u', argument.AsUnsigned());
      else
        PrintNumber(directive, L'd', argument.AsSigned());
      break;
    case L'u':
    case L'o':
    case L'x':
    case L'X':
      PrintNumber(directive, directive.conversion, argument.AsUnsigned());
      break;
    case L'c':
    case L'C':
      PrintCharacter(directive, argument);
      break;
    case L's':
    case L'S':
      PrintText(directive, argument.AsText());
      break;
    case L'p':
      PrintText(directive, fmt::format(L"{:016X}", argument.AsUnsigned()));
      break;
    case L'n':
      break;
    default:
      PrintNumber(directive, directive.conversion, argument.AsDouble());
    }
  }

  template <class Number> void PrintNumber(const Directive& directive, wchar_t conversion, Number number) {
    std::wstring format = L"%" + directive.flags;
    if (directive.width > 0) format += std::to_wstring(directive.width);
    if (directive.precision >= 0) format += L'.' + std::to_wstring(directive.precision);
    m_out += fmt::sprintf(format + conversion, number);
  }

  void PrintCharacter(const Directive& directive, const FormatArgument& argument) {
    const bool isText = argument.GetKind() == FormatArgument::Kind::WideText ||
                        argument.GetKind() == FormatArgument::Kind::NarrowText;
    const std::wstring text =
        isText ? argument.AsText().substr(0, 1) : std::wstring(1, static_cast<wchar_t>(argument.AsSigned()));
    PrintText({directive.flags, directive.width, -1, directive.conversion}, text);
  }

  void PrintText(const Directive& directive, std::wstring_view text) {
    if (directive.precision >= 0) text = text.substr(0, static_cast<std::size_t>(directive.precision));
    const std::size_t width = std::max(static_cast<std::size_t>(directive.width), text.size());
    const bool left = directive.flags.find(L'-') != std::wstring::npos;
    if (!left) m_out.append(width - text.size(), L' ');
    m_out += text;
    if (left) m_out.append(width - text.size(), L' ');
  }

  std::wstring_view m_format;
  const FormatArgument* m_arguments;
  int m_count;
  int m_next = 0;
  std::size_t m_at = 0;
  std::wstring m_out;
};

} // namespace

std::wstring FormatText(std::wstring_view format, const FormatArgument* arguments, int count) {
  return Formatter(format, arguments, count).Run();
}

} // namespace afx
