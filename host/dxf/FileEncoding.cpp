#include "host/dxf/FileEncoding.h"

#include "host/afx/Encoding.h"
#include "host/db/DxfTag.h"
#include "host/dxf/RecordScanner.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

bool isAscii(std::string_view bytes) {
  std::size_t i = 0;
  for (; i + 8 <= bytes.size(); i += 8) {
    std::uint64_t block;
    std::memcpy(&block, bytes.data() + i, sizeof block);
    if (block & 0x8080808080808080ull) return false;
  }
  for (; i < bytes.size(); ++i)
    if (static_cast<unsigned char>(bytes[i]) >= 0x80) return false;
  return true;
}

struct LineEnds {
  std::size_t withReturn = 0; // "CR LF"
  bool odd = false;           // more than one CR ahead of an LF, or a CR at the end of the file
};

// Leaves line feeds alone as line ends. What stands ahead of one must not read as part of it when the file is
// written again, so all of several CRs go.
LineEnds dropCarriageReturns(std::string& text) {
  LineEnds ends;
  char* out = text.data();
  const char* in = text.data();
  const char* const end = in + text.size();
  while (in < end) {
    const auto* cr = static_cast<const char*>(std::memchr(in, '\r', static_cast<std::size_t>(end - in)));
    const char* stop = cr ? cr : end;
    std::memmove(out, in, static_cast<std::size_t>(stop - in));
    out += stop - in;
    if (!cr) break;
    for (in = cr; in < end && *in == '\r';) ++in;
    if (in < end && *in != '\n') { // within a line
      std::memmove(out, cr, static_cast<std::size_t>(in - cr));
      out += in - cr;
      continue;
    }
    if (in < end) ++ends.withReturn;
    ends.odd = ends.odd || in == end || in - cr > 1;
  }
  text.resize(static_cast<std::size_t>(out - text.data()));
  return ends;
}

// UTF-8 throughout. The runs of ASCII, which are most of a drawing, are passed over in blocks.
bool isUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    std::uint64_t block;
    if (at + sizeof block <= bytes.size()) {
      std::memcpy(&block, bytes.data() + at, sizeof block);
      if (!(block & 0x8080808080808080ull)) {
        at += sizeof block;
        continue;
      }
    }
    const auto isHigh = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]) >= 0x80; };
    while (at < bytes.size() && !isHigh(at)) ++at;
    std::size_t end = at;
    while (end < bytes.size() && isHigh(end)) ++end;
    if (!afx::IsUtf8(bytes.substr(at, end - at))) return false;
    at = end;
  }
  return true;
}

// "AC1009" and above. Versions before it, and words that are none, go by the rules of AC1009.
bool isVersion(std::string_view version) {
  return version.size() == 6 && version.starts_with("AC1") &&
         std::all_of(version.begin() + 3, version.end(),
                     [](char c) { return std::isdigit(static_cast<unsigned char>(c)); });
}

// Version and code page stand near the beginning; the rest of the file is not looked at. A broken line is
// passed over, as recovery does it.
void readHeaderStrings(std::string_view text, DrawingForm& form, bool& hasCodePage) {
  form.hasVersion = false;
  hasCodePage = false;
  std::string_view variable;
  dxf::RecordScanner scanner(text);
  const auto next = [&] { return scanner.next() || (scanner.resynchronise() && scanner.next()); };
  for (int sections = 0; next();) {
    if (scanner.type() == "SECTION" && ++sections == 2) break;
    if (scanner.type() == "ENDSEC" || scanner.type() == "EOF") break;
    for (const DxfTag& tag : scanner.tags()) {
      const std::string_view value = dxf::trimBlanks(tag.value);
      if (tag.code == 9) variable = value;
      if (tag.code == 1 && variable == "$ACADVER") {
        form.version = value;
        form.hasVersion = true;
      }
      if (tag.code == 3 && variable == "$DWGCODEPAGE") {
        form.codePage = value;
        hasCodePage = true;
      }
    }
  }
  if (!form.hasVersion || !isVersion(form.version)) form.version = "AC1009";
}

