#include "tools/data/VelocityLimits.h"

#include <memory>

#include "plugin/pipes/limits/CZPFlowVelocityMng.h"
#include "tools/data/Table.h"

namespace {

// The catalogue has one row for a size, whatever flows in the pipe; the table has one for each kind of
// system.
constexpr const wchar_t* kShippedSystem = L"空调水-闭式";

SZPRange Range(const Table& table, int row, const char* minimum, const char* maximum) {
  const SZPRange range(table.Positive(row, minimum), table.Positive(row, maximum));
  if (range.dbMax <= range.dbMin) table.Fail(row, std::string(maximum) + ": not above the minimum");
  return range;
}

std::unique_ptr<CZPPipeLimit> LimitOf(const Table& table, int row) {
  auto limit = std::make_unique<CZPPipeLimit>();
  limit->SetName(table.Text(row, "dn"));
  if (CString(L"DN") + limit->GetName() != table.Text(row, "nominal")) table.Fail(row, "dn: not the nominal");
  limit->m_velocity = Range(table, row, "v_min", "v_max");
  limit->m_friction = Range(table, row, "r_min_pa_m", "r_max_pa_m");
  return limit;
}

} // namespace

void WriteVelocityLimits(const std::string& tables) {
  CZPFlowVelocityMng& catalogue = *CZPFlowVelocityMng::GetInstance();
  while (!catalogue.m_arrLimits.IsEmpty()) catalogue.Remove(catalogue.m_arrLimits[0]);
  const Table table(tables, "velocity.tsv");
  int before = 0;
  for (int row = 0; row < table.RowCount(); ++row) {
    table.CheckSource(row);
    auto limit = LimitOf(table, row); // those of the other systems are checked all the same
    if (table.Text(row, "system") != kShippedSystem) continue;
    const int size = table.Integer(row, "dn");
    if (size <= before) table.Fail(row, "dn: not above that of the row before");
    before = size;
    if (catalogue.Add(limit.get())) limit.release();
  }
  if (!catalogue.SaveData()) throw TableError("PipeLimit.idp can't be written");
}
