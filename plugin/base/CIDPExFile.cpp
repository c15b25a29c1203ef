// Opening and saving parameter files. Nothing here tells the user: a failure is a result and a line of the
// log.
#include <filesystem>

#include "host/afx/AtomicFile.h"
#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/base/idp/KnownFiles.h"
#include "plugin/base/idp/Limits.h"
#include "plugin/base/idp/NodeAccess.h"
#include "plugin/base/idp/Reader.h"
#include "plugin/base/idp/Writer.h"

namespace fs = std::filesystem;

namespace {

void LogFailure(const CString& path, const CString& reason) {
  afx::LogError(L"参数文件 " + path + L"：" + reason);
}

} // namespace

int CIDPEx::Open(CString path) {
  idp::NodeAccess::Reset(*this);
  const fs::path native = afx::NativePath(path);
  std::error_code error;
  const auto status = fs::status(native, error);
  if (status.type() == fs::file_type::not_found) return 0; // the normal state of a first run
  idp::PaddedText text;
  if (const auto size = fs::file_size(native, error); !error && size <= idp::kTextLimit) {
    text.bytes.reserve(static_cast<std::size_t>(size) + idp::PaddedText::kPadding);
  }
  const afx::FileResult read = afx::ReadWholeFile(path, text.bytes, idp::kTextLimit);
  if (!read.ok) {
    LogFailure(path, read.message);
    return 0;
  }
  idp::Fault fault;
  if (!idp::ReadTree(*this, text, fault)) {
    LogFailure(path, idp::Describe(fault) + L"。未读入，下次保存前先另存一份");
    return 0;
  }
  idp::RememberGood(path, text.bytes);
  return 1;
}

int CIDPEx::Save(CString path) {
  std::string text;
  if (!idp::WriteTree(*this, text)) {
    LogFailure(path, L"嵌套超过 1024 层或超过 256 MiB，未保存");
    return 0;
  }
  const fs::path native = afx::NativePath(path);
  std::error_code error;
  if (native.has_parent_path()) fs::create_directories(native.parent_path(), error); // a failure shows below
  if (!idp::KeepWhatWouldBeLost(path)) {
    LogFailure(path, L"原文件无法另存，未保存");
    return 0;
  }
  const afx::FileResult written = afx::WriteFileAtomically(path, text);
  if (!written.ok) {
    LogFailure(path, written.message);
    return 0;
  }
  idp::RememberGood(path, text);
  return 1;
}

void CIDPEx::MarkForeign(CString path) {
  idp::RememberForeign(path);
}
