// The single checks of acdbAudit, and what they share. Not for others.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/db/Audit.h"

namespace audit {

class Report {
 public:
  Report(AcDbDatabase& drawing, bool repair) : m_database(drawing), m_repair(repair) {}
  AcDbDatabase& database() const { return m_database; }
  bool repairs() const { return m_repair; }
  void add(AuditCheck check, const AcDbObjectId& object, const CString& text, bool repaired);
  // Gives the object another record, which undo takes back; on a locked layer too.
  void change(AcDbObject& object, const DxfRecord& record) const;
  std::vector<AuditFinding> take() { return std::move(m_findings); }

 private:
  AcDbDatabase& m_database;
  bool m_repair;
  std::vector<AuditFinding> m_findings;
};

// Neither erased nor in a block that is, and no part of what only stands in memory.
bool isLive(const AcDbObject& object);
// "LINE 1F": what an object is called in a sentence.
CString nameOf(const AcDbObject& object);

void checkNames(Report& report);
void checkRootDictionary(Report& report);
void checkSequenceEnds(Report& report);
void checkBlockCycles(Report& report);
void checkPointers(Report& report);
void checkMarkers(Report& report);
void checkOwners(Report& report);
void checkExtendedData(Report& report);
void checkValues(Report& report);
void checkHandleSeed(Report& report);
// Above what the repairs have added, where the drawing tells a seed.
void raiseHandleSeed(AcDbDatabase& database);

} // namespace audit
