#include "host/console/verbs/VerbArguments.h"
#include "host/ed/EdLineParser.h"
#include "host/ui/CNumberEdit.h"

namespace console {

UiOutcome verbs::Step(const DialogOrder& order) {
  UiOutcome outcome;
  const auto found = FindTarget(order.form, order.rest, Is<CNumberEdit>, outcome);
  if (!found) return outcome;
  const auto steps = ed::ParseInteger(found->rest);
  constexpr long most = 1000000;
  if (!steps || *steps < -most || *steps > most)
    return {L"“" + ed::Excerpt(found->rest) + L"”不是步数。", L"一个整数，如 1 或 -1"};
  auto& edit = static_cast<CNumberEdit&>(*found->target.control);
  outcome = edit.UserStep(static_cast<int>(*steps));
  if (outcome) edit.UserLeave();
  return outcome;
}

} // namespace console
