// The menu of drawings that were open lately, kept in the settings.
#pragma once

#include "host/afx/CString.h"

#include <QMenu>

#include <functional>

class QSettings;

namespace desktop {

class RecentFiles : public QMenu {
 public:
  RecentFiles(QSettings& settings, std::function<void(const CString&)> open, QWidget* parent);
  // To the top of the list.
  void add(const CString& path);

 private:
  void fill();
  QSettings& m_settings;
  std::function<void(const CString&)> m_open;
};

} // namespace desktop
