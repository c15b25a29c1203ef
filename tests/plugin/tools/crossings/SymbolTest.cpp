// What the symbol is made of, where it stands and what it carries.
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/layers/LayerService.h"
#include "tests/plugin/tools/crossings/CrossingsFixture.h"

namespace {

class CrossingSymbol : public CrossingsFixture {
 protected:
  // A lower pipe up, and higher ones at the angles.
  AcDbObjectId at(std::initializer_list<double> degrees, bool arcOuch = true) {
    AcDbObjectIdArray ids;
    ids.append(pipe({0, 0, 0}, AcGePoint3d(0, 1000, 0).rotateBy(0.3, AcGeVector3d::kZAxis), 2.0));
    for (const double angle : degrees)
      ids.append(pipe({0, 0, 0},
                      AcGePoint3d(1000, 0, 0).rotateBy(angle * std::numbers::pi / 180, AcGeVector3d::kZAxis),
                      3.0));
    ZPKwCl(arcOuch, kRadius).AddKw(ids);
    return onlySymbol();
  }
  static void define(CZPGroupLayer& group, const wchar_t* identifier, const wchar_t* name, int colour) {
    auto* definition = new CZPLayer;
    definition->SetKorLayer(identifier);
    definition->SetUserLayer(name);
    definition->SetColorIndex(colour);
    definition->SetLineType(L"CONTINUOUS");
    group.Add(definition);
  }
  static void makeScheme() {
    auto* category = new CZPSystemLayer;
    auto* group = new CZPGroupLayer;
    CZPManagerLayer::GetInstance()->Add(category);
    category->Add(group);
    define(*group, L"采暖供水干管", L"供水", 1);
    define(*group, L"采暖供水干管扣弯", L"供水扣弯", 5);
  }
  static CString layerOf(const AcDbObjectId& id) {
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    return entity->layer();
  }
};

TEST_F(CrossingSymbol, OfTwoOppositePipesIsTwoQuarters) {
  expectArcs(at({0, 180}), {{45, 135}, {225, 315}});
}

TEST_F(CrossingSymbol, OfPipesAt0And60LosesThePieceBetweenThem) {
  expectArcs(at({0, 60}), {{105, 315}});
}

TEST_F(CrossingSymbol, OfPipesAt0And300LosesTheLastPiece) {
  expectArcs(at({0, 300}), {{45, 255}});
}

TEST_F(CrossingSymbol, OfAPipeInTheOpeningOfTheFirstIsThatOfTheFirstAlone) {
  expectArcs(at({0, 30}), {{45, 315}});
}

TEST_F(CrossingSymbol, OfAPipeOnTheEdgeOfTheOpeningIsOpenedBeyondIt) {
  expectArcs(at({0, 45}), {{90, 315}});
}

TEST_F(CrossingSymbol, OfAPipeOnTheOtherEdgeOfTheOpeningIsOpenedBeyondIt) {
  expectArcs(at({0, 315}), {{45, 270}});
}

TEST_F(CrossingSymbol, OfFourPipesAtRightAnglesShowsNothing) {
  // Deliberately an insertion of an empty block: no piece is longer than the openings.
  const auto symbol = at({0, 90, 180, 270});
  EXPECT_TRUE(partsOf(symbol).empty());
  EXPECT_EQ(L"", xdata(symbol, L"扣弯"));
  expectSound();
}

TEST_F(CrossingSymbol, OfThreePipesHasTheWiderPieces) {
  expectArcs(at({0, 120, 240}), {{45, 75}, {165, 195}, {285, 315}});
}

TEST_F(CrossingSymbol, WithoutOpeningsIsOneCircle) {
  expectOneCircle(at({0, 180}, false));
}

TEST_F(CrossingSymbol, WhoseHigherPipesDontReachTheCircleIsAFullOne) {
  const auto stub = pipe({0, 0, 0}, {30, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
  addKw({stub, low});
  expectOneCircle(onlySymbol());
}

TEST_F(CrossingSymbol, IsAnAnonymousBlockWithItsOriginAtTheJoint) {
  const auto a = pipe({300, 400, 0}, {300, 900, 0}, 3.0);
  const auto b = pipe({300, 400, 0}, {900, 400, 0}, 2.0);
  addKw({a, b});
  const AcDbObjectPointer<AcDbBlockReference> symbol(onlySymbol(), AcDb::kForRead);
  EXPECT_EQ(AcGePoint3d(300, 400, 0), symbol->position());
  EXPECT_EQ(0, symbol->rotation());
  EXPECT_EQ(AcGeVector3d(0, 0, 1), symbol->normal());
  EXPECT_EQ(256, symbol->colorIndex());
  const AcDbObjectPointer<AcDbBlockTableRecord> block(symbol->blockTableRecord(), AcDb::kForRead);
  EXPECT_TRUE(block->isAnonymous());
  EXPECT_EQ(L"*U", block->name().Left(2));
  EXPECT_EQ(AcGePoint3d(300, 400, 0), block->origin());
}

TEST_F(CrossingSymbol, CarriesItsMarkItsRadiusAndARisersData) {
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.25);
  CZPMainPipe(high).SetMaterial(L"无缝钢管");
  CZPMainPipe(high).SetDN(65);
  const auto low = pipe({0, 0, 0}, {0, 1000, 0}, -0.5);
  ZPKwCl(true, 62.456).AddKw(array({low, high}));
  const auto symbol = onlySymbol();
  EXPECT_EQ(L"", xdata(symbol, L"扣弯"));
  EXPECT_EQ(L"62.46", xdata(symbol, L"半径"));
  EXPECT_EQ(L"无缝钢管", xdata(symbol, L"管材"));
  EXPECT_EQ(L"65", xdata(symbol, L"管径"));
  EXPECT_EQ(L"-0.5", xdata(symbol, L"始点标高"));
  EXPECT_EQ(L"3.25", xdata(symbol, L"终点标高"));
  EXPECT_EQ(L"0", xdata(symbol, L"编号"));
  EXPECT_EQ(L"", xdata(symbol, L"编号前缀"));
  EXPECT_EQ(L"0", xdata(symbol, L"流量"));
}

TEST_F(CrossingSymbol, OfPipesWithoutAMakeIsOneAsANewRiserHasIt) {
  at({0});
  EXPECT_EQ(L"镀锌钢管", xdata(onlySymbol(), L"管材"));
  EXPECT_EQ(L"20", xdata(onlySymbol(), L"管径"));
}

TEST_F(CrossingSymbol, StandsOnTheLayerThatBelongsToThePipes) {
  makeScheme();
  const CString layer = ZP::GetUserLayer(L"采暖供水干管");
  const auto high = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0, layer);
  const auto low = pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
  addKw({low, high});
  EXPECT_EQ(L"供水扣弯", layerOf(onlySymbol()));
  AcDbObjectPointer<AcDbLayerTableRecord> record;
  AcDbObjectId id;
  AcDbObjectPointer<AcDbLayerTable>(database().layerTableId(), AcDb::kForRead)->getAt(L"供水扣弯", id);
  record.open(id, AcDb::kForRead);
  EXPECT_EQ(5, record->color().colorIndex());
  for (const auto& part : partsOf(onlySymbol())) EXPECT_EQ(L"0", layerOf(part));
}

TEST_F(CrossingSymbol, TakesTheLayerOfTheLastHigherPipe) {
  makeScheme();
  const CString layer = ZP::GetUserLayer(L"采暖供水干管");
  const auto low = pipe({0, 0, 0}, {0, 1000, 0}, 2.0, layer);
  const auto first = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0, layer);
  const auto last = pipe({0, 0, 0}, {1000, 0, 0}, 3.0);
  addKw({low, first, last});
  EXPECT_EQ(L"0", layerOf(onlySymbol())) << "there is no layer for bends of layer 0";
}

