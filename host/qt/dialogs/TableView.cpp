// Grids, lists and reports.
#include "host/qt/dialogs/ControlViews.h"
#include "host/qt/dialogs/TableWidget.h"

namespace desktop {
namespace {

class TableView : public ControlView {
 public:
  TableView(CTableWnd& control, FormContext& context)
      : ControlView(control, context), m_shown(new TableWidget(control, context.settings)) {
    m_shown->obey = [this](const TableWidget::Event& event) { obey(event); };
    setWidget(m_shown);
  }
  void focus() override {
    if (m_shown->editor())
      m_shown->editor()->setFocus(Qt::OtherFocusReason);
    else
      ControlView::focus();
  }

 private:
  void sync(const UiChange& change) override { m_shown->follow(change); }
  TableWidget* m_shown;
};

} // namespace

ControlViewPtr MakeTableView(CTableWnd& control, FormContext& context) {
  return std::make_unique<TableView>(control, context);
}

} // namespace desktop
