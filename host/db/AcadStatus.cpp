#include "host/db/AcadStatus.h"

#include <array>

const wchar_t* acadErrorStatusText(Acad::ErrorStatus status) {
  static constexpr std::array names{L"eOk",
                                    L"eNotImplementedYet",
                                    L"eInvalidInput",
                                    L"eOutOfRange",
                                    L"eNullObjectId",
                                    L"eNullObjectPointer",
                                    L"eNullHandle",
                                    L"eUnknownHandle",
                                    L"eNotOpenForRead",
                                    L"eNotOpenForWrite",
                                    L"eWasOpenForRead",
                                    L"eWasOpenForWrite",
                                    L"eAtMaxReaders",
                                    L"eWasErased",
                                    L"eNotThatKindOfClass",
                                    L"eOnLockedLayer",
                                    L"eNotInDatabase",
                                    L"eAlreadyInDb",
                                    L"eNoDatabase",
                                    L"eWrongDatabase",
                                    L"eKeyNotFound",
                                    L"eDuplicateKey",
                                    L"eDuplicateRecordName",
                                    L"eInvalidName",
                                    L"eSelfReference",
                                    L"eRegappIdNotFound",
                                    L"eXdataSizeExceeded",
                                    L"eNoActiveTransactions",
                                    L"eLockViolation",
                                    L"eDocumentLocked",
                                    L"eNotApplicable",
                                    L"eNoDocument",
                                    L"eUndefinedLineType",
                                    L"eFilerError",
                                    L"eFileNotFound",
                                    L"eFileAccessErr",
                                    L"eDegenerateGeometry",
                                    L"eCannotScaleNonUniformly",
                                    L"eInvalidExtents",
                                    L"eUserBreak"};
  static_assert(names.size() == Acad::eUserBreak + 1);
  return static_cast<std::size_t>(status) < names.size() ? names[status] : L"?";
}
