#include "tests/host/dxf/DrawingFiles.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbXrecord.h"
#include "host/db/Audit.h"
#include "host/db/Purge.h"
#include "host/db/resbuf.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

// A drawing that nothing is wrong with but what the test puts into it.
std::string drawing(const std::string& entities) {
  AcDbDatabase empty(false);
  dxf::BuildNewDrawing(empty);
  std::string text = dxf::WriteDrawingBytes(empty);
  std::erase(text, '\r');
  const std::string mark = "ENTITIES\n";
  const auto at = text.find(mark) + mark.size();
  return text.substr(0, at) + Tags(entities) + text.substr(at);
}

std::vector<AuditCheck> checks(const std::vector<AuditFinding>& findings) {
  std::vector<AuditCheck> list;
  for (const AuditFinding& finding : findings) list.push_back(finding.check);
  return list;
}

bool allRepaired(const std::vector<AuditFinding>& findings) {
  return std::all_of(findings.begin(), findings.end(), [](const AuditFinding& f) { return f.repaired; });
}

std::string texts(const std::vector<AuditFinding>& findings) {
  std::string all;
  for (const AuditFinding& finding : findings) all += finding.text.ToUtf8() + "\n";
  return all;
}

using Checks = std::vector<AuditCheck>;

constexpr const char* kLine =
    "0 LINE\n5 A1\n330 30\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0.0\n20 0.0\n30 0.0\n11 1.0\n"
    "21 0.0\n31 0.0";

// What an audit finds, that it repairs it, and that it finds nothing afterwards. Without repair nothing
// changes, and what was repaired is taken back by one step.
void expectRepaired(const std::string& file, AuditCheck check) {
  const Opened opened = Open(file);
  ASSERT_TRUE(opened.ok()) << opened.error();
  AcDbDatabase& database = *opened.database;
  const std::string before = opened.saved();
  const auto found = acdbAudit(database, false);
  EXPECT_EQ(checks(found), Checks{check}) << texts(found);
  EXPECT_FALSE(found.empty() || found.front().repaired);
  EXPECT_EQ(opened.saved(), before);
  database.undo().beginCommand(L"AUDIT");
  const auto repaired = acdbAudit(database, true);
  database.undo().endCommand();
  EXPECT_EQ(checks(repaired), Checks{check}) << texts(repaired);
  EXPECT_TRUE(allRepaired(repaired)) << texts(repaired);
  const auto left = acdbAudit(database, false);
  EXPECT_TRUE(left.empty()) << texts(left);
  const Opened again = Open(opened.saved());
  ASSERT_TRUE(again.ok()) << again.error();
  const auto inFile = acdbAudit(*again.database, false);
  EXPECT_TRUE(inFile.empty()) << texts(inFile);
  EXPECT_EQ(database.undo().undo(), Acad::eOk);
  EXPECT_EQ(checks(acdbAudit(database, false)), Checks{check});
}

} // namespace

TEST(Audit, OfANewDrawingFindsNothing) {
  const Opened opened = Open(drawing(kLine));
  const auto found = acdbAudit(*opened.database, true);
  EXPECT_TRUE(found.empty()) << texts(found);
  AcDbDatabase standard;
  EXPECT_TRUE(acdbAudit(standard, true).empty());
}

TEST(Audit, ASeedThatIsNotAboveAllHandlesIsRaised) {
  std::string file = drawing(kLine);
  const auto at = file.find("$HANDSEED\n  5\n") + 14;
  file.replace(at, file.find('\n', at) - at, "20");
  expectRepaired(file, AuditCheck::handleSeed);
}

TEST(Audit, AnEntityNamesTheBlockThatHasIt) {
  std::string line = kLine;
  line.replace(line.find("330 30"), 6, "330 31");
  expectRepaired(drawing(line), AuditCheck::owner);
  line.erase(line.find("330 31\n"), 7);
  expectRepaired(drawing(line), AuditCheck::owner);
}

TEST(Audit, MarkersComeInTheirOrder) {
  expectRepaired(
      drawing(
          "0 ARC\n5 A1\n330 30\n100 AcDbEntity\n8 0\n100 AcDbArc\n50 0.0\n51 90.0\n100 AcDbCircle\n10 0.0\n"
          "20 0.0\n30 0.0\n40 1.0"),
      AuditCheck::markers);
}

