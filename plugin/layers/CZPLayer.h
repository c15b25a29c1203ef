// One layer definition of a scheme. It is known by its identifier; its name as a node stays empty.
#pragma once

#include "plugin/layers/CZPLayerObject.h"
#include "plugin/layers/SZPLayerData.h"

class ZP_EXPORT CZPLayer : public CZPLayerObject {
  DECLARE_DYNAMIC(CZPLayer)

 public:
  CZPLayer();
  CZPLayer(const CZPLayer& other);
  CZPLayer& operator=(const CZPLayer& other);
  ~CZPLayer() override;

  virtual CString GetUserLayer() const;
  virtual void SetUserLayer(const CString& userLayer);

  // Takes all values of other but its identifier. False for null.
  bool Copy(CZPLayer* other);

  CString GetKorLayer() const { return m_data.KorLayer; }
  void SetKorLayer(const CString& korLayer) { m_data.KorLayer = korLayer; }
  int GetColorIndex() const { return m_data.ColorIndex; }
  void SetColorIndex(int index) { m_data.ColorIndex = index; }
  CString GetLineType() const { return m_data.LineType; }
  void SetLineType(const CString& lineType) { m_data.LineType = lineType; }
  double GetLineTypeScale() const { return m_data.LineTypeScale; }
  void SetLineTypeScale(double scale) { m_data.LineTypeScale = scale; }
  double GetLineWeight() const { return m_data.LineWeight; } // mm, see SZPLayerData
  void SetLineWeight(double millimetres) { m_data.LineWeight = millimetres; }
  CString GetLayerCode() const { return m_data.LayerCode; }
  void SetLayerCode(const CString& code) { m_data.LayerCode = code; }
  CString GetRemarks() const { return m_data.Remarks; }
  void SetRemarks(const CString& remarks) { m_data.Remarks = remarks; }

  // The record itself, for the scheme file.
  SZPLayerData& Data() { return m_data; }
  const SZPLayerData& Data() const { return m_data; }

 private:
  SZPLayerData m_data;
};
