// The catalogue of duct materials and of the standard duct sizes, which all materials share: owns both and
// keeps the duct half of PipeMaterial.idp. Whoever edits them decides when they are saved; nothing is saved
// at the end of the program.
#pragma once

#include "host/afx/CStringArray.h"
#include "plugin/base/CZPArray.h"
#include "plugin/pipes/ducts/CZPDuctDiameter.h"
#include "plugin/pipes/ducts/CZPDuctMaterial.h"

class ZP_EXPORT CZPDuctMaterialManager {
 public:
  // The one catalogue. The first call reads the file; without a readable one the catalogue is empty.
  static CZPDuctMaterialManager* GetInstance();
  virtual ~CZPDuctMaterialManager();

  // The first material, or null for an empty catalogue.
  CZPDuctMaterial* GetInitialDuctMaterial() const;
  // The first material of exactly that name, or null.
  CZPDuctMaterial* GetDuctMaterial(const CString& name) const;
  // The names in catalogue order; out is emptied first.
  void GetAllDuctMaterialName(CStringArray& out) const;

  // Appends and takes ownership. False when the pointer or a material of exactly that name is in already, or
  // for null; the caller keeps it then.
  bool Add(CZPDuctMaterial* material);
  // Deletes the material, whether or not it is in use. False if the pointer isn't in the catalogue.
  bool Remove(CZPDuctMaterial* material);

  // Appends, takes ownership and sorts the list. False for null and for a pointer that is in already; equal
  // sizes are not refused. A round size whose diameter is in already is nevertheless gone after the sort, as
  // SortCircleDuctDiameter tells, and the result is true.
  bool AddRectDuctDiameter(CZPDuctDiameter* size);
  bool AddCircleDuctDiameter(CZPDuctDiameter* size);
  // Deletes the size. False if the pointer isn't in the list.
  bool RemoveRectDuctDiameter(CZPDuctDiameter* size);
  bool RemoveCircleDuctDiameter(CZPDuctDiameter* size);

  // Both sort by the number of the size text, so that only the width counts, rounded to two decimals. Of
  // rectangular sizes of one width all stay, in the order that they had. Of round sizes only the first stays;
  // the others leave the list but are not deleted, since somebody may be working on them: whoever has the
  // pointer owns the object then.
  void SortRectDuctDiameter();
  void SortCircleDuctDiameter();

  // Appends what the file holds. False when the file can't be read, has another version or lacks one of the
  // sections; what stood before that section has been read.
  bool ReadData();
  // Replaces the duct sections of the file and keeps all others. False when the file can't be written.
  bool SaveData();

  // Owned, for the dialog that works on them in place. May hold null elements.
  CZPArray<CZPDuctMaterial*, CZPDuctMaterial*> m_arrMaterials;       // in the user's order
  CZPArray<CZPDuctDiameter*, CZPDuctDiameter*> m_arrRectDiameters;   // sorted
  CZPArray<CZPDuctDiameter*, CZPDuctDiameter*> m_arrCircleDiameters; // sorted

 private:
  CZPDuctMaterialManager();
};
