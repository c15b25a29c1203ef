#include "tools/data/Radiators.h"

#include <cmath>
#include <memory>

#include "plugin/radiators/CZPRadiatorManager.h"
#include "tools/data/Table.h"

namespace {

// The excess temperature that textbooks and product standards give their figures at, ℃.
constexpr double kStandardDifference = 64.5;

// What a source leaves blank is 0. The defaults of a radiator would look like measured figures as soon as the
// user turned to another formula, and give a plausible count; with 0 the count is infinite.
double NumberOrUnknown(const Table& table, int row, const char* column) {
  return table.Text(row, column).IsEmpty() ? 0.0 : table.Number(row, column);
}

// A K value that the source prints must agree within 1 %, which its rounding allows.
void CheckAgainstPrintedCoefficient(const Table& table, int row, double coefficient) {
  if (table.Text(row, "k_pub").IsEmpty()) return;
  const double printed = table.Positive(row, "k_pub");
  if (std::abs(coefficient - printed) > 0.01 * printed)
    table.Fail(row, "k_pub: not what the formula gives at 64.5");
}

void TakeOutput(const Table& table, int row, CZPRadiator& radiator) {
  radiator.m_dA = radiator.m_dB = radiator.m_dC = radiator.m_dD = 0;
  radiator.m_dF = NumberOrUnknown(table, row, "f_m2");
  radiator.m_dQs = NumberOrUnknown(table, row, "q_w");
  radiator.m_nFormula = table.Integer(row, "formula");
  switch (radiator.m_nFormula) {
  case 0:
    radiator.m_dA = table.Positive(row, "a");
    radiator.m_dB = table.Positive(row, "b");
    return;
  case 1:
    radiator.m_dC = table.Positive(row, "a");
    radiator.m_dD = table.Positive(row, "b");
    table.Positive(row, "f_m2");
    CheckAgainstPrintedCoefficient(table, row, radiator.m_dC * std::pow(kStandardDifference, radiator.m_dD));
    return;
  case 2:
    table.Positive(row, "q_w");
    if (radiator.m_dF > 0)
      CheckAgainstPrintedCoefficient(table, row, radiator.m_dQs / radiator.m_dF / kStandardDifference);
    return;
  default:
    table.Fail(row, "formula: not 0, 1 or 2");
  }
}

std::unique_ptr<CZPRadiator> RadiatorOf(const Table& table, int row) {
  auto radiator = std::make_unique<CZPRadiator>();
  radiator->SetName(table.Text(row, "model"));
  radiator->m_strUnit = table.Text(row, "unit");
  if (radiator->m_strUnit != L"片" && radiator->m_strUnit != L"m") table.Fail(row, "unit: neither 片 nor m");
  TakeOutput(table, row, *radiator);
  return radiator;
}

} // namespace

void WriteRadiators(const std::string& tables) {
  const Table table(tables, "radiators.tsv");
  CZPRadiatorManager& catalogue = *CZPRadiatorManager::GetInstance();
  while (!catalogue.m_arrTypes.IsEmpty()) catalogue.Remove(catalogue.m_arrTypes[0]);
  for (int row = 0; row < table.RowCount(); ++row) {
    auto radiator = RadiatorOf(table, row);
    const CString name = radiator->GetName();
    const CString typeName = table.Text(row, "maker");
    if (name.IsEmpty() || typeName.IsEmpty()) table.Fail(row, "no maker or no model");
    catalogue.Add(typeName); // harmless where the type is there
    if (!catalogue.GetRadiatorType(typeName)->Add(radiator.get())) table.Fail(row, "model twice");
    radiator.release();
  }
  if (!catalogue.SaveData()) throw TableError("Srq.idp can't be written");
}
