// Reads a drawing with dxflib and keeps what it tells of lines, polylines, arcs, texts and insertions.
// Usage: bench_dxf_dxflib FILE
#include <cstdio>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <vector>

namespace {

class Keeper : public DL_CreationAdapter {
 public:
  void addLine(const DL_LineData& data) override { lines.push_back(data); }
  void addArc(const DL_ArcData& data) override { arcs.push_back(data); }
  void addCircle(const DL_CircleData& data) override { circles.push_back(data); }
  void addPolyline(const DL_PolylineData& data) override { polylines.push_back(data); }
  void addVertex(const DL_VertexData& data) override { vertices.push_back(data); }
  void addText(const DL_TextData& data) override { texts.push_back(data); }
  void addInsert(const DL_InsertData& data) override { insertions.push_back(data); }

  std::vector<DL_LineData> lines;
  std::vector<DL_ArcData> arcs;
  std::vector<DL_CircleData> circles;
  std::vector<DL_PolylineData> polylines;
  std::vector<DL_VertexData> vertices;
  std::vector<DL_TextData> texts;
  std::vector<DL_InsertData> insertions;
};

} // namespace

int main(int count, char** arguments) {
  if (count < 2) return 2;
  Keeper keeper;
  DL_Dxf reader;
  if (!reader.in(arguments[1], &keeper)) return 1;
  std::printf("%zu lines, %zu arcs, %zu circles, %zu polylines, %zu texts, %zu insertions\n",
              keeper.lines.size(), keeper.arcs.size(), keeper.circles.size(), keeper.polylines.size(),
              keeper.texts.size(), keeper.insertions.size());
  return 0;
}
