// The list of materials that the managers of pipes and of ducts share, with its buttons: new, delete, up,
// down, and names that are edited in place. It works on the live catalogue.
#pragma once

#include <algorithm>
#include <memory>

#include "host/ui/CButton.h"
#include "host/ui/CDialog.h"
#include "plugin/graph/Notice.h"
#include "plugin/pipes/dialogs/MaterialNames.h"

namespace pipes {

template <class Manager, class Material> class MaterialList {
 public:
  // What becomes of the selection when the selected material is deleted.
  enum class AfterDelete { selectNone, selectNext };

  // inUse may be null. Both outlive this.
  MaterialList(CDialog& dialog, Manager& catalogue, Material* inUse, AfterDelete afterDelete)
      : m_list(dialog, L"管材管径"), m_add(dialog, CButton::Image::add, L"新建"),
        m_remove(dialog, CButton::Image::remove, L"删除"), m_up(dialog, CButton::Image::up, L"上移"),
        m_down(dialog, CButton::Image::down, L"下移"), m_catalogue(catalogue), m_inUse(inUse),
        m_afterDelete(afterDelete) {
    m_list.ShowCaption(false);
    m_list.AddColumn(L"管材管径", 180);
    for (CButton* button : {&m_add, &m_remove, &m_up, &m_down}) button->SetBelongsTo(m_list);
    m_list.CellClicked.Connect([this](int, int) { Selected(); });
    m_list.EditEnded.Connect([this](UiEditEnd& end) {
      EndNameEdit(end);
      NameEdited();
    });
    m_add.Clicked.Connect([this] { Add(); });
    m_remove.Clicked.Connect([this] { Remove(); });
    m_up.Clicked.Connect([this] { Move(-1); });
    m_down.Clicked.Connect([this] { Move(1); });
  }

  // All materials of the catalogue; null selects none.
  void Fill(const Material* selected) {
    const UiQuietly quietly(m_list);
    m_list.DeleteAllRows();
    for (Material* material : m_catalogue.m_arrMaterials)
      if (material) m_list.AddRow({material->GetName()}, material);
    m_list.SetCurSel(selected ? m_list.FindData(selected) : -1);
  }
  // Null when none is selected.
  Material* Current() const { return static_cast<Material*>(m_list.SelectedData()); }
  Material* InUse() const { return m_inUse; }
  UiLayout Layout() {
    return ui::Column(
        {ui::Item(m_list).Stretch(1).Size(200, 300),
         ui::Row({ui::Item(m_add), ui::Item(m_remove), ui::Item(m_up), ui::Item(m_down), ui::Space()})});
  }

  CEditListCtrl m_list;
  CButton m_add, m_remove, m_up, m_down;
  UiSignal<> Selected;   // another material, or none, is selected; or the same was clicked
  UiSignal<> NameEdited; // an edit of a name has ended in some way

 private:
  Material* At(int row) const { return static_cast<Material*>(m_list.GetRowData(row)); }

  void Add() {
    auto material = std::make_unique<Material>();
    if (m_catalogue.Add(material.get()))
      m_list.AddRow({material->GetName()}, material.get()), material.release();
    // Otherwise there is one without a name already, and that is what the user is to name.
    const int row = m_list.GetRowCount() - 1;
    m_list.SetCurSel(row);
    Selected();
    m_list.EditCell(row, 0);
  }

  void Remove() {
    const int row = m_list.GetCurSel();
    if (row < 0) return;
    if (At(row) == m_inUse) return notice::Tell(L"当前管材管径正在使用，不允许删除！");
    CString question;
    question.Format(L"删除不可恢复，确定要删除【%s】吗?", At(row)->GetName());
    if (!notice::Confirm(question)) return;
    Drop(row);
    if (m_afterDelete == AfterDelete::selectNext) m_list.SetCurSel(std::min(row, m_list.GetRowCount() - 1));
    Selected();
  }

  void Drop(int row) {
    Material* material = At(row);
    m_list.DeleteRow(row);
    m_catalogue.Remove(material);
  }

  void Move(int step) {
    const int row = m_list.GetCurSel();
    const int other = row + step;
    if (row < 0 || other < 0 || other >= m_list.GetRowCount()) return;
    Material* moved = At(row);
    auto& materials = m_catalogue.m_arrMaterials;
    std::swap(*std::find(materials.begin(), materials.end(), moved),
              *std::find(materials.begin(), materials.end(), At(other)));
    Fill(moved);
    Selected();
  }

  // A material whose name can't be, and whose window is closing, goes without a word: the user can no longer
  // be asked for another name. The one in use keeps the name that it had, since it may not be deleted.
  void EndNameEdit(UiEditEnd& end) {
    const CString name = CString(end.text).Trim();
    const NameFault fault = CheckMaterialName(m_list, end.row, name);
    if (fault == NameFault::none) {
      At(end.row)->SetName(name);
      m_list.SetItemText(end.row, 0, name);
    } else if (!end.closing) {
      TellNameFault(fault, name);
      end.reopen = true;
    } else if (At(end.row) == m_inUse) {
      m_list.SetItemText(end.row, 0, end.oldText);
    } else {
      Drop(end.row);
    }
  }

  Manager& m_catalogue;
  Material* m_inUse;
  AfterDelete m_afterDelete;
};

} // namespace pipes
