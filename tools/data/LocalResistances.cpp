#include "tools/data/LocalResistances.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "plugin/base/VkDtDictionary.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "plugin/resistance/FittingColumns.h"
#include "plugin/resistance/ResistanceFile.h"
#include "plugin/resistance/TeeFlows.h"
#include "tools/data/Table.h"

using namespace resistance;

namespace {

// A coefficient that the file keeps as it stands in the table.
double Coefficient(const Table& table, int row, const char* column) {
  const double value = table.Number(row, column);
  if (value < 0) table.Fail(row, std::string(column) + ": below 0");
  if (std::abs(value * 100 - std::round(value * 100)) > 1e-9)
    table.Fail(row, std::string(column) + ": more than two decimals");
  return value;
}

// What a source leaves blank is 0: the file knows no sign for it, and any other number would be made up.
CZPPipePartsCoe FittingOf(const Table& table, int row) {
  CZPPipePartsCoe fitting;
  fitting.szName = table.Text(row, "name");
  if (fitting.szName.IsEmpty()) table.Fail(row, "no name");
  for (const FittingColumn& column : kFittingColumns) {
    const std::string name = CString(column.attribute).ToUtf8();
    if (!table.Text(row, name.c_str()).IsEmpty())
      fitting.*column.coefficient = Coefficient(table, row, name.c_str());
  }
  return fitting;
}

// Sources give one figure for a kind of tee, so a flow of that kind must have it too.
void CheckAgainstKind(const Table& table, int row, const CZPLocalResistanceMng& store, double coefficient) {
  const CZPPipePartsCoe* kind = FindFitting(store.m_arrPartsCoe, table.Text(row, "class"));
  if (kind && kind->dbDN15 != coefficient) table.Fail(row, "xi: not that of its class in fittings.tsv");
}

const TeeFlow& FlowOf(const Table& table, int row) {
  const auto flow = std::find_if(std::begin(kTeeFlows), std::end(kTeeFlows), [&](const TeeFlow& known) {
    return table.Text(row, "direction") == known.key;
  });
  if (flow == std::end(kTeeFlows)) table.Fail(row, "direction: unknown");
  if (table.Text(row, "path") != flow->flow) table.Fail(row, "path: not that of the direction");
  return *flow;
}

// An item of the part under its key, which must be new.
VkDtDictionary& AddItem(VkDtDictionary& part, const Table& table, int row, const CString& key) {
  if (part.FindDict(key)) table.Fail(row, key.ToUtf8() + " twice");
  return *part.FindOrAddDict(key);
}

// What the store only looks up and never adds: the flows, still without coefficients, and the pictures.
void WriteFrame(const Table& tees, const Table& pictures) {
  VkDtDictionary root(nullptr, nullptr);
  root.FindOrAddDict(kFittingPart);
  VkDtDictionary& flows = *root.FindOrAddDict(kFlowPart);
  for (int row = 0; row < tees.RowCount(); ++row) {
    const CString key = FlowOf(tees, row).key;
    AddItem(flows, tees, row, key).SetAttributeValue(kFlowKey, key);
  }
  VkDtDictionary& forms = *root.FindOrAddDict(kPicturePart);
  for (int row = 0; row < pictures.RowCount(); ++row) {
    const CString form = pictures.Text(row, "form");
    VkDtDictionary& item = AddItem(forms, pictures, row, form);
    item.SetAttributeValue(kName, form);
    item.SetAttributeValue(kPicture, pictures.Text(row, "picture"));
  }
  for (const TeeFlow& flow : kTeeFlows) {
    if (!flows.FindDict(flow.key)) throw TableError("tees.tsv: no " + CString(flow.key).ToUtf8());
    if (!forms.FindDict(flow.form)) throw TableError("tee_pictures.tsv: no " + CString(flow.form).ToUtf8());
  }
  if (!root.SaveToXML(FilePath())) throw TableError("VacCal.xml can't be written");
}

} // namespace

void WriteLocalResistances(const std::string& tables) {
  const Table fittings(tables, "fittings.tsv");
  const Table tees(tables, "tees.tsv");
  WriteFrame(tees, Table(tables, "tee_pictures.tsv"));
  CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  for (int row = 0; row < fittings.RowCount(); ++row) {
    CZPPipePartsCoe fitting = FittingOf(fittings, row);
    if (FindFitting(store.m_arrPartsCoe, fitting.szName)) fittings.Fail(row, "name twice");
    store.m_arrPartsCoe.Add(fitting);
  }
  for (int row = 0; row < tees.RowCount(); ++row) {
    const double coefficient = Coefficient(tees, row, "xi");
    CheckAgainstKind(tees, row, store, coefficient);
    store.m_coe3T4T.*FlowOf(tees, row).coefficient = coefficient;
  }
  if (!store.SaveData()) throw TableError("VacCal.xml can't be written");
}
