#include "plugin/pipes/attributes/Elevation.h"

#include "host/ed/adsNames.h"
#include "tests/plugin/pipes/attributes/PipeFixture.h"
#include "tests/support/ScriptedEditor.h"

namespace {

using Elevation = PipeFixture;

TEST_F(Elevation, IsZeroForAnEntityWithoutOneWhereTheMainPipeSaysThatThereIsNone) {
  EXPECT_EQ(ZP::GetElevation(line), 0);
  double elevation = 7;
  EXPECT_FALSE(CZPMainPipe(line).GetElevation(elevation));
  EXPECT_EQ(elevation, 7);
}

// Both precisions are meant: five decimals by the class, two by the function.
TEST_F(Elevation, IsWrittenWithTwoDecimalsByTheFunctionAndFiveByTheMainPipe) {
  double value = 1.236;
  EXPECT_TRUE(ZP::SetElevation(line, value));
  EXPECT_EQ(value, 1.236);
  EXPECT_EQ(Stored(L"相对标高"), L"1.24");
  double read = 0;
  EXPECT_TRUE(CZPMainPipe(line).GetElevation(read));
  EXPECT_EQ(read, 1.24);
  EXPECT_TRUE(CZPMainPipe(line).SetElevation(1.234567));
  EXPECT_EQ(Stored(L"相对标高"), L"1.23457");
  EXPECT_EQ(ZP::GetElevation(line), 1.23457);
}

TEST_F(Elevation, IsRefusedAndZeroWithoutAnEntity) {
  double value = 1;
  EXPECT_FALSE(ZP::SetElevation(AcDbObjectId::kNull, value));
  EXPECT_EQ(ZP::GetElevation(AcDbObjectId::kNull), 0);
  Erase(line);
  EXPECT_FALSE(ZP::SetElevation(line, value));
  EXPECT_EQ(ZP::GetElevation(line), 0);
}

TEST(ElevationByName, IsThatOfTheEntity) {
  ScriptedEditor editor;
  const AcDbObjectId id =
      WorkingDrawing::AppendTo(editor.Database(), new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(100, 0, 0)));
  ads_name name;
  ASSERT_EQ(acdbGetAdsName(name, id), Acad::eOk);
  EXPECT_EQ(ZP::GetElevation(name), 0);
  double value = -2.755;
  EXPECT_TRUE(ZP::SetElevation(name, value));
  EXPECT_EQ(ZP::GetElevation(name), ZP::GetElevation(id));
  EXPECT_NEAR(ZP::GetElevation(name), -2.755, 0.0051);
}

TEST(ElevationByName, IsRefusedAndZeroForANameThatIsNone) {
  ScriptedEditor editor;
  ads_name name;
  ads_name_clear(name);
  double value = 1;
  EXPECT_EQ(ZP::GetElevation(name), 0);
  EXPECT_FALSE(ZP::SetElevation(name, value));
  name[0] = name[1] = 12345;
  EXPECT_EQ(ZP::GetElevation(name), 0);
  EXPECT_FALSE(ZP::SetElevation(name, value));
  EXPECT_EQ(ZP::GetElevation(static_cast<long long*>(nullptr)), 0);
}

} // namespace
