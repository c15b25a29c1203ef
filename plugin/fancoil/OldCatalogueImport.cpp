#include "plugin/fancoil/OldCatalogueImport.h"

#include "host/afx/CInvalidArgException.h"
#include "host/ed/acutPrintf.h"
#include "plugin/base/NumberText.h"
#include "plugin/fancoil/CKTDatabaseOperation.h"
#include "plugin/fancoil/NumberedItems.h"
#include "plugin/fancoil/OldCatalogueFields.h"

using namespace fancoil;

namespace {

// The old program never left an item out, so a missing one means that the file can't be trusted any further.
CIDPEx& MustHave(CIDPEx& parent, const CString& key) {
  CIDPEx* item = parent.GetSubItem(key);
  if (!item) AfxThrowInvalidArgException();
  return *item;
}

// A missing key leaves the field alone, also where another type of number is read than is kept.
struct FieldReader {
  CIDPEx& node;
  const wchar_t* key;
  SKTFCUEquipmentData& data;

  template <typename Value> void operator()(Value SKTFCUEquipmentData::*member) const {
    node.GetSubValue(key, data.*member);
  }
  void operator()(WidenedInteger widened) const {
    int value = 0;
    if (node.GetSubValue(key, value)) data.*widened.member = value;
  }
};

SKTFCUEquipmentData ReadOldModel(CIDPEx& node) {
  SKTFCUEquipmentData data;
  for (const OldCatalogueField& field : kOldCatalogueFields)
    std::visit(FieldReader{node, field.key, data}, field.target);
  // The old blocks were never measured: 0 tells them from blocks of the default size.
  data.dbCadLength = 0.0;
  data.dbCadWidth = 0.0;
  return data;
}

// Each line goes out as a format and always has: a percent sign in a name is taken as a directive, which
// without an argument prints nothing.
void PrintComposed(const CString& line) {
  acutPrintf(line);
}

// The number of models that were added.
int ImportMaker(CKTDatabaseOperation& operation, CIDPEx& node) {
  CString maker;
  node.GetSubValue(L"ManufacturerName", maker);
  operation.AddFactory(maker); // one that is there takes the models all the same
  CIDPEx& models = MustHave(node, L"FanCoilAr");
  const int count = ItemCount(models);
  int added = 0;
  for (int j = 0; j < count; ++j) {
    const SKTFCUEquipmentData data = ReadOldModel(MustHave(models, NumberedKey(L"FanCoil", j)));
    PrintComposed(L"\nADD " + data.szMode + L" IN " + maker);
    if (operation.AddEquipment(data, maker, false)) {
      PrintComposed(L" ... Success!");
      ++added;
    } else {
      PrintComposed(L" ... Faied!"); // spelled as its readers know it
    }
  }
  return added;
}

} // namespace

// What was added before the import ends early stays: each model is saved before the next is read.
void CKTDatabaseOperation::CopyFromOldIdp() {
  CIDPEx old;
  if (!old.Open(kOldCataloguePath)) return;
  try {
    int added = 0;
    const int count = ItemCount(old);
    for (int i = 0; i < count; ++i)
      added += ImportMaker(*this, MustHave(old, NumberedKey(L"Manufacturer", i)));
    PrintComposed(L"\n Total Add:" + ZP::itoa(added) + L"\n");
  } catch (...) {
    acutPrintf(L"\n 异常终止!\n");
  }
}

void fancoil::ImportOldCatalogue() {
  CKTDatabaseOperation operation;
  operation.CopyFromOldIdp();
}
