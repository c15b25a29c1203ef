#include "host/db/AcDbText.h"
#include "host/ed/ArxDbgRbList.h"
#include "host/ed/ArxDbgSelSet.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/acedSelection.h"
#include "tests/support/EditorFixture.h"

#include <numbers>

namespace {

class Selection : public EditorFixture {
 protected:
  static std::vector<AcDbObjectId> get(const wchar_t* mode, const resbuf* filter = nullptr,
                                       const double* first = nullptr, const double* second = nullptr) {
    ads_name set;
    std::vector<AcDbObjectId> ids;
    if (acedSSGet(mode, first, second, filter, set) != RTNORM) return ids;
    std::int32_t length = 0;
    acedSSLength(set, &length);
    for (std::int32_t i = 0; i < length; ++i) {
      ads_name name;
      acedSSName(set, i, name);
      AcDbObjectId id;
      acdbGetObjectId(id, name);
      ids.push_back(id);
    }
    acedSSFree(set);
    return ids;
  }
  static std::vector<AcDbObjectId> window(const wchar_t* mode, double x1, double y1, double x2, double y2) {
    const ads_point first = {x1, y1, 0};
    const ads_point second = {x2, y2, 0};
    return get(mode, nullptr, first, second);
  }
  void setLayer(const wchar_t* name, Acad::ErrorStatus (AcDbLayerTableRecord::*set)(bool)) {
    AcDbObjectPointer<AcDbLayerTable> table(database().layerTableId(), AcDb::kForRead);
    AcDbLayerTableRecord* opened = nullptr;
    ASSERT_EQ(Acad::eOk, table->getAt(name, opened, AcDb::kForWrite));
    (opened->*set)(true);
    opened->close();
  }
};

using Ids = std::vector<AcDbObjectId>;

} // namespace

TEST_F(Selection, AWindowEnclosesAndACrossingTouches) {
  const auto inside = addLine({1, 1, 0}, {2, 2, 0});
  const auto across = addLine({5, 5, 0}, {15, 5, 0});
  addLine({20, 0, 0}, {30, 0, 0});
  const auto around = add(new AcDbCircle(AcGePoint3d(5, 5, 0), AcGeVector3d(0, 0, 1), 6));
  EXPECT_EQ((Ids{inside}), window(L"_W", 10, 10, 0, 0));
  EXPECT_EQ((Ids{inside, across, around}), window(L"_C", 0, 0, 10, 10));
  EXPECT_EQ((Ids{inside}), window(L"_C", 1.5, 1, 1.6, 2)) << "a circle is its outline alone";
}

TEST_F(Selection, ArcsSeenFromBelowRunTheOtherWay) {
  const auto arc =
      add(new AcDbArc(AcGePoint3d(0, 0, 0), AcGeVector3d(0, 0, -1), 10, 0, std::numbers::pi / 2));
  AcDbExtents box;
  {
    AcDbObjectPointer<AcDbEntity> entity(arc, AcDb::kForRead);
    ASSERT_EQ(Acad::eOk, entity->getGeomExtents(box));
  }
  const auto low = box.minPoint();
  const auto high = box.maxPoint();
  EXPECT_EQ((Ids{arc}), window(L"_W", low.x - 0.1, low.y - 0.1, high.x + 0.1, high.y + 0.1));
  EXPECT_EQ((Ids{}), window(L"_W", low.x + 0.1, low.y + 0.1, high.x + 0.1, high.y + 0.1));
}

TEST_F(Selection, ACrossingInsideATextTakesIt) {
  auto* text = new AcDbText;
  text->setTextString(L"散热器");
  text->setHeight(100);
  const auto id = add(text);
  EXPECT_EQ((Ids{id}), window(L"_C", 40, 40, 41, 41));
  EXPECT_EQ((Ids{}), window(L"_W", 40, 40, 41, 41));
  frontEnd.aperture = 1;
  EXPECT_EQ(id, ed::EntityAt(database(), {50, 50, 0}, 1.0));
}

TEST_F(Selection, LayersDecideWhatCanBeSelected) {
  addLayer(L"关");
  addLayer(L"冻");
  addLayer(L"锁");
  const auto off = addLine({0, 0, 0}, {1, 1, 0}, L"关");
  const auto frozen = addLine({0, 0, 0}, {1, 1, 0}, L"冻");
  const auto locked = addLine({0, 0, 0}, {1, 1, 0}, L"锁");
  setLayer(L"关", &AcDbLayerTableRecord::setIsOff);
  setLayer(L"冻", &AcDbLayerTableRecord::setIsFrozen);
  setLayer(L"锁", &AcDbLayerTableRecord::setIsLocked);
  EXPECT_EQ((Ids{locked}), get(L"_A"));
  EXPECT_EQ((Ids{locked}), window(L"_C", -1, -1, 2, 2));
  EXPECT_EQ((Ids{locked}), get(L"_L"));
  EXPECT_EQ((Ids{off, frozen, locked}), get(L"X")) << "everything of the drawing";
}

