// Where the user left bars, kept in the settings from one run to the next.
#pragma once

#include <QRect>
#include <QStringList>

#include <optional>

class QSettings;

namespace desktop {

class BarMemory {
 public:
  explicit BarMemory(QSettings& settings) : m_settings(settings) {}

  struct Bar {
    Qt::DockWidgetArea side = Qt::LeftDockWidgetArea; // also where a floating one was docked last
    int size = 0;                                     // width, or height at top and bottom; pixels at 96 dpi
    bool floating = false;
    QRect place; // on the screen, of a floating one
    bool open = false;
    QString command; // opens it; empty where no command did
  };
  // Bars go by an id of any text. Nothing for one that was never kept, or is damaged.
  std::optional<Bar> bar(const QString& id) const;
  void keep(const QString& id, const Bar& bar);
  // The commands of bars that stood open when they were kept.
  QStringList openingCommands() const;

 private:
  QSettings& m_settings;
};

} // namespace desktop
