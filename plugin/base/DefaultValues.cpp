// One flat parameter file. Each write reads the file afresh, so that two programs at work side by side keep
// each other's values.
#include "plugin/base/DefaultValues.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <unordered_map>
#include <variant>

#include "plugin/base/CIDPEx.h"
#include "plugin/base/VersionMark.h"

namespace ZP {

namespace {

constexpr const wchar_t* kVersion = L"Version:1.0";

CString UserFile() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data && data[0] == '/') return CString::FromUtf8(data) + L"/zppipemanager/Defaults.idp";
  const char* home = std::getenv("HOME");
  return CString::FromUtf8(home ? home : ".") + L"/.local/share/zppipemanager/Defaults.idp";
}

class Defaults {
 public:
  void SetFile(const CString& path) {
    m_path = path;
    m_tree.reset();
    m_unsaved.clear();
  }

  template <class Value> int Get(const CString& key, Value& out) { return Tree().GetSubValue(key, out); }

  template <class Value> int Set(const CString& key, const Value& value) {
    Value old{};
    if (m_unsaved.empty() && Tree().GetSubValue(key, old) && old == value) return 1;
    m_unsaved[key] = value;
    m_tree = Load();
    if (!m_tree->Save(m_path)) return 0;
    m_unsaved.clear();
    return 1;
  }

 private:
  CIDPEx& Tree() {
    if (!m_tree) m_tree = Load();
    return *m_tree;
  }

  // The file as it is now, with what could not be saved so far.
  std::unique_ptr<CIDPEx> Load() {
    if (m_path.IsEmpty()) m_path = UserFile();
    auto tree = std::make_unique<CIDPEx>();
    if (tree->Open(m_path)) {
      CString version;
      tree->GetValue(version);
      if (!CheckVersionMark(m_path, version, {kVersion})) tree->ClearDataFromMemory();
    }
    tree->SetValue(kVersion);
    for (const auto& [key, value] : m_unsaved) {
      std::visit([&, &name = key](const auto& set) { tree->SetSubValue(name, set); }, value);
    }
    return tree;
  }

  CString m_path;
  std::unique_ptr<CIDPEx> m_tree;
  std::unordered_map<CString, std::variant<double, CString>> m_unsaved;
};

// Goes with the plug-in: what a plug-in that is unloaded leaves behind nobody can free.
Defaults& TheDefaults() {
  static Defaults defaults;
  return defaults;
}

} // namespace

int GetDefaultValue(const CString& key, double& out) {
  return TheDefaults().Get(key, out);
}

int GetDefaultValue(const CString& key, CString& out) {
  return TheDefaults().Get(key, out);
}

int SetDefaultValue(const CString& key, double value) {
  return TheDefaults().Set(key, value);
}

int SetDefaultValue(const CString& key, const CString& value) {
  return TheDefaults().Set(key, value);
}

void SetDefaultValuesFile(const CString& path) {
  TheDefaults().SetFile(path);
}

} // namespace ZP
