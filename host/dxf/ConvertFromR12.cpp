// Records of R12 in the words of R2000 and later: handles, owners, and subclass markers with each tag behind
// its own.
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/SubclassParts.h"
#include "host/dxf/VersionConverter.h"

#include <algorithm>

namespace {

using Editor = DxfRecordEditor;

// A record of R12 taken apart.
struct Pieces {
  std::vector<DxfTag> own;
  std::string groups;       // between 102 braces
  std::string extendedData; // from the first 1001
  std::size_t comments = 0;
  bool hasMarkers = false;
};

void append(std::string& text, const DxfTag& tag) {
  text += Editor::tag(tag.code, tag.value);
}

Pieces takenApart(DxfTags tags, int handleCode) {
  Pieces pieces;
  bool inGroup = false;
  for (const DxfTag& tag : tags.subspan(std::min<std::size_t>(1, tags.size()))) {
    // What is wrongly behind extended data is read as a part of it, and stays one.
    if (tag.code >= 1000 || !pieces.extendedData.empty()) {
      append(pieces.extendedData, tag);
    } else if (tag.code == 102 || inGroup) {
      if (tag.code == 102) inGroup = tag.value.starts_with("{");
      append(pieces.groups, tag);
    } else if (tag.code == 999) {
      ++pieces.comments;
    } else if (tag.code == handleCode || tag.code == 330) {
      continue;
    } else {
      pieces.hasMarkers = pieces.hasMarkers || tag.code == 100;
      pieces.own.push_back(tag);
    }
  }
  return pieces;
}

// The arrows of a dimension style are names in R12 and handles of blocks later.
struct Arrow {
  int nameCode;
  int handleCode;
};
constexpr Arrow kArrows[] = {{5, 342}, {6, 343}, {7, 344}};

std::string arrowsByHandle(const AcDbDatabase& database, DxfTags own) {
  std::string text;
  for (const Arrow& arrow : kArrows) {
    for (const DxfTag& tag : own) {
      AcDbObjectId block;
      if (tag.code == arrow.nameCode &&
          database.tableOf("BLOCK_RECORD")->getAt(dxf::decodeText(dxf::trimBlanks(tag.value)), block) ==
              Acad::eOk)
        text += Editor::tag(arrow.handleCode, block.handle().toHex());
    }
  }
  return text;
}

bool isArrowName(const DxfTag& tag) {
  return std::any_of(std::begin(kArrows), std::end(kArrows),
                     [&](const Arrow& arrow) { return arrow.nameCode == tag.code; });
}

} // namespace

std::string dxf::VersionConverter::fromR12(const AcDbObject& object, DxfTags tags) {
  if (tags.empty()) return {};
  std::string_view type = trimBlanks(tags.front().value);
  // A line end would begin with what blanks hid.
  while (type.ends_with('\r')) type = trimBlanks(type.substr(0, type.size() - 1));
  // What stands among the entities is read as one, whatever its record is called.
  const bool isEntity = AcDbEntity::cast(&object) != nullptr;
  const bool isDimensionStyle = type == "DIMSTYLE" && !isEntity;
  const int handleCode = isDimensionStyle ? 105 : 5;
  Pieces pieces = takenApart(tags, handleCode);
  if (pieces.comments > 0) m_losses.add(L"注释", pieces.comments);

  std::string text = Editor::tag(0, type);
  const std::string handle =
      Editor::tag(handleCode, object.handle().toHex()) + pieces.groups +
      Editor::tag(330, object.ownerId().isNull() ? std::string("0") : object.ownerId().handle().toHex());
  if (const auto* table = AcDbSymbolTable::cast(&object)) {
    text += Editor::tag(2, table->recordType()) + handle + Editor::tag(100, "AcDbSymbolTable");
    for (const DxfTag& tag : pieces.own)
      if (tag.code == 70) append(text, tag);
    if (table->recordType() == "DIMSTYLE")
      text += Editor::tag(100, "AcDbDimStyleTable") + Editor::tag(71, "0");
    return text + pieces.extendedData;
  }
  text += handle;
  if (pieces.hasMarkers) { // some programs write them in old files too
    for (const DxfTag& tag : pieces.own) append(text, tag);
    return text + pieces.extendedData;
  }
  std::string arrows;
  if (isDimensionStyle) {
    arrows = arrowsByHandle(m_database, pieces.own);
    std::erase_if(pieces.own, isArrowName);
  }
  const auto parts = subclassParts(type, pieces.own);
  const bool isForeign = isEntity && !parts.empty() && parts.front().marker != "AcDbEntity";
  if (parts.empty() || isForeign) { // a type that R12 doesn't have there: what it may be is not known
    if (isEntity) text += Editor::tag(100, "AcDbEntity");
    for (const DxfTag& tag : pieces.own) append(text, tag);
    return text + pieces.extendedData;
  }
  for (const SubclassPart& part : parts) {
    if (!part.marker.empty()) text += Editor::tag(100, part.marker);
    for (const DxfTag& tag : part.tags) append(text, tag);
  }
  return text + arrows + pieces.extendedData;
}
