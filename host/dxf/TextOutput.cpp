#include "host/dxf/TextOutput.h"

#include "host/dxf/FileEncoding.h"

namespace {

constexpr std::size_t kPiece = std::size_t{1} << 20;

} // namespace

dxf::TextOutput::TextOutput(const DrawingForm& form, Sink sink)
    : m_form(form), m_sink(std::move(sink)), m_plain(isPlainForm(form)) {}

void dxf::TextOutput::hand(std::string_view bytes) {
  if (!m_ended && !bytes.empty() && !m_sink(bytes)) m_ended = true;
}

void dxf::TextOutput::put(std::string_view text) {
  if (text.empty() || m_ended) return;
  const bool adjoins = !m_pending.empty() && m_pending.data() + m_pending.size() == text.data();
  if (adjoins && m_pending.size() < kPiece) {
    m_pending = {m_pending.data(), m_pending.size() + text.size()};
    return;
  }
  flushPending();
  m_pending = text;
}

void dxf::TextOutput::putCopy(std::string_view text) {
  if (text.empty() || m_ended) return;
  flushPending();
  take(text);
}

void dxf::TextOutput::flushPending() {
  if (!m_pending.empty()) take(m_pending);
  m_pending = {};
}

void dxf::TextOutput::take(std::string_view text) {
  if (m_lineOpen) m_buffer += m_form.crlf ? "\r\n" : "\n";
  m_lineOpen = text.back() != '\n';
  if (m_plain && text.size() >= kPiece) { // large enough to go by itself
    hand(m_buffer);
    m_buffer.clear();
    hand(text);
    return;
  }
  if (m_plain)
    m_buffer += text;
  else
    m_buffer += encodeForFile(text, m_form);
  if (m_buffer.size() < kPiece) return;
  hand(m_buffer);
  m_buffer.clear();
}

bool dxf::TextOutput::finish() {
  flushPending();
  hand(m_buffer);
  m_buffer.clear();
  return !m_ended;
}
