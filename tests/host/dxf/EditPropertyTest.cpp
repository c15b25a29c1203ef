// Random edits through the interface on real drawings: what was set is read back from the saved file, and
// taking everything back gives the original bytes.
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbTables.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbXrecord.h"
#include "host/db/resbuf.h"
#include "tests/host/dxf/DrawingFiles.h"
#include "tests/host/dxf/TagCompare.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

namespace {

// The typed values of an object in one line.
std::string valuesOf(const AcDbObject& object) {
  std::string text;
  const auto put = [&](double value) { text += std::to_string(value) + " "; };
  const auto putPoint = [&](const AcGePoint3d& p) {
    put(p.x);
    put(p.y);
    put(p.z);
  };
  if (const auto* record = AcDbSymbolTableRecord::cast(&object)) text += record->name().ToUtf8() + " ";
  if (const auto* layer = AcDbLayerTableRecord::cast(&object)) {
    for (const int value : {layer->isOff() ? 1 : 0, layer->isFrozen() ? 1 : 0, layer->isLocked() ? 1 : 0,
                            layer->isPlottable() ? 1 : 0, layer->color().colorIndex()})
      put(value);
    const auto* linetype = AcDbSymbolTableRecord::cast(layer->linetypeObjectId().object());
    CString name = linetype ? linetype->name() : CString(L"Continuous"); // which stands for none in a file
    name.MakeUpper();
    text += name.ToUtf8();
  }
  const auto* entity = AcDbEntity::cast(&object);
  if (!entity) return text;
  text +=
      entity->dxfName().ToUtf8() + " " + entity->layer().ToUtf8() + " " + entity->linetype().ToUtf8() + " ";
  put(entity->colorIndex());
  if (const auto* line = AcDbLine::cast(entity)) {
    putPoint(line->startPoint());
    putPoint(line->endPoint());
  } else if (const auto* arc = AcDbArc::cast(entity)) {
    putPoint(arc->center());
    for (const double value : {arc->radius(), arc->startAngle(), arc->endAngle()}) put(value);
  } else if (const auto* circle = AcDbCircle::cast(entity)) {
    putPoint(circle->center());
    put(circle->radius());
  } else if (const auto* point = AcDbPoint::cast(entity)) {
    putPoint(point->position());
  } else if (const auto* label = AcDbText::cast(entity)) {
    putPoint(label->position());
    put(label->height());
    text += label->textString().ToUtf8();
  } else if (const auto* reference = AcDbBlockReference::cast(entity)) {
    putPoint(reference->position());
    for (const double value :
         {reference->rotation(), reference->scaleFactors().x, reference->scaleFactors().y})
      put(value);
    if (const auto* block = AcDbSymbolTableRecord::cast(reference->blockTableRecord().object()))
      text += block->name().ToUtf8();
  } else if (const auto* polyline = AcDbPolyline::cast(entity)) {
    put(polyline->isClosed());
    for (unsigned int i = 0; i < polyline->numVerts(); ++i) {
      AcGePoint3d vertex;
      double bulge = 0;
      polyline->getPointAt(i, vertex);
      polyline->getBulgeAt(i, bulge);
      putPoint(vertex);
      put(bulge);
    }
  }
  return text;
}

// Objects that are there, by handle.
std::map<std::string, std::string> stateOf(const AcDbDatabase& database) {
  std::map<std::string, std::string> state;
  for (const AcDbStub& stub : database.stubs())
    if (!stub.object->isErased() && !stub.handle.isNull())
      state[stub.handle.toHex()] = valuesOf(*stub.object);
  return state;
}

class Editor {
 public:
  Editor(AcDbDatabase& database, unsigned int seed) : m_database(database), m_random(seed) {}

  void command(int edits) {
    m_database.undo().beginCommand(L"edit");
    for (int i = 0; i < edits; ++i) edit();
    m_database.undo().endCommand();
  }

