#include "tools/data/fancoil/FanCoils.h"

#include <memory>

#include "plugin/fancoil/CFCUManager.h"
#include "tools/data/Table.h"

namespace {

// The table has form and mounting in one word: 卧式暗装.
void TakeForm(const Table& table, int row, SKTFCUEquipmentData& data) {
  const CString form = table.Text(row, "form");
  data.szStructStyle = form.Left(2);
  data.szInstallStyle = form.Mid(2);
  const bool known = (data.szStructStyle == L"卧式" || data.szStructStyle == L"立式") &&
                     (data.szInstallStyle == L"暗装" || data.szInstallStyle == L"明装");
  if (!known) table.Fail(row, "form: neither 卧式 nor 立式 and 暗装 nor 明装");
}

SKTFCUEquipmentData RecordOf(const Table& table, int row) {
  SKTFCUEquipmentData data;
  TakeForm(table, row, data);
  data.dbAirFlowH = table.Positive(row, "air_high_m3h");
  data.dbAirFlowM = table.Positive(row, "air_mid_m3h");
  data.dbAirFlowL = table.Positive(row, "air_low_m3h");
  if (data.dbAirFlowH < data.dbAirFlowM || data.dbAirFlowM < data.dbAirFlowL)
    table.Fail(row, "air flows don't fall from speed to speed");
  data.dbCTHCapacity = table.Positive(row, "cool_kw");
  data.dbCSHCapacity = table.Positive(row, "sensible_kw");
  if (data.dbCSHCapacity > data.dbCTHCapacity) table.Fail(row, "more sensible cooling than cooling");
  data.dbHCapacity = table.Positive(row, "heat_kw");
  data.dbWaterFlow = table.Positive(row, "water_lps");
  data.dbWPD = table.Positive(row, "dp_kpa");
  data.dbPower = table.Positive(row, "power_w");
  data.dbNoiseLevel = table.Positive(row, "noise_dba");
  data.dbLength = table.Positive(row, "len_mm");
  data.dbWidth = table.Positive(row, "width_mm");
  data.dbHeight = table.Positive(row, "height_mm");
  return data;
}

} // namespace

void WriteFanCoils(const std::string& tables) {
  const Table table(tables, "fancoils.tsv");
  CFCUManager& catalogue = *CFCUManager::GetInstance();
  while (!catalogue.m_arrFactories.IsEmpty()) catalogue.Remove(catalogue.m_arrFactories[0]);
  for (int row = 0; row < table.RowCount(); ++row) {
    const CString maker = table.Text(row, "maker");
    CFCUFactory* factory = catalogue.GetFactory(maker);
    if (!factory) {
      factory = new CFCUFactory;
      factory->SetName(maker);
      catalogue.Add(factory);
    }
    auto equipment = std::make_unique<CFCUEquipment>();
    equipment->m_data = RecordOf(table, row);
    equipment->SetName(table.Text(row, "model"));
    if (!factory->Add(equipment.get())) table.Fail(row, "model twice");
    equipment.release();
  }
  if (!catalogue.SaveData()) throw TableError("FCUData.idp can't be written");
}
