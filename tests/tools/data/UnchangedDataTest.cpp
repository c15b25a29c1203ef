// The shipped installation after a session that looked at everything, changed nothing and saved it all.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>

#include "ZpPaths.h"
#include "plugin/base/VkDtDictionary.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/WaterDatabase.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"
#include "plugin/pipes/limits/CZPFlowVelocityMng.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/resistance/CZPLocalResistanceMng.h"
#include "tests/support/TempInstall.h"

namespace {

namespace fs = std::filesystem;

const fs::path kShipped = fs::path(ZP_SOURCE_DIR) / "data";

std::map<std::string, std::string> FilesBelow(const fs::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    std::ifstream stream(entry.path(), std::ios::binary);
    files[fs::relative(entry.path(), folder).string()] = {std::istreambuf_iterator<char>(stream), {}};
  }
  return files;
}

// Each one as it is read at its first use.
bool SaveAllCatalogues() {
  CZPManagerLayer& layers = *CZPManagerLayer::GetInstance();
  VkDtDictionary water(nullptr, nullptr);
  bool saved = layers.ReadData(L"默认方案") && layers.SaveData();
  saved &= CZPPipeMaterialManager::GetInstance()->SaveData();
  saved &= CZPDuctMaterialManager::GetInstance()->SaveData();
  saved &= CZPFlowVelocityMng::GetInstance()->SaveData() != 0;
  saved &= CZPLocalResistanceMng::GetInstance()->SaveData() != 0;
  saved &= CZPRadiatorManager::GetInstance()->SaveData();
  saved &= CFCUManager::GetInstance()->SaveData() != 0;
  saved &= water.ReadFromXML(fancoil::WaterDatabasePath()) && water.SaveToXML(fancoil::WaterDatabasePath());
  return saved;
}

// Tells which files are not what was shipped, and which shipped one of a catalogue was not written anew.
bool IsAsShipped(const fs::path& folder, fs::file_time_type before) {
  bool same = true;
  const auto tell = [&](const std::string& file, const char* what) {
    std::cerr << file << ": " << what << "\n";
    same = false;
  };
  const auto shipped = FilesBelow(kShipped);
  const auto saved = FilesBelow(folder);
  for (const auto& [name, bytes] : saved) {
    const auto found = shipped.find(name);
    if (found == shipped.end()) {
      tell(name, "was not shipped");
    } else if (found->second != bytes) {
      tell(name, "has changed");
    }
  }
  for (const auto& [name, bytes] : shipped) {
    if (!saved.contains(name)) {
      tell(name, "is gone");
    } else if ((name.ends_with(".idp") || name.ends_with(".xml")) &&
               fs::last_write_time(folder / name) == before) {
      tell(name, "belongs to a catalogue that this test doesn't save");
    }
  }
  return same;
}

// In a process of its own, where no catalogue has been read yet.
TEST(UnchangedData, IsTheSameByteForByteAfterEveryCatalogueWasSaved) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        const TempInstall install;
        fs::copy(kShipped, install.Root(), fs::copy_options::recursive);
        const fs::file_time_type old =
            std::chrono::floor<std::chrono::hours>(fs::file_time_type::clock::now()) - std::chrono::hours(24);
        for (const auto& entry : fs::recursive_directory_iterator(install.Root()))
          fs::last_write_time(entry.path(), old);
        const bool same = SaveAllCatalogues() && IsAsShipped(install.Root(), old);
        fs::remove_all(install.Root()); // exit destroys no local object
        std::exit(same ? 0 : 1);
      },
      testing::ExitedWithCode(0), "^$");
}

} // namespace
