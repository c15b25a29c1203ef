// A drawing with a line that is to become a pipe, a layer scheme and an empty catalogue of pipes.
#pragma once

#include "plugin/graph/Xdata.h"
#include "plugin/pipes/CZPPipeMaterialManager.h"
#include "plugin/pipes/OwnedElements.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugin/pipes/attributes/CZPRiserPipe.h"
#include "tests/plugin/layers/SchemeFixture.h"
#include "tests/support/WorkingDrawing.h"

class PipeFixture : public SchemeFixture {
 protected:
  PipeFixture() : line(drawing.AppendLine()) { Catalogue(); }
  ~PipeFixture() override { pipes::DestroyElements(CZPPipeMaterialManager::GetInstance()->m_arrMaterials); }

  // The catalogue with these materials alone.
  static void Catalogue(std::initializer_list<const wchar_t*> names = {}) {
    auto& materials = CZPPipeMaterialManager::GetInstance()->m_arrMaterials;
    pipes::DestroyElements(materials);
    for (const wchar_t* name : names) {
      materials.Add(new CZPPipeMaterial);
      materials[materials.GetUpperBound()]->SetName(name);
    }
  }
  // The text under the key, or "(none)".
  static CString Stored(const AcDbObjectId& id, const wchar_t* key) {
    CString text = L"(none)";
    ZP::GetXdata(id, key, text);
    return text;
  }
  CString Stored(const wchar_t* key) const { return Stored(line, key); }
  void Erase(const AcDbObjectId& id) {
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForWrite);
    entity->erase();
  }

  WorkingDrawing drawing;
  AcDbObjectId line;
};
