// The two lists of sizes in the catalogue of ducts: what goes in and out, and how they are sorted.
#include <algorithm>
#include <limits>
#include <vector>

#include "host/afx/Numbers.h"
#include "plugin/pipes/OwnedElements.h"
#include "plugin/pipes/ducts/CZPDuctMaterialManager.h"

namespace {

using Sizes = pipes::OwnedElements<CZPDuctDiameter>;

struct KeyedSize {
  double key;
  CZPDuctDiameter* size;
};

// In ascending order; sizes of one key keep the order that they had. Null elements come last.
std::vector<KeyedSize> SortedSizes(const Sizes& sizes) {
  constexpr double kLast = std::numeric_limits<double>::infinity(); // beyond what a finite width can give
  std::vector<KeyedSize> sorted;
  sorted.reserve(static_cast<std::size_t>(sizes.GetSize()));
  for (CZPDuctDiameter* size : sizes)
    sorted.push_back({size ? afx::wcstod(size->GetSizeText(), nullptr) : kLast, size});
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const KeyedSize& a, const KeyedSize& b) { return a.key < b.key; });
  return sorted;
}

void Rebuild(Sizes& sizes, const std::vector<KeyedSize>& from) {
  sizes.SetSize(static_cast<int>(from.size()));
  int index = 0;
  for (const KeyedSize& keyed : from) sizes[index++] = keyed.size;
}

} // namespace

void CZPDuctMaterialManager::SortRectDuctDiameter() {
  Rebuild(m_arrRectDiameters, SortedSizes(m_arrRectDiameters));
}

// Deliberately unlike the rectangular sizes: a round size has nothing but its diameter, so a second one of
// the diameter is no other size.
void CZPDuctMaterialManager::SortCircleDuctDiameter() {
  std::vector<KeyedSize> sorted = SortedSizes(m_arrCircleDiameters);
  const auto repeated = std::unique(sorted.begin(), sorted.end(), [](const KeyedSize& a, const KeyedSize& b) {
    return a.size && b.size && a.key == b.key;
  });
  sorted.erase(repeated, sorted.end());
  Rebuild(m_arrCircleDiameters, sorted);
}

bool CZPDuctMaterialManager::AddRectDuctDiameter(CZPDuctDiameter* size) {
  if (!size || pipes::Contains(m_arrRectDiameters, size)) return false;
  m_arrRectDiameters.Add(size);
  SortRectDuctDiameter();
  return true;
}

bool CZPDuctMaterialManager::AddCircleDuctDiameter(CZPDuctDiameter* size) {
  if (!size || pipes::Contains(m_arrCircleDiameters, size)) return false;
  m_arrCircleDiameters.Add(size);
  SortCircleDuctDiameter();
  return true;
}

bool CZPDuctMaterialManager::RemoveRectDuctDiameter(CZPDuctDiameter* size) {
  return pipes::RemoveElement(m_arrRectDiameters, size);
}

bool CZPDuctMaterialManager::RemoveCircleDuctDiameter(CZPDuctDiameter* size) {
  return pipes::RemoveElement(m_arrCircleDiameters, size);
}
