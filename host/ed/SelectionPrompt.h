// Asks the user to select entities: adds line by line until an empty one.
#pragma once

#include "host/ed/SelectionFilter.h"
#include "host/ed/SelectionSets.h"

namespace ed {

struct SelectionQuestion {
  CString prompt = L"选择对象:";
  bool single = false;      // ends with the first entity
  bool usePickFirst = true; // takes what was selected before the command, if the command works on that
};

struct SelectionAnswer {
  bool cancelled = false;
  SelectionSet set;
};

SelectionAnswer AskSelection(const SelectionQuestion& question, const SelectionFilter& filter);

// Those that the filter takes and that are not erased.
std::vector<AcDbObjectId> Filtered(const std::vector<AcDbObjectId>& ids, const SelectionFilter& filter);

} // namespace ed
