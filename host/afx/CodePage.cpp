#include "host/afx/CodePage.h"

#include <array>
#include <cstdint>
#include <memory>
#include <mutex>

#include "host/afx/AsciiPrefix.h"
#include "host/afx/CodePageTables.h"
#include "host/afx/Encoding.h"

namespace afx {
namespace {

struct PageRow {
  const char* name;     // as drawings write it
  const char* iconv;    // null for UTF-8, which needs no table
  const char* fallback; // for pairs that the page leaves open: the user-defined areas of GBK
};

constexpr PageRow kPages[] = {
    {"UTF-8", nullptr, nullptr},          {"ANSI_874", "CP874", nullptr},
    {"ANSI_932", "CP932", nullptr},       {"ANSI_936", "CP936", "GB18030"},
    {"ANSI_949", "CP949", nullptr},       {"ANSI_950", "CP950", nullptr},
    {"ANSI_1250", "CP1250", nullptr},     {"ANSI_1251", "CP1251", nullptr},
    {"ANSI_1252", "CP1252", nullptr},     {"ANSI_1253", "CP1253", nullptr},
    {"ANSI_1254", "CP1254", nullptr},     {"ANSI_1255", "CP1255", nullptr},
    {"ANSI_1256", "CP1256", nullptr},     {"ANSI_1257", "CP1257", nullptr},
    {"ANSI_1258", "CP1258", nullptr},     {"ANSI_1361", "JOHAB", nullptr},
    {"DOS437", "CP437", nullptr},         {"DOS737", "CP737", nullptr},
    {"DOS775", "CP775", nullptr},         {"DOS850", "CP850", nullptr},
    {"DOS852", "CP852", nullptr},         {"DOS855", "CP855", nullptr},
    {"DOS857", "CP857", nullptr},         {"DOS858", "CP858", nullptr},
    {"DOS860", "CP860", nullptr},         {"DOS861", "CP861", nullptr},
    {"DOS862", "CP862", nullptr},         {"DOS863", "CP863", nullptr},
    {"DOS864", "CP864", nullptr},         {"DOS865", "CP865", nullptr},
    {"DOS866", "CP866", nullptr},         {"DOS869", "CP869", nullptr},
    {"ISO8859-1", "ISO-8859-1", nullptr}, {"ISO8859-2", "ISO-8859-2", nullptr},
    {"ISO8859-3", "ISO-8859-3", nullptr}, {"ISO8859-4", "ISO-8859-4", nullptr},
    {"ISO8859-5", "ISO-8859-5", nullptr}, {"ISO8859-6", "ISO-8859-6", nullptr},
    {"ISO8859-7", "ISO-8859-7", nullptr}, {"ISO8859-8", "ISO-8859-8", nullptr},
    {"ISO8859-9", "ISO-8859-9", nullptr}, {"ISO8859-15", "ISO-8859-15", nullptr},
    {"MACINTOSH", "MACINTOSH", nullptr},  {"US_ASCII", "ASCII", nullptr},
};

// Other names that drawings carry for the same pages, in the plain form of PlainName.
constexpr struct {
  const char* alias;
  const char* name;
} kAliases[] = {
    {"dos932", "ANSI_932"},    {"sjis", "ANSI_932"},    {"shiftjis", "ANSI_932"}, {"gb2312", "ANSI_936"},
    {"gbk", "ANSI_936"},       {"ksc5601", "ANSI_949"}, {"big5", "ANSI_950"},     {"johab", "ANSI_1361"},
    {"macroman", "MACINTOSH"}, {"mac", "MACINTOSH"},    {"ascii", "US_ASCII"},    {"ansi65001", "UTF-8"},
    {"iso88591", "ISO8859-1"}, {"latin1", "ISO8859-1"},
};

// Small letters and digits alone, so that "ANSI_936", "ansi936" and "ISO-8859-1" meet their rows.
std::string PlainName(std::string_view name) {
  std::string plain;
  for (const char character : name) {
    if (character >= 'A' && character <= 'Z')
      plain += static_cast<char>(character - 'A' + 'a');
    else if ((character >= 'a' && character <= 'z') || (character >= '0' && character <= '9'))
      plain += character;
    else if (character != '-' && character != '_' && character != ' ')
      return {};
  }
  return plain;
}

int FindRow(std::string_view name) {
  std::string plain = PlainName(name);
  if (plain.empty()) return -1;
  for (const auto& [alias, target] : kAliases)
    if (plain == alias) plain = PlainName(target);
  for (int row = 0; row < static_cast<int>(std::size(kPages)); ++row)
    if (plain == PlainName(kPages[row].name)) return row;
  return -1;
}

// Null for UTF-8 and for a page that this machine's iconv lacks.
const CodePageTables* TablesOf(int row) {
  struct Slot {
    std::once_flag once;
    std::unique_ptr<const CodePageTables> tables;
  };
  static std::array<Slot, std::size(kPages)> slots;
  Slot& slot = slots[static_cast<std::size_t>(row)];
  std::call_once(slot.once, [&] {
    const PageRow& page = kPages[row];
    auto tables = std::make_unique<CodePageTables>();
    if (page.iconv && tables->Fill(page.iconv, page.fallback)) slot.tables = std::move(tables);
  });
  return slot.tables.get();
}

} // namespace

class CodePageList {
 public:
  static const CodePage* At(int row) {
    static const CodePageList list;
    return list.m_pages[static_cast<std::size_t>(row)].get();
  }

