#include "host/db/ExternalReferences.h"

#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"
#include "host/db/AcDbBlockMarks.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbDrawingFiles.h"
#include "host/db/AcDbObjectPointer.h"

#include <algorithm>
#include <filesystem>

namespace {

constexpr std::size_t kMaxDepth = 32; // of drawings that refer to drawings

AcDbBlockTableRecord* xrefBlock(const AcDbObjectId& id) {
  auto* block = AcDbBlockTableRecord::cast(id.object());
  return block && !block->isErased() && block->isFromExternalReference() ? block : nullptr;
}

// One spelling for one file, so that a circle is seen.
CString realPath(const CString& path) {
  std::error_code failed;
  const auto real = std::filesystem::weakly_canonical(afx::NativePath(path), failed);
  return failed ? path : CString::FromUtf8(real.string());
}

bool isFile(const std::string& native) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(native, ignored);
}

CString quoted(const wchar_t* format, const CString& name) {
  CString text;
  text.Format(format, name);
  return text;
}

} // namespace

ExternalReferences::ExternalReferences(AcDbDatabase& database) : m_database(database) {}
ExternalReferences::~ExternalReferences() = default;

CString ExternalReferences::findFile(const CString& path, const CString& drawing) {
  namespace fs = std::filesystem;
  const std::string native = afx::NativePath(path);
  if (native.empty()) return {};
  const fs::path folder = fs::path(afx::NativePath(drawing)).parent_path();
  const fs::path wanted(native);
  std::vector<fs::path> places;
  if (wanted.is_relative() && !drawing.IsEmpty()) places.push_back(folder / wanted);
  places.push_back(wanted);
  if (!drawing.IsEmpty()) places.push_back(folder / wanted.filename());
  for (const fs::path& place : places)
    if (isFile(place.string())) return CString::FromUtf8(place.lexically_normal().string());
  return {};
}

Acad::ErrorStatus ExternalReferences::fail(State& state, Acad::ErrorStatus status, const CString& reason) {
  state.status = status == Acad::eFileNotFound ? AcDb::kXrfFileNotFound : AcDb::kXrfUnresolved;
  state.reason = reason;
  state.drawing.reset();
  afx::LogError(reason);
  return status;
}

Acad::ErrorStatus ExternalReferences::load(const AcDbObjectId& block) {
  std::vector<CString> chain;
  if (!m_database.fileName().IsEmpty()) chain.push_back(realPath(m_database.fileName()));
  return loadInto(block, chain);
}

Acad::ErrorStatus ExternalReferences::loadInto(const AcDbObjectId& id, const std::vector<CString>& chain) {
  const AcDbBlockTableRecord* block = xrefBlock(id);
  if (!block) return Acad::eNotThatKindOfClass;
  State& state = m_states[id];
  const CString found = findFile(block->pathName(), m_database.fileName());
  if (found.IsEmpty())
    return fail(state, Acad::eFileNotFound, quoted(L"找不到外部参照文件“%s”", block->pathName()));
  const CString real = realPath(found);
  if (std::find(chain.begin(), chain.end(), real) != chain.end() || chain.size() >= kMaxDepth)
    return fail(state, Acad::eCircularReference, quoted(L"外部参照文件“%s”循环引用", block->pathName()));
  auto drawing = std::make_unique<AcDbDatabase>(false);
  auto* files = AcDbDrawingFiles::registered();
  if (!files) return Acad::eNotApplicable;
  CString why;
  const auto status = files->read(*drawing, found, why);
  if (status != Acad::eOk)
    return fail(state, status, quoted(L"外部参照文件“%s”不能读取：", block->pathName()) + why);
  drawing->setFileName(found);
  std::vector<CString> longer = chain;
  longer.push_back(real);
  // A circle further down breaks there, and is a matter of the one who closes it.
  const bool circular = !drawing->xrefs().loadAll(longer).empty();
  state.drawing = std::move(drawing);
  state.status = AcDb::kXrfResolved;
  state.reason.Empty();
  return circular ? Acad::eCircularReference : Acad::eOk;
}

// Everything that a drawing which is itself referred to brings along; gives the blocks that close a circle.
std::vector<CString> ExternalReferences::loadAll(const std::vector<CString>& chain) {
  std::vector<CString> circular;
  for (const AcDbObjectId& id : acdbXrefBlocks(m_database)) {
    const auto* block = xrefBlock(id);
    if (block->isFromOverlayReference()) continue;
    if (loadInto(id, chain) == Acad::eCircularReference) circular.push_back(block->name());
  }
  return circular;
}

void ExternalReferences::unload(const AcDbObjectId& block) {
  State& state = m_states[block];
  state.drawing.reset();
  state.reason.Empty();
  state.status = AcDb::kXrfUnloaded;
}

void ExternalReferences::forget(const AcDbObjectId& block) {
  m_states.erase(block);
}

AcDb::XrefStatus ExternalReferences::status(const AcDbObjectId& block) const {
  const auto state = m_states.find(block);
  return state == m_states.end() ? AcDb::kXrfUnresolved : state->second.status;
}

CString ExternalReferences::reason(const AcDbObjectId& block) const {
  const auto state = m_states.find(block);
  return state == m_states.end() ? CString() : state->second.reason;
}

