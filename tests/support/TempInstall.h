// An empty installation folder that the paths of the plug-in lead to while this lives; removed afterwards,
// and at the latest when the process ends, as some tests end it in their middle.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/afx/Paths.h"

class TempInstall {
 public:
  TempInstall() : m_before(afx::InstallRoot()) {
    std::string pattern = (std::filesystem::temp_directory_path() / "zpinstall-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw std::runtime_error("no temporary folder");
    m_root = pattern;
    static Remains remains; // outlives what is made later, such as a manager that saves at the end
    remains.roots.push_back(m_root);
    afx::SetInstallRoot(CString::FromUtf8(pattern));
  }
  ~TempInstall() {
    afx::SetInstallRoot(m_before);
    Remove(m_root);
  }
  TempInstall(const TempInstall&) = delete;
  TempInstall& operator=(const TempInstall&) = delete;

  const std::filesystem::path& Root() const { return m_root; }

  void Write(const std::filesystem::path& relative, const std::string& bytes) const {
    std::filesystem::create_directories((m_root / relative).parent_path());
    // Some file systems flush a file that is cut to nothing and written anew, which sweeps would wait for.
    std::error_code ignored;
    std::filesystem::remove(m_root / relative, ignored);
    std::ofstream(m_root / relative, std::ios::binary) << bytes;
  }
  std::string Read(const std::filesystem::path& relative) const {
    std::ifstream file(m_root / relative, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool Has(const std::filesystem::path& relative) const { return std::filesystem::exists(m_root / relative); }

 private:
  struct Remains {
    std::vector<std::filesystem::path> roots;
    ~Remains() {
      for (const auto& root : roots) Remove(root);
    }
  };
  static void Remove(const std::filesystem::path& root) {
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
  }

  std::filesystem::path m_root;
  CString m_before;
};
