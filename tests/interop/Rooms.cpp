// Rooms for check_rooms.py. "rooms write FILE" saves a drawing with rooms and their records, "rooms tell
// FILE" prints what the rooms of a drawing hold, a line each.
#include <cstdio>
#include <cstring>

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/dxf/DrawingFile.h"
#include "plugin/rooms/CTQRoom.h"
#include "plugin/rooms/RoomRecord.h"
#include "plugin/rooms/VkDbHvacSpace.h"

namespace {

constexpr int kRooms = 5;

int Write(const CString& path) {
  AcDbDatabase drawing(false);
  dxf::BuildNewDrawing(drawing);
  const AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.modelSpaceId(), AcDb::kForWrite);
  for (int i = 0; i < kRooms; ++i) {
    auto* room = new VkDbHvacSpace;
    CTQRoom record;
    record.m_strNumber.Format(L"%d", 101 + i);
    record.m_strName = CString(L"房间", 2 * (i % 2)) + CString(L'长', i * 100);
    record.m_dWinData = 16 + 0.1 * i;
    record.m_dHeatLoad = 1000.0 / (i + 3);
    const double x = i * 7000.0;
    room->SetNumber(record.m_strNumber);
    room->SetName(i % 2 == 0 ? L"办公室" : L"");
    room->SetTotalHeatLoad(record.m_dHeatLoad);
    if (i != 3) room->SetBoundary({{x, 0, 0}, {x + 6000, 0, 0}, {x + 6000, 4000, 0}});
    room->SetPosition({x + 1000, 1000, 0});
    AcDbObjectId id;
    if (space->appendAcDbEntity(id, room) != Acad::eOk) return 1;
    room->close();
    if (!ZP::SetTQRoom(id, &record)) return 1;
  }
  return dxf::WriteDrawing(drawing, path).ok ? 0 : 1;
}

int Tell(const CString& path) {
  AcDbDatabase drawing(false);
  if (!dxf::ReadDrawing(path, drawing).ok) return 1;
  const AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.modelSpaceId(), AcDb::kForRead);
  for (const AcDbObjectId& id : space->entities()) {
    const AcDbObjectPointer<VkDbHvacSpace> room(id, AcDb::kForRead);
    CTQRoom record;
    if (!room || !ZP::GetTQRoom(id, &record)) continue;
    std::printf("%s %s %.17g %zu | %s %s %.17g %.17g\n", room->GetNumber().ToUtf8().c_str(),
                room->GetName().ToUtf8().c_str(), room->GetTotalHeatLoad(), room->GetBoundary().size(),
                record.m_strNumber.ToUtf8().c_str(), record.m_strName.ToUtf8().c_str(), record.m_dHeatLoad,
                record.m_dWinData);
  }
  return 0;
}

} // namespace

int main(int count, char** arguments) {
  if (count != 3) return 2;
  const CString path = CString::FromUtf8(arguments[2]);
  return std::strcmp(arguments[1], "write") == 0 ? Write(path) : Tell(path);
}
