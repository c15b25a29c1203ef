// The scene of a drawing that stands in the test itself, and short ways to look at it.
#pragma once

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"
#include "host/scene/BuildScene.h"

#include <memory>
#include <string>

struct Parts {
  std::string entities = {}; // tags as "code value", parted by blanks and bars: "0 LINE|8 0|10 1|20 2"
  std::string blocks = {};
  std::string layers = {};
  std::string linetypes = {};
  std::string styles = {};
  std::string header = {};
  std::string objects = {};
  std::string blockRecords = {};
};

class Picture {
 public:
  explicit Picture(const Parts& parts, scene::SceneOptions options = {});
  explicit Picture(const std::string& entities) : Picture(Parts{.entities = entities}) {}

  using Kind = scene::Primitive::Kind;
  std::vector<scene::Primitive> all(Kind kind) const;
  // The only primitive of the kind; a failure of the test when there isn't just one.
  scene::Primitive only(Kind kind) const;
  std::size_t count() const { return scene.primitives.size(); }
  std::vector<AcGePoint2d> points(const scene::Primitive& primitive) const;
  const scene::TextRun& text(std::size_t index = 0) const { return scene.texts.at(index); }
  // Length of a stroke, and area of a fill by even and odd for loops that lie in one another.
  double length(const scene::Primitive& primitive) const;
  bool toldOf(const wchar_t* what) const;

  std::unique_ptr<AcDbDatabase> database;
  scene::Scene scene;
};

std::string DrawingText(const Parts& parts);
// Tags from "code value|code value".
std::string TagLines(const std::string& text);
