#include "host/console/DialogText.h"
#include "host/console/verbs/VerbArguments.h"

namespace console {

UiOutcome verbs::Show(const DialogOrder& order) {
  if (order.rest.IsEmpty()) {
    order.print(FormText(order.form));
    return {};
  }
  UiOutcome outcome;
  const auto found = FindTarget(order.form, order.rest, IsItself, outcome);
  if (!found) return outcome;
  if (auto more = NothingMore(found->rest); !more) return more;
  order.print(ControlText(order.form, *found->target.control));
  return {};
}

} // namespace console
