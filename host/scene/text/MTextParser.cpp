#include "host/scene/text/MTextParser.h"

#include "host/afx/Numbers.h"
#include "host/scene/text/LineText.h"
#include "host/scene/text/TextMetrics.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace scene {
namespace {

constexpr std::size_t kDeepest = 200; // groups within one another; what is deeper shares the form

class Parser {
 public:
  Parser(std::wstring_view text, const CharacterForm& initial) : m_text(text), m_form(initial) {}

  std::vector<TextPiece> parse() {
    while (m_at < m_text.size()) step();
    flush();
    return std::move(m_pieces);
  }

 private:
  wchar_t peek(std::size_t ahead = 0) const {
    return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : L'\0';
  }

  void step() {
    const wchar_t c = m_text[m_at++];
    switch (c) {
    case L'\\':
      return command();
    case L'{':
      if (m_saved.size() < kDeepest) m_saved.push_back(m_form);
      return flush();
    case L'}':
      flush();
      if (m_saved.empty()) return;
      m_form = m_saved.back();
      m_saved.pop_back();
      return;
    case L'\n':
      return add(TextPiece::Kind::newLine);
    case L'\t':
      return add(TextPiece::Kind::tab);
    case L' ':
      flush();
      m_word = L" ";
      return add(TextPiece::Kind::blank);
    case L'%':
      if (peek() == L'%' && percent()) return;
      return character(c);
    default:
      if (c >= L' ') character(c);
      return;
    }
  }

  // %%c and its kin, of which underlining has codes of its own here.
  bool percent() {
    const wchar_t sign = SignOf(peek(1));
    if (sign != 0) {
      m_at += 2;
      character(sign);
      return true;
    }
    int number = 0;
    for (std::size_t i = 1; i <= 3; ++i) {
      if (peek(i) < L'0' || peek(i) > L'9') return false;
      number = number * 10 + (peek(i) - L'0');
    }
    m_at += 4;
    if (number >= 32) character(static_cast<wchar_t>(number));
    return true;
  }

  void character(wchar_t c) {
    // A line may break before and behind a Chinese character.
    if (IsFullWidth(c)) flush();
    m_word += c;
    if (IsFullWidth(c)) flush();
  }

  void flush() {
    if (!m_word.empty()) add(TextPiece::Kind::word);
  }
  void add(TextPiece::Kind kind) {
    if (kind != TextPiece::Kind::word && kind != TextPiece::Kind::blank) flush();
    TextPiece piece;
    piece.kind = kind;
    piece.text = std::move(m_word);
    piece.form = m_form;
    piece.paragraph = m_paragraph;
    m_word.clear();
    m_pieces.push_back(std::move(piece));
  }

  // Up to the closing semicolon, or to the end where none comes.
  std::wstring argument() {
    const std::size_t end = std::min(m_text.find(L';', m_at), m_text.size());
    std::wstring found(m_text.substr(m_at, end - m_at));
    m_at = std::min(end + 1, m_text.size());
    return found;
  }

  void command() {
    if (m_at >= m_text.size()) return character(L'\\');
    const wchar_t code = m_text[m_at++];
    switch (code) {
    case L'P':
      return add(TextPiece::Kind::newLine);
    case L'N':
      return add(TextPiece::Kind::newColumn);
    case L'X':
      return add(TextPiece::Kind::newLine);
    case L'~':
      return character(L'\u00A0');
    case L'S':
      return stack();
    case L'\\':
    case L'{':
    case L'}':
      return character(code);
    default:
      break;
    }
    flush();
    switch (code) {
    case L'L':
    case L'l':
      m_form.underlined = code == L'L';
      return;
    case L'O':
    case L'o':
      m_form.overlined = code == L'O';
      return;
    case L'K':
    case L'k':
      m_form.struck = code == L'K';
      return;
    case L'H':
      return scaled(m_form.height);
    case L'W':
      return scaled(m_form.widthFactor);
    case L'Q':
      m_form.oblique = std::clamp(_wtof(argument().c_str()), -85.0, 85.0) * std::numbers::pi / 180;
      return;
    case L'T':
      argument();
      return;
    case L'A':
      m_form.alignment = _wtoi(argument().c_str());
      return;
    case L'C':
      m_form.color = std::clamp(_wtoi(argument().c_str()), 0, 256);
      m_form.trueColor.reset();
      return;
    case L'c':
      return trueColor(argument());
    case L'f':
    case L'F':
      return font(argument());
    case L'p':
      return paragraph(argument());
    default: // no code: the letters stand for themselves
      character(L'\\');
      return character(code);
    }
  }

