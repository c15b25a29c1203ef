#include "host/db/Audit.h"

#include "host/db/AuditChecks.h"

std::vector<AuditFinding> acdbAudit(AcDbDatabase& database, bool repair) {
  audit::Report report(database, repair);
  audit::checkHandleSeed(report);
  audit::checkNames(report); // early, for what it defines has an owner of its own
  audit::checkRootDictionary(report);
  audit::checkSequenceEnds(report);
  audit::checkBlockCycles(report);
  audit::checkPointers(report);
  audit::checkMarkers(report);
  audit::checkOwners(report);
  audit::checkExtendedData(report);
  audit::checkValues(report);
  if (repair) audit::raiseHandleSeed(database);
  return report.take();
}
