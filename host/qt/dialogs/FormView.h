// The widgets of a form, arranged as it tells.
#pragma once

#include "host/qt/dialogs/ControlView.h"
#include "host/ui/UiLayout.h"

#include <vector>

class QGridLayout;
class QWidget;

namespace desktop {

class FormView {
 public:
  FormView(CFormWnd& form, FormContext& context);
  ~FormView();
  FormView(const FormView&) = delete;
  FormView& operator=(const FormView&) = delete;

  // Belongs to whoever puts it into a layout.
  QWidget* widget() const { return m_widget; }

 private:
  void fillColumn(QGridLayout& grid, const UiLayout& layout);
  // With a place for it, the label of a field that the row begins with is left to the caller.
  QWidget* makeRow(const UiLayout& layout, QWidget** firstLabel);
  // One item: a widget of its own.
  QWidget* make(const UiLayout& layout);
  QWidget* makeControl(const UiLayout& layout, QWidget** label);
  QWidget* above(QWidget* label, QWidget* widget) const;

  FormContext& m_context;
  QWidget* m_widget;
  std::vector<std::unique_ptr<ControlView>> m_views;
};

} // namespace desktop
