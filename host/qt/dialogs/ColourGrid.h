// The 255 indexed colours as fields to click on.
#pragma once

#include <QWidget>

#include <functional>

namespace desktop {

// "ByLayer（随层）", "ByBlock（随块）", or the number with its name.
QString ColourName(int index);

class ColourGrid : public QWidget {
 public:
  explicit ColourGrid(int chosen, QWidget* parent = nullptr);
  void setChosen(int index);
  int chosen() const { return m_chosen; }
  QRect place(int index) const; // of a colour's field

  std::function<void(int)> picked; // by a click or an arrow key
  std::function<void()> taken;     // by a double click

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void pick(int index);
  int m_chosen;
};

} // namespace desktop
