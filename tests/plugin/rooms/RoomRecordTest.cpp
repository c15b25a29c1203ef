// The record that is filed with a room.
#include "plugin/rooms/RoomRecord.h"

#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbIdMapping.h"
#include "tests/plugin/rooms/RoomFixture.h"

namespace {

class RoomRecord : public RoomFixture {
 protected:
  static void ExpectSame(const CTQRoom& a, const CTQRoom& b) {
    EXPECT_EQ(a.m_strNumber, b.m_strNumber);
    EXPECT_EQ(a.m_strName, b.m_strName);
    EXPECT_EQ(a.m_strFloor, b.m_strFloor);
    EXPECT_EQ(a.m_dHeatLoad, b.m_dHeatLoad);
    EXPECT_EQ(a.m_dCoolLoad, b.m_dCoolLoad);
    EXPECT_EQ(a.m_dWinData, b.m_dWinData);
  }
  static CTQRoom Read(const AcDbObjectId& id, int result = 1) {
    CTQRoom room;
    EXPECT_EQ(result, ZP::GetTQRoom(id, &room));
    return room;
  }
  static std::vector<int> ChunkSizes(const AcDbObjectId& id) {
    std::vector<int> sizes;
    resbuf* chain = nullptr;
    EXPECT_NE(0, ZP::GetXRecord(id, L"TQRoom", chain));
    const ResbufPtr owner(chain);
    for (const resbuf* rb = chain; rb; rb = rb->rbnext) {
      EXPECT_EQ(rb->restype, 310);
      sizes.push_back(rb->resval.rbinary.clen);
    }
    return sizes;
  }
};

} // namespace

TEST_F(RoomRecord, ComesBackAsItWasFiled) {
  const auto id = AddRoom();
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  ExpectSame(Read(id), record);
  EXPECT_EQ(0u, document->lockCount());
  EXPECT_TRUE(frontEnd.output.IsEmpty());
}

TEST_F(RoomRecord, IsReplacedByTheNextOne) {
  const auto id = AddRoom();
  CTQRoom record = Record();
  record.m_strName = CString(L'长', 5000);
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  ExpectSame(Read(id), record);
  record.m_strName = L"短";
  record.m_dWinData = -3;
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  ExpectSame(Read(id), record);
}

TEST_F(RoomRecord, StandsInChunksThatALineOfADrawingFileHolds) {
  const auto id = AddRoom();
  CTQRoom record = Record();
  record.m_strName = CString(L'x', 1000);
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  const auto sizes = ChunkSizes(id);
  ASSERT_GT(sizes.size(), 8u);
  for (std::size_t i = 0; i + 1 < sizes.size(); ++i) EXPECT_EQ(sizes[i], 127);
}

TEST_F(RoomRecord, ChunksOfAnyLengthAreJoinedInTheirOrder) {
  const auto id = AddRoom();
  const std::string image = ImageOf(Record());
  ResbufBuilder chain;
  std::size_t at = 0;
  for (std::size_t size = 1; at < image.size(); at += size, size = size * 2 % 126 + 1)
    AppendChunk(chain, 310, image.substr(at, size));
  ASSERT_NE(0, ZP::SetXRecord(id, L"TQRoom", chain.chain()));
  ExpectSame(Read(id), Record());
}

TEST_F(RoomRecord, WhatElseStandsInTheChainIsPassedOver) {
  const auto id = AddRoom();
  const std::string image = ImageOf(Record());
  ResbufBuilder chain;
  chain.text(1, L"head").integer(90, 12);
  AppendChunk(chain, 310, image.substr(0, 50));
  AppendChunk(chain, 311, "other bytes");
  chain.real(40, 1.5).point(10, 1, 2, 3);
  AppendChunk(chain, 310, image.substr(50, 70));
  AppendChunk(chain, 310, image.substr(120));
  chain.text(1, L"tail");
  ASSERT_NE(0, ZP::SetXRecord(id, L"TQRoom", chain.chain()));
  ExpectSame(Read(id), Record());
}

TEST_F(RoomRecord, WithoutOneTheRoomIsUnchangedAndTheUserTold) {
  const auto id = AddRoom();
  CTQRoom room = Record();
  EXPECT_EQ(0, ZP::GetTQRoom(id, &room));
  ExpectSame(room, Record());
  EXPECT_TRUE(frontEnd.said(L"\n该房间编号无负荷对象信息。"));
  EXPECT_EQ(0u, document->lockCount());
}

TEST_F(RoomRecord, NothingIsSaidForNullsAndNothingLocked) {
  struct Counter : AcApDocManagerReactor {
    Counter() { acDocManagerPtr()->addReactor(this); }
    ~Counter() override { acDocManagerPtr()->removeReactor(this); }
    void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode,
                                 const wchar_t*) override {
      ++changes;
    }
    int changes = 0;
  } counter;
  const auto id = AddRoom();
  CTQRoom room;
  EXPECT_EQ(0, ZP::GetTQRoom(id, nullptr));
  EXPECT_EQ(0, ZP::GetTQRoom(AcDbObjectId(), &room));
  EXPECT_EQ(0, ZP::GetTQRoom(AcDbObjectId(), nullptr));
  EXPECT_EQ(0, ZP::SetTQRoom(id, nullptr));
  EXPECT_EQ(0, ZP::SetTQRoom(AcDbObjectId(), &room));
  EXPECT_TRUE(frontEnd.output.IsEmpty());
  EXPECT_EQ(counter.changes, 0);
}

TEST_F(RoomRecord, StandsOnEntitiesOfOtherClassesToo) {
  const auto line = addLine({0, 0, 0}, {1, 0, 0});
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(line, &record));
  ExpectSame(Read(line), record);
}

