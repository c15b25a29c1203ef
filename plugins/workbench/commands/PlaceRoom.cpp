// WB_BZFJ: places a room with its loads, and files the record that tells its temperature.
#include "host/db/AcDbDatabase.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/acutPrintf.h"
#include "plugin/graph/DrawingSettings.h"
#include "plugin/rooms/CTQRoom.h"
#include "plugin/rooms/RoomRecord.h"
#include "plugin/rooms/VkDbHvacSpace.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/RoomQuestions.h"

namespace workbench {
namespace {

constexpr const wchar_t* kLayer = L"房间编号";
constexpr Range kLoads{-1e9, 1e9};        // W; a room may gain heat
constexpr Range kTemperatures{-100, 100}; // degrees Celsius

struct Figure {
  const wchar_t* subject;
  double preset;
  Range range;
};
constexpr Figure kHeat{L"总热负荷(W)", 1000, kLoads};
constexpr Figure kCool{L"总冷负荷(W)", 1500, kLoads};
constexpr Figure kTemperature{L"冬季室内温度(℃)", 18, kTemperatures};

CString KeyOf(const wchar_t* subject) {
  return CString(L"房间\\") + subject;
}

// The answer becomes the default of the next room.
bool AskFigure(const Figure& figure, double& value) {
  const auto answer =
      AskNumber(figure.subject, Remembered(KeyOf(figure.subject), figure.preset), figure.range);
  if (answer) Remember(KeyOf(figure.subject), value = *answer);
  return answer.has_value();
}

// A largest load is that of the day's total unless the user knows better.
bool AskMost(const wchar_t* subject, double total, double& value) {
  const auto answer = AskNumber(subject, total, kLoads);
  if (answer) value = *answer;
  return answer.has_value();
}

bool AskTexts(VkDbHvacSpace& room, CTQRoom& record) {
  const auto number = AskOptionalText(L"房间编号", Remembered(L"房间\\编号", L"101"));
  const auto name =
      number ? AskOptionalText(L"房间名称", Remembered(L"房间\\名称", L"办公室")) : std::nullopt;
  if (!name) return false;
  room.SetNumber(record.m_strNumber = *number);
  room.SetName(record.m_strName = *name);
  return true;
}

bool AskPlace(VkDbHvacSpace& room) {
  const auto outline = AskOutline();
  if (!outline) return false;
  auto place = outline->empty() ? ed::AskPoint({L"指定编号的位置:", {}, RSG_NONULL, {}})
                                : ed::AskPoint({L"指定编号的位置 <轮廓中心>:", {}, 0, {}});
  if (place.isCancelled()) return false;
  if (place.isNone()) place.point = MiddleOf(*outline);
  room.SetPosition(place.point);
  room.SetBoundary(*outline);
  return true;
}

bool AskLoads(VkDbHvacSpace& room, CTQRoom& record) {
  double winterMost = 0;
  double summerMost = 0;
  if (!AskFigure(kHeat, record.m_dHeatLoad) || !AskFigure(kCool, record.m_dCoolLoad) ||
      !AskMost(L"冬季最大总负荷(W)", record.m_dHeatLoad, winterMost) ||
      !AskMost(L"夏季最大总负荷(W)", record.m_dCoolLoad, summerMost) ||
      !AskFigure(kTemperature, record.m_dWinData))
    return false;
  room.SetTotalHeatLoad(record.m_dHeatLoad);
  room.SetTotalCoolLoad(record.m_dCoolLoad);
  room.SetWinTotalMostLoad(winterMost);
  room.SetSumTotalMostLoad(summerMost);
  return true;
}

} // namespace

void PlaceRoom() {
  if (const auto* drawing = acdbHostApplicationServices()->workingDatabase();
      drawing && !drawing->form().subclassMarkers())
    return Refuse(L"R12 格式的图形不能保存房间。", L"先用 SAVEAS 另存为较新的版本");
  if (!PrepareLayer(kLayer)) return;
  auto room = std::make_unique<VkDbHvacSpace>();
  CTQRoom record;
  if (!AskTexts(*room, record) || !AskPlace(*room) || !AskLoads(*room, record)) return;
  room->SetTextHeight(ZP::GetZwZg() * ZP::GetOutDwgScale());
  const auto id = AppendOnLayer(std::move(room), kLayer);
  if (id.isNull()) return;
  if (!ZP::SetTQRoom(id, &record)) return Refuse(L"房间的负荷信息不能写入图形。");
  Remember(L"房间\\编号", NextNumber(record.m_strNumber));
  Remember(L"房间\\名称", record.m_strName);
  acutPrintf(L"\n已布置房间 %s。\n", record.m_strNumber);
}

} // namespace workbench
