// Reads drawings with dxflib and prints for each how many lines, arcs, circles, polylines, texts and
// insertions it has. Usage: read_with_dxflib DRAWING...
#include <cstdio>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

namespace {

class Counter : public DL_CreationAdapter {
 public:
  void addLine(const DL_LineData&) override { ++lines; }
  void addArc(const DL_ArcData&) override { ++arcs; }
  void addCircle(const DL_CircleData&) override { ++circles; }
  void addPolyline(const DL_PolylineData&) override { ++polylines; }
  void addText(const DL_TextData&) override { ++texts; }
  void addInsert(const DL_InsertData&) override { ++insertions; }

  int lines = 0;
  int arcs = 0;
  int circles = 0;
  int polylines = 0;
  int texts = 0;
  int insertions = 0;
};

} // namespace

int main(int count, char** arguments) {
  for (int i = 1; i < count; ++i) {
    Counter counter;
    DL_Dxf reader;
    if (!reader.in(arguments[i], &counter)) return 1;
    std::printf("%d %d %d %d %d %d\n", counter.lines, counter.arcs, counter.circles, counter.polylines,
                counter.texts, counter.insertions);
  }
  return 0;
}
