// Layouts, which drawings have since R2000: what an older one gets when it is written in a newer version.
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDictionary.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/dxf/VersionConverter.h"

namespace {

using Editor = DxfRecordEditor;

// The plot settings of a layout on A3 paper, from the name of the page setup to the scale, and behind the
// layout's name and flags its limits, extents and coordinate system.
constexpr std::string_view kPlotSettings = "  1\n\n  2\nnone_device\n  4\nISO_A3_(420.00_x_297.00_MM)\n  "
                                           "6\n\n 40\n7.5\n 41\n20.0\n 42\n7.5\n 43\n20.0\n"
                                           " 44\n420.0\n 45\n297.0\n 46\n0.0\n 47\n0.0\n 48\n0.0\n "
                                           "49\n0.0\n140\n0.0\n141\n0.0\n142\n1.0\n143\n1.0\n";
constexpr std::string_view kPlotScale =
    " 72\n1\n 73\n0\n 74\n5\n  7\n\n 75\n16\n147\n1.0\n148\n0.0\n149\n0.0\n";
constexpr std::string_view kLimits =
    " 10\n0.0\n 20\n0.0\n 11\n420.0\n 21\n297.0\n 12\n0.0\n 22\n0.0\n 32\n0.0\n 14\n0.0\n 24\n0.0\n 34\n0.0\n"
    " 15\n0.0\n 25\n0.0\n 35\n0.0\n146\n0.0\n 13\n0.0\n 23\n0.0\n 33\n0.0\n 16\n1.0\n 26\n0.0\n 36\n0.0\n"
    " 17\n0.0\n 27\n1.0\n 37\n0.0\n 76\n0\n";

constexpr const char* kModelPlotFlags = "1024"; // the model's own tab
constexpr const wchar_t* kDictionaryName = L"ACAD_LAYOUT";

} // namespace

void dxf::VersionConverter::planLayouts() {
  const auto* root = AcDbDictionary::cast(m_database.namedObjectsDictionaryId().object());
  AcDbObjectId present;
  if (root && root->getAt(kDictionaryName, present) == Acad::eOk) return;
  const auto next = [this] { return AcDbHandle(m_nextHandle++); };
  m_layoutDictionary = next();
  for (const AcDbObjectId& id : m_database.tableOf("BLOCK_RECORD")->records()) {
    const auto* block = AcDbBlockTableRecord::cast(id.object());
    if (!block || block->isErased() || !block->isLayout()) continue;
    CString name = L"Model";
    if (!block->isModelSpace()) name.Format(L"布局%d", m_layouts.size() + (m_layouts.empty() ? 1 : 0));
    m_layouts.push_back({id, name, next()});
  }
}

// The root names the dictionary of layouts, and each block of a layout its layout.
std::string dxf::VersionConverter::withLayouts(const AcDbObject& object, std::string text) const {
  if (m_layouts.empty()) return text;
  if (object.objectId() == m_database.namedObjectsDictionaryId())
    return text + Editor::tag(3, dxf::encodeText(kDictionaryName)) +
           Editor::tag(350, m_layoutDictionary.toHex());
  for (const Layout& layout : m_layouts) {
    if (layout.block != object.objectId()) continue;
    const std::string name =
        Editor::tag(2, dxf::encodeText(static_cast<const AcDbBlockTableRecord&>(object).name()));
    if (const auto at = text.find(name); at != text.npos)
      text.insert(at + name.size(), Editor::tag(340, layout.handle.toHex()));
  }
  return text;
}

std::string dxf::VersionConverter::addedObjects() const {
  if (m_layouts.empty()) return {};
  const std::string root = m_database.namedObjectsDictionaryId().handle().toHex();
  const std::string dictionary = m_layoutDictionary.toHex();
  std::string text = Editor::tag(0, "DICTIONARY") + Editor::tag(5, dictionary) + Editor::tag(330, root) +
                     Editor::tag(100, "AcDbDictionary") + Editor::tag(281, "1");
  for (const Layout& layout : m_layouts)
    text += Editor::tag(3, dxf::encodeText(layout.name)) + Editor::tag(350, layout.handle.toHex());
  int tab = 0;
  for (const Layout& layout : m_layouts) {
    const bool isModel = static_cast<const AcDbBlockTableRecord*>(layout.block.object())->isModelSpace();
    text += Editor::tag(0, "LAYOUT") + Editor::tag(5, layout.handle.toHex()) + Editor::tag(330, dictionary) +
            Editor::tag(100, "AcDbPlotSettings");
    text += kPlotSettings;
    text += Editor::tag(70, isModel ? kModelPlotFlags : "0");
    text += kPlotScale;
    text += Editor::tag(100, "AcDbLayout") + Editor::tag(1, dxf::encodeText(layout.name)) +
            Editor::tag(70, "1") + Editor::tag(71, isModel ? "0" : std::to_string(++tab));
    text += kLimits;
    text += Editor::tag(330, layout.block.handle().toHex());
  }
  return text;
}
