// One model of fan-coil unit in the catalogue. Its name as an object and the model in its record are the same
// as long as the name is set through SetName.
#pragma once

#include "plugin/base/CZPObject.h"
#include "plugin/fancoil/SKTFCUEquipmentData.h"

class ZP_EXPORT CFCUEquipment : public CZPObject {
  DECLARE_DYNAMIC(CFCUEquipment)

 public:
  CFCUEquipment();
  CFCUEquipment(const CFCUEquipment& other); // the parent too, as it stands
  CFCUEquipment& operator=(const CFCUEquipment& other);
  ~CFCUEquipment() override;

  void SetName(const CString& name) override; // the model in the record too

  // The maker that holds it, borrowed; null while none does.
  void SetParent(CZPObject* parent) { m_pParent = parent; }
  CZPObject* GetParent() const { return m_pParent; }

  // Places for two values that a caller works out for the unit. Kept in memory only.
  void SetRealQ(double value) { RealQ = value; }
  double GetRealQ() const { return RealQ; }
  void SetRealG(double value) { RealG = value; }
  double GetRealG() const { return RealG; }

  SKTFCUEquipmentData m_data;

 private:
  double RealQ = 0.0;
  double RealG = 0.0;
  CZPObject* m_pParent = nullptr;
};
