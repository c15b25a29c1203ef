// The calculation window over a catalogue, a drawing, a layer scheme and remembered values of the test's own.
#pragma once

#include "host/db/AcDbText.h"
#include "plugin/base/DefaultValues.h"
#include "plugin/layers/CZPGroupLayer.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/CZPSystemLayer.h"
#include "plugin/radiators/dialogs/CZPRadiatorCalculateDlg.h"
#include "plugin/radiators/dialogs/CZPRadiatorManagerDlg.h"
#include "tests/plugin/radiators/RadiatorCatalogueFixture.h"
#include "tests/support/CalculatedRoom.h"
#include "tests/support/ScriptedEditor.h"
#include "tests/support/UiFrontEndScript.h"

class CalculateFixture : public RadiatorCatalogueFixture {
 protected:
  using Dlg = CZPRadiatorCalculateDlg;

  // Cast iron by the exponent law, steel by the other two.
  CalculateFixture() {
    ZP::SetDefaultValuesFile(DefaultsPath());
    iron = AddRadiator(AddType(L"铸铁"), L"四柱760");
    iron->m_dA = 0.6;
    iron->m_dB = 1.28;
    CZPRadiatorType* steel = AddType(L"钢制");
    panel = AddRadiator(steel, L"板式600");
    panel->m_nFormula = 1;
    panel->m_strUnit = L"m";
    panel->m_dF = 2.5;
    fixed = AddRadiator(steel, L"柱式");
    fixed->m_nFormula = 2;
    DefineNoteLayer();
  }
  ~CalculateFixture() override {
    CZPManagerLayer::GetInstance()->RemoveAll();
    ZP::SetDefaultValuesFile(L"");
  }

  CString DefaultsPath() const { return CString::FromUtf8((install.Root() / "user/Defaults.idp").string()); }
  static void DefineNoteLayer() {
    CZPManagerLayer& scheme = *CZPManagerLayer::GetInstance();
    scheme.RemoveAll();
    auto* category = new CZPSystemLayer;
    auto* group = new CZPGroupLayer;
    auto* layer = new CZPLayer;
    layer->SetKorLayer(L"公用标注");
    layer->SetUserLayer(L"暖通-公用-标注");
    layer->SetColorIndex(3);
    scheme.Add(category);
    category->Add(group);
    group->Add(layer);
  }

  int In(const std::function<void(Dlg&)>& test) {
    Dlg dialog(nullptr);
    frontEnd.runs.push_front([&](CDialog&) { test(dialog); });
    return dialog.DoModal();
  }
  // What is done in the manager that the button opens.
  void Manage(Dlg& dialog, const std::function<void(CZPRadiatorManagerDlg&)>& test) {
    frontEnd.runs.push_front([&](CDialog& open) {
      EXPECT_EQ(open.GetParent(), &dialog);
      test(static_cast<CZPRadiatorManagerDlg&>(open));
    });
    EXPECT_TRUE(dialog.m_manager.UserClick());
  }
  static void Select(CZPRadiatorManagerDlg& manager, const CZPRadiatorObject* object) {
    HTREEITEM found = nullptr;
    manager.m_tree.Walk([&](HTREEITEM item) {
      if (item->data == object) found = item;
      return true;
    });
    EXPECT_TRUE(manager.m_tree.UserSelect(found));
  }
  void SwitchTo(Dlg& dialog, const CZPRadiator* radiator) {
    Manage(dialog, [&](CZPRadiatorManagerDlg& manager) {
      Select(manager, radiator);
      EXPECT_TRUE(manager.m_ok.UserClick());
    });
    EXPECT_EQ(dialog.Radiator(), radiator);
  }

  // Presses the button, and answers the prompt for a room.
  void PickRoom(Dlg& dialog, const wchar_t* answer) {
    editor.lines = {answer};
    EXPECT_TRUE(dialog.m_pickRoom.UserClick());
  }
  // Presses the button, and answers the prompt for the place.
  void Annotate(Dlg& dialog, const wchar_t* place) {
    editor.lines = {place};
    EXPECT_TRUE(dialog.m_annotate.UserClick());
  }
  std::vector<const AcDbText*> Texts() {
    std::vector<const AcDbText*> texts;
    const AcDbObjectPointer<AcDbBlockTableRecord> space(editor.Database().modelSpaceId(), AcDb::kForRead);
    for (const AcDbObjectId& id : space->entities())
      if (const auto* text = AcDbText::cast(id.object()); text && !id.isErased()) texts.push_back(text);
    return texts;
  }

  ScriptedEditor editor;
  UiFrontEndScript frontEnd;
  CZPRadiator* iron = nullptr;
  CZPRadiator* panel = nullptr;
  CZPRadiator* fixed = nullptr;
};
