// How far a long task is, in the status bar, with a button to cancel it. While the task runs the window is
// painted, but takes nothing from the user beside that button and Escape.
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace desktop {

class TaskBar : public QWidget {
 public:
  explicit TaskBar(QWidget* parent = nullptr);
  ~TaskBar() override;

  // So far done, 0 to 1; lets the window live for a moment. False once the user has cancelled the task.
  // What is done at once is not shown.
  bool tell(const QString& task, double done);
  void end();
  bool isRunning() const { return m_running; }
  QPushButton& cancelButton() { return *m_cancel; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void begin();

  QLabel* m_name;
  QProgressBar* m_done;
  QPushButton* m_cancel;
  QElapsedTimer m_sinceBegin;
  QElapsedTimer m_sinceTold;
  bool m_running = false;
  bool m_cancelled = false;
};

} // namespace desktop
