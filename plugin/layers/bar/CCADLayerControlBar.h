// The bar beside the drawing that lists the layers of the current document, all or those of a group, and
// switches them by clicks on icons and by a menu for all rows. It shows what the layers were when it was
// filled last: nothing but a choice of another source, or the command, fills it again.
#pragma once

#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CGridCtrl.h"
#include "plugin/base/CZPArray.h"

class CCADLayerDatabaseReactor;

class CCADLayerControlBar : public CAcUiDockControlBar {
 public:
  CCADLayerControlBar();
  UiLayout Layout() override;

  // Once the window has been made: where it may be docked, and where it is docked first.
  void FirstShow();
  // Offers the groups anew, selects all layers, and shows them.
  void Refresh();

  // Of the window's making. They stay attached when the bar goes.
  using ReactorArray = CZPArray<CCADLayerDatabaseReactor*, CCADLayerDatabaseReactor*>;
  const ReactorArray& Reactors() const { return m_arrReactors; }

  CComboBox m_sources{*this, L"图层分组"};
  CGridCtrl m_grid{*this, L"图层"};

 protected:
  void OnCreate() override;

 private:
  void Fill();
  void Click(int row, int column);

  ReactorArray m_arrReactors;
};
