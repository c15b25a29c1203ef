#include "plugin/graph/Xdata.h"

#include <gtest/gtest.h>

#include "host/db/resbuf.h"
#include "plugin/graph/EntityLayer.h"
#include "tests/support/WorkingDrawing.h"

namespace {

class Xdata : public testing::Test {
 protected:
  CString Get(const wchar_t* key, const wchar_t* miss = L"(none)") {
    CString value = miss;
    ZP::GetXdata(line, key, value);
    return value;
  }
  // The groups that stand under an application's name, as "code=text|".
  CString Groups(const wchar_t* application) {
    const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForRead);
    const ResbufPtr chain(object->xData(application));
    CString all;
    for (const resbuf* rb = chain.get(); rb; rb = rb->rbnext)
      all.AppendFormat(L"%d=%s|", rb->restype, rb->resval.rstring);
    return all;
  }
  void Store(const ResbufBuilder& data) {
    const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForWrite);
    ASSERT_EQ(object->setXData(data.chain()), Acad::eOk);
  }

  WorkingDrawing drawing;
  AcDbObjectId line = drawing.AppendLine();
};

TEST_F(Xdata, GivesBackTheValueOfAKey) {
  EXPECT_NE(ZP::SetXdata(line, L"管材", L"镀锌钢管"), 0);
  EXPECT_EQ(Get(L"管材"), L"镀锌钢管");
}

TEST_F(Xdata, FilesAKeyAsAnApplicationOfItsName) {
  ZP::SetXdata(line, L"管径", L"20");
  EXPECT_EQ(Groups(L"管径"), L"1001=管径|1000=20|");
  const AcDbObjectPointer<AcDbRegAppTable> applications(drawing.Database().regAppTableId(), AcDb::kForRead);
  EXPECT_TRUE(applications->has(L"管径"));
}

TEST_F(Xdata, KeepsEmptyValues) {
  EXPECT_NE(ZP::SetXdata(line, L"扣弯", L""), 0);
  EXPECT_EQ(Get(L"扣弯"), L"");
  EXPECT_EQ(Groups(L"扣弯"), L"1001=扣弯|1000=|");
}

TEST_F(Xdata, LeavesTheOutputAloneForAMissingKey) {
  CString value = L"preset";
  EXPECT_EQ(ZP::GetXdata(line, L"管材", value), 0);
  EXPECT_EQ(value, L"preset");
}

TEST_F(Xdata, ReplacesTheValueAndLeavesOtherKeysAlone) {
  ZP::SetXdata(line, L"管材", L"甲");
  ZP::SetXdata(line, L"管径", L"20");
  ZP::SetXdata(line, L"管材", L"乙");
  EXPECT_EQ(Get(L"管材"), L"乙");
  EXPECT_EQ(Get(L"管径"), L"20");
}

TEST_F(Xdata, NeedsAnObject) {
  CString value = L"preset";
  EXPECT_EQ(ZP::SetXdata(AcDbObjectId(), L"管材", L"甲"), 0);
  EXPECT_EQ(ZP::GetXdata(AcDbObjectId(), L"管材", value), 0);
  EXPECT_EQ(ZP::SetXdata(static_cast<AcDbObject*>(nullptr), L"管材", L"甲"), 0);
  EXPECT_EQ(ZP::GetXdata(static_cast<AcDbObject*>(nullptr), L"管材", value), 0);
  EXPECT_EQ(value, L"preset");
}

TEST_F(Xdata, NeedsAKey) {
  CString value = L"preset";
  EXPECT_EQ(ZP::SetXdata(line, L"", L"甲"), 0);
  EXPECT_EQ(ZP::SetXdata(line, nullptr, L"甲"), 0);
  EXPECT_EQ(ZP::GetXdata(line, L"", value), 0);
  EXPECT_EQ(ZP::GetXdata(line, nullptr, value), 0);
  EXPECT_EQ(value, L"preset");
}

TEST_F(Xdata, FailsOnAnErasedObjectAndOnALockedLayer) {
  const AcDbObjectId layer = drawing.AddLayer(L"锁定");
  {
    AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
    entity->setLayer(layer);
    AcDbObjectPointer<AcDbLayerTableRecord> record(layer, AcDb::kForWrite);
    record->setIsLocked(true);
  }
  EXPECT_EQ(ZP::SetXdata(line, L"管材", L"甲"), 0);
  {
    AcDbObjectPointer<AcDbLayerTableRecord> record(layer, AcDb::kForWrite);
    record->setIsLocked(false);
  }
  EXPECT_NE(ZP::SetXdata(line, L"管材", L"甲"), 0);
  {
    AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
    entity->erase();
  }
  EXPECT_EQ(Get(L"管材"), L"(none)");
  EXPECT_EQ(ZP::SetXdata(line, L"管材", L"乙"), 0);
}

