// A code page of old drawings, found by the name that a drawing gives in $DWGCODEPAGE. The tables of a page
// are made at its first use and stay; all operations may be called from several threads.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace afx {

class CodePage {
 public:
  // Is called for a character that the page lacks, and appends what shall stand for it. Characters above
  // U+FFFF and surrogates other than the carried bytes come here as they are.
  using Unencodable = std::function<void(wchar_t character, std::string& out)>;

  // The page of a name such as "ANSI_936", "dos850", "ISO8859-1", "UTF-8", in any case; null for an unknown
  // name. The result lives as long as the program.
  static const CodePage* Find(std::string_view name);

  // The name as drawings write it, "ANSI_936".
  const char* Name() const;

  // Never fails. A byte that the page leaves undefined becomes U+DC80-U+DCFF, as in Utf8ToWide.
  std::wstring Decode(std::string_view bytes) const;
  // The inverse, carried bytes included. Without a handler a character that the page lacks becomes '?'.
  std::string Encode(std::wstring_view text, const Unencodable& unencodable = {}) const;

  CodePage(const CodePage&) = delete;
  CodePage& operator=(const CodePage&) = delete;

 private:
  friend class CodePageList;
  explicit CodePage(int row) : m_row(row) {}

  int m_row; // of the table of pages
};

} // namespace afx
