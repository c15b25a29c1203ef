// A folder of a test's own, removed with all it holds at the end of the test.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "host/afx/CString.h"

class TemporaryFolder {
 public:
  TemporaryFolder()
      : m_path(std::filesystem::temp_directory_path() /
               ("afx-test-" + std::to_string(std::random_device()()) + "-" +
                std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(m_path);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return m_path; }
  CString operator/(const std::string& name) const { return CString::FromUtf8((m_path / name).string()); }

  void Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(m_path / name, std::ios::binary) << bytes;
  }
  std::string Get(const std::string& name) const {
    std::ifstream file(m_path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // The names in the folder, sorted.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_path))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path m_path;
};
