#include "plugins/workbench/SectionRecord.h"

#include "plugin/graph/XRecord.h"

#include <iterator>

namespace workbench {
namespace {

constexpr const wchar_t* kKey = L"局部阻力";

// Groups of the record.
constexpr int kFittingName = 300;
constexpr int kFittingNumber = 90; // of the name before it
constexpr int kCount = 91;         // 15 of them
constexpr int kOther = 40;
constexpr int kAddition = 41;

using Counts = CZPPipe3T4TCoeNum;
constexpr int Counts::*kCounts[] = {
    &Counts::merge3From1,        &Counts::merge3From2,        &Counts::split1To2,
    &Counts::split1To3,          &Counts::merge2From1,        &Counts::merge2From3,
    &Counts::split2To1,          &Counts::split2To3,          &Counts::obliqueSplit3To2,
    &Counts::obliqueMerge1From2, &Counts::obliqueMerge1From3, &Counts::obliqueMerge3From2,
    &Counts::cross1To2,          &Counts::cross1To4,          &Counts::cross1To3,
};

} // namespace

CZPLocalResistanceSettings ReadSection(const AcDbObjectId& pipe) {
  CZPLocalResistanceSettings section;
  resbuf* chain = nullptr;
  if (!ZP::GetXRecord(pipe, kKey, chain)) return section;
  const ResbufPtr owner(chain);
  CString name;
  std::size_t count = 0;
  for (const resbuf* group = chain; group; group = group->rbnext) {
    const ads_u_val& value = group->resval;
    if (group->restype == kFittingName) name = value.rstring;
    if (group->restype == kFittingNumber) {
      CZPPipeParts fitting(name, value.rlong);
      section.m_arrParts.Add(fitting);
    }
    if (group->restype == kCount && count < std::size(kCounts))
      section.m_num3T4T.*kCounts[count++] = value.rlong;
    if (group->restype == kOther) section.m_dOtherCoe = value.rreal;
    if (group->restype == kAddition) section.m_dAdditionCoe = value.rreal;
  }
  return section;
}

bool WriteSection(const AcDbObjectId& pipe, const CZPLocalResistanceSettings& section) {
  ResbufBuilder record;
  for (const CZPPipeParts& fitting : section.m_arrParts)
    record.text(kFittingName, fitting.GetName()).integer(kFittingNumber, fitting.GetNumber());
  for (const auto count : kCounts) record.integer(kCount, section.m_num3T4T.*count);
  record.real(kOther, section.m_dOtherCoe).real(kAddition, section.m_dAdditionCoe);
  return ZP::SetXRecord(pipe, kKey, record.chain()) != 0;
}

} // namespace workbench