// A text in a double-byte code page can look like UTF-8 by chance, but then like characters of two bytes
// only.
bool looksLikeUtf8(std::string_view line) {
  return isUtf8(line) &&
         std::any_of(line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) >= 0xE0; });
}

struct LineCounts {
  std::size_t converted = 0; // from the code page
  std::size_t utf8 = 0;
  std::size_t kept = 0; // undecodable, kept as bytes
};

template <typename Convert> std::string byLines(std::string_view text, Convert convert) {
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  while (!text.empty()) {
    const auto end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (isAscii(line))
      out += line;
    else
      convert(line, out);
    if (end == text.npos) break;
    out += '\n';
    text.remove_prefix(end + 1);
  }
  return out;
}

void appendEscape(wchar_t c, std::string& out) {
  char buffer[16];
  const auto unit = [&](unsigned code) {
    std::snprintf(buffer, sizeof buffer, "\\U+%04X", code);
    out += buffer;
  };
  const auto code = static_cast<unsigned>(c);
  if (code > 0xFFFF) {
    unit(0xD800 + ((code - 0x10000) >> 10));
    unit(0xDC00 + ((code - 0x10000) & 0x3FF));
  } else {
    unit(code);
  }
}

// Bytes that the page doesn't explain are carried as lone surrogates, which are the bytes again in UTF-8;
// where two of them would read as a character there, characters of the last private area, which no page has,
// stand for them.
constexpr wchar_t kCarriedByte = 0xDC00;
constexpr wchar_t kPrivateByte = 0x10FF00;

std::string inPage(std::string_view text, const afx::CodePage& page) {
  std::wstring wide = afx::Utf8ToWide(text);
  for (wchar_t& c : wide)
    if (c >= kPrivateByte + 0x80 && c <= kPrivateByte + 0xFF) c += kCarriedByte - kPrivateByte;
  return page.Encode(wide, appendEscape);
}

// Text that is written back as the same line: with the characters that the page explains where those come
// back, and otherwise with none of them.
std::string keepingBytes(std::string_view line, std::wstring decoded, const afx::CodePage& page) {
  for (const std::string& text : {afx::WideToUtf8(decoded), std::string(line)})
    if (inPage(text, page) == line) return text;
  for (wchar_t& c : decoded)
    if (c >= kCarriedByte + 0x80 && c <= kCarriedByte + 0xFF) c += kPrivateByte - kCarriedByte;
  std::string text = afx::WideToUtf8(decoded);
  if (inPage(text, page) == line) return text;
  decoded.clear();
  for (const char c : line)
    decoded += static_cast<wchar_t>(
        static_cast<unsigned char>(c) < 0x80 ? c : kPrivateByte + static_cast<unsigned char>(c));
  return afx::WideToUtf8(decoded);
}

std::string decodeLines(std::string_view text, const afx::CodePage& page, bool savedInPage,
                        LineCounts& counts) {
  return byLines(text, [&](std::string_view line, std::string& out) {
    if (looksLikeUtf8(line)) {
      ++counts.utf8;
      out += line;
      return;
    }
    const std::wstring wide = page.Decode(line);
    const bool whole =
        std::none_of(wide.begin(), wide.end(), [](wchar_t c) { return c >= 0xDC80 && c <= 0xDCFF; });
    if (whole && page.Encode(wide) == line) {
      ++counts.converted;
      out += afx::WideToUtf8(wide);
      return;
    }
    ++counts.kept;
    out += savedInPage ? keepingBytes(line, wide, page) : std::string(line);
  });
}

} // namespace

