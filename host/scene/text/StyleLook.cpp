#include "host/scene/text/StyleLook.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbTextStyleTable.h"
#include "host/db/DxfText.h"

#include <numbers>

namespace scene {
namespace {

constexpr int kBackward = 2;
constexpr int kUpsideDown = 4;
constexpr int kVertical = 4; // of the flags of group 70
constexpr long long kBold = 0x2000000;
constexpr long long kItalic = 0x1000000;

// Outline fonts leave their family and its form in extended data.
void readFamily(DxfTags tags, Font& font) {
  bool inData = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 1001) inData = dxf::trimBlanks(tag.value) == "ACAD";
    if (inData && tag.code == 1000) font.family = dxf::decodeText(tag.value);
    if (inData && tag.code == 1071) {
      const long long form = dxf::toInteger(tag.value).value_or(0);
      font.bold = (form & kBold) != 0;
      font.italic = (form & kItalic) != 0;
    }
  }
}

StyleLook lookOf(const AcDbTextStyleTableRecord& style) {
  StyleLook look;
  look.font.file = style.fileName();
  look.font.bigFile = style.bigFontFileName();
  look.font.vertical = (style.flags() & kVertical) != 0;
  look.height = style.textSize();
  look.widthFactor = style.xScale() > 0 ? style.xScale() : 1;
  const auto tags = style.record().tags();
  for (const DxfTag& tag : dxfOwnTags(tags)) {
    if (tag.code == 50) look.oblique = dxf::toReal(tag.value).value_or(0) * std::numbers::pi / 180;
    if (tag.code != 71) continue;
    const long long flags = dxf::toInteger(tag.value).value_or(0);
    look.backward = (flags & kBackward) != 0;
    look.upsideDown = (flags & kUpsideDown) != 0;
  }
  readFamily(tags, look.font);
  return look;
}

} // namespace

StyleLooks::StyleLooks(const AcDbDatabase& database) {
  const AcDbSymbolTable* table = database.tableOf("STYLE");
  if (!table) return;
  for (const AcDbObjectId& id : table->records()) {
    const auto* style = AcDbTextStyleTableRecord::cast(id.object());
    if (!style) continue;
    m_looks.emplace(id, lookOf(*style));
    CString name = style->name();
    m_byName.emplace(name.MakeLower(), id);
  }
}

const StyleLook& StyleLooks::of(const AcDbObjectId& style) const {
  const auto found = m_looks.find(style);
  return found == m_looks.end() ? m_none : found->second;
}

const StyleLook& StyleLooks::of(const CString& name) const {
  CString small = name;
  const auto found = m_byName.find(small.MakeLower());
  return found == m_byName.end() ? m_none : of(found->second);
}

} // namespace scene
