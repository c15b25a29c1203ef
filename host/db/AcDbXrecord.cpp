#include "host/db/AcDbXrecord.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/DxfDecodeContext.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/resbuf.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbXrecord, AcDbObject, "XRECORD")

namespace {

// The tags behind the class's marker and its 280, which are the record's data.
std::vector<DxfTag> dataOf(const std::vector<DxfTag>& tags) {
  std::size_t at = 0;
  while (at < tags.size() && !(tags[at].code == 100 && dxf::trimBlanks(tags[at].value) == "AcDbXrecord"))
    ++at;
  if (at < tags.size()) ++at;
  if (at < tags.size() && tags[at].code == 280) ++at;
  std::size_t end = at;
  while (end < tags.size() && tags[end].code < 1000) ++end;
  return {tags.begin() + static_cast<std::ptrdiff_t>(at), tags.begin() + static_cast<std::ptrdiff_t>(end)};
}

} // namespace

Acad::ErrorStatus AcDbXrecord::rbChain(resbuf** chain) const {
  if (!chain) return Acad::eInvalidInput;
  const auto tags = m_newData ? dxfTagsOf(*m_newData) : dataOf(rawRecord().tags());
  *chain = tags.empty() ? nullptr : dxf::toResbuf(tags).release();
  return Acad::eOk;
}

Acad::ErrorStatus AcDbXrecord::setFromRbChain(const resbuf& chain) {
  for (const resbuf* rb = &chain; rb; rb = rb->rbnext)
    if (rb->restype < 1 || rb->restype > 369) return Acad::eInvalidInput;
  if (const auto status = assertWriteEnabled(); status != Acad::eOk) return status;
  m_newData = dxf::fromResbuf(&chain);
  return Acad::eOk;
}

void AcDbXrecord::dxfInFields(DxfTags, const DxfDecodeContext&) {
  m_newData.reset();
}

void AcDbXrecord::dxfOutFields(DxfRecordEditor& editor) const {
  const bool isNew = rawRecord().isEmpty();
  dxfOutHead(editor, "XRECORD");
  editor.subclass("AcDbXrecord");
  if (isNew) editor.integer(280, 1);
  if (m_newData) editor.replaceData(*m_newData);
}
