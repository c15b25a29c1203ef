#include "host/db/Audit.h"

#include "host/db/AuditChecks.h"

namespace {

// In this order: the names come early, for what they define has an owner of its own.
constexpr void (*kChecks[])(audit::Report&) = {
    audit::checkHandleSeed,   audit::checkNames,    audit::checkRootDictionary, audit::checkSequenceEnds,
    audit::checkBlockCycles,  audit::checkPointers, audit::checkMarkers,        audit::checkOwners,
    audit::checkExtendedData, audit::checkValues};

} // namespace

std::vector<AuditFinding> acdbAudit(AcDbDatabase& database, bool repair,
                                    const std::function<bool(double)>& progress) {
  audit::Report report(database, repair);
  double done = 0;
  for (auto* check : kChecks) {
    if (progress && !progress(done / std::size(kChecks))) break;
    check(report);
    ++done;
  }
  if (repair) audit::raiseHandleSeed(database);
  return report.take();
}
