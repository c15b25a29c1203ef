// A named group of layers of drawings. It knows them by name alone, so it serves every drawing that has
// layers of these names.
#pragma once

#include "host/afx/CStringArray.h"
#include "plugin/base/CZPObject.h"

class CCADGroupLayer : public CZPObject {
  DECLARE_DYNAMIC(CCADGroupLayer)

 public:
  CStringArray Layers; // names, in the order of the tree that they were ticked in
};
