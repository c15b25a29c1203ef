#include "host/ed/AcApDocument.h"

#include <algorithm>
#include <utility>

ACRX_NO_CONS_DEFINE_MEMBERS(AcApDocument, AcRxObject)

namespace {

int strength(AcAp::DocLockMode mode) {
  constexpr AcAp::DocLockMode order[] = {AcAp::kNone,      AcAp::kNotLocked,          AcAp::kRead,
                                         AcAp::kAutoWrite, AcAp::kProtectedAutoWrite, AcAp::kWrite,
                                         AcAp::kXWrite};
  return static_cast<int>(std::find(std::begin(order), std::end(order), mode) - std::begin(order));
}

} // namespace

AcApDocument::AcApDocument(std::unique_ptr<AcDbDatabase> database, CString fileName, CString title)
    : m_database(std::move(database)), m_title(std::move(title)) {
  if (!fileName.IsEmpty()) setFileName(fileName);
}

AcApDocument::~AcApDocument() = default;

void AcApDocument::setFileName(const CString& fileName) {
  m_fileName = fileName;
  m_database->setFileName(fileName); // from where the paths of external references count
  m_title = fileName.Mid(std::max(fileName.ReverseFind(L'/'), fileName.ReverseFind(L'\\')) + 1);
}

AcAp::DocLockMode AcApDocument::lockMode() const {
  const auto strongest = std::max_element(m_locks.begin(), m_locks.end(),
                                          [](auto a, auto b) { return strength(a) < strength(b); });
  return strongest == m_locks.end() ? AcAp::kNotLocked : *strongest;
}
