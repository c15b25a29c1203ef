#include "tests/host/commands/CommandFixture.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbUnknownEntity.h"
#include "host/db/DxfDecodeContext.h"

class AuditCommand : public CommandFixture {
 protected:
  AuditCommand() {
    auto* entity = new AcDbUnknownEntity;
    entity->setRecord(DxfRecord::own("  0\nMTEXT\n100\nAcDbEntity\n  8\n0\n100\nAcDbMText\n  7\n仿宋\n"),
                      DxfDecodeContext(database()));
    AcDbObjectPointer<AcDbBlockTableRecord> model(database().modelSpaceId(), AcDb::kForWrite);
    EXPECT_EQ(model->appendAcDbEntity(entity), Acad::eOk);
    entity->close();
  }
  bool hasStyle() {
    AcDbObjectId id;
    return database().tableOf("STYLE")->getAt(L"仿宋", id) == Acad::eOk;
  }
};

TEST_F(AuditCommand, TellsWithoutRepairingUnlessAsked) {
  run(L"AUDIT", {L""});
  EXPECT_TRUE(frontEnd.said(L"文字样式“仿宋”未定义")) << frontEnd.output.ToUtf8();
  EXPECT_TRUE(frontEnd.said(L"共发现 1 处错误，更正 0 处")) << frontEnd.output.ToUtf8();
  EXPECT_FALSE(hasStyle());
}

TEST_F(AuditCommand, RepairsAndIsTakenBack) {
  run(L"AUDIT", {L"Y"});
  EXPECT_TRUE(hasStyle());
  run(L"U");
  EXPECT_FALSE(hasStyle());
}

TEST_F(AuditCommand, PurgeCountsWhatItTookAway) {
  {
    AcDbObjectPointer<AcDbBlockTable> blocks(database().blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    block->setName(L"*U");
    ASSERT_EQ(blocks->add(block), Acad::eOk);
    block->close();
  }
  run(L"PURGE", {L""});
  EXPECT_TRUE(frontEnd.said(L"已清理 1 个块")) << frontEnd.output.ToUtf8();
  run(L"PURGE", {L"A"});
  EXPECT_TRUE(frontEnd.said(L"已清理 0 个块")) << frontEnd.output.ToUtf8();
}
