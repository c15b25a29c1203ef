// DDSTYLE: the editor of text styles.
#include "host/commands/CommandFunctions.h"
#include "host/commands/TextStyleDlg.h"
#include "host/ed/acedWindows.h"

namespace commands {

void TextStyle() {
  TextStyleDlg(acedGetAcadDwgView()).DoModal();
}

} // namespace commands
