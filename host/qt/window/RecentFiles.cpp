#include "host/qt/window/RecentFiles.h"

#include "host/afx/Paths.h"
#include "host/qt/QtText.h"

#include <QFileInfo>
#include <QSettings>

namespace desktop {
namespace {

constexpr qsizetype kMost = 9;
const QString kKey = QStringLiteral("recentFiles");

} // namespace

RecentFiles::RecentFiles(QSettings& settings, std::function<void(const CString&)> open, QWidget* parent)
    : QMenu(QStringLiteral("最近的图形"), parent), m_settings(settings), m_open(std::move(open)) {
  setObjectName(QStringLiteral("recentFiles"));
  fill();
}

void RecentFiles::add(const CString& path) {
  const QString file = QFileInfo(QString::fromStdString(afx::NativePath(path))).absoluteFilePath();
  QStringList files = m_settings.value(kKey).toStringList();
  files.removeAll(file);
  files.prepend(file);
  m_settings.setValue(kKey, files.mid(0, kMost));
  fill();
}

void RecentFiles::fill() {
  clear();
  int number = 0;
  for (const QString& file : m_settings.value(kKey).toStringList()) {
    const QString title = QStringLiteral("&%1  %2").arg(++number).arg(Plain(FromQt(file)));
    connect(addAction(title), &QAction::triggered, this, [this, file] { m_open(FromQt(file)); });
  }
  menuAction()->setEnabled(number > 0);
}

} // namespace desktop
