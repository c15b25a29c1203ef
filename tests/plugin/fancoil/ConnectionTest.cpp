#include "plugin/fancoil/ConnectionFields.h"
#include "tests/plugin/fancoil/WaterFixture.h"
#include "tests/support/FullDisk.h"

namespace {

using Pipes = CZPArray<SKTFCUMainPipeData>;
using Ducts = CZPArray<SKTFCUDuctData>;

// Calls visit with each stored field of both records and the field's attribute.
template <typename Record, std::size_t Count, typename Visit>
void ForEachField(Record& a, const Record& b, const ConnectionField<Record> (&fields)[Count], Visit visit) {
  for (const auto& field : fields)
    std::visit(
        [&](auto target) {
          if constexpr (std::is_same_v<decltype(target), PointCoordinate<Record>>)
            visit(a.*target.point.*target.coordinate, b.*target.point.*target.coordinate, field.attribute);
          else
            visit(a.*target, b.*target, field.attribute);
        },
        field.target);
}

// A record in which every stored field has a value of its own.
template <typename Record, std::size_t Count>
Record FullConnection(const ConnectionField<Record> (&fields)[Count], double number) {
  Record record;
  ForEachField(record, record, fields, [&](auto& value, const auto&, const wchar_t* attribute) {
    number += 1.125;
    if constexpr (std::is_same_v<decltype(value), double&>)
      value = number;
    else
      value = CString(attribute) + L"的值";
  });
  return record;
}

template <typename Record, std::size_t Count>
void ExpectSame(Record actual, const Record& expected, const ConnectionField<Record> (&fields)[Count]) {
  ForEachField(actual, expected, fields, [](const auto& a, const auto& b, const wchar_t* attribute) {
    EXPECT_EQ(a, b) << CString(attribute).ToUtf8();
  });
}

class Connection : public WaterFixture {
 protected:
  static SKTFCUMainPipeData Pipe(const wchar_t* system, double number = 0.0) {
    SKTFCUMainPipeData pipe = FullConnection(kPipeConnectionFields, number);
    pipe.szPipeName = system;
    return pipe;
  }
  static SKTFCUDuctData Duct(const wchar_t* system, double number = 0.0) {
    SKTFCUDuctData duct = FullConnection(kDuctConnectionFields, number);
    duct.szDuctName = system;
    return duct;
  }
  template <typename Record> static CZPArray<Record> List(std::initializer_list<Record> records) {
    CZPArray<Record> list;
    for (const Record& record : records) list.Add(record);
    return list;
  }
  CString PipesInFile() const {
    return InFile(L"PipeConnection", [](const VkDtDictItem& item) {
      return item.GetAttributeValue(L"BlockId") + L"/" + item.GetAttributeValue(L"PipeId");
    });
  }
  static bool HasItem(const wchar_t* part, const wchar_t* item) {
    VkDtDictionary read(nullptr, nullptr);
    EXPECT_TRUE(read.ReadFromXML(fancoil::WaterDatabasePath()));
    return read.FindDict(part)->FindDict(item) != nullptr;
  }
};

TEST_F(Connection, RecordsBeginWithTheirDefaults) {
  const SKTFCUMainPipeData pipe;
  EXPECT_EQ(pipe.szPipeName, L"");
  EXPECT_EQ(pipe.ptStart, AcGePoint3d(0.0, 0.0, 0.0));
  EXPECT_EQ(pipe.ptEnd, AcGePoint3d(100.0, 0.0, 0.0));
  EXPECT_EQ(pipe.dbDelv, 0.0);
  EXPECT_EQ(pipe.szPipeDia, L"20");
  EXPECT_EQ(pipe.dbYcLength, 200.0);
  EXPECT_EQ(pipe.dbPipeDist, 0.0);
  const SKTFCUDuctData duct;
  EXPECT_EQ(duct.szDuctName, L"");
  EXPECT_EQ(duct.szShape, L"矩形");
  EXPECT_EQ(duct.ptStart, AcGePoint3d(0.0, 0.0, 0.0));
  EXPECT_EQ(duct.ptEnd, AcGePoint3d(0.0, 0.0, 0.0));
  EXPECT_EQ(duct.dbYcLength, 200.0);
  EXPECT_EQ(duct.dbDelv, 0.0);
  EXPECT_EQ(duct.dbFaceWidth, 500.0);
  EXPECT_EQ(duct.dbFaceHeight, 500.0);
}

TEST_F(Connection, PipesComeBackFromTheFileWithZeroHeights) {
  Read();
  SKTFCUMainPipeData first = Pipe(L"空调冷凝水");
  first.ptStart.z = 5.0;
  first.ptEnd.z = 6.0;
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"FJPG1", List({first, Pipe(L"空调冷热水供水", 0.1)})));
  CKTDatabaseOperation another;
  ASSERT_TRUE(another.Initial());
  Pipes read = List({Pipe(L"先前")});
  EXPECT_TRUE(another.GetFCUConnectPipeData(L"fjpg1", read));
  ASSERT_EQ(read.GetSize(), 3);
  EXPECT_EQ(read[0].szPipeName, L"先前");
  EXPECT_EQ(read[1].szPipeName, L"空调冷凝水");
  ExpectSame(read[1], first, kPipeConnectionFields);
  EXPECT_EQ(read[1].ptStart.z, 0.0);
  EXPECT_EQ(read[1].ptEnd.z, 0.0);
  EXPECT_EQ(read[2].szPipeName, L"空调冷热水供水");
  ExpectSame(read[2], Pipe(L"", 0.1), kPipeConnectionFields);
}

