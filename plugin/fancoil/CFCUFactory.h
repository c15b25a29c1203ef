// A maker of fan-coil units with its models, in the order in which they were added. Its name is the maker's.
#pragma once

#include "host/afx/CStringArray.h"
#include "plugin/base/CZPArray.h"
#include "plugin/fancoil/CFCUEquipment.h"

class ZP_EXPORT CFCUFactory : public CZPObject {
  DECLARE_DYNAMIC(CFCUFactory)

 public:
  CFCUFactory();
  CFCUFactory(const CFCUFactory& other); // with copies of the models
  CFCUFactory& operator=(const CFCUFactory& other);
  ~CFCUFactory() override;

  // Appends, takes ownership, and enters the maker in the record and as parent: 1. For null, and when the
  // object or one of exactly that name is in already: 0, and it stays as it is and with the caller.
  int Add(CFCUEquipment* equipment);
  // Deletes the model: 1. 0 for null and for one that isn't in.
  int Remove(CFCUEquipment* equipment);
  // The first model of exactly that name, or null.
  CFCUEquipment* GetEquipment(const CString& name) const;
  // Appends the names of all models to out: 1. 0, with out untouched, for a maker without models.
  int GetAllEquipmentName(CStringArray& out) const;

  // Owned; may hold null elements.
  CZPArray<CFCUEquipment*, CFCUEquipment*> m_arrEquipments;

 private:
  friend class CFCUManager;
  // Add, for who knows already that the name is free.
  void Append(CFCUEquipment* equipment);
  void CopyModels(const CFCUFactory& other);
};
