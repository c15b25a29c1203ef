// The catalogue of radiators: owns the types, which own the radiators, and keeps HeatingData\Srq.idp. The
// objects are edited live by whoever holds them; nothing is saved at the end of the program.
#pragma once

#include "plugin/radiators/CZPRadiatorType.h"

class ZP_EXPORT CZPRadiatorManager : public CZPRadiatorObject {
  DECLARE_DYNAMIC(CZPRadiatorManager)

 public:
  // The one catalogue, by the name 全部散热器. The first call reads the file; without a file that it knows
  // the catalogue is empty. Raises CInvalidArgException, and tries again at the next call, where a numbered
  // entry of the file holds no name.
  static CZPRadiatorManager* GetInstance();
  // A copy shares the types, and each of the two would destroy them: whoever copies takes them out of one.
  CZPRadiatorManager(const CZPRadiatorManager& other);
  CZPRadiatorManager& operator=(const CZPRadiatorManager& other);
  ~CZPRadiatorManager() override;

  // The first radiator of the first type that has one, or null. Owned by the catalogue, as are those below.
  CZPRadiator* GetInitialRadiator() const;
  // The type of exactly that name, or null.
  CZPRadiatorType* GetRadiatorType(const CString& name) const;
  // The radiator of exactly that name in that type, or null. Without a type's name: the first in the order of
  // the types.
  CZPRadiator* GetRadiator(const CString& name, const CString& typeName) const;

  // Appends and takes ownership. False for null and for a name that is in already; the caller keeps it then.
  bool Add(CZPRadiatorType* type);
  // Makes a type of that name at the end. False, and nothing changes, when there is one.
  bool Add(const CString& name);
  // Deletes the type with all its radiators. False when the pointer isn't in.
  bool Remove(CZPRadiatorType* type);

  // Replaces the file, always in its newest form. False, with the old file in its place, when it can't be
  // written.
  bool SaveData();

  CZPArray<CZPRadiatorType*, CZPRadiatorType*> m_arrTypes; // in order of adding; may hold null elements

 private:
  friend class RadiatorCatalogueFixture; // tests read many files in one process

  CZPRadiatorManager();
  bool ReadData();
  void RemoveAll();
};
