// The store of coefficients as it is when the program starts with what is shipped.
#pragma once

#include <filesystem>

#include "ZpPaths.h"
#include "tests/plugin/resistance/FreshStore.h"
#include "tests/support/TempInstall.h"

// Copies the shipped data into the installation, and gives the program's one store, read from there.
inline CZPLocalResistanceMng& StoreOfShippedData(const TempInstall& install) {
  std::filesystem::copy(ZP_SOURCE_DIR "/data", install.Root(), std::filesystem::copy_options::recursive);
  CZPLocalResistanceMng& store = *CZPLocalResistanceMng::GetInstance();
  store = *FreshStore();
  return store;
}
