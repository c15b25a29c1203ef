// The external references of one drawing: which files its blocks refer to, which of them are there, and the
// drawings read from them. A block is an external reference by its own record; what is known here is only how
// it stands now, so that undo and saving need no care.
#pragma once

#include "host/db/AcDb.h"
#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"

#include <memory>
#include <unordered_map>
#include <vector>

class ExternalReferences {
 public:
  explicit ExternalReferences(AcDbDatabase& database);
  ~ExternalReferences();

  // Reads the file of the block, and those that it refers to in turn. eFileNotFound, eFileAccessErr,
  // eDamagedFile, eCircularReference for a file that refers to itself by way of others, eNotThatKindOfClass
  // for a block that is no external reference. The block keeps the status and the reason.
  Acad::ErrorStatus load(const AcDbObjectId& block);
  void unload(const AcDbObjectId& block);
  void forget(const AcDbObjectId& block);

  AcDb::XrefStatus status(const AcDbObjectId& block) const;
  // Why a block could not be resolved, a sentence for the user; empty otherwise.
  CString reason(const AcDbObjectId& block) const;
  AcDbDatabase* drawing(const AcDbObjectId& block) const;

  // Where the path of an external reference leads: as given, beside the drawing that names it, by its name
  // alone beside that drawing. Empty when there is no file.
  static CString findFile(const CString& path, const CString& drawing);

 private:
  struct State {
    AcDb::XrefStatus status = AcDb::kXrfUnresolved;
    CString reason;
    std::unique_ptr<AcDbDatabase> drawing;
  };
  Acad::ErrorStatus fail(State& state, Acad::ErrorStatus status, const CString& reason);
  Acad::ErrorStatus loadInto(const AcDbObjectId& block, const std::vector<CString>& chain);
  std::vector<CString> loadAll(const std::vector<CString>& chain);

  AcDbDatabase& m_database;
  std::unordered_map<AcDbObjectId, State> m_states;
};

// Operations on the external references of a drawing:

// A new block that refers to a drawing file, resolved at once. eFileNotFound, eDamagedFile,
// eCircularReference leave the drawing as it was; eDuplicateRecordName, eInvalidName for the name. An overlay
// is not taken along when the drawing is itself referred to.
Acad::ErrorStatus acdbAttachXref(AcDbDatabase* host, const wchar_t* fileName, const wchar_t* blockName,
                                 AcDbObjectId& block);
Acad::ErrorStatus acdbOverlayXref(AcDbDatabase* host, const wchar_t* fileName, const wchar_t* blockName,
                                  AcDbObjectId& block);
// Erases the block with all its insertions. eNotThatKindOfClass for an ordinary block.
Acad::ErrorStatus acdbDetachXref(AcDbDatabase* host, const AcDbObjectId& block);
// Lets go of the drawings read, or reads them anew. The first failure; the others are done all the same.
Acad::ErrorStatus acdbUnloadXrefs(AcDbDatabase* host, const std::vector<AcDbObjectId>& blocks);
Acad::ErrorStatus acdbReloadXrefs(AcDbDatabase* host, const std::vector<AcDbObjectId>& blocks);
// All that are not resolved and not unloaded.
Acad::ErrorStatus acdbResolveCurrentXRefs(AcDbDatabase* host);
struct XrefProblem {
  CString name;   // of the block; of one in a drawing that is referred to "外|内"
  CString reason; // a sentence for the user
};
// What could not be resolved, here and in the drawings that are referred to, each with the reason.
std::vector<XrefProblem> acdbXrefProblems(const AcDbDatabase& database);
// The blocks of a drawing that are external references.
std::vector<AcDbObjectId> acdbXrefBlocks(const AcDbDatabase& database);
