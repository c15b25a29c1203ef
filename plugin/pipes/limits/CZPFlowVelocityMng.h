// The table of velocity limits by pipe size: owns its rows and keeps PipeLimit.idp. Modules that size a pipe
// look it up here. Whoever edits the rows decides when they are saved; nothing is saved at the end of the
// program. Results are 1 for done and 0 for not.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/pipes/limits/CZPPipeLimit.h"

class ZP_EXPORT CZPFlowVelocityMng {
 public:
  // The one table. The first call reads the file; without a readable one the table is empty.
  static CZPFlowVelocityMng* GetInstance();
  virtual ~CZPFlowVelocityMng();

  // The first row of exactly that name. If there is none: null, or where nearest is not 0 the row whose
  // number is nearest, of equally near ones the first. The number is what a text begins with, so "DN25"
  // counts as 0, and so does a row's name that is no number. Null for an empty table.
  CZPPipeLimit* GetPipeLimit(const CString& name, int nearest) const;

  // Appends and takes ownership. 0 when the pointer or a row of exactly that name is in already, or for null;
  // the caller keeps it then.
  int Add(CZPPipeLimit* limit);
  // Deletes the row. 0 for null and for a pointer that isn't in the table.
  int Remove(CZPPipeLimit* limit);

  // Replaces the rows by those of the file. The old ones leave the table but are not deleted: whoever has the
  // pointer owns the object then. 0, with the table as it was, when the file can't be read. A file of another
  // version is deliberately no failure: 1, with the table as it was. A numbered entry without a row raises
  // CInvalidArgException; the rows before it stay.
  int ReadData();
  // Replaces the whole file. 0 when it can't be written, and for an empty table, which deliberately leaves
  // the file as it is: the last row cannot be deleted from it, and comes back at the next start.
  int SaveData();

  // Owned, for the dialog that works on them in place. May hold null elements.
  CZPArray<CZPPipeLimit*, CZPPipeLimit*> m_arrLimits;

 private:
  CZPFlowVelocityMng();
};
