#include "host/scene/text/MTextLayout.h"

#include "host/scene/text/TextMetrics.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

constexpr double kLineDistance = 5.0 / 3; // of base lines, of the height
constexpr double kTabWidth = 4;           // of the height, where a text sets no tabs
constexpr double kStackGap = 0.2;         // between a fraction's line and its numbers, of the height

struct Line {
  std::vector<PlacedText> texts; // x from the line's left, y from its base line
  double width = 0;
  double trailing = 0; // of blanks at the end
  double height = 0;
  ParagraphForm paragraph;
  bool endsParagraph = false;
  bool endsColumn = false;
};

class Breaker {
 public:
  Breaker(const MTextForm& form, const TextMetrics& metrics) : m_form(form), m_metrics(metrics) {}

  std::vector<Line> lines(const std::vector<TextPiece>& pieces) {
    begin(pieces.empty() ? ParagraphForm() : pieces.front().paragraph, true);
    for (const TextPiece& piece : pieces) add(piece);
    m_line.endsParagraph = true;
    finish();
    return std::move(m_lines);
  }

 private:
  void begin(const ParagraphForm& paragraph, bool first) {
    m_line = Line();
    m_line.paragraph = paragraph;
    m_line.width = std::max(0.0, paragraph.leftIndent + (first ? paragraph.firstIndent : 0));
    m_isFresh = true;
  }
  void finish() {
    if (m_line.height == 0) m_line.height = m_lastHeight;
    m_lines.push_back(std::move(m_line));
  }
  double room() const {
    return m_form.width > 0 ? m_form.width - m_line.paragraph.rightIndent
                            : std::numeric_limits<double>::infinity();
  }

  void add(const TextPiece& piece) {
    m_lastHeight = piece.form.height;
    switch (piece.kind) {
    case TextPiece::Kind::newLine:
    case TextPiece::Kind::newColumn:
      m_line.height = std::max(m_line.height, piece.form.height);
      m_line.endsParagraph = true;
      m_line.endsColumn = piece.kind == TextPiece::Kind::newColumn;
      finish();
      return begin(piece.paragraph, true);
    case TextPiece::Kind::tab:
      return addTab(piece);
    case TextPiece::Kind::stack:
      return addStack(piece);
    case TextPiece::Kind::blank:
    case TextPiece::Kind::word:
      return addWord(piece);
    }
  }

  double advance(const CharacterForm& form, const std::wstring& text) const {
    return m_metrics.advance(form.font, text) * form.height * form.widthFactor;
  }

  void breakFor(const TextPiece& piece, double width) {
    if (!m_isFresh && m_line.width + width > room() + 1e-9 * m_form.width) {
      finish();
      begin(piece.paragraph, false);
    }
    if (m_isFresh) m_line.paragraph = piece.paragraph;
  }

  void addWord(const TextPiece& piece) {
    const double width = advance(piece.form, piece.text);
    const bool isBlank = piece.kind == TextPiece::Kind::blank;
    if (!isBlank) breakFor(piece, width);
    if (isBlank && m_isFresh && !m_lines.empty() && !m_lines.back().endsParagraph) return;
    const bool joins = !m_line.texts.empty() && m_joins && m_line.texts.back().form == piece.form;
    if (joins) {
      m_line.texts.back().text += piece.text;
      m_line.texts.back().advance += width;
    } else {
      m_line.texts.push_back({piece.text, piece.form, m_line.width, 0, width, 0});
    }
    grow(width, piece.form.height);
    m_line.trailing = isBlank ? m_line.trailing + width : 0;
    m_joins = true;
    m_isFresh = false;
  }

  void grow(double width, double height) {
    m_line.width += width;
    m_line.height = std::max(m_line.height, height);
  }

  void addTab(const TextPiece& piece) {
    const auto& tabs = piece.paragraph.tabs;
    const auto next = std::find_if(tabs.begin(), tabs.end(),
                                   [&](double tab) { return tab > m_line.width * (1 + 1e-9) + 1e-12; });
    const double step = kTabWidth * m_form.height;
    double to = next != tabs.end() ? *next : (std::floor(m_line.width / step + 1e-9) + 1) * step;
    // A hanging paragraph's tab leads to where its other lines begin.
    if (m_line.width < piece.paragraph.leftIndent &&
        (next == tabs.end() || *next > piece.paragraph.leftIndent))
      to = piece.paragraph.leftIndent;
    m_line.width = to;
    m_line.height = std::max(m_line.height, piece.form.height);
    m_joins = m_isFresh = false;
  }