 private:
  int pick(std::size_t count) { return static_cast<int>(m_random() % count); }
  double number() { return std::round((static_cast<double>(m_random()) / 4e3 - 5e5) * 64) / 64; }
  AcGePoint3d point() { return {number(), number(), pick(2) ? 0.0 : number()}; }
  CString name() {
    CString text;
    text.Format(L"管线-%d", pick(1000000));
    return text;
  }

  AcDbObjectId anyEntity() {
    const auto* model = AcDbBlockTableRecord::cast(m_database.modelSpaceId().object());
    const auto& entities = model->entities();
    return entities.empty() ? AcDbObjectId() : entities[static_cast<std::size_t>(pick(entities.size()))];
  }
  AcDbObjectId anyOf(const char* table) {
    const auto& records = m_database.tableOf(table)->records();
    return records.empty() ? AcDbObjectId() : records[static_cast<std::size_t>(pick(records.size()))];
  }

  void edit() {
    switch (pick(10)) {
    case 0:
      return addEntity();
    case 1:
      return editLayer();
    case 2:
      return addLayer();
    case 3:
      return eraseEntity();
    case 4:
      return addExtendedData();
    case 5:
      return addXrecord();
    case 6:
      return addBlock();
    default:
      return changeEntity();
    }
  }

  void append(AcDbEntity* entity) {
    AcDbObjectPointer<AcDbBlockTableRecord> model(m_database.modelSpaceId(), AcDb::kForWrite);
    ASSERT_TRUE(model);
    const AcDbObjectId layer = anyOf("LAYER");
    if (!layer.isNull() && !layer.isErased()) entity->setLayer(layer);
    if (model->appendAcDbEntity(entity) == Acad::eOk)
      entity->close();
    else
      delete entity;
  }

  void addEntity() {
    switch (pick(6)) {
    case 0:
      return append(new AcDbLine(point(), point()));
    case 1:
      return append(new AcDbArc(point(), AcGeVector3d(0, 0, 1), 2.5, 0.5, 1.5));
    case 2:
      return append(new AcDbCircle(point(), AcGeVector3d(0, 0, 1), 2.5));
    case 3: {
      auto* text = new AcDbText;
      text->setPosition(point());
      text->setTextString(L"标高 3.200m ±0.000");
      return append(text);
    }
    case 4: {
      auto* polyline = new AcDbPolyline;
      for (unsigned int i = 0; i < 4; ++i) polyline->addVertexAt(i, {number(), number()}, i == 1 ? 0.5 : 0);
      return append(polyline);
    }
    default: {
      const AcDbObjectId block = anyOf("BLOCK_RECORD");
      const auto* record = AcDbBlockTableRecord::cast(block.object());
      if (record && !record->isLayout()) append(new AcDbBlockReference(point(), block));
      return;
    }
    }
  }

  void changeEntity() {
    const AcDbObjectId id = anyEntity();
    if (id.isNull()) return;
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    if (!entity) return; // erased, or on a locked layer
    switch (pick(4)) {
    case 0:
      entity->setColorIndex(pick(257));
      break;
    case 1: {
      AcGeMatrix3d move;
      move.entry[0][3] = std::round(number());
      move.entry[1][3] = std::round(number());
      entity->transformBy(move);
      break;
    }
    case 2:
      if (const AcDbObjectId layer = anyOf("LAYER"); !layer.isNull() && !layer.isErased())
        entity->setLayer(layer);
      break;
    default:
      if (auto* text = AcDbText::cast(entity.object()))
        text->setTextString(name());
      else if (auto* line = AcDbLine::cast(entity.object()))
        line->setEndPoint(point());
      else
        entity->setLinetypeScale(2.5);
      break;
    }
  }

  void eraseEntity() {
    AcDbObjectPointer<AcDbEntity> entity(anyEntity(), AcDb::kForWrite);
    if (entity) entity->erase();
  }

  void editLayer() {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(anyOf("LAYER"), AcDb::kForWrite);
    if (!layer) return;
    switch (pick(4)) {
    case 0:
      layer->setIsOff(!layer->isOff());
      break;
    case 1:
      layer->setColor(AcCmColor(1 + pick(255)));
      break;
    case 2:
      if (layer->name() != L"0") layer->setName(name());
      break;
    default:
      layer->setIsPlottable(!layer->isPlottable());
      break;
    }
  }

