#include "host/dxf/SubclassParts.h"

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace {

// A subclass takes the tags that it names, the last one of a record the rest.
struct Part {
  std::string_view marker;
  std::initializer_list<int> codes;
};

struct Row {
  std::string_view type;
  int kind; // what tells records of one type apart, see kindOf; -1: any
  std::initializer_list<Part> parts;
};

constexpr std::initializer_list<int> kEntityCodes = {67, 8, 6, 62, 48, 60, 370, 420, 430, 440};
constexpr std::initializer_list<int> kTextCodes = {39, 10, 20, 30, 40, 1,  50,  41,  51,
                                                   7,  71, 72, 11, 21, 31, 210, 220, 230};
constexpr std::initializer_list<int> kCircleCodes = {39, 10, 20, 30, 40, 210, 220, 230};
constexpr std::initializer_list<int> kDimensionCodes = {2,  10, 20, 30, 11, 21,  31,  70,  1, 71,
                                                        72, 41, 42, 53, 51, 210, 220, 230, 3};

// Bits of group 70.
constexpr int k3dPolyline = 8;
constexpr int kMesh = 16;
constexpr int k3dVertex = 32;
constexpr int kPolyface = 64; // also the mark of a mesh's vertex
constexpr int kFace = 128;

const Row kRows[] = {
    {"LINE", -1, {{"AcDbLine", {}}}},
    {"POINT", -1, {{"AcDbPoint", {}}}},
    {"CIRCLE", -1, {{"AcDbCircle", {}}}},
    {"ARC", -1, {{"AcDbCircle", kCircleCodes}, {"AcDbArc", {}}}},
    {"TRACE", -1, {{"AcDbTrace", {}}}},
    {"SOLID", -1, {{"AcDbTrace", {}}}},
    {"3DFACE", -1, {{"AcDbFace", {}}}},
    {"SHAPE", -1, {{"AcDbShape", {}}}},
    {"TEXT", -1, {{"AcDbText", kTextCodes}, {"AcDbText", {}}}},
    {"ATTRIB", -1, {{"AcDbText", kTextCodes}, {"AcDbAttribute", {}}}},
    {"ATTDEF", -1, {{"AcDbText", kTextCodes}, {"AcDbAttributeDefinition", {}}}},
    {"INSERT", -1, {{"AcDbBlockReference", {}}}},
    {"POLYLINE", 0, {{"AcDb2dPolyline", {}}}},
    {"POLYLINE", k3dPolyline, {{"AcDb3dPolyline", {}}}},
    {"POLYLINE", kMesh, {{"AcDbPolygonMesh", {}}}},
    {"POLYLINE", kPolyface, {{"AcDbPolyFaceMesh", {}}}},
    {"VERTEX", 0, {{"AcDbVertex", {0}}, {"AcDb2dVertex", {}}}},
    {"VERTEX", k3dVertex, {{"AcDbVertex", {0}}, {"AcDb3dPolylineVertex", {}}}},
    {"VERTEX", kPolyface, {{"AcDbVertex", {0}}, {"AcDbPolygonMeshVertex", {}}}},
    {"VERTEX", kPolyface | kFace, {{"AcDbVertex", {0}}, {"AcDbPolyFaceMeshVertex", {}}}},
    {"VERTEX", kFace, {{"AcDbFaceRecord", {}}}},
    {"SEQEND", -1, {{"", {}}}},
    {"BLOCK", -1, {{"AcDbBlockBegin", {}}}},
    {"ENDBLK", -1, {{"AcDbBlockEnd", {}}}},
    {"DIMENSION",
     0,
     {{"AcDbDimension", kDimensionCodes},
      {"AcDbAlignedDimension", {12, 22, 32, 13, 23, 33, 14, 24, 34}},
      {"AcDbRotatedDimension", {}}}},
    {"DIMENSION", 1, {{"AcDbDimension", kDimensionCodes}, {"AcDbAlignedDimension", {}}}},
    {"DIMENSION", 2, {{"AcDbDimension", kDimensionCodes}, {"AcDb2LineAngularDimension", {}}}},
    {"DIMENSION", 3, {{"AcDbDimension", kDimensionCodes}, {"AcDbDiametricDimension", {}}}},
    {"DIMENSION", 4, {{"AcDbDimension", kDimensionCodes}, {"AcDbRadialDimension", {}}}},
    {"DIMENSION", 5, {{"AcDbDimension", kDimensionCodes}, {"AcDb3PointAngularDimension", {}}}},
    {"DIMENSION", 6, {{"AcDbDimension", kDimensionCodes}, {"AcDbOrdinateDimension", {}}}},
    {"VIEWPORT", -1, {{"AcDbViewport", {}}}},
    {"DICTIONARY", -1, {{"AcDbDictionary", {}}}},
    {"XRECORD", -1, {{"AcDbXrecord", {}}}},
    {"LTYPE", -1, {{"AcDbLinetypeTableRecord", {}}}},
    {"LAYER", -1, {{"AcDbLayerTableRecord", {}}}},
    {"STYLE", -1, {{"AcDbTextStyleTableRecord", {}}}},
    {"VIEW", -1, {{"AcDbViewTableRecord", {}}}},
    {"UCS", -1, {{"AcDbUCSTableRecord", {}}}},
    {"APPID", -1, {{"AcDbRegAppTableRecord", {}}}},
    {"VPORT", -1, {{"AcDbViewportTableRecord", {}}}},
    {"DIMSTYLE", -1, {{"AcDbDimStyleTableRecord", {}}}},
    {"BLOCK_RECORD", -1, {{"AcDbBlockTableRecord", {}}}},
};

constexpr std::string_view kTableEntries[] = {"LTYPE", "LAYER", "STYLE",    "VIEW",        "UCS",
                                              "APPID", "VPORT", "DIMSTYLE", "BLOCK_RECORD"};

int kindOf(std::string_view type, DxfTags own) {
  const auto tag =
      std::find_if(own.begin(), own.end(), [](const DxfTag& candidate) { return candidate.code == 70; });
  const int flags = tag == own.end() ? 0 : static_cast<int>(dxf::toInteger(tag->value).value_or(0));
  if (type == "DIMENSION") return (flags & 7) == 7 ? 0 : flags & 7;
  if (type == "POLYLINE") return flags & k3dPolyline ? k3dPolyline : flags & (kMesh | kPolyface);
  if (type == "VERTEX") return flags & k3dVertex ? k3dVertex : flags & (kPolyface | kFace);
  return -1;
}

} // namespace

std::vector<dxf::SubclassPart> dxf::subclassParts(std::string_view type, DxfTags own) {
  const int kind = kindOf(type, own);
  const Row* row = nullptr;
  for (const Row& candidate : kRows)
    if (candidate.type == type && (candidate.kind == -1 || candidate.kind == kind)) row = &candidate;
  if (!row) return {};
  const auto has = [](std::initializer_list<int> codes, int code) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
  };
  const bool isEntry =
      std::find(std::begin(kTableEntries), std::end(kTableEntries), type) != std::end(kTableEntries);
  const bool isObject = type == "DICTIONARY" || type == "XRECORD";
  std::vector<SubclassPart> parts;
  parts.push_back({isObject ? "" : isEntry ? "AcDbSymbolTableRecord" : "AcDbEntity", {}});
  for (const Part& part : row->parts) parts.push_back({part.marker, {}});
  for (const DxfTag& tag : own) {
    if (!isEntry && !isObject && has(kEntityCodes, tag.code)) {
      parts.front().tags.push_back(tag);
      continue;
    }
    std::size_t at = 0;
    while (at + 1 < row->parts.size() && !has(row->parts.begin()[at].codes, tag.code)) ++at;
    parts[at + 1].tags.push_back(tag);
  }
  return parts;
}
