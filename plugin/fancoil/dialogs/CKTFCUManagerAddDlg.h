// Adds a model of fan-coil unit, or changes one, and can make its block from the drawing. It works on a
// record of its own: whoever opened it takes that, the block and the label point from it after OK.
#pragma once

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "plugin/fancoil/CFCUManager.h"
#include "plugin/fancoil/dialogs/BlockMaking.h"
#include "plugin/fancoil/dialogs/BlockPreview.h"
#include "plugin/fancoil/dialogs/CKTFCUManagerPropTree.h"

class CKTFCUManagerAddDlg : public CDialog {
 public:
  // For a new model of the maker, who need not be in the catalogue.
  CKTFCUManagerAddDlg(const CString& maker, CWnd* parent);
  // To change a model, which is only read here.
  CKTFCUManagerAddDlg(const CFCUEquipment& equipment, CWnd* parent);
  UiLayout Layout() override;

  const SKTFCUEquipmentData& Record() const { return m_data; }
  // Whether a block was made, and where its label goes, counted from its insertion point. OK has saved it.
  bool HasBlock() const { return m_block.has_value(); }
  const AcGePoint3d& LabelPoint() const { return m_labelPoint; }

  CKTFCUManagerPropTree m_properties{*this, L"参数"};
  fancoil::BlockPreview m_preview{*this, L"图块预览"};
  CButton m_pick{*this, L"图面选取"};
  CButton m_ok;
  CButton m_cancel{*this, L"取消", CButton::Role::cancel};

 protected:
  void OnInitDialog() override;
  void OnOK() override;

 private:
  enum class Task { add, change };
  CKTFCUManagerAddDlg(Task task, const SKTFCUEquipmentData& data, CWnd* parent);
  void MakeBlock();
  bool MayTakeBlockName() const;
  bool IsModelTaken() const;
  void SaveBlock() const;

  const Task m_task;
  CFCUManager& m_catalogue = *CFCUManager::GetInstance();
  CKTDatabaseOperation m_operation; // each dialog sees to it that there is a catalogue file
  const CString m_freeBlock;        // before anything is changed
  SKTFCUEquipmentData m_data;
  std::optional<fancoil::BlockDrawing> m_block;
  CString m_blockFile; // where it goes, by the name that was asked about
  AcGePoint3d m_labelPoint;
};