TEST_F(Connection, DuctsStayInMemoryUntilThePipesAreSaved) {
  Read();
  const std::string before = install.Read(kFile);
  ASSERT_TRUE(operation.SaveFCUConnectDuctData(L"FJPG1", List({Duct(L"新风管"), Duct(L"送风管", 0.1)})));
  EXPECT_EQ(install.Read(kFile), before);
  Ducts inMemory;
  EXPECT_TRUE(operation.GetFCUConnectDuctData(L"FJPG1", inMemory));
  ASSERT_EQ(inMemory.GetSize(), 2);
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"FJPG1", {}));
  CKTDatabaseOperation another;
  ASSERT_TRUE(another.Initial());
  Ducts read;
  EXPECT_TRUE(another.GetFCUConnectDuctData(L"FJPG1", read));
  ASSERT_EQ(read.GetSize(), 2);
  EXPECT_EQ(read[0].szDuctName, L"新风管");
  ExpectSame(read[0], Duct(L""), kDuctConnectionFields);
  EXPECT_EQ(read[1].szDuctName, L"送风管");
  ExpectSame(read[1], Duct(L"", 0.1), kDuctConnectionFields);
}

TEST_F(Connection, ABlockThatIsNotKnownIsRegisteredAtTheOrigin) {
  Read();
  EXPECT_TRUE(operation.SaveFCUConnectPipeData(L"FJPG1", List({Pipe(L"空调冷凝水")})));
  AcGePoint3d point(1.0, 2.0, 3.0);
  operation.GetFCUBzInsertPoint(L"FJPG1", point);
  EXPECT_EQ(point.x, 0.0);
  EXPECT_EQ(point.y, 0.0);
  EXPECT_EQ(point.z, 0.0);
}

TEST_F(Connection, AnUnknownBlockHasNone) {
  Read();
  Pipes pipes;
  Ducts ducts;
  EXPECT_FALSE(operation.GetFCUConnectPipeData(L"x", pipes));
  EXPECT_FALSE(operation.GetFCUConnectDuctData(L"x", ducts));
}

TEST_F(Connection, AKnownBlockWithoutConnectionsGivesTrueAndNone) {
  AddBlock(0, L"a");
  Read();
  Pipes pipes;
  EXPECT_TRUE(operation.GetFCUConnectPipeData(L"A", pipes));
  EXPECT_EQ(pipes.GetSize(), 0);
}

