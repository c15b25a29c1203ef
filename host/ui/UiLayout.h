// How the controls of a form are arranged: rows and columns within each other. Sizes are pixels at 96 dpi.
#pragma once

#include "host/afx/CString.h"

#include <vector>

class CWnd;

struct UiLayout {
  enum class Kind {
    column, // children below each other
    row,    // children beside each other
    group,  // a column in a frame with a title
    control,
    space // takes the room that nobody else wants
  };
  Kind kind = Kind::column;
  CString title;           // of a group
  CWnd* control = nullptr; // Kind::control
  int stretch = 0;         // share of the room that is left over, beside its neighbours
  int width = 0;           // wanted; 0: whatever the content needs
  int height = 0;
  std::vector<UiLayout> children;

  UiLayout Stretch(int share) && {
    stretch = share;
    return std::move(*this);
  }
  UiLayout Size(int wantedWidth, int wantedHeight) && {
    width = wantedWidth;
    height = wantedHeight;
    return std::move(*this);
  }
};

namespace ui {

inline UiLayout Column(std::vector<UiLayout> children) {
  return {UiLayout::Kind::column, {}, nullptr, 0, 0, 0, std::move(children)};
}
inline UiLayout Row(std::vector<UiLayout> children) {
  return {UiLayout::Kind::row, {}, nullptr, 0, 0, 0, std::move(children)};
}
inline UiLayout Group(const CString& title, std::vector<UiLayout> children) {
  return {UiLayout::Kind::group, title, nullptr, 0, 0, 0, std::move(children)};
}
inline UiLayout Item(CWnd& control) {
  return {UiLayout::Kind::control, {}, &control, 0, 0, 0, {}};
}
inline UiLayout Space() {
  return {UiLayout::Kind::space, {}, nullptr, 1, 0, 0, {}};
}

} // namespace ui
