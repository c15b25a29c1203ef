#include "tools/data/fancoil/WaterSystems.h"

#include "plugin/fancoil/WaterDatabase.h"
#include "tools/data/Table.h"

using namespace fancoil;

namespace {

// Systems name their layers by the identifiers of the layer scheme.
CString Identifier(const Table& table, int row, const char* column, const Table& layers) {
  const CString identifier = table.Text(row, column);
  for (int i = 0; i < layers.RowCount(); ++i)
    if (layers.Text(i, "identifier") == identifier) return identifier;
  table.Fail(row, std::string(column) + ": not in layers.tsv");
}

// A new item with what all systems have. It is called by the system's code.
VkDtDictionary& AddSystem(VkDtDictionary& part, const Table& table, int row) {
  const CString code = table.Text(row, "code");
  const CString name = table.Text(row, "system");
  const int id = table.Integer(row, "id");
  if (part.FindDict(code)) table.Fail(row, "code twice");
  if (FindItem(&part, kName, id)) table.Fail(row, "id twice");
  if (FindItem(&part, kSystemName, name)) table.Fail(row, "system twice");
  VkDtDictionary& item = *part.FindOrAddDict(code);
  item.SetAttributeIntValue(kName, id);
  item.SetAttributeValue(kSystemName, name);
  return item;
}

} // namespace

void WriteWaterSystems(const std::string& tables) {
  const Table layers(tables, "layers.tsv");
  const Table pipes(tables, "watersystems.tsv");
  const Table ducts(tables, "ductsystems.tsv");
  VkDtDictionary root(nullptr, nullptr);
  VkDtDictionary& pipeSystems = *root.FindOrAddDict(kPipeSystemPart);
  for (int row = 0; row < pipes.RowCount(); ++row) {
    VkDtDictionary& item = AddSystem(pipeSystems, pipes, row);
    item.SetAttributeValue(kMainPipeLayer, Identifier(pipes, row, "main_layer_id", layers));
    item.SetAttributeValue(kRiserLayer, Identifier(pipes, row, "riser_layer_id", layers));
  }
  VkDtDictionary& ductSystems = *root.FindOrAddDict(kDuctSystemPart);
  for (int row = 0; row < ducts.RowCount(); ++row)
    AddSystem(ductSystems, ducts, row)
        .SetAttributeValue(kDuctLayer, Identifier(ducts, row, "layer_id", layers));
  for (const wchar_t* part : {kBlockPart, kPipeConnectionPart, kDuctConnectionPart}) root.FindOrAddDict(part);
  if (!root.SaveToXML(WaterDatabasePath())) throw TableError("KTSLDatabase.xml can't be written");
}
