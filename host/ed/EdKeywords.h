// The words that a prompt accepts beside its own kind of answer. A list is written as acedInitGet takes it:
// words separated by blanks, the capitals of each (or what follows a comma) being the least that must be
// typed, and the words behind a lone "_" being what the program gets for them.
#pragma once

#include "host/afx/CString.h"

#include <optional>
#include <vector>

class EdKeywords {
 public:
  EdKeywords() = default;
  EdKeywords(const CString& list);
  EdKeywords(const wchar_t* list) : EdKeywords(CString(list)) {}

  bool isEmpty() const { return m_words.empty(); }
  // The keyword that was typed, in the program's spelling. A leading "_" is allowed.
  std::optional<CString> match(const CString& typed) const;
  // Its place in the list, from 0.
  std::optional<std::size_t> matchIndex(const CString& typed) const;
  // "L、A、U", for messages.
  CString text() const;

 private:
  struct Word {
    CString word;
    CString least;
    CString global;
  };
  std::vector<Word> m_words;
};
