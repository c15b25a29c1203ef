// The catalogue of fan-coil units as a tree, with the parameters and the block of the selected model. It
// edits the live catalogue, or lets a model be picked, from a list of favourites too. Only saving writes the
// file; what was changed stays in memory however it is left.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "plugin/fancoil/dialogs/BlockPreview.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerPropTree.h"
#include "plugin/fancoil/dialogs/FavouriteList.h"
#include "plugin/fancoil/dialogs/ModelTree.h"

class CKTFCUManagerAddDlg;

class CKTFCUManagerDlg : public CDialog {
 public:
  // Each begins with a model: the first of the catalogue, the named one, the given one, which may be null.
  CKTFCUManagerDlg(bool favourites, CWnd* parent);
  CKTFCUManagerDlg(const CString& maker, const CString& model, CWnd* parent);
  CKTFCUManagerDlg(CFCUEquipment* equipment, CWnd* parent);
  UiLayout Layout() override;

  // Before it is shown: takes away everything that changes the catalogue. With favourites it is always so.
  void SetReadOnly(bool readOnly) { m_bReadOnly = readOnly; }
  // The selected model; null when there is none and when it was deleted.
  CFCUEquipment* Equipment() const { return m_deleted ? nullptr : m_pCurrent; }
  // The water-system database as the dialog knows it, with the blocks that were made here.
  CKTDatabaseOperation& Operation() { return m_operation; }

  fancoil::FavouriteList m_favourites{*this, *CFCUManager::GetInstance()};
  CComboBox m_install{*this, L"安装形式过滤："};
  CComboBox m_structure{*this, L"结构形式过滤："};
  fancoil::ModelTree m_tree{*this, L"风机盘管列表"};
  CKTFCUManagerPropTree m_properties{*this, L"参数"};
  fancoil::BlockPreview m_preview{*this, L"图块预览"};
  CButton m_add{*this, L"添加"};
  CButton m_modify{*this, L"修改"};
  CButton m_delete{*this, L"删除"};
  CButton m_save{*this, L"保存"};
  CButton m_ok{*this, L"确认", CButton::Role::accept};
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  CKTFCUManagerDlg(CFCUEquipment* equipment, bool favourites, CWnd* parent);
  void FillFilters();
  void FillTree();
  void ShowCurrent();
  void SelectInTree();
  void MakeCurrent(CFCUEquipment* equipment);

  void Add();
  void Modify();
  void Delete();
  template <class Owner, class Entry> void Remove(Owner& owner, Entry& entry, HTREEITEM item, bool current);
  void RegisterBlock(const CKTFCUManagerAddDlg& made);
  void Save();

  void TakeFavourite();
  void SelectFavourite();

  CFCUManager& m_catalogue = *CFCUManager::GetInstance();
  CFCUEquipment* m_pCurrent;
  // A copy of the model that was on show when it was deleted: it stays on show until another is selected.
  std::unique_ptr<CFCUEquipment> m_deleted;
  CKTDatabaseOperation m_operation;
  CString m_szInstallFilter;
  CString m_szStructFilter;
  bool m_bReadOnly;
  const bool m_bCommon;
  bool m_bCanClose = true;
};