TEST_F(RoomRecord, OfAnErasedEntityIsNotFound) {
  const auto id = AddRoom();
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  AcDbObjectPointer<AcDbEntity>(id, AcDb::kForWrite)->erase();
  Read(id, 0);
  EXPECT_EQ(0, ZP::SetTQRoom(id, &record));
}

TEST_F(RoomRecord, IsNotFiledOnALockedLayer) {
  const auto layer = addLayer(L"锁");
  auto* room = NewRoom();
  room->setLayer(layer);
  const auto id = add(room);
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  const CTQRoom record = Record();
  EXPECT_EQ(0, ZP::SetTQRoom(id, &record));
  EXPECT_TRUE(id.object()->extensionDictionary().isNull());
}

TEST_F(RoomRecord, AnObjectOfAnotherClassUnderTheKeyIsNoRecord) {
  const auto id = AddRoom();
  {
    const AcDbObjectPointer<AcDbEntity> room(id, AcDb::kForWrite);
    ASSERT_EQ(Acad::eOk, room->createExtensionDictionary());
    const AcDbObjectPointer<AcDbDictionary> extension(room->extensionDictionary(), AcDb::kForWrite);
    auto* other = new AcDbDictionary;
    AcDbObjectId otherId;
    ASSERT_EQ(Acad::eOk, extension->setAt(L"TQRoom", other, otherId));
    other->close();
  }
  Read(id, 0);
  const CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record)) << "it takes its place";
  ExpectSame(Read(id), record);
}

TEST_F(RoomRecord, ThatIsDamagedLeavesTheRoomAsItWasAndTheLogTells) {
  const auto id = AddRoom();
  const std::string image = ImageOf(Record());
  std::string foreignVersion = image;
  foreignVersion[foreignVersion.find("1.0")] = '2';
  std::string hugeLength = image;
  hugeLength.replace(4, 8, 8, '\xFF');
  std::string tooLong = image;
  tooLong[4] = static_cast<char>(tooLong[4] + 1);
  const std::string cases[] = {std::string(4000, '\xA5'),
                               image.substr(0, 12),
                               image.substr(0, 5),
                               image.substr(0, 90),
                               foreignVersion,
                               hugeLength,
                               tooLong,
                               "IDP1" + image,
                               std::string(1, '\0')};
  for (const std::string& damaged : cases) {
    FileImage(id, damaged);
    afx::ClearLoggedMessages();
    ExpectSame(Read(id), CTQRoom());
    ASSERT_FALSE(afx::LoggedMessages().empty()) << damaged.size();
    EXPECT_GE(afx::LoggedMessages().back().Find(L"#" + id.handle().ascii()), 0);
  }
  ResbufBuilder noChunk;
  noChunk.text(1, L"IDP1");
  ASSERT_NE(0, ZP::SetXRecord(id, L"TQRoom", noChunk.chain()));
  ExpectSame(Read(id), CTQRoom());
}

TEST_F(RoomRecord, WhateverBytesAreChangedItIsReadOrRefused) {
  const auto id = AddRoom();
  const std::string image = ImageOf(Record());
  unsigned seed = 1; // the same changes in every run
  const auto next = [&](std::size_t below) {
    seed = seed * 1664525u + 1013904223u;
    return (seed >> 8) % below;
  };
  int read = 0;
  int refused = 0;
  for (std::size_t i = 0; i < 3000; ++i) {
    std::string changed = image;
    for (std::size_t changes = 1 + next(4); changes > 0; --changes) {
      const std::size_t at = next(changed.size());
      switch (next(4)) {
      case 0:
        changed[at] = static_cast<char>(next(256));
        break;
      case 1:
        changed[at] = static_cast<char>(changed[at] ^ 1 << next(8));
        break;
      case 2:
        changed.erase(at, 1 + next(20));
        break;
      default:
        changed.insert(at, image.substr(next(image.size()), next(30)));
        break;
      }
      if (changed.empty()) changed.assign(1, 'I');
    }
    FileImage(id, changed);
    CTQRoom room;
    room.m_dWinData = 99;
    afx::ClearLoggedMessages();
    ASSERT_EQ(1, ZP::GetTQRoom(id, &room));
    const bool isLogged = !afx::LoggedMessages().empty();
    ++(isLogged ? refused : read);
    if (isLogged) {
      EXPECT_EQ(room.m_dWinData, 99);
    }
  }
  for (std::size_t length = 1; length < image.size(); ++length) {
    FileImage(id, image.substr(0, length));
    EXPECT_EQ(Read(id).m_strNumber, L"") << length;
  }
  // Both happen, or the sweep would not reach what lies behind the head.
  EXPECT_GT(read, 20);
  EXPECT_GT(refused, 1000);
}

TEST_F(RoomRecord, ComesAndGoesWithUndo) {
  const auto id = AddRoom();
  const CTQRoom record = Record();
  database().undo().beginCommand(L"房间");
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  database().undo().endCommand();
  ASSERT_EQ(Acad::eOk, database().undo().undo());
  Read(id, 0);
  ASSERT_EQ(Acad::eOk, database().undo().redo());
  ExpectSame(Read(id), record);
}

TEST_F(RoomRecord, IsCopiedWithTheRoomAndIsTheCopysOwn) {
  const auto id = AddRoom();
  CTQRoom record = Record();
  ASSERT_EQ(1, ZP::SetTQRoom(id, &record));
  AcDbIdMapping map;
  ASSERT_EQ(Acad::eOk, database().deepCloneObjects({id}, database().modelSpaceId(), map));
  const auto copy = map.valueOf(id);
  ExpectSame(Read(copy), record);
  record.m_dWinData = 5;
  ASSERT_EQ(1, ZP::SetTQRoom(copy, &record));
  EXPECT_EQ(Read(id).m_dWinData, 18.5);
}
