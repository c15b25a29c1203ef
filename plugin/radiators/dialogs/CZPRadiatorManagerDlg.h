// The manager of radiators: the catalogue as a tree, and the selected radiator as a property list. It works
// on the live catalogue and saves it when it goes, however it was left.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "host/ui/CTreeCtrl.h"
#include "plugin/radiators/CZPRadiatorManager.h"
#include "plugin/radiators/dialogs/CRADPropTree.h"

class CZPRadiatorManagerDlg : public CDialog {
 public:
  // inUse, which may be null, can't be deleted, nor can its type; the first radiator of its name is selected
  // at first.
  CZPRadiatorManagerDlg(CZPRadiator* inUse, CWnd* parent);
  ~CZPRadiatorManagerDlg() override;
  UiLayout Layout() override;

  // After OK: the selected radiator, or null.
  CZPRadiator* Chosen() const { return m_pChosen; }
  // The radiator in use; another object once it has been moved to another type.
  CZPRadiator* InUse() const { return m_pRadiator; }
  // What is selected: -1 nothing yet, 0 the catalogue, 1 a type, 2 a radiator.
  int Level() const { return m_nLevel; }

  CTreeCtrl m_tree{*this, L"散热器"};
  CRADPropTree m_properties{*this, L"参数"};
  CButton m_add{*this, L"添加"};
  CButton m_remove{*this, L"删除"};
  CButton m_modify{*this, L"修改"};
  CButton m_ok{*this, L"确定", CButton::Role::accept};
  CButton m_exit{*this, L"退出", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  void BuildTree();
  void SelectByName(const CString& name);
  // Null when the item is none, or of another kind.
  CZPRadiatorType* SelectedType() const; // also of a selected radiator
  CZPRadiator* SelectedRadiator() const;
  void ShowSelected();
  void Add();
  void Remove();
  void Modify();
  // Whether the user may and wants to delete it.
  bool MayRemove(const CZPRadiatorType* type, const CZPRadiator* radiator) const;

  CZPRadiatorManager& m_catalogue = *CZPRadiatorManager::GetInstance();
  CZPRadiator* m_pRadiator;
  CZPRadiator* m_pChosen = nullptr;
  int m_nLevel = -1;
};
