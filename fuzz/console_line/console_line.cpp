// Any bytes typed at the console: they may be refused, but never more than that. Commands that reach files
// are taken away, since the bytes could name any.
#include "host/commands/HostCommands.h"
#include "host/console/ConsoleProgram.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/EdKeywords.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/WildcardMatch.h"

#include <cstdint>
#include <sstream>
#include <string>

namespace {

bool setUp() {
  commands::RegisterHostCommands();
  for (const wchar_t* name : {L"OPEN", L"RECOVER", L"SAVE", L"SAVEAS", L"SCRIPT", L"APPLOAD"})
    acedRegCmds->removeCmd(L"HOST", name);
  return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool ready = setUp();
  (void)ready;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const CString text = CString::FromUtf8(bytes);
  ed::ParsePoint(text, {1, 2, 3});
  ed::ParseSelection(text, {1, 2, 3});
  ed::Excerpt(text);
  const EdKeywords keywords(text);
  keywords.match(text);
  ed::MatchesPattern(text.Left(200).View(), text.Left(200).View(), true);
  std::istringstream in(bytes);
  std::ostringstream out;
  console::RunConsole({}, in, out);
  return 0;
}
