// Any bytes as a room's record, and as the groups of a room in a drawing: a record is read or leaves the room
// as it was, and a room that is moved, shown and saved is the same room when it is read again.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/dxf/DrawingFile.h"
#include "plugin/graph/XRecord.h"
#include "plugin/rooms/CTQRoom.h"
#include "plugin/rooms/RoomRecord.h"
#include "plugin/rooms/VkDbHvacSpace.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

constexpr std::size_t kChunk = 61;
constexpr double kPreset = 77.0;

void ReadAsRecord(const std::string& bytes) {
  AcDbDatabase drawing(true);
  AcDbObjectId id;
  {
    const AcDbObjectPointer<AcDbBlockTableRecord> space(drawing.modelSpaceId(), AcDb::kForWrite);
    auto* room = new VkDbHvacSpace;
    Require(space->appendAcDbEntity(id, room) == Acad::eOk);
    room->close();
  }
  ResbufBuilder chain;
  for (std::size_t at = 0; at < bytes.size(); at += kChunk) {
    const std::string piece = bytes.substr(at, kChunk);
    ads_binary chunk{static_cast<short>(piece.size()), new char[piece.size()]};
    piece.copy(chunk.buf, piece.size());
    chain.binary(310, chunk);
  }
  if (!ZP::SetXRecord(id, L"TQRoom", chain.chain())) return;
  CTQRoom room;
  room.m_dWinData = kPreset;
  Require(ZP::GetTQRoom(id, &room) == 1);
  CTQRoom again;
  Require(ZP::SetTQRoom(id, &room) == 1 && ZP::GetTQRoom(id, &again) == 1);
  Require(again.m_strName == room.m_strName && again.m_strNumber == room.m_strNumber);
}

VkDbHvacSpace* RoomIn(AcDbDatabase& drawing) {
  AcDbObjectId id;
  drawing.getAcDbObjectId(id, false, AcDbHandle(0xA1));
  return VkDbHvacSpace::cast(id.object());
}

void ReadAsEntity(const std::string& groups) {
  const std::string file =
      "0\nSECTION\n2\nENTITIES\n0\nVKHVAC_SPACE\n5\nA1\n100\nAcDbEntity\n8\n0\n100\nVkDbHvacSpace\n" +
      groups + "\n0\nENDSEC\n0\nEOF\n";
  AcDbDatabase drawing(false);
  if (!dxf::ReadDrawingBytes(file, L"rooms.dxf", drawing).ok || !RoomIn(drawing)) return;
  {
    const AcDbObjectPointer<VkDbHvacSpace> room(RoomIn(drawing)->objectId(), AcDb::kForWrite);
    if (!room) return;
    AcDbExtents extents;
    room->getGeomExtents(extents);
    room->transformBy(AcGeMatrix3d::rotation(1, AcGeVector3d(1, 2, 3), {4, 5, 6}));
    std::vector<AcDbEntity*> parts;
    room->explode(parts);
    for (const AcDbEntity* part : parts) delete part;
  }
  AcDbDatabase again(false);
  Require(dxf::ReadDrawingBytes(dxf::WriteDrawingBytes(drawing), L"again.dxf", again).ok);
  const VkDbHvacSpace* before = RoomIn(drawing);
  const VkDbHvacSpace* after = RoomIn(again);
  Require(after != nullptr);
  Require(after->GetTotalHeatLoad() == before->GetTotalHeatLoad());
  Require(after->GetBoundary().size() == before->GetBoundary().size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  ReadAsRecord(bytes);
  ReadAsEntity(bytes);
  return 0;
}
