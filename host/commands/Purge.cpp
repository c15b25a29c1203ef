// PURGE: takes away blocks that nothing shows.
#include "host/db/Purge.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbDatabase.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/acutPrintf.h"

namespace commands {

void Purge() {
  const auto answer =
      ed::AskKeyword({L"输入要清理的内容 [匿名块(A)/所有未用的块(B)] <匿名块>:", L"Anonymous Blocks", 0, {}});
  if (answer.isCancelled()) return;
  const auto which = answer.isKeyword(L"Blocks") ? PurgeBlocks::all : PurgeBlocks::anonymous;
  acutPrintf(L"\n已清理 %d 个块。\n", static_cast<int>(acdbPurgeBlocks(*curDoc()->database(), which)));
}

} // namespace commands
