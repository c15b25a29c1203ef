// The kinds of windows. A front end has one way of showing each.
#pragma once

enum class UiKind {
  window, // of the front end's own, such as its frame
  dialog,
  page,    // of a tab sheet
  dockBar, // beside the drawing
  label,
  picture,
  button,
  checkBox,
  radioGroup,
  edit,
  numberEdit, // with or without a spin button
  comboBox,
  listBox,
  tree,  // with or without ticks
  table, // grids, lists and reports
  propTree,
  tabSheet,
  preview
};
