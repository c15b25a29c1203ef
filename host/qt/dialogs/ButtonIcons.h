// The pictures of image buttons, drawn here so that they are sharp at any scale.
#pragma once

#include "host/ui/CButton.h"

#include <QIcon>

namespace desktop {

QIcon ButtonIcon(CButton::Image image);

} // namespace desktop
