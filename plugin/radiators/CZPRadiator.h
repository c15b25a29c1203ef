// One radiator: the experimental data of its heat output, and how many sections or metres of it a load needs.
// The user sees the name as 散热器类型, as a rule a model; the type that holds it is what he sees as
// 散热器材质.
#pragma once

#include "plugin/radiators/CZPRadiatorObject.h"
#include "plugin/radiators/SZPRadCalData.h"

class ZP_EXPORT CZPRadiator : public CZPRadiatorObject {
  DECLARE_DYNAMIC(CZPRadiator)

 public:
  CZPRadiator();
  CZPRadiator(const CZPRadiator& other); // of the same parent, though the parent doesn't hold the copy
  CZPRadiator& operator=(const CZPRadiator& other);
  ~CZPRadiator() override;

  CString GetUnit() const;
  void SetParent(CZPRadiatorObject* parent);
  CZPRadiatorObject* GetParent() const; // not owned; null outside a catalogue
  // The text of the formula in use; "Error!" for a code that is none.
  CString GetCalFormula() const;

  // The calculation works on what was attached last, and attaching changes the catalogue's own object: attach
  // before each calculation.
  void Attach(const SZPRadCalData& data);
  // The unit output Qs, W per section or per metre; 0 for a formula code that is none. No input is checked,
  // here and below: the result is whatever the arithmetic gives, infinity and not-a-number included.
  double CalculatePjSrl() const;
  // n = Qj / Qs × β1 × β2 × β3 × β4: sections or metres, not rounded.
  double CalculateNumber() const;
  // n as a text with its unit. Metres have two decimals ("infm", "nanm" where n is no number). Sections are
  // whole: the remainder is dropped while it is less than 7.5 % of n in class 0, 2.5 % in class 2, 5 % in
  // class 1 and every other. A count that no 32-bit integer holds prints "-2147483648片" when it is infinite
  // or no number.
  CString GetCalNumberResult(int nRoundingClass) const;

  // All six numbers are kept whatever the formula is, so that changing it back finds the old ones.
  int m_nFormula = 0;        // a code of RadiatorFormulas.h
  CString m_strUnit = L"片"; // of the count: 片 (sections) or m (metres)
  double m_dA = 0.2;         // exponent law: a, W per section or per metre at ΔT = 1 K
  double m_dB = 1.2;         // exponent law: b
  double m_dC = 0.3;         // heat-transfer law: a of k = a·ΔT^b, W/(m²·K)
  double m_dD = 0.08;        // heat-transfer law: b of it
  double m_dF = 0;           // heat-emitting area, m² per section or per metre
  double m_dQs = 80.0;       // fixed output, W per section or per metre
  SZPRadCalData m_calData;   // attached last; not saved

 private:
  CZPRadiatorObject* m_pParent = nullptr;
};
