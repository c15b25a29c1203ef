// What of a window has changed, for those who show it. They read the new state from the window.
#pragma once

struct UiChange {
  enum class Kind {
    look,      // caption, tool tip, enabled, visible
    content,   // anything of what it holds
    row,       // the texts and colours of one row
    selection, // which rows, items or pages are selected, and the cell in focus
    edit       // an in-place edit has begun or ended
  };
  Kind kind = Kind::content;
  int row = -1; // Kind::row only
};
