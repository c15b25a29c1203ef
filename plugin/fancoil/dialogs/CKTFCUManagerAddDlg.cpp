#include "plugin/fancoil/dialogs/CKTFCUManagerAddDlg.h"

#include <filesystem>

#include "host/afx/Paths.h"
#include "host/db/SaveInVersion.h"
#include "plugin/base/Folders.h"
#include "plugin/fancoil/dialogs/BlockFiles.h"
#include "plugin/graph/DocumentWriteLock.h"
#include "plugin/graph/Notice.h"

namespace {

SKTFCUEquipmentData NewRecord(const CString& maker) {
  SKTFCUEquipmentData data;
  data.szFactory = maker;
  data.szDwgPath = fancoil::FreeBlockName(*CFCUManager::GetInstance());
  return data;
}

} // namespace

CKTFCUManagerAddDlg::CKTFCUManagerAddDlg(const CString& maker, CWnd* parent)
    : CKTFCUManagerAddDlg(Task::add, NewRecord(maker), parent) {}

CKTFCUManagerAddDlg::CKTFCUManagerAddDlg(const CFCUEquipment& equipment, CWnd* parent)
    : CKTFCUManagerAddDlg(Task::change, equipment.m_data, parent) {}

CKTFCUManagerAddDlg::CKTFCUManagerAddDlg(Task task, const SKTFCUEquipmentData& data, CWnd* parent)
    : CDialog(task == Task::add ? L"添加风机盘管" : L"修改风机盘管", parent),
      m_ok(*this, task == Task::add ? L"确认添加" : L"确认修改", CButton::Role::accept), m_task(task),
      m_freeBlock(fancoil::FreeBlockName(m_catalogue)), m_data(data) {
  m_properties.ShowCaption(false);
  m_properties.Fill(false);
  m_properties.EnableNames(true);
  m_pick.Clicked.Connect([this] { MakeBlock(); });
  m_ok.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CKTFCUManagerAddDlg::Layout() {
  return ui::Column({
      ui::Row({
                  ui::Item(m_properties).Stretch(1).Size(330, 430),
                  ui::Column({ui::Item(m_preview).Stretch(1).Size(260, 260),
                              ui::Row({ui::Space(), ui::Item(m_pick)})}),
              })
          .Stretch(1),
      ui::Row({ui::Space(), ui::Item(m_ok), ui::Item(m_cancel)}),
  });
}

void CKTFCUManagerAddDlg::OnInitDialog() {
  m_properties.Show(&m_data);
  m_preview.ShowBlock(m_data.szDwgPath);
}

// Of a change, one model with that block is taken for the changed one, whatever block that had before.
bool CKTFCUManagerAddDlg::MayTakeBlockName() const {
  const int own = m_task == Task::change ? 1 : 0;
  if (fancoil::CountModelsOfBlock(m_catalogue, m_data.szDwgPath) <= own) return true;
  CString question;
  question.Format(L"修改图块后将会影响所有使用该图块名的设备，确定要修改吗？(推荐不重名图块：%s)",
                  m_freeBlock);
  return notice::Confirm(question);
}

void CKTFCUManagerAddDlg::MakeBlock() {
  m_properties.Read(m_data);
  if (m_data.szDwgPath.IsEmpty()) return notice::Tell(L"图块名不能为空!");
  if (!MayTakeBlockName()) return;
  BeginEditorCommand();
  const auto pick = fancoil::AskForBlock();
  auto made = pick ? fancoil::MakeBlockDrawing(*pick) : std::nullopt;
  if (made) {
    if (!made->extents.isEmpty()) {
      const AcGeVector3d span = made->extents.maxPoint() - made->extents.minPoint();
      m_data.dbCadLength = span.x;
      m_data.dbCadWidth = span.y;
    }
    m_labelPoint = pick->label;
    m_blockFile = fancoil::BlockFile(m_data.szDwgPath);
    m_preview.ShowDrawing(*made->drawing);
    m_block = std::move(made);
    m_properties.Show(&m_data);
  }
  CompleteEditorCommand();
}

bool CKTFCUManagerAddDlg::IsModelTaken() const {
  const CFCUFactory* maker = m_catalogue.GetFactory(m_data.szFactory);
  return maker && maker->GetEquipment(m_data.szMode);
}

// A change may give a model the name of another; only a new one is held to a name of its own.
void CKTFCUManagerAddDlg::OnOK() {
  m_properties.Read(m_data);
  if (m_data.szMode.IsEmpty()) return notice::Tell(L"型号名不能为空!");
  if (m_task == Task::add && IsModelTaken()) {
    CString text;
    text.Format(L"厂家\"%s\"拥有的设备中，型号名\"%s\"已存在，请重新指定型号名!", m_data.szFactory,
                m_data.szMode);
    AfxMessageBox(text, CString(), MB_OK | MB_ICONINFORMATION);
    return;
  }
  if (m_block) SaveBlock();
  CDialog::OnOK();
}

// The host tells the message log when it can't.
void CKTFCUManagerAddDlg::SaveBlock() const {
  const DocumentWriteLock lock;
  if (!lock.IsHeld()) return;
  std::error_code shownBySaving;
  std::filesystem::create_directories(afx::NativePath(ZP::GetFCUDwgFilesPath()), shownBySaving);
  acdbSaveAs(m_block->drawing.get(), m_blockFile, AcDb::kDwg2000);
}