  // "2.5" sets, "0.7x" multiplies.
  void scaled(double& value) {
    const std::wstring text = argument();
    const double number = _wtof(text.c_str());
    if (!(number > 0) || !std::isfinite(number)) return;
    const double changed =
        !text.empty() && (text.back() == L'x' || text.back() == L'X') ? value * number : number;
    if (std::isfinite(changed) && changed > 0) value = changed;
  }

  // 24 bits with blue highest, the other way round than in group 420.
  void trueColor(const std::wstring& text) {
    const auto value = static_cast<long long>(std::clamp(_wtof(text.c_str()), 0.0, 16777215.0));
    m_form.trueColor = Color::fromTrueColor((value & 0xFF) << 16 | (value & 0xFF00) | value >> 16);
  }

  // "Arial|b1|i0|c0|p34", or files as "gbenor.shx,gbcbig.shx".
  void font(const std::wstring& text) {
    const std::size_t bar = text.find(L'|');
    const std::wstring name = text.substr(0, bar);
    const std::size_t comma = name.find(L',');
    Font found;
    found.vertical = m_form.font.vertical;
    const CString first(name.substr(0, comma));
    CString small = first;
    if (comma != name.npos || small.MakeLower().View().ends_with(L".shx") || bar == text.npos)
      found.file = first;
    else
      found.family = first;
    if (comma != name.npos) found.bigFile = CString(name.substr(comma + 1));
    found.bold = text.find(L"|b1") != text.npos;
    found.italic = text.find(L"|i1") != text.npos;
    m_form.font = found;
  }

  // "i-3,l4,t4,8": indents and tabs; "qc": alignment; "x" and "s" in front say what follows is ours to obey.
  void paragraph(const std::wstring& text) {
    std::size_t at = 0;
    wchar_t last = L'\0';
    if (text.find(L't') != text.npos) m_paragraph.tabs.clear();
    while (at < text.size()) {
      const std::size_t end = std::min(text.find(L',', at), text.size());
      std::wstring part = text.substr(at, end - at);
      at = end + 1;
      while (!part.empty() && (part[0] == L'x' || part[0] == L'*')) part.erase(0, 1);
      if (part.empty()) continue;
      if ((part[0] >= L'a' && part[0] <= L'z') || (part[0] >= L'A' && part[0] <= L'Z')) {
        last = part[0];
        part.erase(0, 1);
      }
      set(last, part);
    }
  }
  void set(wchar_t what, const std::wstring& value) {
    const double number = _wtof(value.c_str());
    switch (what) {
    case L'i':
      m_paragraph.firstIndent = number;
      break;
    case L'l':
      m_paragraph.leftIndent = number;
      break;
    case L'r':
      m_paragraph.rightIndent = number;
      break;
    case L't': {
      const bool isTyped = !value.empty() && (value[0] == L'c' || value[0] == L'r' || value[0] == L'd');
      const double tab = isTyped ? _wtof(value.c_str() + 1) : number;
      if (tab > 0) m_paragraph.tabs.push_back(tab);
      break;
    }
    case L'q':
      m_paragraph.alignment = value.empty() ? L'\0' : value[0];
      break;
    default:
      break;
    }
  }

  // "1/2", "1#2", "+0.1^-0.2"; a backslash takes the next character as it is.
  void stack() {
    flush();
    const std::wstring text = argument();
    TextPiece piece;
    piece.kind = TextPiece::Kind::stack;
    piece.form = m_form;
    piece.paragraph = m_paragraph;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool escaped = text[i] == L'\\' && i + 1 < text.size();
      const bool parts =
          !escaped && piece.stackKind == 0 && (text[i] == L'/' || text[i] == L'#' || text[i] == L'^');
      if (parts) {
        piece.stackKind = text[i];
        continue;
      }
      if (escaped) ++i;
      (piece.stackKind == 0 ? piece.text : piece.lower) += text[i];
    }
    if (piece.stackKind == 0) piece.kind = TextPiece::Kind::word; // nothing to stack
    m_pieces.push_back(std::move(piece));
  }

  std::wstring_view m_text;
  std::size_t m_at = 0;
  std::wstring m_word;
  CharacterForm m_form;
  ParagraphForm m_paragraph;
  std::vector<CharacterForm> m_saved;
  std::vector<TextPiece> m_pieces;
};

} // namespace

std::vector<TextPiece> ParseMText(std::wstring_view text, const CharacterForm& initial) {
  return Parser(text, initial).parse();
}

} // namespace scene
