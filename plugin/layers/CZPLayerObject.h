// What the nodes of a layer scheme share: a name, the node above, and whether the layer manager lets the user
// rename or delete the node. The flag stops nothing at this tier.
#pragma once

#include "plugin/base/CZPObject.h"

class ZP_EXPORT CZPLayerObject : public CZPObject {
  DECLARE_DYNAMIC(CZPLayerObject)

 public:
  CZPLayerObject();
  CZPLayerObject(const CZPLayerObject& other);
  CZPLayerObject& operator=(const CZPLayerObject& other);
  ~CZPLayerObject() override;

  void SetName(const CString& name) override;

  // The order of the virtual operations is part of the binary interface.
  virtual bool IsAllowModify() const;
  virtual void SetAllowModify(bool allow);
  virtual CZPLayerObject* GetParent() const; // not owned; null for the scheme itself
  virtual void SetParent(CZPLayerObject* parent);
  virtual CString GetName() const;

 private:
  CString m_strName; // beside the name of the base, which stays empty
  CZPLayerObject* m_pParent = nullptr;
  bool m_bAllowModify = true;
};
