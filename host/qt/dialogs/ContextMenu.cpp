#include "host/qt/dialogs/ContextMenu.h"

#include "host/qt/QtText.h"

#include <QMenu>

namespace desktop {

UiOutcome ShowContextMenu(UiContextMenu& menu, const QPoint& at, QWidget* parent) {
  QMenu shown(parent);
  for (const UiMenuItem& item : menu.Items()) {
    QAction* action = shown.addAction(Plain(item.text));
    action->setEnabled(item.enabled);
    action->setData(item.id);
  }
  if (shown.isEmpty()) return {};
  const QAction* chosen = shown.exec(at);
  return chosen ? menu.UserChoose(chosen->data().toInt()) : UiOutcome();
}

} // namespace desktop