// What the record of handle A1 is after the audit has repaired the entity.
std::string afterRepair(const std::string& entity) {
  const Opened opened = Open(drawing(entity));
  acdbAudit(*opened.database, true);
  AcDbObjectId id;
  EXPECT_EQ(opened.database->getAcDbObjectId(id, false, AcDbHandle(0xA1)), Acad::eOk);
  std::string text;
  for (const DxfTag& tag : id.object()->record().tags())
    text += std::to_string(tag.code) + " " + std::string(dxf::trimBlanks(tag.value)) + "\n";
  return text;
}

TEST(Audit, MissingMarkersAreSetWhereTheyBelong) {
  const std::string geometry = "10 0.0\n20 0.0\n30 0.0\n11 1.0\n21 0.0\n31 0.0\n";
  const std::string whole = "0 LINE\n5 A1\n330 30\n100 AcDbEntity\n8 0\n62 3\n100 AcDbLine\n" + geometry;
  const std::string head = "0 LINE\n5 A1\n330 30\n";
  for (const std::string& damaged :
       {head + "100 AcDbEntity\n8 0\n62 3\n" + geometry, head + "8 0\n62 3\n" + geometry,
        head + "8 0\n" + geometry + "62 3\n", head + "100 AcDbLine\n8 0\n62 3\n" + geometry,
        head + "100 AcDbEntity\n8 0\n62 3\n100 AcDbEntity\n" + geometry}) {
    const std::string entity = damaged.substr(0, damaged.size() - 1);
    EXPECT_EQ(afterRepair(entity), whole) << damaged;
    expectRepaired(drawing(entity), AuditCheck::markers);
  }
}

TEST(Audit, TheSecondMarkerOfATextStandsAheadOfItsVerticalAlignment) {
  EXPECT_EQ(
      afterRepair(
          "0 TEXT\n5 A1\n330 30\n102 {ACAD_REACTORS\n330 C\n102 }\n8 0\n10 0.0\n20 0.0\n30 0.0\n40 2.5\n1 x\n"
          "72 1\n11 1.0\n21 2.0\n31 0.0\n73 2\n1001 ACAD\n1000 y"),
      "0 TEXT\n5 A1\n330 30\n102 {ACAD_REACTORS\n330 C\n102 }\n100 AcDbEntity\n8 0\n100 AcDbText\n10 0.0\n"
      "20 0.0\n30 0.0\n40 2.5\n1 x\n72 1\n11 1.0\n21 2.0\n31 0.0\n100 AcDbText\n73 2\n1001 ACAD\n1000 y\n");
}

TEST(Audit, ARecordWithTheMarkerOfAnotherClassIsToldAndLeft) {
  const Opened opened = Open(drawing(
      "0 LINE\n5 A1\n330 30\n100 AcDbEntity\n8 0\n100 AcDbCircle\n10 0.0\n20 0.0\n30 0.0\n11 1.0\n21 0.0\n"
      "31 0.0"));
  const auto found = acdbAudit(*opened.database, true);
  EXPECT_EQ(checks(found), Checks{AuditCheck::markers});
  EXPECT_FALSE(found.front().repaired);
}

TEST(Audit, ApplicationsOfExtendedDataAreRegistered) {
  expectRepaired(drawing(std::string(kLine) + "\n1001 管材\n1000 镀锌钢管"), AuditCheck::application);
}

TEST(Audit, LayersLinetypesStylesAndBlocksAreDefined) {
  std::string line = kLine;
  line.replace(line.find("8 0"), 3, "8 管线");
  expectRepaired(drawing(line), AuditCheck::undefinedName);
  line.replace(line.find("8 管线"), 8, "8 0\n6 虚线");
  expectRepaired(drawing(line), AuditCheck::undefinedName);
  expectRepaired(
      drawing(
          "0 MTEXT\n5 A1\n330 30\n100 AcDbEntity\n8 0\n100 AcDbMText\n10 0.0\n20 0.0\n30 0.0\n40 2.5\n1 x\n"
          "7 仿宋"),
      AuditCheck::undefinedName);
  expectRepaired(drawing(std::string(kLine) + "\n1001 ACAD\n1003 别的层"), AuditCheck::undefinedName);
  expectRepaired(
      drawing("0 INSERT\n5 A1\n330 30\n100 AcDbEntity\n8 0\n100 AcDbBlockReference\n2 没有\n10 0.0\n20 0.0\n"
              "30 0.0"),
      AuditCheck::undefinedName);
}

