#include "plugin/fancoil/dialogs/BlockFiles.h"

#include <algorithm>
#include <limits>

#include "plugin/base/Folders.h"
#include "plugin/base/NumberText.h"

namespace {

template <class Visit> void ForEachModel(const CFCUManager& catalogue, Visit visit) {
  for (const CFCUFactory* factory : catalogue.m_arrFactories) {
    if (!factory) continue;
    for (const CFCUEquipment* equipment : factory->m_arrEquipments)
      if (equipment) visit(*equipment);
  }
}

} // namespace

CString fancoil::BlockFile(const CString& block) {
  return ZP::GetFCUDwgFilesPath() + block + L".Dwg";
}

CString fancoil::FreeBlockName(const CFCUManager& catalogue) {
  constexpr double most = std::numeric_limits<int>::max() - 1;
  int highest = 0;
  ForEachModel(catalogue, [&](const CFCUEquipment& equipment) {
    const double number = std::min(ZP::GetCStringRightNumber(equipment.m_data.szDwgPath), most);
    highest = std::max(highest, static_cast<int>(number));
  });
  return L"FJPG" + ZP::itoa(highest + 1);
}

int fancoil::CountModelsOfBlock(const CFCUManager& catalogue, const CString& block) {
  int count = 0;
  ForEachModel(catalogue, [&](const CFCUEquipment& equipment) {
    if (equipment.m_data.szDwgPath == block) ++count;
  });
  return count;
}
