// What the figures of this folder are taken from, one task a run, so that a process is a figure:
//   bench_dxf read FILE          a drawing into the database, and away with it
//   bench_dxf rewrite FILE OUT   the same, saved in between
//   bench_dxf undo FILE          a command that changes every entity, U and REDO; prints seconds of each
//   bench_dxf layers             work on layers and entities at four sizes; prints microseconds for one of
//   each
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbLine.h"
#include "host/dxf/DrawingFile.h"

#include <cstdio>
#include <ctime>
#include <functional>
#include <string_view>
#include <vector>

namespace {

// Of the processor, so that what else the machine does is left out.
double secondsOf(const std::function<void()>& work) {
  const std::clock_t begin = std::clock();
  work();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

bool open(const char* path, AcDbDatabase& database) {
  const auto report = dxf::ReadDrawing(CString::FromUtf8(path), database);
  if (!report.ok) std::fprintf(stderr, "%s\n", report.error.ToUtf8().c_str());
  return report.ok;
}

int read(const char* path, const char* out) {
  AcDbDatabase database(false);
  if (!open(path, database)) return 1;
  return !out || dxf::WriteDrawing(database, CString::FromUtf8(out)).ok ? 0 : 1;
}

// Another colour and another place for each entity of the model.
void changeAll(AcDbDatabase& database) {
  AcGeMatrix3d move;
  move.entry[0][3] = 12.5;
  for (const AcDbObjectId& id : AcDbBlockTableRecord::cast(database.modelSpaceId().object())->entities()) {
    AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    if (!entity) continue;
    entity->setColorIndex(entity->colorIndex() == 1 ? 2 : 1);
    entity->transformBy(move);
  }
}

int undo(const char* path) {
  AcDbDatabase database(false);
  if (!open(path, database)) return 1;
  const double command = secondsOf([&] {
    database.undo().beginCommand(L"MOVE");
    changeAll(database);
    database.undo().endCommand();
  });
  const double back = secondsOf([&] { database.undo().undo(); });
  const double again = secondsOf([&] { database.undo().redo(); });
  std::printf("%.4f %.4f %.4f\n", command, back, again);
  return 0;
}

CString layerName(int i) {
  CString name;
  name.Format(L"暖通-管线-%d", i);
  return name;
}

void layers(int layerCount, int entityCount) {
  AcDbDatabase database;
  const auto eachLayer = [&](const std::function<void(AcDbLayerTableRecord&)>& work) {
    for (const AcDbObjectId& id : database.tableOf("LAYER")->records()) {
      AcDbObjectPointer<AcDbLayerTableRecord> layer(id, AcDb::kForWrite);
      if (layer) work(*layer.object());
    }
  };
  std::vector<AcDbObjectId> ids;
  const double made = secondsOf([&] {
    AcDbObjectPointer<AcDbLayerTable> table(database.layerTableId(), AcDb::kForWrite);
    for (int i = 0; i < layerCount; ++i) {
      auto* layer = new AcDbLayerTableRecord;
      layer->setName(layerName(i));
      table->add(layer);
      ids.push_back(layer->objectId());
      layer->close();
    }
  });
  const double drawn = secondsOf([&] {
    AcDbObjectPointer<AcDbBlockTableRecord> model(database.modelSpaceId(), AcDb::kForWrite);
    for (int i = 0; i < entityCount; ++i) {
      auto* line = new AcDbLine(AcGePoint3d(i, 0, 0), AcGePoint3d(i, 1, 0));
      line->setLayer(ids[static_cast<std::size_t>(i % layerCount)]);
      model->appendAcDbEntity(line);
      line->close();
    }
  });
  std::size_t found = 0;
  const double looked = secondsOf([&] {
    for (int i = 0; i < layerCount; ++i) found += database.tableOf("LAYER")->has(layerName(i));
  });
  database.undo().beginCommand(L"LAYER");
  const double off = secondsOf([&] { eachLayer([](AcDbLayerTableRecord& layer) { layer.setIsOff(true); }); });
  const double coloured =
      secondsOf([&] { eachLayer([](AcDbLayerTableRecord& layer) { layer.setColor(AcCmColor(3)); }); });
  database.undo().endCommand();
  const double taken = secondsOf([&] { database.undo().undo(); });
  const double renamed = secondsOf([&] {
    AcDbObjectPointer<AcDbLayerTableRecord> layer(ids.front(), AcDb::kForWrite);
    if (layer) layer->setName(L"换名");
  });
  const double perLayer = 1e6 / layerCount;
  const double perEntity = 1e6 / entityCount;
  std::printf("%d %d %.3f %.3f %.3f %.3f %.3f %.3f %.4f\n", layerCount, entityCount, made * perLayer,
              drawn * perEntity, looked * perLayer, off * perLayer, coloured * perLayer, taken * perLayer,
              renamed * perEntity);
  if (found != static_cast<std::size_t>(layerCount)) std::fprintf(stderr, "a layer was not found\n");
}

} // namespace

int main(int count, char** arguments) {
  const std::string_view task = count > 1 ? arguments[1] : "";
  if (task == "read" && count == 3) return read(arguments[2], nullptr);
  if (task == "rewrite" && count == 4) return read(arguments[2], arguments[3]);
  if (task == "undo" && count == 3) return undo(arguments[2]);
  if (task == "layers" && count == 2) {
    for (const int part : {8, 4, 2, 1}) layers(10000 / part, 1000000 / part);
    return 0;
  }
  std::fprintf(stderr, "usage: bench_dxf read FILE | rewrite FILE OUT | undo FILE | layers\n");
  return 2;
}
