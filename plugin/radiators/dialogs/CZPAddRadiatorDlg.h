// Adds a radiator to the catalogue or changes one that is in it, its names included. Used by the manager of
// radiators, which saves.
#pragma once

#include <memory>

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/radiators/dialogs/CRADPropTree.h"

class CZPAddRadiatorDlg : public CDialog {
 public:
  enum Mode { modify = 0, add = 1 };

  // Shows the radiator, which is in the type of that name. To add one, it is only a template and may be null;
  // the name may be empty then.
  CZPAddRadiatorDlg(Mode mode, const CString& typeName, CZPRadiator* radiator, CWnd* parent);
  UiLayout Layout() override;

  // After OK: the radiator that was added or changed. One that was moved to another type is another object
  // than before, and the old one is gone.
  CZPRadiator* Radiator() const { return m_pRadiator; }

  CRADPropTree m_properties{*this, L"参数"};
  CButton m_ok;
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnOK() override;
  void OnCancel() override;

 private:
  void Add();
  void Modify();
  void Move(const CString& typeName);
  bool HasNames(const CString& typeName, const CZPRadiator& radiator) const;
  // Null, and the user has been told, where the type holds the name already.
  CZPRadiator* AddTo(const CString& typeName, std::unique_ptr<CZPRadiator> radiator);

  CZPRadiatorManager& m_catalogue = *CZPRadiatorManager::GetInstance();
  const Mode m_mode;
  const CString m_typeName;
  const CString m_oldName;
  CZPRadiator* m_pRadiator;
};
