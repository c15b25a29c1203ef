// Tab sheets: each page is a form of its own.
#include "host/qt/QtText.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/qt/dialogs/FormView.h"
#include "host/ui/CTabSheet.h"

#include <QTabWidget>

namespace desktop {
namespace {

class TabSheetView : public ControlView {
 public:
  TabSheetView(CTabSheet& control, FormContext& context)
      : ControlView(control, context), m_sheet(control), m_shown(new QTabWidget) {
    setWidget(m_shown);
    for (CPropertyPage* page : control.Pages()) {
      m_pages.push_back(std::make_unique<FormView>(*page, context));
      m_shown->addTab(m_pages.back()->widget(), Plain(page->GetCaption()));
    }
    QObject::connect(m_shown, &QTabWidget::currentChanged, [this](int page) {
      if (page >= 0) obey([this, page] { return m_sheet.UserSelect(page); });
    });
  }

 private:
  void sync(const UiChange&) override {
    for (std::size_t i = 0; i < m_pages.size(); ++i)
      m_shown->setTabText(static_cast<int>(i), Plain(m_sheet.Pages()[i]->GetCaption()));
    m_shown->setCurrentIndex(m_sheet.GetActiveIndex());
  }
  CTabSheet& m_sheet;
  QTabWidget* m_shown;
  std::vector<std::unique_ptr<FormView>> m_pages;
};

} // namespace

ControlViewPtr MakeTabSheetView(CTabSheet& control, FormContext& context) {
  return std::make_unique<TabSheetView>(control, context);
}

} // namespace desktop
