// LAYER: lists and makes layers, and changes their state and look by name or pattern.
#include "host/commands/CommandFunctions.h"
#include "host/commands/LayerNames.h"
#include "host/commands/LayerText.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbTables.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/acutPrintf.h"

#include <functional>

namespace commands {
namespace {

using LayerChange = std::function<Acad::ErrorStatus(AcDbLayerTableRecord&)>;

void refuse(const CString& reason, const CString& expected = {}) {
  EdSession::instance().refuse(reason, expected);
}

std::optional<CString> askNames(const CString& prompt, const wchar_t* otherwise) {
  const auto answer = ed::AskText({prompt, {}, 0, {}});
  if (answer.isCancelled()) return std::nullopt;
  const CString text = CString(answer.text).Trim();
  return text.IsEmpty() ? CString(otherwise) : text;
}

void list() {
  const auto patterns = askNames(L"输入要列出的图层名，可用通配符 <*>:", L"*");
  if (!patterns) return;
  const auto ids = LayersByPattern(*patterns);
  acutPrintf(L"\n当前图层：%s\n", CurrentLayerName());
  for (const auto& id : ids) {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForRead);
    if (layer)
      acutPrintf(L"%s：%s，颜色 %s，线型 %s，线宽 %s\n", layer->name(), StateText(*layer.object()),
                 ColorText(layer->color().colorIndex()), LinetypeName(*layer.object()),
                 WeightText(layer->lineWeight()));
  }
  acutPrintf(L"共 %d 个图层。\n", static_cast<int>(ids.size()));
}

// Makes the layers of a list of names; gives the last one, made or there before.
AcDbObjectId create(const CString& names) {
  AcDbObjectId last;
  int at = 0;
  for (CString name = names.Tokenize(L",", at); at != -1; name = names.Tokenize(L",", at)) {
    name.Trim();
    last = LayerByName(name);
    if (!last.isNull()) {
      acutPrintf(L"\n图层“%s”已存在。\n", name);
      continue;
    }
    if (!AcDbSymbolTableRecord::isValidSymbolName(name)) {
      refuse(L"“" + ed::Excerpt(name) + L"”不能作图层名。", L"不含 <>/\\\":;?*=`,| 的名称，不超过 255 个字");
      continue;
    }
    AcDbObjectPointer<AcDbLayerTable> layers(curDoc()->database()->layerTableId(), AcDb::kForWrite);
    auto record = std::make_unique<AcDbLayerTableRecord>();
    record->setName(name);
    if (!layers || layers->add(last, record.get()) != Acad::eOk) {
      refuse(L"图层“" + name + L"”不能建立。");
      continue;
    }
    record.release()->close();
    acutPrintf(L"\n已建立图层“%s”。\n", name);
  }
  return last;
}

void make() {
  const auto name = askNames(L"输入新图层名（成为当前图层） <" + CurrentLayerName() + L">:", L"");
  if (!name || name->IsEmpty() || create(*name).isNull()) return;
  MakeLayerCurrent(*name);
}

void createAsked() {
  const auto names = askNames(L"输入新图层名，多个以逗号分开:", L"");
  if (names && !names->IsEmpty()) create(*names);
}

void setCurrent() {
  const auto name = askNames(L"输入要置为当前的图层名 <" + CurrentLayerName() + L">:", L"");
  if (name && !name->IsEmpty()) MakeLayerCurrent(*name);
}

// Asks for layers and changes each; done is what the user is told of them.
void change(const wchar_t* prompt, const wchar_t* done, const wchar_t* otherwise, const LayerChange& work) {
  const auto patterns = askNames(prompt, otherwise);
  if (!patterns || patterns->IsEmpty()) return;
  const auto ids = LayersByPattern(*patterns);
  if (ids.empty()) {
    refuse(L"没有图层符合“" + ed::Excerpt(*patterns) + L"”。", L"图形中已有的图层名，可用通配符");
    return;
  }
  int changed = 0;
  for (const auto& id : ids) {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
    const auto status = layer ? work(*layer.object()) : layer.openStatus();
    if (status == Acad::eOk)
      ++changed;
    else if (layer && id == curDoc()->database()->clayer())
      acutPrintf(L"\n图层“%s”是当前图层，不能冻结。\n", layer->name());
    else
      acutPrintf(L"\n图层“%s”未改：%s。\n", layer ? layer->name() : CString(), acadErrorStatusText(status));
  }
  acutPrintf(L"\n%d 个图层%s。\n", changed, done);
}

void color() {
  const auto text = askNames(L"输入颜色（1-255 或 红、黄、绿、青、蓝、洋红、白）:", L"");
  if (!text || text->IsEmpty()) return;
  const auto index = ParseColor(*text);
  if (!index)
    return refuse(L"“" + ed::Excerpt(*text) + L"”不是颜色。", L"1 到 255，或 红、黄、绿、青、蓝、洋红、白");
  change(L"输入图层名，可用通配符 <当前>:", L"已改颜色", CurrentLayerName(),
         [&](AcDbLayerTableRecord& layer) { return layer.setColor(AcCmColor(*index)); });
}

void weight() {
  const auto text = askNames(L"输入线宽（毫米，或 默认）:", L"");
  if (!text || text->IsEmpty()) return;
  const auto weight = ParseWeight(*text);
  if (!weight) return refuse(L"“" + ed::Excerpt(*text) + L"”不是线宽。", L"0、0.05、0.09 … 2.11，或 默认");
  change(L"输入图层名，可用通配符 <当前>:", L"已改线宽", CurrentLayerName(),
         [&](AcDbLayerTableRecord& layer) { return layer.setLineWeight(*weight); });
}

// Looks the linetype up in the drawing, then in the linetype file.
AcDbObjectId linetypeByName(const CString& name) {
  auto& database = *curDoc()->database();
  AcDbObjectId id;
  const auto look = [&] {
    AcDbObjectPointer<AcDbLinetypeTable> table(database.linetypeTableId(), AcDb::kForRead);
    if (table) table->getAt(name, id);
    return !id.isNull();
  };
  if (!look() && database.loadLineTypeFile(name, L"acad.lin") == Acad::eOk) look();
  return id;
}

void linetype() {
  const auto name = askNames(L"输入线型名:", L"");
  if (!name || name->IsEmpty()) return;
  const auto id = linetypeByName(*name);
  if (id.isNull()) return refuse(L"没有线型“" + ed::Excerpt(*name) + L"”。", L"图形或 acad.lin 中的线型名");
  change(L"输入图层名，可用通配符 <当前>:", L"已改线型", CurrentLayerName(),
         [&](AcDbLayerTableRecord& layer) { return layer.setLinetypeObjectId(id); });
}

struct StateOption {
  const wchar_t* keyword;
  const wchar_t* prompt;
  const wchar_t* done;
  Acad::ErrorStatus (AcDbLayerTableRecord::*set)(bool);
  bool value;
};
constexpr StateOption kStates[] = {
    {L"ON", L"输入要打开的图层名，可用通配符:", L"已打开", &AcDbLayerTableRecord::setIsOff, false},
    {L"OFF", L"输入要关闭的图层名，可用通配符:", L"已关闭", &AcDbLayerTableRecord::setIsOff, true},
    {L"Freeze", L"输入要冻结的图层名，可用通配符:", L"已冻结", &AcDbLayerTableRecord::setIsFrozen, true},
    {L"Thaw", L"输入要解冻的图层名，可用通配符:", L"已解冻", &AcDbLayerTableRecord::setIsFrozen, false},
    {L"LOck", L"输入要锁定的图层名，可用通配符:", L"已锁定", &AcDbLayerTableRecord::setIsLocked, true},
    {L"Unlock", L"输入要解锁的图层名，可用通配符:", L"已解锁", &AcDbLayerTableRecord::setIsLocked, false},
};

struct Option {
  const wchar_t* keyword;
  void (*run)();
};
constexpr Option kOptions[] = {{L"?", list},          {L"Make", make},   {L"Set", setCurrent},
                               {L"New", createAsked}, {L"Color", color}, {L"Ltype", linetype},
                               {L"LWeight", weight}};

constexpr wchar_t kPrompt[] =
    L"输入选项 [列表(?)/生成(M)/置为当前(S)/新建(N)/开(ON)/关(OFF)/冻结(F)/解冻(T)/锁定(LO)/"
    L"解锁(U)/颜色(C)/线型(L)/线宽(LW)]:";
constexpr wchar_t kKeywords[] = L"? Make Set New ON OFF Freeze Thaw LOck Unlock Color Ltype LWeight";

} // namespace

void Layer() {
  while (true) {
    const auto option = ed::AskKeyword({kPrompt, kKeywords, 0, {}});
    if (option.status != ed::Answer::Status::keyword) return;
    for (const auto& row : kOptions)
      if (option.isKeyword(row.keyword)) row.run();
    for (const auto& row : kStates)
      if (option.isKeyword(row.keyword))
        change(row.prompt, row.done, L"",
               [&](AcDbLayerTableRecord& layer) { return (layer.*row.set)(row.value); });
  }
}

} // namespace commands