  void addStack(const TextPiece& piece) {
    const double h = piece.form.height;
    const double upper = advance(piece.form, piece.text);
    const double lower = advance(piece.form, piece.lower);
    const bool slanted = piece.stackKind == L'#';
    const double width = slanted ? upper + lower + h * 0.5 : std::max(upper, lower);
    breakFor(piece, width);
    const double gap = h * kStackGap;
    const double base = piece.form.alignment == 0   ? 0
                        : piece.form.alignment == 1 ? m_form.height / 2 - h - gap
                                                    : m_form.height - 2 * (h + gap);
    const double middle = base + h + gap;
    const double x = m_line.width;
    const double over = slanted ? h * 0.5 : 0;
    m_line.texts.push_back({piece.text, piece.form, slanted ? x : x + (width - upper) / 2,
                            slanted ? base + h * 0.5 : middle + gap, upper, 0});
    m_line.texts.push_back({piece.lower, piece.form, slanted ? x + upper + over : x + (width - lower) / 2,
                            slanted ? base - h * 0.2 : base, lower, 0});
    if (slanted) {
      m_line.texts.push_back({{}, piece.form, x + upper, base - h * 0.2, over, base + h * 1.5});
    } else if (piece.stackKind == L'/') {
      m_line.texts.push_back({{}, piece.form, x, middle, width, middle});
    }
    grow(width, std::max(h, middle + gap + h));
    m_line.trailing = 0;
    m_joins = m_isFresh = false;
  }

  const MTextForm& m_form;
  const TextMetrics& m_metrics;
  std::vector<Line> m_lines;
  Line m_line;
  double m_lastHeight = 0;
  bool m_isFresh = true; // nothing stands on the line yet
  bool m_joins = false;  // the next word may go on the last text
};

double shareToTheLeft(const Line& line, int column) {
  switch (line.paragraph.alignment) {
  case L'l':
  case L'j':
  case L'd':
    return 0;
  case L'c':
    return 0.5;
  case L'r':
    return 1;
  default:
    return column / 2.0;
  }
}

} // namespace

MTextLayout LayOutMText(const std::vector<TextPiece>& pieces, const MTextForm& form,
                        const TextMetrics& metrics) {
  MTextLayout layout;
  std::vector<Line> lines = Breaker(form, metrics).lines(pieces);
  double widest = form.width;
  for (const Line& line : lines) widest = std::max(widest, line.width - line.trailing);
  const int attachment = std::clamp(form.attachment, 1, 9) - 1;
  const int column = attachment % 3;
  const bool hasColumns = form.columnHeights.size() > 1;
  const double pitch = (form.width > 0 ? form.width : widest) + form.gutter;
  const double spacing = form.lineSpacing > 0 ? form.lineSpacing : 1;

  double y = 0; // of the base line
  std::size_t inColumn = 0;
  bool isFirst = true;
  double lowest = 0;
  std::vector<double> lineX;
  for (Line& line : lines) {
    const double step = kLineDistance * (form.exactSpacing ? form.height : line.height) * spacing;
    const auto below = [&] { return isFirst ? -line.height : y - step; };
    const bool isFull = hasColumns && !isFirst && inColumn + 1 < form.columnHeights.size() &&
                        -below() > form.columnHeights[inColumn] * (1 + 1e-6);
    if (isFull) {
      ++inColumn;
      isFirst = true;
    }
    y = below();
    isFirst = false;
    lowest = std::min(lowest, y);
    const double width = line.width - line.trailing;
    const double free = (form.width > 0 ? form.width - line.paragraph.rightIndent : widest) - width;
    const double x = static_cast<double>(inColumn) * pitch + free * shareToTheLeft(line, column);
    for (PlacedText& text : line.texts) {
      text.x += x;
      text.y += y;
      text.slashTo += y;
      layout.texts.push_back(std::move(text));
    }
    if (line.endsColumn && hasColumns) { // beyond the last column too
      ++inColumn;
      isFirst = true;
    }
  }
  const double total = hasColumns ? widest + pitch * static_cast<double>(inColumn) : widest;
  const double left = hasColumns ? -total * (column / 2.0) : -widest * (column / 2.0);
  const double top = -lowest * (attachment / 3 / 2.0);
  for (PlacedText& text : layout.texts) {
    text.x += left;
    text.y += top;
    text.slashTo += top;
  }
  layout.left = left;
  layout.right = left + total;
  layout.top = top;
  layout.bottom = lowest + top;
  return layout;
}

} // namespace scene
