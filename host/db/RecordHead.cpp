#include "host/db/RecordHead.h"

#include "host/db/DxfRecordEditor.h"

namespace {

DxfRecordEditor strippedEditor(const DxfRecord& record) {
  DxfRecordEditor editor(record, true);
  editor.type(record.type());
  editor.group("{ACAD_REACTORS", {});
  editor.group("{ACAD_XDICTIONARY", {});
  editor.remove(dxf::handleCodeOf(record.type()));
  editor.remove(330);
  return editor;
}

} // namespace

int dxf::handleCodeOf(std::string_view recordType) {
  return recordType == "DIMSTYLE" ? 105 : 5;
}

DxfRecord dxf::withoutHead(const DxfRecord& record) {
  return strippedEditor(record).finish();
}

DxfRecord dxf::withHead(const DxfRecord& record, AcDbHandle handle, AcDbHandle owner) {
  DxfRecordEditor editor = strippedEditor(record);
  editor.type(record.type());
  editor.handle(handleCodeOf(record.type()), handle);
  if (!owner.isNull()) editor.handle(330, owner);
  return editor.finish();
}

AcDbHandle dxf::ownerIn(DxfTags tags) {
  bool inGroup = false;
  for (const DxfTag& tag : tags) {
    if (tag.code == 100 || tag.code >= 1000) break;
    if (tag.code == 102) inGroup = tag.value.starts_with("{");
    if (tag.code == 330 && !inGroup) return AcDbHandle::fromHex(tag.value);
  }
  return {};
}
