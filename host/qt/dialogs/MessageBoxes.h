// Message boxes of the editor and of dialogs.
#pragma once

#include "host/ed/EdFrontEnd.h"
#include "host/ui/MessageBox.h"

class QWidget;

namespace desktop {

EdBoxResult ShowEditorBox(QWidget* parent, const EdMessageBox& box);
// The id of the button that was pressed. Escape presses the cancelling one, or the only one.
int ShowDialogBox(QWidget* parent, const UiMessageBox& box);

} // namespace desktop
