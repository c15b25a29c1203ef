#include "plugin/fancoil/CKTDatabaseOperation.h"

#include <memory>
#include <vector>

#include "plugin/base/Folders.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/fancoil/CatalogueFile.h"
#include "plugin/fancoil/WaterDatabase.h"

namespace {

// Copies of an object share its dictionary and none of them frees it, so all are kept here to the end.
VkDtDictionary* KeepNewDictionary() {
  static std::vector<std::unique_ptr<VkDtDictionary>> kept;
  kept.push_back(std::make_unique<VkDtDictionary>(nullptr, nullptr));
  return kept.back().get();
}

} // namespace

// Every object that is made writes the catalogue, whether or not it will be used for that: so each session
// begins with a file that is there and has the mark. A file of another version keeps a copy of itself.
CKTDatabaseOperation::CKTDatabaseOperation() {
  CIDPEx root;
  bool known = false;
  fancoil::OpenCatalogue(root, known);
  root.SetValue(fancoil::kVersionMark);
  root.Save(fancoil::CataloguePath());
}

CKTDatabaseOperation::CKTDatabaseOperation(const CKTDatabaseOperation& other) = default;
CKTDatabaseOperation& CKTDatabaseOperation::operator=(const CKTDatabaseOperation& other) = default;
CKTDatabaseOperation::~CKTDatabaseOperation() = default;

bool CKTDatabaseOperation::Initial() {
  m_pDictionary = KeepNewDictionary();
  if (!m_pDictionary->ReadFromXML(fancoil::WaterDatabasePath())) return false;
  m_bInitialized = true;
  return true;
}

VkDtDictionary* CKTDatabaseOperation::GetKtTypeDict(const CString& type) {
  return m_pDictionary ? m_pDictionary->FindDict(type) : nullptr;
}

VkDtDictionary* CKTDatabaseOperation::GetReadPart(const CString& type) {
  return m_bInitialized ? GetKtTypeDict(type) : nullptr;
}
