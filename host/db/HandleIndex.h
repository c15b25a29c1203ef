// The objects of a drawing by handle. Handles mostly follow one another, so neighbours share a page: a
// drawing of a million objects costs a few thousand entries of a hash map.
#pragma once

#include "host/db/AcDbObjectId.h"

#include <array>
#include <unordered_map>

class HandleIndex {
 public:
  // Null when no object has the handle.
  AcDbStub* find(AcDbHandle handle) const {
    const auto page = m_pages.find(handle.value() / kPageSize);
    return page == m_pages.end() ? nullptr : page->second[handle.value() % kPageSize];
  }
  // False when the handle is taken.
  bool insert(AcDbHandle handle, AcDbStub* stub) {
    const std::uint64_t number = handle.value() / kPageSize;
    if (!m_latest || m_latestNumber != number) {
      m_latest = &m_pages[number];
      m_latestNumber = number;
    }
    AcDbStub*& place = (*m_latest)[handle.value() % kPageSize];
    if (place) return false;
    place = stub;
    return true;
  }

 private:
  static constexpr std::uint64_t kPageSize = 32;
  using Page = std::array<AcDbStub*, kPageSize>; // empty places are null

  std::unordered_map<std::uint64_t, Page> m_pages;
  Page* m_latest = nullptr; // pages stay where they are
  std::uint64_t m_latestNumber = 0;
};