TEST_F(Connection, ItemsAreNamedByIndexAndBlockAndCarryTheBlockTwice) {
  AddBlock(11, L"a");
  Read();
  ASSERT_TRUE(operation.SaveFCUConnectDuctData(L"a", List({Duct(L"回风管")})));
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", List({Pipe(L"空调冷凝水"), Pipe(L"空调冷热水供水")})));
  EXPECT_TRUE(HasItem(L"PipeConnection", L"Pipe0-11"));
  EXPECT_TRUE(HasItem(L"PipeConnection", L"Pipe1-11"));
  EXPECT_TRUE(HasItem(L"DuctConnection", L"Duct0-11"));
  EXPECT_EQ(PipesInFile(), L"11/7 11/1 ");
  EXPECT_EQ(
      InFile(L"PipeConnection", [](const VkDtDictItem& item) { return item.GetAttributeValue(L"name"); }),
      L"11 11 ");
  EXPECT_EQ(InFile(L"DuctConnection",
                   [](const VkDtDictItem& item) {
                     return item.GetAttributeValue(L"name") + L"/" + item.GetAttributeValue(L"BlockId") +
                            L"/" + item.GetAttributeValue(L"DuctId1");
                   }),
            L"11/11/2 ");
}

TEST_F(Connection, ARecordOfAnUnknownSystemLeavesAGapInTheNames) {
  Read();
  const auto pipes = List({Pipe(L"空调冷凝水"), Pipe(L"无此系统"), Pipe(L"空调冷热水供水")});
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", pipes));
  EXPECT_TRUE(HasItem(L"PipeConnection", L"Pipe0-0"));
  EXPECT_FALSE(HasItem(L"PipeConnection", L"Pipe1-0"));
  EXPECT_TRUE(HasItem(L"PipeConnection", L"Pipe2-0"));
  ASSERT_TRUE(operation.SaveFCUConnectDuctData(L"a", List({Duct(L"无此系统"), Duct(L"送风管")})));
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", pipes));
  EXPECT_FALSE(HasItem(L"DuctConnection", L"Duct0-0"));
  EXPECT_TRUE(HasItem(L"DuctConnection", L"Duct1-0"));
}

TEST_F(Connection, SavingReplacesTheBlocksConnectionsAndNoOthers) {
  AddBlock(0, L"a");
  AddBlock(1, L"b");
  Read();
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", List({Pipe(L"空调冷凝水"), Pipe(L"空调冷凝水")})));
  ASSERT_TRUE(
      operation.SaveFCUConnectPipeData(L"b", List({Pipe(L"空调冷热水供水"), Pipe(L"空调冷热水回水")})));
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", List({Pipe(L"空调冷热水供水")})));
  EXPECT_EQ(PipesInFile(), L"1/1 1/2 0/1 ");
}

// First, neighbouring, last and all of them.
TEST_F(Connection, NoConnectionOfTheBlockIsMissedWhenOldOnesAreDeleted) {
  for (const std::vector<int>& owners : {std::vector<int>{0},
                                         {0, 0},
                                         {0, 0, 0},
                                         {0, 1, 0},
                                         {1, 0, 0},
                                         {0, 0, 1},
                                         {1, 0, 1},
                                         {0, 1, 1, 0, 0, 1}}) {
    VkDtDictionary* part = root.FindDict(L"PipeConnection");
    part->Reset();
    CString expected;
    int number = 0;
    for (const int owner : owners) {
      VkDtDictionary* item = part->FindOrAddDict(L"Pipe" + ZP::itoa(number++) + L"-" + ZP::itoa(owner));
      item->SetAttributeIntValue(L"BlockId", owner);
      item->SetAttributeIntValue(L"PipeId", number);
      if (owner == 1) expected += L"1/" + ZP::itoa(number) + L" ";
    }
    AddBlock(0, L"a");
    AddBlock(1, L"b");
    Read();
    EXPECT_TRUE(operation.SaveFCUConnectPipeData(L"a", {}));
    EXPECT_EQ(PipesInFile(), expected);
  }
}

