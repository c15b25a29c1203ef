// A drawing with layers and a line on each of three, open in the editor, with the layer commands to type; and
// a layer scheme of the test's own.
#pragma once

#include "plugin/layers/LayerService.h"
#include "tests/plugin/layers/SchemeFixture.h"
#include "tests/support/ScriptedEditor.h"

class DrawingFixture : public SchemeFixture {
 protected:
  DrawingFixture() {
    for (const wchar_t* name : {L"甲", L"乙", L"丙", L"丁"}) WorkingDrawing::AddLayerTo(Database(), name);
    onA = LineOn(L"甲");
    onB = LineOn(L"乙");
    onC = LineOn(L"丙");
    regens = 0;
    Register(L"REGEN", [] { ++regens; });
    Register(L"KOR_SZDQTC", [] { ZP::SetCurrentLayer(); });
    Register(L"KOR_GBTC", ZP::CloseSelectedLayer);
    Register(L"KOR_GBQT", ZP::CloseOtherLayers);
    Register(L"KOR_DJTC", ZP::FrozenSelectedLayer);
    Register(L"KOR_DJQT", ZP::FrozenOtherLayers);
    Register(L"KOR_SDTC", ZP::LockedSelectedLayer);
    Register(L"KOR_SDQT", ZP::LockedOtherLayers);
    Register(L"KOR_TCHF", ZP::ResumeLayers);
    Register(L"KOR_DKQBTC", ZP::OpenAllLayers);
    Register(L"KOR_JDQBTC", ZP::UnFrozenAllLayers);
    Register(L"KOR_JSQBTC", ZP::UnLockedAllLayers);
  }
  ~DrawingFixture() override { acedRegCmds->removeGroup(L"TEST"); }

  static void Register(const wchar_t* name, AcRxFunctionPtr function) {
    acedRegCmds->addCommand(L"TEST", name, name, ACRX_CMD_USEPICKSET, function);
  }
  AcDbDatabase& Database() { return editor.Database(); }
  AcDbObjectId LineOn(const wchar_t* layer) {
    const AcDbObjectId id = WorkingDrawing::AppendTo(
        Database(), new AcDbLine(AcGePoint3d(next, 0, 0), AcGePoint3d(next, 100, 0)));
    next += 10;
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    entity->setLayer(layer);
    return id;
  }
  AcDbLayerTableRecord& Layer(const wchar_t* name) {
    return *static_cast<AcDbLayerTableRecord*>(WorkingDrawing::LayerOf(Database(), name).object());
  }
  bool HasLayer(const wchar_t* name) { return !WorkingDrawing::LayerOf(Database(), name).isNull(); }
  void Change(const wchar_t* name, Acad::ErrorStatus (AcDbLayerTableRecord::*setter)(bool), bool on = true) {
    const AcDbObjectPointer<AcDbLayerTableRecord> record(WorkingDrawing::LayerOf(Database(), name),
                                                         AcDb::kForWrite);
    EXPECT_EQ((record.object()->*setter)(on), Acad::eOk);
  }
  // The names of the layers for which it is true, in table order.
  CString LayersThat(bool (AcDbLayerTableRecord::*are)() const) {
    CString names;
    const AcDbObjectPointer<AcDbLayerTable> table(Database().layerTableId(), AcDb::kForRead);
    for (const AcDbObjectId& id : table->records()) {
      const auto& record = *static_cast<AcDbLayerTableRecord*>(id.object());
      if (!record.isErased() && (record.*are)()) names += record.name() + L" ";
    }
    return names;
  }

  ScriptedEditor editor;
  AcDbObjectId onA, onB, onC;
  double next = 0;
  static inline int regens = 0;
};
