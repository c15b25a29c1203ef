// The results of the host's calls. Every failing call says which rule it met.
#pragma once

namespace Acad {

enum ErrorStatus {
  eOk = 0,
  eNotImplementedYet,
  eInvalidInput,
  eOutOfRange,
  eNullObjectId,
  eNullObjectPointer,
  eNullHandle,
  eUnknownHandle,
  eNotOpenForRead,
  eNotOpenForWrite,
  eWasOpenForRead,
  eWasOpenForWrite,
  eAtMaxReaders,
  eWasErased,
  eNotThatKindOfClass,
  eOnLockedLayer,
  eNotInDatabase,
  eAlreadyInDb,
  eNoDatabase,
  eWrongDatabase,
  eKeyNotFound,
  eDuplicateKey,
  eDuplicateRecordName,
  eInvalidName,
  eSelfReference,
  eRegappIdNotFound,
  eXdataSizeExceeded,
  eNoActiveTransactions,
  eLockViolation,
  eDocumentLocked,
  eNotApplicable,
  eNoDocument,
  eUndefinedLineType,
  eFilerError,
  eFileNotFound,
  eFileAccessErr,
  eDegenerateGeometry,
  eCannotScaleNonUniformly,
  eInvalidExtents,
  eUserBreak,
  ePointNotOnEntity,
  eCannotExplodeEntity,
  eDamagedFile,
  eCircularReference,
  eObjectIsReferenced,
};

} // namespace Acad

// The status's own name ("eOnLockedLayer"), for messages and test failures.
const wchar_t* acadErrorStatusText(Acad::ErrorStatus status);
