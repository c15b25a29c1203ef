// Property lists from tables: a row has `group` (begins one; null goes on with the last), `label`, `kind` and
// `choices`, and may have `info`.
#pragma once

#include <vector>

#include "host/ui/CPropTree.h"

// Adds the groups and items at the end of the list, without values.
template <class Row> void AddPropertyRows(CPropTree& list, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    if (row.group) list.AddGroup(row.group);
    CPropTreeItem item;
    item.label = row.label;
    item.kind = row.kind;
    item.choices = row.choices;
    if constexpr (requires { row.info; }) item.info = row.info;
    list.AddItem(std::move(item));
  }
}
