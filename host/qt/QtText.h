// Texts between the host and Qt. A byte of a file that is no character (a lone surrogate in the host) goes
// through both ways unharmed.
#pragma once

#include "host/afx/CString.h"

#include <QString>

namespace desktop {

QString ToQt(const CString& text);
CString FromQt(const QString& text);
// As it may be shown: control characters and what is no character replaced. Line ends stay, of one sort.
QString Shown(const CString& text);
// A caption with "&" kept as the sign itself, for widgets that would take it as a mark of a key.
QString Plain(const CString& caption);

} // namespace desktop