TEST(Audit, ARunOfAttributesGetsItsEnd) {
  const Opened opened =
      Open(drawing("0 INSERT\n5 A1\n330 30\n100 AcDbEntity\n8 0\n100 AcDbBlockReference\n66 1\n"
                   "2 *Paper_Space\n10 0.0\n20 0.0\n30 0.0\n0 ATTRIB\n5 A2\n330 A1\n100 AcDbEntity\n8 0\n"
                   "100 AcDbText\n10 0.0\n20 0.0\n30 0.0\n40 2.5\n1 x\n100 AcDbAttribute\n2 T\n70 0"));
  AcDbDatabase& database = *opened.database;
  EXPECT_EQ(checks(acdbAudit(database, false)), Checks{AuditCheck::sequenceEnd});
  EXPECT_TRUE(allRepaired(acdbAudit(database, true)));
  EXPECT_TRUE(acdbAudit(database, false).empty());
  const std::string saved = opened.saved();
  EXPECT_LT(saved.find("ATTRIB\n"), saved.find("SEQEND\n"));
}

TEST(Audit, AnEntryOfADictionaryThatLeadsNowhereGoes) {
  std::string file = drawing(kLine);
  const std::string entry = "  3\nACAD_GROUP\n";
  const auto at = file.find(entry);
  file.insert(at, "  3\n旧数据\n350\nFFFF\n");
  expectRepaired(file, AuditCheck::danglingEntry);
}

TEST(Audit, AnExtensionDictionaryThatIsNotThereGoes) {
  std::string line = kLine;
  line.insert(line.find("330 30"), "102 {ACAD_XDICTIONARY\n360 FFFF\n102 }\n");
  expectRepaired(drawing(line), AuditCheck::danglingPointer);
}

TEST(Audit, BracesOfExtendedDataArePaired) {
  const std::string line = std::string(kLine) + "\n1001 ACAD\n";
  expectRepaired(drawing(line + "1002 {\n1000 x"), AuditCheck::extendedDataForm);
  expectRepaired(drawing(line + "1002 }\n1000 x"), AuditCheck::extendedDataForm);
  const std::string repaired =
      afterRepair(line + "1002 }\n1002 {\n1000 x\n1002 {\n1070 5\n1002 }\n1001 ACAD_PSEXT\n1000 y");
  EXPECT_EQ(repaired.substr(repaired.find("1001 ")),
            "1001 ACAD\n1002 {\n1000 x\n1002 {\n1070 5\n1002 }\n1002 }\n1001 ACAD_PSEXT\n1000 y\n");
}

TEST(Audit, LongTextsOfExtendedDataAreCutBetweenCharacters) {
  const std::string line = std::string(kLine) + "\n1001 ACAD\n1000 ";
  expectRepaired(drawing(line + std::string(300, 'x')), AuditCheck::extendedDataForm);
  std::string text = "x";
  for (int i = 0; i < 200; ++i) text += "管";
  const std::string repaired = afterRepair(line + text);
  EXPECT_EQ(repaired.substr(repaired.find("1000 ")), "1000 " + text.substr(0, 253) + "\n1000 " +
                                                         text.substr(253, 255) + "\n1000 " +
                                                         text.substr(508) + "\n");
}

TEST(Audit, MoreExtendedDataThanAnObjectMayHaveGoesToAnXrecord) {
  std::string data;
  for (int i = 0; i < 100; ++i) data += "\n1000 " + std::to_string(i) + std::string(200, 'x');
  data += "\n1010 1.5\n1020 2.5\n1030 0.0\n1071 70000";
  expectRepaired(drawing(std::string(kLine) + "\n1001 ACAD" + data), AuditCheck::extendedDataForm);
  const Opened opened = Open(drawing(std::string(kLine) + "\n1001 ACAD\n1070 7\n1001 ACAD_PSEXT" + data));
  EXPECT_TRUE(allRepaired(acdbAudit(*opened.database, true)));
  const auto* entity = EntityAt(*opened.database, 0).object();
  EXPECT_EQ(ResbufPtr(entity->xData(L"ACAD_PSEXT")), nullptr);
  EXPECT_NE(ResbufPtr(entity->xData(L"ACAD")), nullptr) << "what fits stays";
  const auto* dictionary = AcDbDictionary::cast(entity->extensionDictionary().object());
  ASSERT_TRUE(dictionary);
  AcDbObjectId id;
  ASSERT_EQ(dictionary->getAt(L"ACAD_PSEXT", id), Acad::eOk);
  resbuf* chain = nullptr;
  ASSERT_EQ(AcDbXrecord::cast(id.object())->rbChain(&chain), Acad::eOk);
  const ResbufPtr owned(chain);
  std::size_t texts = 0;
  const resbuf* last = nullptr;
  for (const resbuf* item = chain; item; item = item->rbnext) {
    texts += item->restype == 1 ? 1 : 0;
    last = item;
  }
  EXPECT_EQ(texts, 100u);
  EXPECT_EQ(last->restype, 90);
  EXPECT_EQ(last->resval.rlong, 70000);
}

