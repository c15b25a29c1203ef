// Makes the module's resources those of the running code for the length of a scope, also when an exception
// leaves it: whoever shows a dialog does so inside one.
#pragma once

#include "host/ed/AcApDocManager.h"
#include "plugin/graph/ModuleResources.h"

class ResourceBracket {
 public:
  explicit ResourceBracket(void* resources = module::ResourceHandle()) {
    acDocManagerPtr()->pushResourceHandle(resources);
  }
  ~ResourceBracket() { acDocManagerPtr()->popResourceHandle(); }
  ResourceBracket(const ResourceBracket&) = delete;
  ResourceBracket& operator=(const ResourceBracket&) = delete;
};
