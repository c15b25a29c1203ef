// AUDIT: looks the drawing over, tells what is wrong and mends what can be mended.
#include "host/db/Audit.h"
#include "host/commands/CommandFunctions.h"
#include "host/db/AcDbDatabase.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/LongTask.h"
#include "host/ed/acutPrintf.h"

#include <algorithm>

namespace commands {

void Audit() {
  const auto answer = ed::AskKeyword({L"更正检测到的错误吗？[是(Y)/否(N)] <N>:", L"Yes No", 0, {}});
  if (answer.isCancelled()) return;
  const bool repair = answer.isKeyword(L"Yes");
  LongTask task(L"检查图形");
  const auto findings = acdbAudit(*curDoc()->database(), repair, task.progress());
  if (task.isCancelled()) {
    acutPrintf(L"\n检查已取消，图形未改动。\n");
    return;
  }
  for (const AuditFinding& finding : findings)
    acutPrintf(L"\n%s%s", finding.text, finding.repaired ? L"：已更正" : L"");
  const auto repaired =
      std::count_if(findings.begin(), findings.end(), [](const AuditFinding& f) { return f.repaired; });
  acutPrintf(L"\n共发现 %d 处错误，更正 %d 处。\n", static_cast<int>(findings.size()),
             static_cast<int>(repaired));
}

} // namespace commands
