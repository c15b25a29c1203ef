#include "host/commands/TextStyles.h"

#include "host/db/AcDbTextStyleTable.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/SystemVariables.h"

#include <memory>

namespace commands {

std::vector<CString> TextStyleNames() {
  std::vector<CString> names;
  const AcDbObjectPointer<AcDbTextStyleTable> styles(curDoc()->database()->textStyleTableId(),
                                                     AcDb::kForRead);
  if (!styles) return names;
  for (const auto& id : styles->records()) {
    const AcDbObjectPointer<AcDbTextStyleTableRecord> style(id, AcDb::kForRead);
    if (style && !style->name().IsEmpty()) names.push_back(style->name());
  }
  return names;
}

AcDbObjectId TextStyleByName(const CString& name) {
  const AcDbObjectPointer<AcDbTextStyleTable> styles(curDoc()->database()->textStyleTableId(),
                                                     AcDb::kForRead);
  AcDbObjectId id;
  if (styles) styles->getAt(name, id);
  return id;
}

CString CurrentTextStyle() {
  return curDoc()->database()->header().text("$TEXTSTYLE").value_or(L"Standard");
}

bool MakeTextStyleCurrent(const CString& name) {
  return !TextStyleByName(name).isNull() &&
         SystemVariables::set(L"TEXTSTYLE", name) == SystemVariables::Result::ok;
}

Acad::ErrorStatus AddTextStyle(const CString& name, AcDbObjectId like) {
  auto style = std::make_unique<AcDbTextStyleTableRecord>();
  if (const auto status = style->setName(name); status != Acad::eOk) return status;
  if (const AcDbObjectPointer<AcDbTextStyleTableRecord> model(like, AcDb::kForRead); model) {
    style->setFileName(model->fileName());
    style->setBigFontFileName(model->bigFontFileName());
    style->setTextSize(model->textSize());
    style->setXScale(model->xScale());
  }
  const AcDbObjectPointer<AcDbTextStyleTable> styles(curDoc()->database()->textStyleTableId(),
                                                     AcDb::kForWrite);
  const auto status = styles ? styles->add(style.get()) : styles.openStatus();
  if (status == Acad::eOk) style.release()->close();
  return status;
}

} // namespace commands
