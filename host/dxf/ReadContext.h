// The decode context of a drawing that is being read: collects repairs with their lines, and takes those back
// that a later part of the file makes needless.
#pragma once

#include "host/db/DxfDecodeContext.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/RecordScanner.h"

#include <vector>

namespace dxf {

class ReadContext : public DxfDecodeContext {
 public:
  ReadContext(AcDbDatabase& database, const RecordScanner& scanner)
      : DxfDecodeContext(database), m_scanner(scanner) {}

  void repaired(const DxfTag& tag, const CString& what) const override;
  void definedMissing(const DxfTag& tag, const AcDbObjectId& record, const CString& what) const override;
  // The file brings the record after all.
  void defined(const AcDbObjectId& record);
  // A repair at a place of the text (null: of none).
  void repairedAt(const char* place, int groupCode, const CString& what) const;

  // All repairs in the order of their lines. Names that the file defined after all are left out.
  std::vector<Repair> takeRepairs();

 private:
  struct Missing {
    Repair repair;
    AcDbObjectId record;
  };

  const RecordScanner& m_scanner;
  mutable std::vector<Repair> m_repairs;
  mutable std::vector<Missing> m_missing;
  mutable std::size_t m_left = 0; // repairs beyond those kept
};

} // namespace dxf
