#include "host/qt/window/PromptMenu.h"

namespace desktop {

std::vector<PromptOption> PromptOptions(const CString& prompt) {
  std::vector<PromptOption> options;
  const int open = prompt.ReverseFind(L'[');
  const int close = open < 0 ? -1 : prompt.Find(L']', open);
  if (close < 0) return options;
  const CString list = prompt.Mid(open + 1, close - open - 1);
  int at = 0;
  for (CString part = list.Tokenize(L"/", at); at != -1; part = list.Tokenize(L"/", at)) {
    part.Trim();
    const int bracket = part.ReverseFind(L'(');
    if (bracket < 0 || !part.View().ends_with(L')')) continue;
    options.push_back({part, part.Mid(bracket + 1, part.GetLength() - bracket - 2)});
  }
  return options;
}

} // namespace desktop
