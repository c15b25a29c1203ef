#include "host/qt/dialogs/MessageBoxes.h"

#include "host/qt/QtText.h"
#include "host/qt/dialogs/MessageIcons.h"

#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace desktop {
namespace {

// "是(Y)" with its letter as the key.
QString WithKey(const CString& caption) {
  QString text = Plain(caption);
  const qsizetype open = text.lastIndexOf(QLatin1Char('('));
  if (open > 0 && text.endsWith(QLatin1Char(')'))) text.insert(open + 1, QLatin1Char('&'));
  return text;
}

// Names in messages may be of any length; a box must fit the screen.
CString Shortened(const CString& text) {
  constexpr int most = 800; // characters
  if (text.GetLength() <= most) return text;
  return text.Left(most / 2) + L" … " + text.Right(most / 2);
}

// The index of the button pressed; -1 where the box was closed and no button stands for that.
int Show(QWidget* parent, const CString& caption, const CString& text, QMessageBox::Icon icon,
         const std::vector<CString>& captions, std::size_t defaultButton, int escape) {
  QMessageBox box(icon, Shown(caption), QString(), QMessageBox::NoButton, parent);
  box.setTextFormat(Qt::PlainText);
  box.setText(Shown(Shortened(text)));
  if (icon != QMessageBox::NoIcon) box.setIconPixmap(MessageIcon(icon, box.devicePixelRatioF()));
  std::vector<QAbstractButton*> buttons;
  for (const CString& button : captions) {
    auto* made = new QPushButton(WithKey(button), &box);
    made->setAutoDefault(true);
    box.addButton(made, QMessageBox::ActionRole);
    buttons.push_back(made);
  }
  box.setDefaultButton(static_cast<QPushButton*>(buttons[defaultButton]));
  if (escape >= 0) box.setEscapeButton(buttons[static_cast<std::size_t>(escape)]);
  box.exec();
  const auto pressed = std::find(buttons.begin(), buttons.end(), box.clickedButton());
  return pressed == buttons.end() ? -1 : static_cast<int>(pressed - buttons.begin());
}

} // namespace

EdBoxResult ShowEditorBox(QWidget* parent, const EdMessageBox& box) {
  const int last = static_cast<int>(box.buttons.size()) - 1;
  const auto icon = box.buttons.size() > 1 ? QMessageBox::Question : QMessageBox::Information;
  // What stands last is what does least: "no", "cancel", or the only button.
  const int pressed = Show(parent, box.caption, box.text, icon, box.buttons, box.defaultButton, last);
  return {pressed < 0 ? box.defaultButton : static_cast<std::size_t>(pressed), true};
}

int ShowDialogBox(QWidget* parent, const UiMessageBox& box) {
  std::vector<CString> captions;
  int escape = box.buttons.size() == 1 ? 0 : -1;
  for (const auto& button : box.buttons) {
    if (button.id == IDCANCEL || (button.id == IDNO && escape < 0))
      escape = static_cast<int>(captions.size());
    captions.push_back(button.caption);
  }
  auto icon = QMessageBox::NoIcon;
  if (box.icon == UiMessageBox::Icon::information) icon = QMessageBox::Information;
  if (box.icon == UiMessageBox::Icon::question) icon = QMessageBox::Question;
  if (box.icon == UiMessageBox::Icon::exclamation) icon = QMessageBox::Warning;
  const int pressed = Show(parent, ShownCaption(box), box.text, icon, captions, box.defaultButton, escape);
  return box.buttons[pressed < 0 ? box.defaultButton : static_cast<std::size_t>(pressed)].id;
}

} // namespace desktop