  void addLayer() {
    AcDbObjectPointer<AcDbLayerTable> table(m_database.layerTableId(), AcDb::kForWrite);
    auto* layer = new AcDbLayerTableRecord;
    layer->setName(name());
    if (table->add(layer) == Acad::eOk)
      layer->close();
    else
      delete layer;
  }

  void addBlock() {
    AcDbObjectPointer<AcDbBlockTable> table(m_database.blockTableId(), AcDb::kForWrite);
    auto* block = new AcDbBlockTableRecord;
    block->setName(name());
    if (table->add(block) != Acad::eOk) {
      delete block;
      return;
    }
    auto* line = new AcDbLine(point(), point());
    EXPECT_EQ(block->appendAcDbEntity(line), Acad::eOk);
    line->close();
    block->close();
  }

  void addExtendedData() {
    m_database.registerApplication(L"HVAC_PIPE");
    AcDbObjectPointer<AcDbEntity> entity(anyEntity(), AcDb::kForWrite);
    if (!entity) return;
    ResbufBuilder data;
    data.text(1001, L"HVAC_PIPE").text(1000, name()).real(1040, number()).integer(1070, pick(1000));
    EXPECT_EQ(entity->setXData(data.chain()), Acad::eOk);
  }

  void addXrecord() {
    AcDbObjectPointer<AcDbDictionary> root(m_database.namedObjectsDictionaryId(), AcDb::kForWrite);
    if (!root) return;
    auto* record = new AcDbXrecord;
    ResbufBuilder data;
    data.text(1, name()).real(40, number());
    AcDbObjectId id;
    ASSERT_EQ(root->setAt(name(), record, id), Acad::eOk);
    EXPECT_EQ(record->setFromRbChain(*data.chain()), Acad::eOk);
    record->close();
  }

  AcDbDatabase& m_database;
  std::mt19937 m_random;
};

class EditProperty : public testing::TestWithParam<std::string> {};

TEST_P(EditProperty, SavedEditsReadBackAndUndoneEditsLeaveNoTrace) {
  const Opened opened = Open(SampleBytes(GetParam()));
  AcDbDatabase& database = *opened.database;
  const std::string before = opened.saved();
  Editor editor(database, static_cast<unsigned int>(std::hash<std::string>{}(GetParam())));
  for (int round = 0; round < 12; ++round) {
    editor.command(1 + round * 2);
    const std::string saved = opened.saved();
    const Opened again = Open(saved);
    ASSERT_TRUE(again.ok()) << again.error();
    EXPECT_TRUE(again.saved() == saved)
        << testing::PrintToString(Differences(RecordsOf(saved), RecordsOf(again.saved())));
    // Objects of R12 may have no handle in the file.
    if (!database.form().subclassMarkers()) continue;
    const auto expected = stateOf(database);
    const auto read = stateOf(*again.database);
    for (const auto& [handle, values] : expected) {
      const auto found = read.find(handle);
      ASSERT_NE(found, read.end()) << handle << " " << values;
      EXPECT_EQ(found->second, values) << handle;
    }
    EXPECT_EQ(read.size(), expected.size());
  }
  while (database.undo().undo() == Acad::eOk) {
  }
  EXPECT_TRUE(opened.saved() == before)
      << testing::PrintToString(Differences(RecordsOf(before), RecordsOf(opened.saved())));
  // And again all the way there and back.
  while (database.undo().redo() == Acad::eOk) {
  }
  const std::string redone = opened.saved();
  while (database.undo().undo() == Acad::eOk) {
  }
  while (database.undo().redo() == Acad::eOk) {
  }
  EXPECT_TRUE(opened.saved() == redone)
      << testing::PrintToString(Differences(RecordsOf(redone), RecordsOf(opened.saved())));
}

INSTANTIATE_TEST_SUITE_P(Drawings, EditProperty, testing::ValuesIn(SampleNames()),
                         [](const auto& sample) { return sample.param; });

} // namespace
