// A folder of a test's own that goes away with it, and the files in it.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

#include "host/afx/CString.h"

class TemporaryFolder {
 public:
  TemporaryFolder() {
    static int count = 0;
    m_path = std::filesystem::temp_directory_path() /
             ("zp_base_test_" + std::to_string(::getpid()) + "_" + std::to_string(++count));
    std::filesystem::create_directories(m_path);
  }
  ~TemporaryFolder() {
    std::error_code error;
    std::filesystem::remove_all(m_path, error);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::filesystem::path Native(const std::string& name) const { return m_path / name; }
  CString Path(const std::string& name) const { return CString::FromUtf8(Native(name).string()); }
  bool Has(const std::string& name) const { return std::filesystem::exists(Native(name)); }

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Native(name), std::ios::binary | std::ios::trunc) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream in(Native(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path m_path;
};
