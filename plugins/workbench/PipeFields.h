// The data that a pipe carries, one row for each: how it is called, shown and changed. Whoever shows or edits
// a pipe walks this table.
#pragma once

#include "plugins/workbench/Asking.h"
#include "plugins/workbench/PickPipe.h"

#include <span>

namespace workbench {

struct PipeField {
  const wchar_t* title;
  const wchar_t* key;  // the letters that choose it in a prompt
  const wchar_t* unit; // "" where there is none
  bool ofMain;
  bool ofRiser;
  Range range; // of a number

  // The value as text; nothing when the pipe hasn't any.
  std::optional<CString> (*read)(const AcDbObjectId& id);
  // Asks for a new value, with the present one as default, and writes it. False for Escape.
  bool (*change)(const PipeField& field, const AcDbObjectId& id);

  // Velocity and friction follow from it: WB_GJJS reckons them anew.
  bool decidesFlow = false;

  bool isOf(PipeKind kind) const { return kind == PipeKind::main ? ofMain : ofRiser; }
  // "管径(mm)".
  CString subject() const;
};

std::span<const PipeField> PipeFields();

} // namespace workbench
