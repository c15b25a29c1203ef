// Contents are compared by a hash and not by the time of the file, whose grain would hide a change that
// follows within milliseconds.
#include "plugin/base/idp/KnownFiles.h"

#include <filesystem>
#include <functional>
#include <string>
#include <unordered_map>

#include "host/afx/AtomicFile.h"
#include "host/afx/MessageLog.h"
#include "host/afx/Paths.h"
#include "plugin/base/CIDPEx.h"
#include "plugin/base/idp/Limits.h"
#include "plugin/base/idp/Reader.h"

namespace idp {

namespace {

struct Knowledge {
  std::size_t contentHash = 0;
  bool foreign = false;
};

// Goes with the plug-in: what a plug-in that is unloaded leaves behind nobody can free.
std::unordered_map<std::string, Knowledge>& Known() {
  static std::unordered_map<std::string, Knowledge> known;
  return known;
}

std::size_t HashOf(std::string_view content) {
  return std::hash<std::string_view>()(content);
}

bool Parses(std::string content) {
  CIDPEx tree;
  PaddedText text{std::move(content)};
  Fault fault;
  return ReadTree(tree, text, fault);
}

bool MustBeKept(const CString& path, std::string content) {
  const auto known = Known().find(afx::NativePath(path));
  if (known != Known().end() && known->second.contentHash == HashOf(content)) return known->second.foreign;
  return !Parses(std::move(content));
}

} // namespace

void RememberGood(const CString& path, std::string_view content) {
  Knowledge& knowledge = Known()[afx::NativePath(path)];
  const std::size_t hash = HashOf(content);
  if (knowledge.contentHash != hash) knowledge = {hash, false};
}

void RememberForeign(const CString& path) {
  std::string content;
  if (!afx::ReadWholeFile(path, content, kTextLimit).ok) return;
  Known()[afx::NativePath(path)] = {HashOf(content), true};
}

bool KeepWhatWouldBeLost(const CString& path) {
  std::error_code error;
  const auto status = std::filesystem::status(afx::NativePath(path), error);
  if (status.type() == std::filesystem::file_type::not_found) return true;
  std::string content;
  if (afx::ReadWholeFile(path, content, kTextLimit).ok && !MustBeKept(path, std::move(content))) return true;
  return !afx::RescueFile(path).IsEmpty();
}

} // namespace idp