dxf::DecodedFile dxf::decodeFile(std::string bytes, DrawingForm& form) {
  DecodedFile file;
  const auto note = [&](const wchar_t* format, auto... values) {
    file.notes.emplace_back().Format(format, values...);
  };
  if (bytes.starts_with("\xEF\xBB\xBF")) {
    bytes.erase(0, 3);
    note(L"文件开头的 UTF-8 字节顺序标记已去掉");
  }
  const auto firstEnd = bytes.find('\n');
  form.crlf = firstEnd != bytes.npos && firstEnd > 0 && bytes[firstEnd - 1] == '\r';
  if (form.crlf || std::memchr(bytes.data(), '\r', bytes.size())) {
    const LineEnds ends = dropCarriageReturns(bytes);
    const auto lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
    if (ends.odd || ends.withReturn != (form.crlf ? lines : 0))
      note(L"文件混用两种行尾，将统一为%s", form.crlf ? L"回车换行" : L"换行");
  }
  bool hasCodePage = false;
  readHeaderStrings(bytes, form, hasCodePage);
  const bool unicodeVersion = form.version >= "AC1021";
  form.utf8 = unicodeVersion;
  const afx::CodePage* page = hasCodePage ? afx::CodePage::Find(form.codePage) : nullptr;
  if (!hasCodePage) form.codePage.clear();
  if (isAscii(bytes)) {
    file.text = std::move(bytes);
    return file;
  }
  const CString namedPage = CString::FromUtf8(form.codePage);
  const bool unknownPage = hasCodePage && !page;
  if (!page) page = afx::CodePage::Find(dxf::kDefaultCodePage);
  const CString pageName = CString::FromUtf8(page->Name());
  if (isUtf8(bytes) && (unicodeVersion || looksLikeUtf8(bytes))) {
    if (!unicodeVersion) note(L"文字实为 UTF-8，与文件头的代码页不符，按 UTF-8 读写");
    form.utf8 = true;
    file.text = std::move(bytes);
    return file;
  }
  if (unknownPage) note(L"代码页“%s”未知，按 %s 读写", namedPage, pageName);
  form.codePage = page->Name();
  LineCounts counts;
  file.text = decodeLines(bytes, *page, !form.utf8, counts);
  if (unicodeVersion && counts.converted > 0)
    note(L"%d 行文字不是 UTF-8，已按 %s 读入，将以 UTF-8 保存", counts.converted, pageName);
  if (!unicodeVersion && counts.utf8 > 0) note(L"%d 行文字实为 UTF-8，将以 %s 保存", counts.utf8, pageName);
  if (counts.kept > 0) note(L"%d 行含无法识别的字节，原样保留", counts.kept);
  return file;
}

std::size_t dxf::replaceUnexplainedBytes(std::string& text) {
  if (isAscii(text)) return 0;
  std::size_t count = 0;
  std::wstring wide = afx::Utf8ToWide(text);
  for (wchar_t& c : wide) {
    const bool isByte = (c >= kCarriedByte + 0x80 && c <= kCarriedByte + 0xFF) ||
                        (c >= kPrivateByte + 0x80 && c <= kPrivateByte + 0xFF);
    if (!isByte) continue;
    c = 0xFFFD;
    ++count;
  }
  if (count > 0) text = afx::WideToUtf8(wide);
  return count;
}

bool dxf::isPlainForm(const DrawingForm& form) {
  return form.utf8 && !form.crlf;
}

std::string dxf::encodeForFile(std::string_view text, const DrawingForm& form) {
  std::string encoded;
  if (!form.utf8 && !isAscii(text)) {
    // A drawing that names no code page gets escapes, which every reader understands.
    const afx::CodePage* page = form.codePage.empty() ? nullptr : afx::CodePage::Find(form.codePage);
    encoded = byLines(text, [&](std::string_view line, std::string& out) {
      if (page) {
        out += inPage(line, *page);
        return;
      }
      for (const wchar_t c : afx::Utf8ToWide(line)) {
        if (c < 0x80)
          out += static_cast<char>(c);
        else if (c >= 0xDC80 && c <= 0xDCFF)
          out += static_cast<char>(c - 0xDC00);
        else
          appendEscape(c, out);
      }
    });
  } else {
    encoded = text;
  }
  if (!form.crlf) return encoded;
  std::string lines;
  lines.reserve(encoded.size() + encoded.size() / 8);
  for (std::size_t start = 0; start < encoded.size();) {
    const auto end = encoded.find('\n', start);
    if (end == encoded.npos) {
      lines.append(encoded, start);
      break;
    }
    lines.append(encoded, start, end - start);
    lines += "\r\n";
    start = end + 1;
  }
  return lines;
}
