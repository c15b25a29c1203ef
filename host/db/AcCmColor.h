// A colour by index: 0 by block, 1 to 255 of the palette, 256 by layer.
#pragma once

#include "host/db/AcadStatus.h"

class AcCmColor {
 public:
  static constexpr int kByBlock = 0;
  static constexpr int kByLayer = 256;

  AcCmColor() = default;
  explicit AcCmColor(int index) : m_index(index) {}
  int colorIndex() const { return m_index; }
  // eInvalidInput outside 0 to 256; the colour stays as it was.
  Acad::ErrorStatus setColorIndex(int index) {
    if (index < kByBlock || index > kByLayer) return Acad::eInvalidInput;
    m_index = index;
    return Acad::eOk;
  }
  bool isByLayer() const { return m_index == kByLayer; }
  bool isByBlock() const { return m_index == kByBlock; }
  bool operator==(const AcCmColor&) const = default;

 private:
  int m_index = kByLayer;
};
