// The editor of the drawing's text styles: a list of styles, the properties of the selected one, and new
// ones.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CListBox.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CStatic.h"

namespace commands {

class TextStyleDlg : public CDialog {
 public:
  explicit TextStyleDlg(CWnd* parent);
  UiLayout Layout() override;

 protected:
  void OnInitDialog() override;

 private:
  // The style stays selected whose name is given.
  void FillStyles(const CString& selected);
  void ShowStyle();
  void AddStyle();
  // False, with the user told, when one of the values can't be.
  bool ApplyStyle();
  AcDbObjectId SelectedStyle() const;

  CListBox m_styles{*this, L"样式"};
  CEdit m_name{*this, L"新样式名"};
  CButton m_add{*this, L"新建"};
  CEdit m_font{*this, L"字体文件"};
  CEdit m_bigFont{*this, L"大字体文件"};
  CNumberEdit m_height{*this, L"固定高度（0 为不固定）"};
  CNumberEdit m_width{*this, L"宽度比例"};
  CButton m_apply{*this, L"应用"};
  CButton m_makeCurrent{*this, L"置为当前"};
  CStatic m_current{*this};
  CButton m_close{*this, L"关闭", CButton::Role::cancel};
};

} // namespace commands