TEST_F(Xdata, OfAnObjectOpenForReadIsWrittenAndTheObjectStaysOpenForRead) {
  const AcDbObjectPointer<AcDbObject> object(line, AcDb::kForRead);
  EXPECT_NE(ZP::SetXdata(object.object(), L"管材", L"甲"), 0);
  EXPECT_FALSE(object->isWriteEnabled());
  EXPECT_TRUE(object->isReadEnabled());
  CString value;
  EXPECT_NE(ZP::GetXdata(object.object(), L"管材", value), 0);
  EXPECT_EQ(value, L"甲");
}

TEST_F(Xdata, OfAnObjectThatOthersReadIsNotWritten) {
  const AcDbObjectPointer<AcDbObject> first(line, AcDb::kForRead);
  const AcDbObjectPointer<AcDbObject> second(line, AcDb::kForRead);
  EXPECT_EQ(ZP::SetXdata(first.object(), L"管材", L"甲"), 0);
}

TEST_F(Xdata, OfAnObjectOutsideADrawingIsRegisteredInTheWorkingDrawing) {
  auto* point = new AcDbPoint;
  EXPECT_NE(ZP::SetXdata(point, L"管材", L"甲"), 0);
  const AcDbObjectId id = drawing.Append(point);
  CString value;
  EXPECT_NE(ZP::GetXdata(id, L"管材", value), 0);
  EXPECT_EQ(value, L"甲");
  const AcDbObjectPointer<AcDbRegAppTable> applications(drawing.Database().regAppTableId(), AcDb::kForRead);
  EXPECT_TRUE(applications->has(L"管材"));
}

TEST_F(Xdata, GoesBackWithTheCommandThatWroteIt) {
  drawing.Database().undo().beginCommand(L"TEST");
  ZP::SetXdata(line, L"管材", L"甲");
  drawing.Database().undo().endCommand();
  EXPECT_EQ(drawing.Database().undo().undo(), Acad::eOk);
  EXPECT_EQ(Get(L"管材"), L"(none)");
  EXPECT_EQ(drawing.Database().undo().redo(), Acad::eOk);
  EXPECT_EQ(Get(L"管材"), L"甲");
}

TEST_F(Xdata, BeyondWhatAnObjectMayHoldIsRefusedAndTheOldValueStays) {
  ASSERT_NE(ZP::SetXdata(line, L"备注", L"short"), 0);
  EXPECT_EQ(ZP::SetXdata(line, L"备注", CString(L'x', 17000)), 0);
  EXPECT_EQ(Get(L"备注"), L"short");
  EXPECT_NE(ZP::SetXdata(line, L"备注", CString(L'x', 15000)), 0);
  EXPECT_EQ(Get(L"备注").GetLength(), 15000);
}

TEST_F(Xdata, DoesNotTakeTheDataOfAnotherProgramForAValue) {
  drawing.Database().registerApplication(L"管径");
  Store(ResbufBuilder().text(1001, L"管径").real(1040, 20));
  EXPECT_EQ(Get(L"管径"), L"(none)");
}

TEST_F(Xdata, OfATextWithANullCharacterIsRefused) {
  EXPECT_EQ(ZP::SetXdata(line, L"管材", CString(L"a\0b", 3)), 0);
  EXPECT_EQ(Get(L"管材"), L"(none)");
}

TEST_F(Xdata, CarriesAnyText) {
  const CString texts[] = {L"line\nbreak\ttab\r",          L"^ ^J ^^", L"  blanks  ",
                           L"\\U+4E2D \\M+5D6D0 \\u+4e2d", L"%%C32",   L"{}",
                           CString(L"\U0001F600é")};
  for (const CString& text : texts) {
    ASSERT_NE(ZP::SetXdata(line, L"备注", text), 0);
    EXPECT_EQ(Get(L"备注"), text);
  }
}

TEST(GetEntityLayer, GivesTheLayerOfAnEntityAndNothingElse) {
  WorkingDrawing drawing;
  const AcDbObjectId line = drawing.AppendLine();
  drawing.AddLayer(L"暖通");
  {
    const AcDbObjectPointer<AcDbEntity> entity(line, AcDb::kForWrite);
    entity->setLayer(L"暖通");
  }
  CString layer = L"preset";
  EXPECT_FALSE(ZP::GetEntityLayer(AcDbObjectId(), layer));
  EXPECT_FALSE(ZP::GetEntityLayer(drawing.Layer(L"0"), layer));
  EXPECT_EQ(layer, L"preset");
  EXPECT_TRUE(ZP::GetEntityLayer(line, layer));
  EXPECT_EQ(layer, L"暖通");
}

} // namespace
