#include "tests/plugin/fancoil/OldCatalogue.h"

#include "plugin/base/NumberText.h"

namespace {

CIDPEx& Item(CIDPEx& parent, const CString& key) {
  parent.SetSubValue(key, L"");
  return *parent.GetSubItem(key);
}

int Count(CIDPEx& list) {
  int count = 0;
  list.GetSubValue(L"Count", count);
  return count;
}

CIDPEx& AddMaker(CIDPEx& root, const CString& name) {
  const int number = Count(root);
  root.SetSubValue(L"Count", number + 1);
  CIDPEx& maker = Item(root, L"Manufacturer" + ZP::itoa(number));
  maker.SetSubValue(L"ManufacturerName", name);
  CIDPEx& models = Item(maker, L"FanCoilAr");
  models.SetSubValue(L"Count", 0);
  return models;
}

void AddModel(CIDPEx& models, const CString& model, int seed) {
  const int number = Count(models);
  models.SetSubValue(L"Count", number + 1);
  FillOldModel(Item(models, L"FanCoil" + ZP::itoa(number)), model, seed);
}

} // namespace

void FillOldModel(CIDPEx& node, const CString& model, int seed) {
  node.SetSubValue(L"WaterFlow", 0.125 + seed);
  node.SetSubValue(L"dbCSHCapacity", 1.25 + seed);
  node.SetSubValue(L"dbCTHCapacity", 2.25 + seed);
  node.SetSubValue(L"dbHCapacity", 3.25 + seed);
  node.SetSubValue(L"dbHeight", 240.5 + seed);
  node.SetSubValue(L"dbWidth", 480.5 + seed);
  node.SetSubValue(L"dbLength", 700.5 + seed);
  node.SetSubValue(L"dbWorkPress", 1.6 + seed);
  node.SetSubValue(L"nAirFlowH", 340 + seed);
  node.SetSubValue(L"nAirFlowL", 170 + seed);
  node.SetSubValue(L"nAirFlowM", 255 + seed);
  node.SetSubValue(L"nCoilCount", 1 + seed);
  node.SetSubValue(L"nFanCount", 2 + seed);
  node.SetSubValue(L"nMotorCount", 3 + seed);
  node.SetSubValue(L"nNoiseLevel", 37 + seed);
  node.SetSubValue(L"nPower", 41 + seed);
  node.SetSubValue(L"nWPD", 30.75 + seed);
  node.SetSubValue(L"szCoilStyle", L"铜管铝片");
  node.SetSubValue(L"szDwgPath", L"FJPG" + ZP::itoa(seed));
  node.SetSubValue(L"szFanStyle", L"离心");
  node.SetSubValue(L"szMode", model);
  node.SetSubValue(L"szMotorStyle", L"单相电容");
}

void AddOldMaker(CIDPEx& root, const CString& name, int models) {
  CIDPEx& list = AddMaker(root, name);
  for (int i = 0; i < models; ++i) AddModel(list, L"OLD-" + ZP::itoa(i), i);
}

void FillOldCatalogue(CIDPEx& root, OldCatalogueForm form) {
  root.SetSubValue(L"Count", 0);
  AddOldMaker(root, L"甲厂", 2);
  AddOldMaker(root, L"空厂", 0);
  AddModel(AddMaker(root, L"100%厂"), L"50%s%d%n%%", 7);
  if (form == OldCatalogueForm::Damaged)
    root.GetSubItem(L"Manufacturer0")->GetSubItem(L"FanCoilAr")->DeleteSubKey(L"FanCoil1");
}
