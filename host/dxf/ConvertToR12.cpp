// Records of newer versions in the words of R12, which has neither subclasses nor owners nor dictionaries.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/OldShapes.h"
#include "host/dxf/VersionConverter.h"
#include "host/dxf/VersionTables.h"

#include <algorithm>

namespace {

using Editor = DxfRecordEditor;

constexpr int kEntityCodes[] = {8, 6, 62, 67};
constexpr int kThicknessAndNormal[] = {39, 210, 220, 230};

template <std::size_t N> bool has(const int (&codes)[N], int code) {
  return std::find(std::begin(codes), std::end(codes), code) != std::end(codes);
}

// Linetypes that R12 knows without a table entry.
bool isBuiltInLinetype(const AcDbObject& object) {
  const auto* record = AcDbSymbolTableRecord::cast(&object);
  return record &&
         (record->name().CompareNoCase(L"ByLayer") == 0 || record->name().CompareNoCase(L"ByBlock") == 0);
}

// Type, handle, subclass and owner.
bool isStructure(const DxfTag& tag) {
  return tag.code == 0 || tag.code == 5 || tag.code == 105 || tag.code == 100 || tag.code == 330;
}

std::string extendedDataOf(DxfTags tags) {
  std::string text;
  for (const DxfTag& tag : tags)
    if (tag.code >= 1000) text += Editor::tag(tag.code, tag.value);
  return text;
}

std::string handleOf(const AcDbObject& object) {
  return Editor::tag(5, object.handle().toHex());
}

// A drawing's own view of a paper space, which every program makes anew.
bool isWholePaper(DxfTags own) {
  return std::any_of(own.begin(), own.end(),
                     [](const DxfTag& tag) { return tag.code == 69 && dxf::toInteger(tag.value) == 1; });
}

struct Arrow {
  int handleCode;
  int nameCode;
};
constexpr Arrow kArrows[] = {{342, 5}, {343, 6}, {344, 7}};

} // namespace

std::optional<std::string> dxf::VersionConverter::asR12(const AcDbObject& object, DxfTags tags) {
  const std::string_view type = tags.empty() ? std::string_view() : trimBlanks(tags.front().value);
  if (type == "LTYPE" && isBuiltInLinetype(object)) return std::string();
  const auto* entity = AcDbEntity::cast(&object);
  if (dxf::r12Record(type)) {
    std::string text = r12Record(type, tags);
    // Behind the type tag; the tables of R12 have no handles.
    if (entity) text.insert(Editor::tag(0, type).size(), handleOf(object));
    if (type == "DIMSTYLE") text += r12DimensionStyle(object.record().text());
    return text + extendedDataOf(tags);
  }
  CString what;
  if (!entity) {
    if (object.isImplicit()) return std::string();
    what.Format(L"对象 %s", decodeText(type));
    m_losses.add(what);
    return std::string();
  }
  const auto own = dxfOwnTags(tags);
  if (type == "VIEWPORT" && isWholePaper(own)) return std::string();
  std::string properties;
  for (const DxfTag& tag : dxfCommonTags(own)) {
    if (has(kEntityCodes, tag.code))
      properties += Editor::tag(tag.code, tag.value);
    else if (!isStructure(tag))
      missed(type, tag);
  }
  const OldShape shape = oldShapeOf(type, own, handleOf(object), properties, extendedDataOf(tags));
  if (shape.loss) {
    m_losses.add(shape.loss);
  } else if (shape.text.empty()) {
    what.Format(L"实体 %s", decodeText(type));
    m_losses.add(what);
  }
  return shape.text;
}

void dxf::VersionConverter::missed(std::string_view type, const DxfTag& tag) {
  bool isPlain = false;
  const wchar_t* name = nameOfTagR12Lacks(type, tag, isPlain);
  const bool isPointer = tag.code >= 320 && tag.code < 370; // to what is not there either
  if (isPlain || (!name && isPointer)) return;
  CString what;
  if (!name) what.Format(L"%s 的组码 %d", decodeText(type), tag.code);
  m_losses.add(name ? CString(name) : what);
}

std::string dxf::VersionConverter::r12Record(std::string_view type, DxfTags tags) {
  const R12Record& record = *dxf::r12Record(type);
  std::string text = Editor::tag(0, type);
  bool announced = false;
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    if (isStructure(tag)) continue;
    const bool known =
        r12Has(record, tag.code) || has(kEntityCodes, tag.code) || has(kThicknessAndNormal, tag.code);
    if (known) {
      text += Editor::tag(tag.code, tag.value);
      announced = announced || tag.code == 66;
      continue;
    }
    missed(type, tag);
  }
  // Without it the vertices that follow are not taken for the polyline's.
  if (type == "POLYLINE" && !announced) text += Editor::tag(66, "1");
  return text;
}

// The arrows are names of blocks in R12.
std::string dxf::VersionConverter::r12DimensionStyle(std::string_view record) const {
  std::string text;
  for (const DxfTag& tag : dxfOwnTags(dxfTagsOf(record))) {
    for (const Arrow& arrow : kArrows) {
      AcDbObjectId id;
      if (tag.code != arrow.handleCode ||
          m_database.getAcDbObjectId(id, false, AcDbHandle::fromHex(tag.value)) != Acad::eOk)
        continue;
      if (const auto* block = AcDbBlockTableRecord::cast(id.object()))
        text += Editor::tag(arrow.nameCode, encodeText(block->name()));
    }
  }
  return text;
}
