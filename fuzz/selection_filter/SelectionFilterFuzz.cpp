// Any chain of result buffers as a filter: it is taken or refused, and asked about entities of several kinds.
// The bytes are read as records of a group code and a value.
#include "host/db/AcDbCircle.h"
#include "host/db/AcDbLine.h"
#include "host/db/AcDbText.h"
#include "host/db/resbuf.h"
#include "host/ed/SelectionFilter.h"

#include <cstdint>
#include <cstdlib>
#include <deque>
#include <iterator>
#include <string>

namespace {

constexpr const wchar_t* kWords[] = {L"<and", L"and>", L"<or", L"or>", L"<xor", L"xor>", L"<not", L"not>",
                                     L"=",    L"!=",   L">=",  L"<=",  L"<",    L">",    L"*",    L"LINE",
                                     L"0",    L"[",    L"~?*", L"",    L"#@.",  L"a,b",  L"&",    L"*,*"};
constexpr short kCodes[] = {0, 8, 6, 62, 10, 40, -4, -3, 1001, 1000, 370, 1, 7, 67, 210};
constexpr std::size_t kMostBuffers = 300;
constexpr std::uint8_t kFreeText = 200; // values above it bring so many letters of their own

class Reader {
 public:
  Reader(const std::uint8_t* data, std::size_t size) : m_at(data), m_end(data + size) {}
  bool atEnd() const { return m_at == m_end; }
  std::uint8_t byte() { return atEnd() ? std::uint8_t{0} : *m_at++; }

 private:
  const std::uint8_t* m_at;
  const std::uint8_t* m_end;
};

// Owns the chain that it makes.
class Chain {
 public:
  explicit Chain(Reader& reader) {
    while (!reader.atEnd() && m_buffers.size() < kMostBuffers) add(reader);
    for (std::size_t i = 0; i + 1 < m_buffers.size(); ++i) m_buffers[i].rbnext = &m_buffers[i + 1];
  }
  const resbuf* head() const { return m_buffers.empty() ? nullptr : &m_buffers.front(); }

 private:
  void add(Reader& reader) {
    resbuf& buffer = m_buffers.emplace_back();
    buffer.restype = kCodes[reader.byte() % std::size(kCodes)];
    const std::uint8_t value = reader.byte();
    if (buffer.restype == 10 || buffer.restype == 210) {
      for (double& coordinate : buffer.resval.rpoint) coordinate = reader.byte() - 100.0;
    } else if (buffer.restype == 40) {
      buffer.resval.rreal = value / 8.0;
    } else if (buffer.restype < 10 || buffer.restype >= 1000) {
      m_texts.emplace_back(kWords[value % std::size(kWords)]);
      for (int i = kFreeText; i < value; ++i) m_texts.back() += static_cast<wchar_t>(reader.byte());
      buffer.resval.rstring = m_texts.back().data();
    } else {
      buffer.resval.rint = static_cast<short>(value);
    }
  }

  std::deque<resbuf> m_buffers;
  std::deque<std::wstring> m_texts;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Reader reader(data, size);
  const Chain chain(reader);
  const SelectionFilter filter(chain.head());
  const AcDbLine line(AcGePoint3d(1, 2, 3), AcGePoint3d(4, 5, 6));
  const AcDbCircle circle;
  const AcDbText text;
  for (const AcDbEntity* entity :
       {static_cast<const AcDbEntity*>(&line), static_cast<const AcDbEntity*>(&circle),
        static_cast<const AcDbEntity*>(&text)}) {
    const bool takes = filter.takes(*entity);
    if (takes && !filter.isValid()) std::abort();
    if (takes != filter.takes(*entity)) std::abort();
  }
  return 0;
}
