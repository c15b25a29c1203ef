// What part of a drawing is shown, with or without a window: what ZOOM changes, and what a drawing that was
// saved is opened with again.
#pragma once

#include "host/ed/EdView.h"
#include "host/ge/Box2d.h"

#include <optional>

class AcApDocument;

namespace ed {

// The view set last; else the one that the drawing was saved with, if it has one; else all of it.
EdView CurrentView(const AcApDocument& document);
// Shows it, and remembers the one before. False, and nothing happens, unless height and centre are finite and
// the height above 0.
bool SetView(AcApDocument& document, EdView view);
// Back to the view before; false when there is none.
bool SetPreviousView(AcApDocument& document);

// The least view with this box in its middle, and a little room around it.
EdView ViewOf(const AcApDocument& document, const ge::Box2d& box);
// The box around all that is drawn; nothing for an empty drawing.
std::optional<ge::Box2d> DrawnBox(const AcApDocument& document);

// Puts a view that was set into the drawing, to be saved with it.
void FileView(AcApDocument& document);

} // namespace ed