TEST_F(Selection, ErasedAndInvisibleEntitiesAreNotThere) {
  const auto erased = addLine({0, 0, 0}, {1, 1, 0});
  const auto hidden = addLine({0, 0, 0}, {1, 1, 0});
  AcDbObjectPointer<AcDbEntity>(erased, AcDb::kForWrite)->erase();
  AcDbObjectPointer<AcDbEntity>(hidden, AcDb::kForWrite)->setVisibility(AcDb::kInvisible);
  EXPECT_EQ((Ids{}), get(L"_A"));
  EXPECT_EQ((Ids{hidden}), get(L"_X"));
}

TEST_F(Selection, FiltersTakeTypesLayersColoursAndGroups) {
  addLayer(L"采暖-供水");
  const auto pipe = addLine({0, 0, 0}, {1, 1, 0}, L"采暖-供水");
  const auto other = addLine({0, 0, 0}, {1, 1, 0});
  const auto circle = add(new AcDbCircle(AcGePoint3d(5, 5, 0), AcGeVector3d(0, 0, 1), 9));
  AcDbObjectPointer<AcDbEntity>(circle, AcDb::kForWrite)->setColorIndex(3);
  const auto filtered = [&](resbuf* chain) {
    const ArxDbgRbList list(chain);
    return get(L"_X", list);
  };
  EXPECT_EQ((Ids{pipe, other}), filtered(acutBuildList(RTDXF0, L"line,LWPOLYLINE,ARC", RTNONE)));
  EXPECT_EQ((Ids{pipe}), filtered(acutBuildList(RTDXF0, L"LINE", 8, L"采暖*", RTNONE)));
  EXPECT_EQ((Ids{circle}), filtered(acutBuildList(62, 3, RTNONE)));
  EXPECT_EQ((Ids{pipe, other}), filtered(acutBuildList(-4, L"!=", 62, 3, RTNONE)));
  EXPECT_EQ((Ids{circle}), filtered(acutBuildList(-4, L">=", 40, 9.0, RTNONE)));
  EXPECT_EQ((Ids{pipe, circle}), filtered(acutBuildList(-4, L"<or", 8, L"采暖-供水", -4, L"<and", RTDXF0,
                                                        L"CIRCLE", 62, 3, -4, L"and>", -4, L"or>", RTNONE)));
  EXPECT_EQ((Ids{other, circle}), filtered(acutBuildList(-4, L"<not", 8, L"采暖-供水", -4, L"not>", RTNONE)));
}

TEST_F(Selection, FiltersFindExtendedData) {
  const auto marked = addLine({0, 0, 0}, {1, 1, 0});
  addLine({0, 0, 0}, {1, 1, 0});
  database().registerApplication(L"扣弯");
  {
    const ArxDbgRbList data(acutBuildList(1001, L"扣弯", 1000, L"x", RTNONE));
    AcDbObjectPointer<AcDbEntity> entity(marked, AcDb::kForWrite);
    ASSERT_EQ(Acad::eOk, entity->setXData(data));
  }
  const ArxDbgRbList filter(acutBuildList(-3, 1001, L"扣弯", RTNONE));
  EXPECT_EQ((Ids{marked}), get(L"_X", filter));
}

TEST_F(Selection, AFilterThatIsNoneIsRefused) {
  addLine({0, 0, 0}, {1, 1, 0});
  ads_name set;
  const ArxDbgRbList open(acutBuildList(-4, L"<or", 8, L"0", RTNONE));
  EXPECT_EQ(RTREJ, acedSSGet(L"_X", nullptr, nullptr, open, set));
  const ArxDbgRbList stray(acutBuildList(-4, L"or>", RTNONE));
  EXPECT_EQ(RTREJ, acedSSGet(L"_X", nullptr, nullptr, stray, set));
  EXPECT_EQ(RTREJ, acedSSGet(L"_Q", nullptr, nullptr, nullptr, set));
  EXPECT_EQ(RTREJ, acedSSGet(L"_W", nullptr, nullptr, nullptr, set));
}

TEST_F(Selection, TheUserSelectsLineByLine) {
  const auto a = addLine({0, 0, 0}, {1, 0, 0});
  const auto b = addLine({0, 10, 0}, {1, 10, 0});
  const auto c = addLine({0, 20, 0}, {1, 20, 0});
  frontEnd.type({L"0.5,0", L"w -1,5 2,15", L"0.5,0", L"l", L"rubbish", L"500,500", L""});
  ArxDbgSelSet set;
  EXPECT_EQ(ArxDbgSelSet::kSelected, set.userSelect(L"\n请选择实体:"));
  EXPECT_EQ((Ids{a, b, c}), set.ids());
  EXPECT_EQ(2u, frontEnd.refusals.size());
  EXPECT_EQ(L"请选择实体:", frontEnd.prompts[0]);
  frontEnd.type({L"p", L""});
  EXPECT_EQ(ArxDbgSelSet::kSelected, set.userSelect());
  EXPECT_EQ((Ids{a, b, c}), set.ids());
  std::vector<AcDbObjectId> expected = set.ids();
  EXPECT_EQ(expected, get(L"_P"));
}

