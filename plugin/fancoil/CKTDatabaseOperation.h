// Two jobs under one class. It reads and edits KTSLDatabase.xml: the pipe and duct systems with their layers,
// the known fan-coil blocks, and what connects to each (docs/formats/ktsl.md). And it edits FCUData.idp in
// place, past CFCUManager, which sees nothing of it before the next start.
#pragma once

#include "host/afx/CStringArray.h"
#include "plugin/base/CZPArray.h"
#include "plugin/fancoil/SKTFCUDuctData.h"
#include "plugin/fancoil/SKTFCUEquipmentData.h"
#include "plugin/fancoil/SKTFCUMainPipeData.h"

class VkDtDictionary;

// Names compare exactly, but those of blocks without regard to case. A copy shares the dictionary with its
// original; dictionaries live until the end of the process.
class ZP_EXPORT CKTDatabaseOperation {
 public:
  // Puts the version mark into FCUData.idp, which is written anew by that, or made with nothing but the mark.
  CKTDatabaseOperation();
  CKTDatabaseOperation(const CKTDatabaseOperation& other);
  CKTDatabaseOperation& operator=(const CKTDatabaseOperation& other);
  virtual ~CKTDatabaseOperation();

  // Reads KTSLDatabase.xml into a dictionary of the object's own. False when it can't be read.
  bool Initial();

  // The systems. Without Initial nothing is found. Arrays are appended to.
  // The three GetAll... that give bool for pipes always give false, whatever they found: look at the array.
  bool GetAllPipecoilName(CStringArray& names);
  CString GetPipecoilName(int id);                        // "" for none
  bool GetMainPipeLayer(CString sysName, CString& layer); // layer is emptied first
  bool GetAllMainPipeLayer(CStringArray& layers);
  bool GetRiserLayer(CString sysName, CString& layer); // layer stays as it is when there is none
  bool GetAllRiserLayer(CStringArray& layers);
  CString GetDuctName(int id); // "" for none
  bool GetAllDuctName(CStringArray& names);
  bool GetDuctLayer(CString sysName, CString& layer); // layer is emptied first
  bool GetAllDuctLayer(CStringArray& layers);

  // Sets pt to the label point of the block, and leaves it alone for an unknown one. Always false: preset pt.
  bool GetFCUBzInsertPoint(const CString& block, AcGePoint3d& pt);
  // Registers the block with its label point, in memory. A block that is known keeps its point. False without
  // Initial, for a database without "Block", and when no id is left; true otherwise. The flag is not used.
  bool AddOrModifyFCUBlock(const CString& block, const AcGePoint3d& pt, bool flag);

  // Appends the connections of the block, with z 0. False without Initial, for an unknown block and for a
  // database without the connections' part.
  bool GetFCUConnectPipeData(const CString& block, CZPArray<SKTFCUMainPipeData>& records);
  bool GetFCUConnectDuctData(const CString& block, CZPArray<SKTFCUDuctData>& records);
  // Replaces the connections of the block, which is registered at the origin if need be; records of unknown
  // systems are left out. False as above and when the block can't be registered. The pipes' one writes the
  // whole database to the disk and gives the result of that; the ducts' one changes memory only.
  bool SaveFCUConnectPipeData(const CString& block, const CZPArray<SKTFCUMainPipeData>& records);
  bool SaveFCUConnectDuctData(const CString& block, const CZPArray<SKTFCUDuctData>& records);

  // Edits in FCUData.idp, each one reading and one writing of the file; none needs Initial. False when it
  // can't be read, when it can't be written, and as told. A maker that isn't there is no failure: the file is
  // written as it was.
  bool AddFactory(const CString& name); // false for a maker that is there
  // Drops the last maker out of the count, whichever is named; see FactoryEdits.cpp.
  bool RemoveFactory(const CString& name);
  // The new name isn't compared with those of other makers.
  bool ChangeFactoryName(const CString& oldName, const CString& newName);
  // Appends the model; one that is there is replaced with overwrite, else false.
  bool AddEquipment(const SKTFCUEquipmentData& data, const CString& factory, bool overwrite);
  // Finds nothing in files as they are written; see EquipmentEdits.cpp.
  bool RemoveEquipment(const CString& model, const CString& factory);
  // Replaces all fields of the model, whose name can't be changed: false for another name in data, with a
  // message to the user when the model exists, and for a model that isn't there.
  bool ChangeEquipmentData(const CString& model, const CString& factory, const SKTFCUEquipmentData& data);
  // Fills out, but for szFactory, when there is such a model; a key that it lacks leaves its field alone.
  // False whether or not it is there, and true for a maker that isn't: preset out.
  bool GetEquipmentData(const CString& model, const CString& factory, SKTFCUEquipmentData& out);

  // Copies the catalogue of the older installation into FCUData.idp and reports on the command line. Models
  // that are there already stay as they are.
  void CopyFromOldIdp();

 private:
  // The part of the database, or null; the second one also until Initial has succeeded.
  VkDtDictionary* GetKtTypeDict(const CString& type);
  VkDtDictionary* GetReadPart(const CString& type);
  // The id, with true; -1 and false when there is none.
  bool GetFCUBlockID(const CString& block, int& id);
  bool GetOrAddFCUBlockID(const CString& block, int& id); // registers the block at the origin if need be
  bool GetMainPipeID(const CString& sysName, int& id);
  bool GetDuctID(const CString& sysName, int& id);

  bool m_bInitialized = false;
  VkDtDictionary* m_pDictionary = nullptr; // borrowed
};
