// Placing entities with the mouse.
#include "plugin/graph/DragEntities.h"

#include "host/db/AcDbText.h"
#include "host/db/TransformingDraw.h"
#include "tests/support/EditorFixture.h"

namespace {

// Where the points and texts that are drawn come to lie.
struct PlacesDraw : TransformingDraw {
  void worldPoint(const AcGePoint3d& at) override { places.push_back(at); }
  void worldPolyline(std::span<const AcGePoint3d> points) override { places.push_back(points.front()); }
  void worldText(const AcGePoint3d& at, const AcGeVector3d&, const AcGeVector3d&, const CString&) override {
    places.push_back(at);
  }
  std::vector<AcGePoint3d> places;
};

class DragEntities : public EditorFixture {
 protected:
  DragEntities() {
    ids.append(add(new AcDbText({0, 0, 0}, L"甲")));
    ids.append(addLine({5, 0, 0}, {10, 0, 0}));
  }
  int Drag(std::initializer_list<const wchar_t*> lines, bool generated = true) {
    frontEnd.type(lines);
    return ZP::DragGenEntity(ids, {0, 0, 0}, generated);
  }
  AcGePoint3d TextAt() { return AcDbText::cast(ids[0].object())->position(); }
  AcGePoint3d LineFrom() { return AcDbLine::cast(ids[1].object())->startPoint(); }

  AcArray<AcDbObjectId> ids;
};

TEST_F(DragEntities, BringsThemToThePickedPlace) {
  EXPECT_EQ(1, Drag({L"100,200"}));
  EXPECT_TRUE(TextAt().isEqualTo({100, 200, 0}));
  EXPECT_TRUE(LineFrom().isEqualTo({105, 200, 0}));
  EXPECT_EQ(frontEnd.prompts, std::vector<CString>{L"指定位置:"});
}

TEST_F(DragEntities, CountsFromTheGivenPoint) {
  frontEnd.type({L"100,200"});
  EXPECT_EQ(1, ZP::DragGenEntity(ids, {10, 20, 0}, true));
  EXPECT_TRUE(TextAt().isEqualTo({90, 180, 0}));
}

TEST_F(DragEntities, ShowsThemAtTheCursorAndNotWhereTheyWere) {
  PlacesDraw shown;
  std::size_t hidden = 0;
  frontEnd.onTransients = [&] {
    hidden = document->edit().hidden.size();
    shown.places.clear();
    session().transients().draw(shown);
  };
  std::vector<AcGePoint3d> atCursor;
  frontEnd.beforeLine = [&] {
    session().prompts().cursorMoved({7, 8, 0});
    atCursor = shown.places;
  };
  Drag({L"100,200"});
  ASSERT_EQ(atCursor.size(), 2u);
  EXPECT_TRUE(atCursor[0].isEqualTo({7, 8, 0}));
  EXPECT_TRUE(atCursor[1].isEqualTo({12, 8, 0}));
  EXPECT_EQ(hidden, 2u);
  EXPECT_TRUE(document->edit().hidden.empty()) << "shown again behind the drag";
  EXPECT_TRUE(session().transients().isEmpty());
}

TEST_F(DragEntities, ErasesWhatWasMadeForADragThatIsGivenUp) {
  EXPECT_EQ(0, Drag({L"*cancel*"}));
  EXPECT_EQ(entityCount(), 0u);
}

TEST_F(DragEntities, ErasesWhatWasMadeWhenTheInputEnds) {
  EXPECT_EQ(0, Drag({}));
  EXPECT_EQ(entityCount(), 0u);
}

TEST_F(DragEntities, LeavesWhatStoodThereBeforeWhenGivenUp) {
  EXPECT_EQ(0, Drag({L"*cancel*"}, false));
  EXPECT_EQ(entityCount(), 2u);
  EXPECT_TRUE(TextAt().isEqualTo({0, 0, 0}));
  EXPECT_TRUE(document->edit().hidden.empty());
}

TEST_F(DragEntities, NeedsAPlaceAndAsksAgainForOne) {
  EXPECT_EQ(1, Drag({L"", L"这里", L"1,2,3"}));
  EXPECT_EQ(frontEnd.refusals.size(), 2u);
  EXPECT_TRUE(TextAt().isEqualTo({1, 2, 3}));
}

TEST_F(DragEntities, LeavesWhatCanNotBeWrittenTo) {
  const auto layer = addLayer(L"锁");
  AcDbObjectPointer<AcDbEntity>(ids[0], AcDb::kForWrite)->setLayer(layer);
  AcDbObjectPointer<AcDbLayerTableRecord>(layer, AcDb::kForWrite)->setIsLocked(true);
  EXPECT_EQ(0, Drag({L"100,200"}));
  EXPECT_TRUE(TextAt().isEqualTo({0, 0, 0}));
  EXPECT_TRUE(LineFrom().isEqualTo({105, 200, 0})) << "the other one was moved";
}

TEST_F(DragEntities, OfNoEntitiesAsksNothing) {
  EXPECT_EQ(0, ZP::DragGenEntity(AcArray<AcDbObjectId>(), {0, 0, 0}, true));
  EXPECT_TRUE(frontEnd.prompts.empty());
}

TEST_F(DragEntities, WithNullIdsAmongThemMovesTheOthers) {
  ids.append(AcDbObjectId());
  EXPECT_EQ(0, Drag({L"100,200"}));
  EXPECT_TRUE(TextAt().isEqualTo({100, 200, 0}));
}

} // namespace
