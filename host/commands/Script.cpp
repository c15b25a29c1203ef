// SCRIPT: takes the next lines from a file.
#include "host/afx/AtomicFile.h"
#include "host/commands/AskFileName.h"
#include "host/commands/CommandFunctions.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"

namespace commands {

void Script() {
  auto& session = EdSession::instance();
  const auto name = AskFileName({L"输入脚本文件名:", L"执行脚本", {L"*.scr"}, {}, false});
  if (!name) return;
  if (session.input().scriptDepth() >= EdInput::kMaxScripts) {
    CString reason;
    reason.Format(L"脚本嵌套超过 %d 层，未执行。", static_cast<int>(EdInput::kMaxScripts));
    return session.refuse(reason, L"不调用自身的脚本");
  }
  constexpr std::uint64_t largest = 64ull << 20;
  const CString& path = *name;
  std::string bytes;
  const auto result = afx::ReadWholeFile(path, bytes, largest);
  if (!result.ok) return session.refuse(result.message, L"可读的脚本文件（每行一个命令或回答）");
  session.input().push(std::make_unique<EdScriptSource>(path, std::move(bytes)));
}

} // namespace commands
