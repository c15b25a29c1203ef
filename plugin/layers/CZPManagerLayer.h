// The active layer scheme: the tree of categories, groups and layer definitions, and its file. It starts on
// 默认方案 in every run of the program; without a readable file the tree is empty. To get a layer of the
// drawing for an identifier use ZP::GetUserLayer.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/layers/CZPLayerObject.h"

class CZPLayer;
class CZPSystemLayer;

class ZP_EXPORT CZPManagerLayer : public CZPLayerObject {
  DECLARE_DYNAMIC(CZPManagerLayer)

 public:
  // The one scheme. The first call reads 默认方案.
  static CZPManagerLayer* GetInstance();
  // A copy shares the categories, see CZPSystemLayer.
  CZPManagerLayer(const CZPManagerLayer& other);
  CZPManagerLayer& operator=(const CZPManagerLayer& other);
  ~CZPManagerLayer() override;

  // Takes the name first, whatever follows. False when the file can't be opened, true otherwise; a file of
  // another version leaves the tree as it was. Raises CInvalidArgException for a category or group node
  // without a key.
  bool ReadData(const CString& planName);
  // Replaces the file of the scheme's name. False for an empty name and when the file can't be written.
  bool SaveData();

  CString GetPlanName() const { return m_strPlanName; }
  void SetPlanName(const CString& planName) { m_strPlanName = planName; } // touches no file

  // Appends and takes ownership; false for null or when it is in already.
  bool Add(CZPSystemLayer* category);
  // Destroys the category with all below it; false when it isn't in.
  bool Remove(CZPSystemLayer* category);
  void RemoveAll();

  // The first definition in tree order, compared exactly; null if none. Owned by the tree.
  CZPLayer* GetLayer(const CString& korLayer) const;
  CZPLayer* GetLayerFromUserLayer(const CString& userLayer) const;
  bool IsExist(const CString& korLayer) const { return GetLayer(korLayer) != nullptr; }
  // The identifier of a layer name by the scheme; false and korLayer untouched for an unknown one. For the
  // identifier that the drawing itself remembers use ZP::GetKOrLayer.
  bool GetKorLayer(const CString& userLayer, CString& korLayer) const;

  const CZPArray<CZPSystemLayer*, CZPSystemLayer*>& Categories() const { return m_arrCategories; }
  CZPArray<CZPSystemLayer*, CZPSystemLayer*>& Categories() { return m_arrCategories; }

 private:
  CZPManagerLayer();

  CZPArray<CZPSystemLayer*, CZPSystemLayer*> m_arrCategories;
  CString m_strPlanName;
};