AcDbDatabase* ExternalReferences::drawing(const AcDbObjectId& block) const {
  const auto state = m_states.find(block);
  return state == m_states.end() ? nullptr : state->second.drawing.get();
}

std::vector<AcDbObjectId> acdbXrefBlocks(const AcDbDatabase& database) {
  std::vector<AcDbObjectId> blocks;
  for (const AcDbObjectId& id : database.tableOf("BLOCK_RECORD")->records())
    if (xrefBlock(id)) blocks.push_back(id);
  return blocks;
}

namespace {

Acad::ErrorStatus attach(AcDbDatabase* host, const wchar_t* fileName, const wchar_t* blockName, bool overlay,
                         AcDbObjectId& id) {
  if (!host) return Acad::eNoDatabase;
  if (!fileName || !*fileName || !blockName) return Acad::eInvalidInput;
  auto* block = new AcDbBlockTableRecord;
  auto status = block->setName(blockName);
  AcDbObjectId made;
  if (status == Acad::eOk) {
    AcDbObjectPointer<AcDbBlockTable> table(host->blockTableId(), AcDb::kForWrite);
    status = table ? table->add(made, block) : table.openStatus();
  }
  if (status != Acad::eOk) {
    delete block;
    return status;
  }
  status = block->makeExternalReference(fileName, overlay);
  block->close();
  if (status == Acad::eOk) status = host->xrefs().load(made);
  if (status == Acad::eOk) {
    id = made;
    return Acad::eOk;
  }
  host->xrefs().forget(made);
  AcDbObjectPointer<AcDbBlockTableRecord>(made, AcDb::kForWrite)->erase();
  return status;
}

} // namespace

Acad::ErrorStatus acdbAttachXref(AcDbDatabase* host, const wchar_t* fileName, const wchar_t* blockName,
                                 AcDbObjectId& block) {
  return attach(host, fileName, blockName, false, block);
}

Acad::ErrorStatus acdbOverlayXref(AcDbDatabase* host, const wchar_t* fileName, const wchar_t* blockName,
                                  AcDbObjectId& block) {
  return attach(host, fileName, blockName, true, block);
}

Acad::ErrorStatus acdbDetachXref(AcDbDatabase* host, const AcDbObjectId& id) {
  if (!host) return Acad::eNoDatabase;
  if (!xrefBlock(id) || id.database() != host) return Acad::eNotThatKindOfClass;
  for (const AcDbStub& stub : host->stubs()) {
    const auto* reference = AcDbBlockReference::cast(stub.object);
    if (reference && !reference->isErased() && reference->blockTableRecord() == id)
      host->eraseWhole(*stub.object);
  }
  AcDbObjectPointer<AcDbBlockTableRecord> block(id, AcDb::kForWrite);
  if (!block) return block.openStatus();
  const auto status = block->erase();
  if (status == Acad::eOk) host->xrefs().forget(id);
  return status;
}

Acad::ErrorStatus acdbUnloadXrefs(AcDbDatabase* host, const std::vector<AcDbObjectId>& blocks) {
  if (!host) return Acad::eNoDatabase;
  Acad::ErrorStatus first = Acad::eOk;
  for (const AcDbObjectId& id : blocks) {
    if (xrefBlock(id) && id.database() == host)
      host->xrefs().unload(id);
    else if (first == Acad::eOk)
      first = Acad::eNotThatKindOfClass;
  }
  return first;
}

Acad::ErrorStatus acdbReloadXrefs(AcDbDatabase* host, const std::vector<AcDbObjectId>& blocks) {
  if (!host) return Acad::eNoDatabase;
  Acad::ErrorStatus first = Acad::eOk;
  for (const AcDbObjectId& id : blocks) {
    const auto status = id.database() == host ? host->xrefs().load(id) : Acad::eWrongDatabase;
    if (first == Acad::eOk) first = status;
  }
  return first;
}

Acad::ErrorStatus acdbResolveCurrentXRefs(AcDbDatabase* host) {
  if (!host) return Acad::eNoDatabase;
  std::vector<AcDbObjectId> open;
  for (const AcDbObjectId& id : acdbXrefBlocks(*host)) {
    const auto status = host->xrefs().status(id);
    if (status != AcDb::kXrfResolved && status != AcDb::kXrfUnloaded) open.push_back(id);
  }
  return acdbReloadXrefs(host, open);
}

namespace {

void collectProblems(const AcDbDatabase& drawing, const CString& prefix, bool isNested,
                     std::vector<XrefProblem>& problems) {
  for (const AcDbObjectId& id : acdbXrefBlocks(drawing)) {
    const auto* block = xrefBlock(id);
    if (isNested && block->isFromOverlayReference()) continue;
    const CString name = prefix + block->name();
    const CString reason = drawing.xrefs().reason(id);
    if (!reason.IsEmpty()) problems.push_back({name, reason});
    if (const AcDbDatabase* inner = block->xrefDatabase())
      collectProblems(*inner, name + L"|", true, problems);
  }
}

} // namespace

std::vector<XrefProblem> acdbXrefProblems(const AcDbDatabase& database) {
  std::vector<XrefProblem> problems;
  collectProblems(database, CString(), false, problems);
  return problems;
}
