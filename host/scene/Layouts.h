// The layouts of a drawing, in the order of their tabs.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/ge/Box2d.h"

#include <vector>

class AcDbDatabase;

namespace scene {

struct Layout {
  CString name;
  AcDbObjectId space;
  int tab = 0;
  ge::Box2d paper;           // in the layout's coordinates; empty where the drawing tells no sheet
  double unit = 1;           // millimetres of paper for 1 of its coordinates
  bool isModelSpace = false; // the tab of model space is a layout as well
};

std::vector<Layout> LayoutsOf(AcDbDatabase& database);

} // namespace scene
