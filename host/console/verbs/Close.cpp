#include "host/console/verbs/VerbArguments.h"
#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CDialog.h"

namespace console {

UiOutcome verbs::Close(const DialogOrder& order) {
  if (auto more = NothingMore(order.rest); !more) return more;
  if (auto* dialog = dynamic_cast<CDialog*>(&order.form)) dialog->UserClose();
  if (auto* bar = dynamic_cast<CAcUiDockControlBar*>(&order.form)) bar->UserClose();
  return {};
}

} // namespace console
