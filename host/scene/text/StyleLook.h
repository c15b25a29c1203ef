// Text styles, read once.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/scene/text/Font.h"

#include <unordered_map>

class AcDbDatabase;

namespace scene {

struct StyleLook {
  Font font;
  double height = 0; // 0: each text has its own
  double widthFactor = 1;
  double oblique = 0; // radians
  bool backward = false;
  bool upsideDown = false;
};

class StyleLooks {
 public:
  explicit StyleLooks(const AcDbDatabase& database);
  const StyleLook& of(const AcDbObjectId& style) const;
  const StyleLook& of(const CString& name) const; // without case

 private:
  std::unordered_map<AcDbObjectId, StyleLook> m_looks;
  std::unordered_map<CString, AcDbObjectId> m_byName; // in small letters
  StyleLook m_none;
};

} // namespace scene
