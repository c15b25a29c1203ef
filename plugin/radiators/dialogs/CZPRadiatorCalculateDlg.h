// How many sections or metres of a radiator a load needs: takes the input, shows the number, and writes it
// into the drawing. It is open beside the drawing's own prompts, for a room to take the load from and for the
// place of the text.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CStatic.h"
#include "plugin/radiators/CorrectionTables.h"
#include "plugin/radiators/SZPRadCalData.h"

class CZPRadiator;

class CZPRadiatorCalculateDlg : public CDialog {
 public:
  explicit CZPRadiatorCalculateDlg(CWnd* parent);
  UiLayout Layout() override;
  // Null until it is shown: it begins with the first radiator of the catalogue.
  const CZPRadiator* Radiator() const { return m_pRadiator; }

  CStatic m_type{*this};
  CStatic m_name{*this};
  CStatic m_parameters{*this};
  CStatic m_formula{*this};
  CStatic m_rule{*this, L"片数或者长度n=Qj/Qs×β1×β2×β3×β4"};
  CButton m_manager{*this, L"散热器管理器..."};
  CNumberEdit m_load{*this, L"散热器承担的负荷Qj(W)："};
  CButton m_pickRoom{*this, L"..."};
  CComboBox m_supply{*this, L"供水温度(℃)：", CComboBox::Text::free};
  CComboBox m_return{*this, L"回水温度(℃)：", CComboBox::Text::free};
  CComboBox m_room{*this, L"室内温度(℃)：", CComboBox::Text::free};
  CNumberEdit m_betas[radiators::kCorrectionTableCount] = {
      CNumberEdit(*this, L"片数或长度修正系数β1："),
      CNumberEdit(*this, L"支管连接方式修正系数β2："),
      CNumberEdit(*this, L"安装形式修正系数β3："),
      CNumberEdit(*this, L"流入流量修正系数β4："),
  };
  CButton m_tables[radiators::kCorrectionTableCount] = {CButton(*this, L"..."), CButton(*this, L"..."),
                                                        CButton(*this, L"..."), CButton(*this, L"...")};
  // Named by what the radiator counts. It may be typed over, as with a whole number, before it is annotated.
  CNumberEdit m_result{*this};
  CButton m_calculate{*this, L"计算", CButton::Role::accept};
  CButton m_annotate{*this, L"标注"};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;

 private:
  void ShowRadiator();
  void ShowInput();
  void ReadInput();
  void ShowNumber();
  void Calculate();
  void ManageRadiators();
  void TakeLoadOfRoom();
  void ChooseBeta(int table);
  void Annotate();

  CZPRadiator* m_pRadiator = nullptr; // the catalogue's
  SZPRadCalData m_data;
  double m_number = 0; // what the result field says
};
