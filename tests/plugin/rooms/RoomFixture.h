// An editor with an empty drawing, and rooms in it.
#pragma once

#include <string>

#include "host/afx/MessageLog.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/graph/XRecord.h"
#include "plugin/rooms/CTQRoom.h"
#include "plugin/rooms/CTQStorage.h"
#include "plugin/rooms/RoomRecord.h"
#include "plugin/rooms/VkDbHvacSpace.h"
#include "tests/support/EditorFixture.h"

class RoomFixture : public EditorFixture {
 protected:
  RoomFixture() { afx::ClearLoggedMessages(); }

  static constexpr double kHeat = 1250.5;
  static constexpr double kCool = 2100.25;
  static constexpr double kWinterMost = 1480.0;
  static constexpr double kSummerMost = 2333.0;

  // A room of 6 m by 4 m whose outline passes through its corner.
  static VkDbHvacSpace* NewRoom(const AcGePoint3d& corner = {}) {
    auto* room = new VkDbHvacSpace;
    room->SetNumber(L"101");
    room->SetName(L"办公室");
    room->SetPosition(corner + AcGeVector3d(1000, 2000, 0));
    room->SetBoundary({corner, corner + AcGeVector3d(6000, 0, 0), corner + AcGeVector3d(6000, 4000, 0),
                       corner + AcGeVector3d(0, 4000, 0)});
    room->SetTotalHeatLoad(kHeat);
    room->SetTotalCoolLoad(kCool);
    room->SetWinTotalMostLoad(kWinterMost);
    room->SetSumTotalMostLoad(kSummerMost);
    return room;
  }
  static AcDbObjectId AddRoom(const AcGePoint3d& corner = {}) { return add(NewRoom(corner)); }
  static const VkDbHvacSpace& RoomOf(const AcDbObjectId& id) { return *VkDbHvacSpace::cast(id.object()); }

  static CTQRoom Record() {
    CTQRoom record;
    record.m_strNumber = L"101";
    record.m_strName = L"办公室";
    record.m_strFloor = L"一层";
    record.m_dHeatLoad = kHeat;
    record.m_dCoolLoad = kCool;
    record.m_dWinData = 18.5;
    return record;
  }
  static std::string ImageOf(const CTQRoom& record) {
    CIDPEx tree;
    std::string image;
    CTQStorage::WriteRoom(&record, &tree);
    tree.WriteDataToBuffer(image);
    return image;
  }
  static void AppendChunk(ResbufBuilder& chain, int code, const std::string& bytes) {
    ads_binary chunk{static_cast<short>(bytes.size()), new char[bytes.size()]};
    bytes.copy(chunk.buf, bytes.size());
    chain.binary(code, chunk);
  }
  // Files any bytes as a room's record.
  static void FileImage(const AcDbObjectId& id, const std::string& image) {
    ResbufBuilder chain;
    constexpr std::size_t size = 100;
    for (std::size_t at = 0; at < image.size(); at += size) AppendChunk(chain, 310, image.substr(at, size));
    ASSERT_NE(0, ZP::SetXRecord(id, L"TQRoom", chain.chain()));
  }
};
