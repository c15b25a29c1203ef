#include "host/qt/dialogs/BarMemory.h"

#include <QSettings>
#include <QUrl>

#include <algorithm>

namespace desktop {
namespace {

const QString kBars = QStringLiteral("bars");
constexpr int kMost = 10000; // pixels

// Slashes would part a key.
QString Key(const QString& text) {
  return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString BarKey(const QString& id, const char* what) {
  return kBars + QLatin1Char('/') + Key(id) + QLatin1Char('/') + QLatin1String(what);
}

} // namespace

std::optional<BarMemory::Bar> BarMemory::bar(const QString& id) const {
  const auto value = [&](const char* what) { return m_settings.value(BarKey(id, what)); };
  Bar bar;
  switch (value("side").toInt()) {
  case Qt::LeftDockWidgetArea:
  case Qt::RightDockWidgetArea:
  case Qt::TopDockWidgetArea:
  case Qt::BottomDockWidgetArea:
    bar.side = static_cast<Qt::DockWidgetArea>(value("side").toInt());
    break;
  default:
    return std::nullopt;
  }
  bar.size = std::clamp(value("size").toInt(), 0, kMost);
  bar.floating = value("floating").toBool();
  bar.place = value("place").toRect();
  bar.open = value("open").toBool();
  bar.command = value("command").toString();
  return bar;
}

void BarMemory::keep(const QString& id, const Bar& bar) {
  m_settings.setValue(BarKey(id, "side"), static_cast<int>(bar.side));
  m_settings.setValue(BarKey(id, "size"), bar.size);
  m_settings.setValue(BarKey(id, "floating"), bar.floating);
  m_settings.setValue(BarKey(id, "place"), bar.place);
  m_settings.setValue(BarKey(id, "open"), bar.open);
  m_settings.setValue(BarKey(id, "command"), bar.command);
}

QStringList BarMemory::openingCommands() const {
  QStringList commands;
  m_settings.beginGroup(kBars);
  for (const QString& id : m_settings.childGroups()) {
    const QString command = m_settings.value(id + QStringLiteral("/command")).toString();
    if (m_settings.value(id + QStringLiteral("/open")).toBool() && !command.isEmpty()) commands += command;
  }
  m_settings.endGroup();
  return commands;
}

} // namespace desktop
