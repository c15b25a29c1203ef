#include "host/db/RecordForm.h"

#include "host/db/DxfRecordEditor.h"

#include <algorithm>
#include <iterator>

namespace {

// Where the tags of a type belong that old drawings file without markers. Types with several markers list the
// codes of the later ones.
struct Markers {
  std::string_view type;
  std::string_view first;
  std::string_view second = {};
  std::span<const int> secondCodes = {};
};

constexpr int kArcCodes[] = {50, 51};
constexpr int kTextCodes[] = {73};
constexpr int kAttributeCodes[] = {2, 3, 70, 73, 74};

constexpr Markers kMarkers[] = {
    {"LINE", "AcDbLine"},
    {"POINT", "AcDbPoint"},
    {"CIRCLE", "AcDbCircle"},
    {"ARC", "AcDbCircle", "AcDbArc", kArcCodes},
    {"TEXT", "AcDbText", "AcDbText", kTextCodes},
    {"ATTRIB", "AcDbText", "AcDbAttribute", kAttributeCodes},
    {"ATTDEF", "AcDbText", "AcDbAttributeDefinition", kAttributeCodes},
    {"INSERT", "AcDbBlockReference"},
    {"SOLID", "AcDbTrace"},
    {"TRACE", "AcDbTrace"},
    {"3DFACE", "AcDbFace"},
    {"SHAPE", "AcDbShape"},
    {"POLYLINE", "AcDb2dPolyline"},
    {"VERTEX", "AcDbVertex", "AcDb2dVertex", {}},
    {"VIEWPORT", "AcDbViewport"},
    {"BLOCK", "AcDbBlockBegin"},
    {"ENDBLK", "AcDbBlockEnd"},
};

// The codes that all entities share.
bool isCommon(int code) {
  static constexpr int codes[] = {6, 8, 48, 60, 62, 67, 370, 420, 430, 440};
  return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

bool hasMarkers(const DxfRecord& record) {
  DxfTagReader reader(record.text());
  for (DxfTag tag; reader.next(tag);)
    if (tag.code == 100) return true;
  return false;
}

std::string joined(const std::vector<DxfTag>& tags) {
  std::string text;
  for (const DxfTag& tag : tags) text += DxfRecordEditor::tag(tag.code, tag.value);
  return text;
}

// The first marker that tells what a polyline or a vertex of an old drawing is depends on its flags.
std::string_view polylineMarker(std::string_view type, std::string_view usual,
                                const std::vector<DxfTag>& tags) {
  if (type != "POLYLINE" && type != "VERTEX") return usual;
  long long flags = 0;
  for (const DxfTag& tag : tags)
    if (tag.code == 70) flags = dxf::toInteger(tag.value).value_or(0);
  if (type == "VERTEX") {
    if (flags & 32) return "AcDb3dPolylineVertex";
    if (flags & 64) return flags & 128 ? "AcDbPolyFaceMeshVertex" : "AcDbPolygonMeshVertex";
    return flags & 128 ? "AcDbFaceRecord" : "AcDb2dVertex";
  }
  if (flags & 8) return "AcDb3dPolyline";
  if (flags & 16) return "AcDbPolygonMesh";
  return flags & 64 ? "AcDbPolyFaceMesh" : "AcDb2dPolyline";
}

DxfRecord withMarkers(const DxfRecord& record) {
  const std::string_view type = record.type();
  const auto* markers = std::find_if(std::begin(kMarkers), std::end(kMarkers),
                                     [&](const Markers& row) { return row.type == type; });
  if (markers == std::end(kMarkers) && type != "SEQEND") return record; // no entity of an old drawing
  std::vector<DxfTag> head, common, first, second, extended;
  for (const DxfTag& tag : record.tags()) {
    if (tag.code >= 1000)
      extended.push_back(tag);
    else if (tag.code == 0 || tag.code == 5)
      head.push_back(tag);
    else if (isCommon(tag.code))
      common.push_back(tag);
    else if (markers != std::end(kMarkers) &&
             std::find(markers->secondCodes.begin(), markers->secondCodes.end(), tag.code) !=
                 markers->secondCodes.end())
      second.push_back(tag);
    else
      first.push_back(tag);
  }
  const auto mark = [](std::string_view name) { return DxfRecordEditor::tag(100, name); };
  std::string text = joined(head) + mark("AcDbEntity") + joined(common);
  if (markers != std::end(kMarkers)) {
    if (type == "VERTEX")
      text += mark("AcDbVertex") + mark(polylineMarker(type, markers->second, first)) + joined(first);
    else
      text += mark(polylineMarker(type, markers->first, first)) + joined(first);
    if (!markers->second.empty() && type != "VERTEX") text += mark(markers->second) + joined(second);
  }
  return DxfRecord::own(text + joined(extended));
}

DxfRecord withoutMarkers(const DxfRecord& record) {
  std::vector<DxfTag> kept;
  bool inGroup = false;
  for (const DxfTag& tag : record.tags()) {
    if (tag.code == 102) {
      inGroup = tag.value.starts_with("{");
      continue;
    }
    if (inGroup || tag.code == 100) continue;
    kept.push_back(tag);
  }
  return DxfRecord::own(joined(kept));
}

} // namespace

DxfRecord dxf::inFormOf(const DxfRecord& record, const DrawingForm& from, const DrawingForm& to) {
  if (from.subclassMarkers() == to.subclassMarkers()) return record;
  if (!to.subclassMarkers()) return withoutMarkers(record);
  return hasMarkers(record) ? record : withMarkers(record);
}
