#include "host/qt/dialogs/ColumnWidths.h"

#include "host/qt/QtText.h"
#include "host/ui/CTableWnd.h"

#include <QSettings>
#include <QStringList>

namespace desktop {
namespace {

constexpr int kMost = 10000; // pixels; a file of settings may hold anything

QString KeyOf(const CTableWnd& table) {
  return QStringLiteral("columns/") + ToQt(table.StateName());
}

} // namespace

ColumnWidths::ColumnWidths(const CTableWnd& table, QSettings* settings)
    : m_table(table), m_settings(table.StateName().IsEmpty() ? nullptr : settings) {
  if (!m_settings) return;
  for (const QString& text : m_settings->value(KeyOf(table)).toStringList()) m_widths.append(text.toInt());
}

QList<int> ColumnWidths::Given() const {
  if (m_widths.size() != m_table.GetColumnCount()) return {};
  for (int column = 0; column < m_table.GetColumnCount(); ++column) {
    const int width = m_widths[column];
    const bool hidden = m_table.Column(column).width <= 0;
    if (hidden ? width != 0 : width <= 0 || width > kMost) return {};
  }
  return m_widths;
}

void ColumnWidths::Keep(const QList<int>& widths) {
  m_widths = widths;
  if (!m_settings) return;
  QStringList texts;
  for (const int width : widths) texts.append(QString::number(width));
  m_settings->setValue(KeyOf(m_table), texts);
}

} // namespace desktop