TEST_F(Connection, AnEmptyArrayRemovesTheConnections) {
  AddBlock(0, L"a");
  Read();
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", List({Pipe(L"空调冷凝水")})));
  ASSERT_TRUE(operation.SaveFCUConnectDuctData(L"a", List({Duct(L"送风管")})));
  const std::string before = install.Read(kFile);
  EXPECT_TRUE(operation.SaveFCUConnectDuctData(L"a", {}));
  EXPECT_EQ(install.Read(kFile), before);
  EXPECT_TRUE(operation.SaveFCUConnectPipeData(L"a", {}));
  EXPECT_EQ(PipesInFile(), L"");
  Ducts ducts;
  EXPECT_TRUE(operation.GetFCUConnectDuctData(L"a", ducts));
  EXPECT_EQ(ducts.GetSize(), 0);
}

TEST_F(Connection, WithoutThePartAllGiveFalseAndTheBlockStaysRegisteredInMemory) {
  Drop(L"PipeConnection");
  Drop(L"DuctConnection");
  Read();
  const std::string before = install.Read(kFile);
  Pipes pipes;
  Ducts ducts;
  EXPECT_FALSE(operation.SaveFCUConnectPipeData(L"a", pipes));
  EXPECT_FALSE(operation.SaveFCUConnectDuctData(L"a", ducts));
  EXPECT_FALSE(operation.GetFCUConnectPipeData(L"a", pipes));
  EXPECT_FALSE(operation.GetFCUConnectDuctData(L"a", ducts));
  AcGePoint3d point(1.0, 2.0, 3.0);
  operation.GetFCUBzInsertPoint(L"a", point);
  EXPECT_EQ(point.z, 0.0);
  EXPECT_EQ(install.Read(kFile), before);
}

TEST_F(Connection, AMissingAttributeReadsAsNothingAndAnUnknownSystemAsNoName) {
  AddBlock(3, L"a");
  VkDtDictionary* item = root.FindDict(L"PipeConnection")->FindOrAddDict(L"Pipe0-3");
  item->SetAttributeIntValue(L"BlockId", 3);
  item->SetAttributeIntValue(L"PipeId", 99);
  Read();
  Pipes read;
  EXPECT_TRUE(operation.GetFCUConnectPipeData(L"a", read));
  ASSERT_EQ(read.GetSize(), 1);
  EXPECT_EQ(read[0].szPipeName, L"");
  EXPECT_EQ(read[0].szPipeDia, L"");
  EXPECT_EQ(read[0].ptEnd.x, 0.0);
  EXPECT_EQ(read[0].dbYcLength, 0.0);
}

TEST_F(Connection, OfTwoObjectsTheLastWriterWins) {
  Read();
  CKTDatabaseOperation other;
  ASSERT_TRUE(other.Initial());
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", List({Pipe(L"空调冷凝水")})));
  ASSERT_TRUE(other.SaveFCUConnectPipeData(L"b", {}));
  EXPECT_EQ(PipesInFile(), L"");
}

TEST_F(Connection, AFailingSaveKeepsTheOldFileAndGivesFalse) {
  Read();
  const std::string before = install.Read(kFile);
  EXPECT_FALSE(
      OnAFullDisk([&] { return operation.SaveFCUConnectPipeData(L"a", List({Pipe(L"空调冷凝水")})); }));
  EXPECT_EQ(install.Read(kFile), before);
  // What is in memory stays there, and goes to the disk with the next save.
  EXPECT_TRUE(operation.SaveFCUConnectPipeData(L"b", {}));
  EXPECT_EQ(PipesInFile(), L"0/7 ");
}

TEST_F(Connection, KeepsTextsAndNumbersExactly) {
  Read();
  SKTFCUMainPipeData pipe = Pipe(L"空调冷凝水");
  pipe.szPipeDia = L"<De\"32'×&2.9>\t\U0001F600";
  pipe.dbDelv = -1.0 / 3.0;
  pipe.dbYcLength = 5e-324;
  pipe.dbPipeDist = 1.7976931348623157e308;
  ASSERT_TRUE(operation.SaveFCUConnectPipeData(L"a", List({pipe})));
  CKTDatabaseOperation another;
  ASSERT_TRUE(another.Initial());
  Pipes read;
  EXPECT_TRUE(another.GetFCUConnectPipeData(L"a", read));
  ASSERT_EQ(read.GetSize(), 1);
  ExpectSame(read[0], pipe, kPipeConnectionFields);
}

} // namespace
