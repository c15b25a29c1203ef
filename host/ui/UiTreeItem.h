// One line of a tree with what hangs below it. Made and deleted by its tree.
#pragma once

#include "host/afx/CString.h"

#include <memory>
#include <vector>

struct UiTreeItem {
  CString text;
  void* data = nullptr; // the program's
  bool expanded = false;
  bool checked = false; // trees with ticks only
  UiTreeItem* parent = nullptr;
  std::vector<std::unique_ptr<UiTreeItem>> children;
};

using HTREEITEM = UiTreeItem*;
