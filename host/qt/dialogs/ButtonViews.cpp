// Labels, push buttons, check boxes and radio groups.
#include "host/qt/QtText.h"
#include "host/qt/dialogs/ButtonIcons.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CStatic.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <vector>

namespace desktop {
namespace {

constexpr int kImageSize = 16;
constexpr int kButtonWidth = 84;

// The caption of a button with its letter in brackets as the key.
QString WithKey(const CString& caption) {
  QString text = Plain(caption);
  const qsizetype open = text.lastIndexOf(QLatin1Char('('));
  if (open > 0 && text.size() == open + 3) text.insert(open + 1, QLatin1Char('&'));
  return text;
}

// Lines that no window has room for are cut: names in a label may be of any length.
QString Cut(const QString& text) {
  constexpr qsizetype longest = 80; // characters
  QStringList lines = text.split(QLatin1Char('\n'));
  for (QString& line : lines)
    if (line.size() > longest) line = line.left(longest) + QStringLiteral("……");
  return lines.join(QLatin1Char('\n'));
}

class LabelView : public ControlView {
 public:
  LabelView(CStatic& control, FormContext& context) : ControlView(control, context), m_label(new QLabel) {
    m_label->setTextFormat(Qt::PlainText);
    setWidget(m_label);
  }

 private:
  void sync(const UiChange&) override { m_label->setText(Cut(Shown(control().GetCaption()))); }
  QLabel* m_label;
};

class ButtonView : public ControlView {
 public:
  ButtonView(CButton& control, FormContext& context)
      : ControlView(control, context), m_button(control), m_shown(new QPushButton) {
    m_shown->setAutoDefault(false);
    m_shown->setDefault(control.IsDefault());
    if (control.GetImage() != CButton::Image::none) {
      m_shown->setIcon(ButtonIcon(control.GetImage()));
      m_shown->setIconSize({kImageSize, kImageSize});
      m_shown->setFixedSize(30, 28);
    } else {
      m_shown->setMinimumWidth(kButtonWidth);
    }
    setWidget(m_shown);
    QObject::connect(m_shown, &QPushButton::clicked,
                     [this] { obey([this] { return m_button.UserClick(); }); });
  }

 private:
  void sync(const UiChange&) override {
    if (m_button.IsCaptionShown()) m_shown->setText(WithKey(m_button.GetCaption()));
  }
  CButton& m_button;
  QPushButton* m_shown;
};

class CheckBoxView : public ControlView {
 public:
  CheckBoxView(CCheckBox& control, FormContext& context)
      : ControlView(control, context), m_box(control), m_shown(new QCheckBox) {
    setWidget(m_shown);
    QObject::connect(m_shown, &QCheckBox::toggled,
                     [this](bool on) { obey([this, on] { return m_box.UserCheck(on); }); });
  }

 private:
  void sync(const UiChange&) override {
    m_shown->setText(WithKey(m_box.GetCaption()));
    m_shown->setChecked(m_box.GetCheck());
  }
  CCheckBox& m_box;
  QCheckBox* m_shown;
};

class RadioView : public ControlView {
 public:
  RadioView(CRadioGroup& control, FormContext& context)
      : ControlView(control, context), m_group(control), m_frame(new QGroupBox) {
    qsizetype length = 0;
    for (const CString& option : control.Options()) length += option.GetLength() + 3;
    constexpr qsizetype oneLine = 30; // characters
    auto* layout =
        new QBoxLayout(length <= oneLine ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, m_frame);
    for (std::size_t i = 0; i < control.Options().size(); ++i) {
      auto* button = new QRadioButton(WithKey(control.Options()[i]));
      layout->addWidget(button);
      m_buttons.push_back(button);
      QObject::connect(button, &QRadioButton::clicked,
                       [this, i] { obey([this, i] { return m_group.UserSelect(static_cast<int>(i)); }); });
    }
    layout->addStretch(1);
    if (!control.IsCaptionShown() || control.GetCaption().IsEmpty()) {
      m_frame->setFlat(true);
      layout->setContentsMargins(0, 0, 0, 0);
    }
    setWidget(m_frame);
  }
  void focus() override {
    const int chosen = std::max(m_group.GetCurSel(), 0);
    if (!m_buttons.empty()) m_buttons[static_cast<std::size_t>(chosen)]->setFocus();
  }

 private:
  void sync(const UiChange&) override {
    if (m_group.IsCaptionShown()) m_frame->setTitle(Plain(m_group.GetCaption()));
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
      m_buttons[i]->setAutoExclusive(false); // or none could be chosen
      m_buttons[i]->setChecked(static_cast<int>(i) == m_group.GetCurSel());
      m_buttons[i]->setAutoExclusive(true);
    }
  }
  CRadioGroup& m_group;
  QGroupBox* m_frame;
  std::vector<QRadioButton*> m_buttons;
};

} // namespace

ControlViewPtr MakeLabelView(CStatic& control, FormContext& context) {
  return std::make_unique<LabelView>(control, context);
}
ControlViewPtr MakeButtonView(CButton& control, FormContext& context) {
  return std::make_unique<ButtonView>(control, context);
}
ControlViewPtr MakeCheckBoxView(CCheckBox& control, FormContext& context) {
  return std::make_unique<CheckBoxView>(control, context);
}
ControlViewPtr MakeRadioView(CRadioGroup& control, FormContext& context) {
  return std::make_unique<RadioView>(control, context);
}

} // namespace desktop
