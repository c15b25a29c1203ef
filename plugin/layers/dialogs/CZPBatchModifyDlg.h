// Takes values for several layers at once. Each line has a tick; what is ticked is changed.
#pragma once

#include <vector>

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CPropTree.h"
#include "plugin/layers/SZPLayerData.h"

class CZPBatchModifyDlg : public CDialog {
 public:
  // Shows the values of this layer, all ticked.
  CZPBatchModifyDlg(const SZPLayerData& shown, CWnd* parent);
  UiLayout Layout() override;

  // After OK: gives a layer the values that were ticked.
  void Assign(SZPLayerData& layer) const;

  CPropTree m_lines{*this, L"参数"};
  CButton m_modify{*this, L"修改", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnOK() override;

 private:
  void Choose(int line);
  CString ValueOf(int line) const;

  struct Change {
    std::size_t field; // of kLayerFields
    CString text;
  };
  std::vector<std::size_t> m_fields; // of the lines
  std::vector<Change> m_changes;
};