TEST(Audit, ValuesOutOfRangeAreReplaced) {
  std::string line = kLine;
  line.insert(line.find("8 0") + 4, "62 9999\n");
  expectRepaired(drawing(line), AuditCheck::value);
}

TEST(Audit, ABlockThatContainsItselfLosesThatInsertion) {
  const Opened opened = Open(SampleBytes("recursive_insert"));
  ASSERT_TRUE(opened.ok());
  AcDbDatabase& database = *opened.database;
  const auto hasCycle = [](const std::vector<AuditFinding>& findings) {
    const auto list = checks(findings);
    return std::count(list.begin(), list.end(), AuditCheck::blockCycle) > 0;
  };
  EXPECT_TRUE(hasCycle(acdbAudit(database, false)));
  EXPECT_TRUE(hasCycle(acdbAudit(database, true)));
  EXPECT_FALSE(hasCycle(acdbAudit(database, false)));
}

TEST(Audit, OfRealDrawingsEndsAndFindsNothingAgainThatItRepaired) {
  for (const std::string& name : SampleNames()) {
    const Opened opened = Open(SampleBytes(name), true);
    if (!opened.ok()) continue;
    const std::string before = opened.saved();
    acdbAudit(*opened.database, false);
    EXPECT_EQ(opened.saved(), before) << name;
    std::size_t open = 0;
    for (const AuditFinding& finding : acdbAudit(*opened.database, true)) open += finding.repaired ? 0 : 1;
    const auto left = acdbAudit(*opened.database, false);
    EXPECT_EQ(left.size(), open) << name << "\n" << texts(left);
  }
}

TEST(Purge, TakesUnusedAnonymousBlocksAndLeavesTheOthers) {
  AcDbDatabase database;
  const auto add = [&](const wchar_t* name) {
    AcDbObjectPointer<AcDbBlockTable> blocks(database.blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    block->setName(name);
    AcDbObjectId id;
    EXPECT_EQ(blocks->add(id, block), Acad::eOk);
    block->close();
    return id;
  };
  const auto insert = [&](const AcDbObjectId& into, const AcDbObjectId& block) {
    AcDbObjectPointer<AcDbBlockTableRecord> open(into, AcDb::kForWrite);
    auto* reference = new AcDbBlockReference({}, block);
    AcDbObjectId id;
    EXPECT_EQ(open->appendAcDbEntity(id, reference), Acad::eOk);
    reference->close();
    return id;
  };
  const auto used = add(L"*U");
  const auto innerUsed = add(L"*U");
  const auto unused = add(L"*U");
  const auto innerUnused = add(L"*E");
  const auto named = add(L"阀门");
  insert(used, innerUsed);
  insert(database.modelSpaceId(), used);
  insert(unused, innerUnused);
  EXPECT_EQ(acdbUnusedBlocks(database, PurgeBlocks::anonymous), (std::vector{unused, innerUnused}));
  EXPECT_EQ(acdbUnusedBlocks(database, PurgeBlocks::all), (std::vector{unused, innerUnused, named}));
  database.undo().beginCommand(L"PURGE");
  EXPECT_EQ(acdbPurgeBlocks(database, PurgeBlocks::anonymous), 2u);
  database.undo().endCommand();
  EXPECT_TRUE(unused.isErased());
  EXPECT_TRUE(innerUnused.isErased());
  EXPECT_FALSE(used.isErased());
  EXPECT_FALSE(named.isErased());
  EXPECT_EQ(acdbPurgeBlocks(database, PurgeBlocks::anonymous), 0u);
  database.undo().undo();
  EXPECT_FALSE(unused.isErased());
  EXPECT_EQ(static_cast<AcDbBlockTableRecord*>(unused.object())->entities().size(), 1u);
}

TEST(Purge, LeavesThePicturesOfDimensionsAlone) {
  for (const std::string& name : SampleNames()) {
    const Opened opened = Open(SampleBytes(name));
    if (!opened.ok()) continue;
    acdbPurgeBlocks(*opened.database, PurgeBlocks::all);
    // Nothing names a block that is no longer there.
    for (const auto& finding : acdbAudit(*opened.database, false))
      EXPECT_TRUE(finding.check != AuditCheck::undefinedName || finding.text.Find(L"块“") < 0)
          << name << " " << finding.text.ToUtf8();
  }
}
