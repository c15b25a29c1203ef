// The catalogue of fan-coil units in memory: the makers with their models, as FCUData.idp held them when the
// program first asked. It changes only through its own operations; edits that CKTDatabaseOperation makes in
// the file are not seen here before the next start, and SaveData overwrites them.
#pragma once

#include "plugin/fancoil/CFCUFactory.h"
#include "plugin/fancoil/CKTDatabaseOperation.h"

class ZP_EXPORT CFCUManager : public CZPObject {
  DECLARE_DYNAMIC(CFCUManager)

 public:
  // The one catalogue. The first call reads the file; without a readable one the catalogue is empty.
  static CFCUManager* GetInstance();
  CFCUManager(const CFCUManager& other); // with copies of the makers; use the one catalogue instead
  CFCUManager& operator=(const CFCUManager& other);
  ~CFCUManager() override;

  // Appends and takes ownership: 1. For null, and when the maker or one of exactly that name is in already:
  // 0, and it stays with the caller.
  int Add(CFCUFactory* factory);
  // Deletes the maker with all its models: 1. 0 for null and for one that isn't in.
  int Remove(CFCUFactory* factory);
  // The first maker of exactly that name, or null.
  CFCUFactory* GetFactory(const CString& name) const;
  // Appends the names of all makers to out: 1. 0, with out untouched, for an empty catalogue.
  int GetAllFactoryName(CStringArray& out) const;

  // The first model in catalogue order, or null.
  CFCUEquipment* GetInitialFCU() const;
  // The first model of exactly that name among the makers of that name, or among all of them where factory
  // is empty; null if there is none.
  CFCUEquipment* GetFCUEquipment(const CString& model, const CString& factory) const;

  // Appends what the file holds: 1. 0 when it can't be read or has another version.
  int ReadData();
  // Replaces the file by what is in memory, whatever it held: 1. 0, with the old file in its place, when it
  // can't be written.
  int SaveData();

  // Owned; may hold null elements.
  CZPArray<CFCUFactory*, CFCUFactory*> m_arrFactories;

 private:
  CFCUManager();

  CKTDatabaseOperation m_operation;
  int m_bDatabaseOk; // 1 when the water-system database could be read
};