TEST_F(CrossingSymbol, WithoutALayerInTheSchemeStandsOnTheCurrentOne) {
  addLayer(L"管道");
  const auto current = addLayer(L"当前");
  const auto a = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0, L"管道");
  const auto b = pipe({0, 0, 0}, {0, 1000, 0}, 2.0, L"管道");
  database().setClayer(current);
  addKw({a, b});
  EXPECT_EQ(L"当前", layerOf(onlySymbol()));
  for (const auto& part : partsOf(onlySymbol())) EXPECT_EQ(L"0", layerOf(part));
}

TEST_F(CrossingSymbol, TakesALayerOfThatVeryNameIfTheDrawingHasIt) {
  addLayer(L"管道");
  addLayer(L"管道扣弯");
  const auto a = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0, L"管道");
  const auto b = pipe({0, 0, 0}, {0, 1000, 0}, 2.0, L"管道");
  addKw({a, b});
  EXPECT_EQ(L"管道扣弯", layerOf(onlySymbol()));
}

TEST_F(CrossingSymbol, OnALockedLayerCarriesItsDataAllTheSame) {
  addLayer(L"管道");
  const auto locked = addLayer(L"管道扣弯");
  AcDbObjectPointer<AcDbLayerTableRecord>(locked, AcDb::kForWrite)->setIsLocked(true);
  const auto a = pipe({0, 0, 0}, {-1000, 0, 0}, 3.0, L"管道");
  const auto b = pipe({0, 0, 0}, {0, 1000, 0}, 2.0, L"管道");
  addKw({a, b});
  EXPECT_EQ(L"管道扣弯", layerOf(onlySymbol()));
  EXPECT_EQ(L"", xdata(onlySymbol(), L"扣弯"));
  EXPECT_EQ(L"3", xdata(onlySymbol(), L"终点标高"));
}

TEST_F(CrossingSymbol, IsMissingWhereTheBlockTableIsTakenAndTheLowerPipesStayCut) {
  const auto high = pipe({-1000, 0, 0}, {1000, 0, 0}, 3.0);
  const auto low = pipe({0, 0, 0}, {0, 1000, 0}, 2.0);
  {
    const AcDbObjectPointer<AcDbBlockTable> taken(database().blockTableId(), AcDb::kForRead);
    addKw({high, low});
  }
  EXPECT_TRUE(symbols().empty());
  expectRuns(low, {0, 50, 0}, {0, 1000, 0});
  expectRuns(high, {-1000, 0, 0}, {1000, 0, 0});
  expectSound();
}

} // namespace
