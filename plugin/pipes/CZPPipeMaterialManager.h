// The catalogue of pipe materials: owns the materials and keeps the pipe half of PipeMaterial.idp. Whoever
// edits them decides when they are saved; nothing is saved at the end of the program.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/pipes/CZPPipeMaterial.h"

class ZP_EXPORT CZPPipeMaterialManager {
 public:
  // The one catalogue. The first call reads the file; without a readable one the catalogue is empty.
  static CZPPipeMaterialManager* GetInstance();
  virtual ~CZPPipeMaterialManager();

  // The first material, or null for an empty catalogue.
  CZPPipeMaterial* GetInitialPipeMaterial() const;
  // The first material of exactly that name, or null.
  CZPPipeMaterial* GetPipeMaterial(const CString& name) const;
  // The names in catalogue order; out is emptied first.
  void GetAllPipeMaterialName(CStringArray& out) const;

  // Appends and takes ownership. False when the pointer or a material of exactly that name is in already, or
  // for null; the caller keeps it then.
  bool Add(CZPPipeMaterial* material);
  // Deletes the material, whether or not it is in use. False if the pointer isn't in the catalogue.
  bool Remove(CZPPipeMaterial* material);

  // Appends what the file holds. False when the file can't be read or has another version.
  bool ReadData();
  // Replaces the pipe section of the file and keeps all other sections. False when the file can't be written.
  bool SaveData();

  // In the catalogue's order, for the dialog that moves materials up and down. May hold null elements.
  CZPArray<CZPPipeMaterial*, CZPPipeMaterial*> m_arrMaterials;

 private:
  CZPPipeMaterialManager();
};
