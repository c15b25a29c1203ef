#include "plugin/graph/TextAttribute.h"

#include <memory>

#include "host/db/AcDbText.h"
#include "host/db/AcDbTextStyleTable.h"
#include "plugin/graph/DrawingSettings.h"

namespace {

// The stroke fonts of GB/T 14665 for letters and for Chinese, whose characters have the proportions of the
// standard without being narrowed.
constexpr const wchar_t* kOwnStyle = L"QL_KOR";
constexpr const wchar_t* kFont = L"gbenor.shx";
constexpr const wchar_t* kBigFont = L"gbcbig.shx";

AcDbObjectId MakeOwnStyle(AcDbTextStyleTable& styles) {
  auto style = std::make_unique<AcDbTextStyleTableRecord>();
  style->setName(kOwnStyle);
  style->setFileName(kFont);
  style->setBigFontFileName(kBigFont);
  AcDbObjectId id;
  if (styles.add(id, style.get()) != Acad::eOk) return {};
  style.release()->close(); // the drawing's
  return id;
}

AcDbObjectId StyleOfSettings() {
  const AcDbDatabase* drawing = acdbHostApplicationServices()->workingDatabase();
  AcDbObjectId id;
  if (!drawing) return id;
  const bool own = ZP::GetFontType() != 0;
  AcDbObjectPointer<AcDbTextStyleTable> styles(drawing->textStyleTableId(), AcDb::kForRead);
  if (!styles || styles->getAt(own ? CString(kOwnStyle) : ZP::GetTextStyle(), id) == Acad::eOk || !own)
    return id;
  return styles.open(drawing->textStyleTableId(), AcDb::kForWrite) == Acad::eOk
             ? MakeOwnStyle(*styles.object())
             : AcDbObjectId();
}

} // namespace

int ZP::SetTextAttribute(AcDbText* text, int kind) {
  if (!text || kind != kAnnotation) return 0;
  const AcDbObjectId id = StyleOfSettings();
  const AcDbObjectPointer<AcDbTextStyleTableRecord> style(id, AcDb::kForRead);
  if (!style || text->setTextStyle(id) != Acad::eOk) return 0;
  text->setWidthFactor(style->xScale());
  return 1;
}
