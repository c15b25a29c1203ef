// The settings of the working drawing that the whole package goes by: scales, text heights, text style and
// font. The dialog moves them to and from the drawing and knows nothing else of them.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CListBox.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CRadioGroup.h"

class CZPSystemSettingsDlg : public CDialog {
 public:
  explicit CZPSystemSettingsDlg(CWnd* parent);
  UiLayout Layout() override;

  CNumberEdit m_outScale{*this, L"出图比例     1："};
  CNumberEdit m_drawingScale{*this, L"绘图比例     1："};
  CNumberEdit m_chineseHeight{*this, L"中文出图字高(mm)"};
  CNumberEdit m_westernHeight{*this, L"西文出图字高(mm)"};
  CRadioGroup m_font{*this, L"字体", {L"使用CAD当前字体", L"使用暖通软件文字样式(QL_KOR)"}};
  CListBox m_styles{*this, L"当前文字样式："};
  CButton m_editStyles{*this, L"文字样式..."};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void FillStyles();
  void EditStyles();
};
