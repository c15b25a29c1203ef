// The base of the layer and fan-coil classes: a name, and the text of the last error.
#pragma once

#include "host/afx/CObject.h"
#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

// The order of the virtual operations is part of the binary interface towards sibling plug-ins: new ones go
// to the end. Copying and assigning carry both texts along.
class ZP_EXPORT CZPObject : public CObject {
  DECLARE_DYNAMIC(CZPObject)

 public:
  CZPObject();
  CZPObject(const CZPObject& other);
  CZPObject& operator=(const CZPObject& other);
  ~CZPObject() override;

  virtual CString GetClassName() const; // from the run-time record
  virtual void SetLastError(const CString& error);
  virtual CString GetLastError() const;
  virtual void SetName(const CString& name);

  CString GetName() const;

 private:
  CString m_strName;
  CString m_strLastError;
};
