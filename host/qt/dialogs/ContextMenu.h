// The menu of a right click on a control.
#pragma once

#include "host/ui/UiContextMenu.h"

#include <QPoint>

class QWidget;

namespace desktop {

// Shows what the menu offers now, and hands over the choice.
UiOutcome ShowContextMenu(UiContextMenu& menu, const QPoint& at, QWidget* parent);

} // namespace desktop
