// The one list of layer groups, which all drawings of the machine share, and its file CadLayerGroup.idp. For
// the schemes by which modules make layers see CZPManagerLayer.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/base/CZPObject.h"

class CCADGroupLayer;

class CCADManagerLayer : public CZPObject {
  DECLARE_DYNAMIC(CCADManagerLayer)

 public:
  // The first call reads the file.
  static CCADManagerLayer* GetInstance();
  ~CCADManagerLayer() override;
  CCADManagerLayer(const CCADManagerLayer&) = delete;
  CCADManagerLayer& operator=(const CCADManagerLayer&) = delete;

  // 0 when the file can't be opened, otherwise 1; a file of another version is not read. Groups in the list
  // are let go without being destroyed: whoever reads again takes them out before.
  int ReadData();
  // Replaces the file. 0 when it can't be written.
  int SaveData();

  // Appends and takes ownership, 1. 0 for null, and where it or one of exactly that name is in already.
  int Add(CCADGroupLayer* group);
  // Destroys the group, 1. 0 when it isn't in.
  int Remove(CCADGroupLayer* group);

  using GroupArray = CZPArray<CCADGroupLayer*, CCADGroupLayer*>;
  const GroupArray& Groups() const { return m_arrGroups; }
  GroupArray& Groups() { return m_arrGroups; }

 private:
  CCADManagerLayer();

  GroupArray m_arrGroups;
};
