// A pipe material: its diameter table, its roughness, and the scheme by which a pipe's label is written. The
// fields are edited in place by whoever holds the live object; nothing is saved by that.
#pragma once

#include "host/afx/CString.h"
#include "host/afx/CStringArray.h"
#include "plugin/base/CZPArray.h"
#include "plugin/base/ZpExport.h"
#include "plugin/pipes/SZPPipeDNData.h"

class ZP_EXPORT CZPPipeMaterial {
 public:
  CZPPipeMaterial() = default;
  CZPPipeMaterial(const CZPPipeMaterial&) = default;
  CZPPipeMaterial& operator=(const CZPPipeMaterial&) = default;
  virtual ~CZPPipeMaterial();

  CString GetName() const { return m_strName; }
  void SetName(const CString& name) { m_strName = name; }

  // The pipe names ("DN20") of all rows, in table order; out is emptied first.
  void GetAllPipeName(CStringArray& out) const;
  // The first row of that pipe name, compared exactly. 1 if found; else 0, and out stays as it was.
  int GetPipeDNData(const CString& pipeName, SZPPipeDNData& out) const;
  // The text by which a pipe is labelled on a drawing. A pipe that the table doesn't know is labelled with
  // the numbers of the default row.
  CString GetLabelText(const CString& pipeName) const;

  CString m_strName;
  CZPArray<SZPPipeDNData, SZPPipeDNData&> m_arrDNData; // in the user's order
  double m_dRoughness = 0.2;                           // absolute, mm
  // The label scheme. Parameters A and B name a number of the row or are literal text; "无" is nothing in the
  // connector, parameter B and the suffix.
  CString m_strPrefix = L"DN";
  CString m_strParamA = L"公称直径";
  CString m_strConnector = L"×";
  CString m_strParamB = L"壁厚";
  CString m_strSuffix = L"(T)";
  double m_dAlongDistance = 0.1; // between labels along a pipe, mm; no part of the text
};
