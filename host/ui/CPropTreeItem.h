// One line of a property list.
#pragma once

#include "host/afx/CString.h"

#include <vector>

struct CPropTreeItem {
  enum class Kind {
    text,
    number,  // shown and typed as text
    integer, // likewise
    choice,  // one of the choices
    combo,   // one of the choices, or any text
    button   // shown as text; a button beside it opens a chooser
  };
  CString label; // the name of the item in its list
  Kind kind = Kind::text;
  CString text;
  std::vector<CString> choices;
  CString info; // told about the item while it is selected
  bool readOnly = false;
  bool hasTick = false;
  bool ticked = false;
  void* data = nullptr; // the program's

  // The place of the text among the choices, or -1.
  int ChoiceIndex() const;
};

struct CPropTreeGroup {
  CString title;
  bool expanded = true;
  std::vector<CPropTreeItem> items;
};