 private:
  CodePageList() {
    for (std::size_t row = 0; row < m_pages.size(); ++row)
      m_pages[row].reset(new CodePage(static_cast<int>(row)));
  }
  std::array<std::unique_ptr<const CodePage>, std::size(kPages)> m_pages;
};

const CodePage* CodePage::Find(std::string_view name) {
  const int row = FindRow(name);
  if (row < 0 || (kPages[row].iconv && !TablesOf(row))) return nullptr;
  return CodePageList::At(row);
}

const char* CodePage::Name() const {
  return kPages[m_row].name;
}

std::wstring CodePage::Decode(std::string_view bytes) const {
  const CodePageTables* tables = TablesOf(m_row);
  if (!tables) return Utf8ToWide(bytes);
  const std::size_t plain = AsciiPrefix(bytes);
  std::wstring text;
  text.reserve(bytes.size());
  text.append(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(plain));
  for (std::size_t i = plain; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (byte < 0x80) {
      text += static_cast<wchar_t>(byte);
      continue;
    }
    char16_t character = tables->single[byte - 0x80u];
    if (character == 0 && !tables->pairs.empty() && i + 1 < bytes.size()) {
      character =
          tables->pairs[static_cast<std::size_t>(byte << 8 | static_cast<unsigned char>(bytes[i + 1]))];
      if (character != 0) ++i;
    }
    text += character != 0 ? static_cast<wchar_t>(character) : static_cast<wchar_t>(0xDC00 + byte);
  }
  return text;
}

std::string CodePage::Encode(std::wstring_view text, const Unencodable& unencodable) const {
  const CodePageTables* tables = TablesOf(m_row);
  if (!tables) return WideToUtf8(text);
  const std::size_t plain = AsciiPrefix(text);
  std::string bytes;
  bytes.reserve(plain + (text.size() - plain) * 2);
  bytes.append(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(plain));
  for (const wchar_t character : text.substr(plain)) {
    const auto value = static_cast<std::uint32_t>(character);
    const unsigned code = value < tables->codes.size() ? tables->codes[value] : 0;
    if (value < 0x80) {
      bytes += static_cast<char>(character);
    } else if (value >= 0xDC80 && value <= 0xDCFF) {
      bytes += static_cast<char>(value - 0xDC00);
    } else if (code != 0) {
      if (code > 0xFF) bytes += static_cast<char>(code >> 8);
      bytes += static_cast<char>(code & 0xFF);
    } else if (unencodable) {
      unencodable(character, bytes);
    } else {
      bytes += '?';
    }
  }
  return bytes;
}

} // namespace afx