TEST_F(Selection, WindowCornersMayBeAskedFor) {
  const auto a = addLine({0, 0, 0}, {1, 0, 0});
  frontEnd.type({L"c", L"-1,-1", L"@3,3", L""});
  ArxDbgSelSet set;
  EXPECT_EQ(ArxDbgSelSet::kSelected, set.userSelect());
  EXPECT_EQ((Ids{a}), set.ids());
}

TEST_F(Selection, EnterGivesAnEmptySelectionAndEscapeACancelledOne) {
  addLine({0, 0, 0}, {1, 0, 0});
  frontEnd.type({L"", L"all", L"*cancel*"});
  ArxDbgSelSet set;
  EXPECT_EQ(ArxDbgSelSet::kRejected, set.userSelect());
  EXPECT_EQ(ArxDbgSelSet::kCanceled, set.userSelect());
  EXPECT_TRUE(document->edit().previousSelection.empty());
  ads_name name;
  EXPECT_EQ(RTCAN, acedSSGet(nullptr, nullptr, nullptr, nullptr, name));
}

namespace {
ArxDbgSelSet* s_set = nullptr;
void selectIt() {
  s_set->setAllowPickfirst(true);
  s_set->userSelect(L"选:");
}
} // namespace

TEST_F(Selection, WhatWasSelectedBeforeIsTakenByCommandsThatWantIt) {
  const auto a = addLine({0, 0, 0}, {1, 0, 0});
  addLine({0, 10, 0}, {1, 10, 0});
  ArxDbgSelSet set;
  s_set = &set;
  define(L"TPICK", selectIt, ACRX_CMD_USEPICKSET);
  define(L"TPLAIN", selectIt, ACRX_CMD_MODAL);
  document->edit().pickFirst = {a};
  run(L"TPICK");
  EXPECT_EQ((Ids{a}), set.ids());
  EXPECT_TRUE(document->edit().pickFirst.empty()) << "used up";
  document->edit().pickFirst = {a};
  run(L"TPLAIN", {L"all", L""});
  EXPECT_EQ(2u, set.ids().size());
  document->edit().pickFirst = {a};
  SystemVariables::set(L"PICKFIRST", 0L);
  run(L"TPICK", {L"all", L""});
  EXPECT_EQ(2u, set.ids().size());
}

TEST_F(Selection, SetsAreHeldByNameUntilTheyAreFreed) {
  const auto id = addLine({0, 0, 0}, {1, 0, 0});
  const auto before = SelectionSets::instance().count();
  ads_name entity;
  acdbGetAdsName(entity, id);
  ads_name set;
  ASSERT_EQ(RTNORM, acedSSAdd(entity, nullptr, set));
  EXPECT_EQ(RTNORM, acedSSMemb(entity, set));
  EXPECT_EQ(RTNORM, acedSSAdd(entity, set, set));
  std::int32_t length = 0;
  EXPECT_EQ(RTNORM, acedSSLength(set, &length));
  EXPECT_EQ(1, length);
  EXPECT_EQ(RTERROR, acedSSName(set, 1, entity));
  EXPECT_EQ(RTERROR, acedSSName(set, -1, entity));
  EXPECT_EQ(RTNORM, acedSSDel(entity, set));
  EXPECT_EQ(RTERROR, acedSSDel(entity, set));
  EXPECT_EQ(RTNORM, acedSSFree(set));
  EXPECT_EQ(RTERROR, acedSSFree(set));
  EXPECT_EQ(RTERROR, acedSSLength(set, &length));
  EXPECT_EQ(before, SelectionSets::instance().count());
}

TEST_F(Selection, StaleNamesAreFoundOut) {
  const auto id = addLine({0, 0, 0}, {1, 0, 0});
  ads_name name;
  acdbGetAdsName(name, id);
  acDocManager->newDocument();
  acDocManager->closeDocument(document);
  AcDbObjectId found;
  EXPECT_EQ(Acad::eInvalidInput, acdbGetObjectId(found, name));
  EXPECT_TRUE(found.isNull());
}

TEST_F(Selection, ThePickReachesOverAPartOfTheDrawing) {
  const auto line = addLine({0, 0, 0}, {1000, 0, 0});
  EXPECT_EQ(line, ed::EntityAt(database(), {500, 1.9, 0}, std::nullopt));
  EXPECT_TRUE(ed::EntityAt(database(), {500, 2.1, 0}, std::nullopt).isNull());
  EXPECT_EQ(line, ed::EntityAt(database(), {500, 2.1, 0}, 3.0));
  const auto upper = addLine({500, -5, 0}, {500, 5, 0});
  EXPECT_EQ(upper, ed::EntityAt(database(), {500, 0, 0}, std::nullopt)) << "the upper one of two as near";
}
