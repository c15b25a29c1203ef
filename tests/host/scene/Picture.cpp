#include "tests/host/scene/Picture.h"

#include <gtest/gtest.h>

#include <sstream>

std::string TagLines(const std::string& text) {
  std::string lines;
  std::istringstream stream(text);
  for (std::string tag; std::getline(stream, tag, '|');) {
    const std::size_t blank = tag.find(' ');
    lines += tag.substr(0, blank) + "\n" + (blank == tag.npos ? "" : tag.substr(blank + 1)) + "\n";
  }
  return lines;
}

std::string DrawingText(const Parts& parts) {
  const auto table = [](const std::string& name, const std::string& records) {
    return "|0 TABLE|2 " + name + "|70 1" + (records.empty() ? "" : "|" + records) + "|0 ENDTAB";
  };
  const auto section = [](const std::string& name, const std::string& records) {
    return "0 SECTION|2 " + name + (records.empty() ? "" : "|" + records) + "|0 ENDSEC|";
  };
  const std::string tables = table("LTYPE", parts.linetypes) + table("LAYER", parts.layers) +
                             table("STYLE", parts.styles) +
                             (parts.blockRecords.empty() ? "" : table("BLOCK_RECORD", parts.blockRecords));
  return TagLines(
      section("HEADER", "9 $ACADVER|1 AC1015" + (parts.header.empty() ? "" : "|" + parts.header)) +
      section("TABLES", tables.substr(1)) + section("BLOCKS", parts.blocks) +
      section("ENTITIES", parts.entities) + section("OBJECTS", parts.objects) + "0 EOF");
}

Picture::Picture(const Parts& parts, scene::SceneOptions options)
    : database(std::make_unique<AcDbDatabase>(false)) {
  const auto report = dxf::ReadDrawingBytes(DrawingText(parts), L"test.dxf", *database);
  EXPECT_TRUE(report.ok) << report.error.ToUtf8();
  scene = scene::BuildScene(*database, database->modelSpaceId(), options);
}

std::vector<scene::Primitive> Picture::all(Kind kind) const {
  std::vector<scene::Primitive> found;
  for (const auto& primitive : scene.primitives)
    if (primitive.kind == kind) found.push_back(primitive);
  return found;
}

scene::Primitive Picture::only(Kind kind) const {
  const auto found = all(kind);
  EXPECT_EQ(1u, found.size());
  return found.empty() ? scene::Primitive() : found.front();
}

std::vector<AcGePoint2d> Picture::points(const scene::Primitive& primitive) const {
  const auto path = scene.path(primitive);
  return {path.points.begin(), path.points.end()};
}

double Picture::length(const scene::Primitive& primitive) const {
  double sum = 0;
  for (const auto& part : scene::Flatten(scene.path(primitive)))
    for (std::size_t i = 0; i + 1 < part.size(); ++i) sum += part[i].distanceTo(part[i + 1]);
  return sum;
}

bool Picture::toldOf(const wchar_t* what) const {
  for (const CString& line : scene.leftOut)
    if (line.Find(what) >= 0) return true;
  return false;
}
