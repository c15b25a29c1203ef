// What one pipe section contains: fittings, tees and crosses by name and number, and two coefficients that
// the user states. The coefficients of the former are asked of the store for every sum, so that a change
// there shows in the next one.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/resistance/CZPPipe3T4TCoeNum.h"
#include "plugin/resistance/CZPPipeParts.h"

// docs/resistance.md tells the arithmetic.
class ZP_EXPORT CZPLocalResistanceSettings {
 public:
  CZPLocalResistanceSettings();
  CZPLocalResistanceSettings(const CZPLocalResistanceSettings&);
  CZPLocalResistanceSettings& operator=(const CZPLocalResistanceSettings&);
  virtual ~CZPLocalResistanceSettings();

  // The index of the first fitting of exactly that name, or -1.
  int FindPipeParts(const CString& name) const;

  // Adds the other section to this one: numbers of fittings that both have, the fittings that only the other
  // has, the counts and the two coefficients. The diameter stays, and all fittings count at it from then on.
  // The other one may be this.
  void Plus(const CZPLocalResistanceSettings& other);

  // The total coefficient of the section, and the one without the additional part. A fitting that the store
  // doesn't know adds nothing.
  double GetCoefficient() const;
  double GetCoefficientRemoveAdditionCoe() const;

  double GetOtherCoe() const { return m_dOtherCoe; }
  void SetOtherCoe(double coefficient) { m_dOtherCoe = coefficient; }
  // The spelling is what siblings call.
  double GetAttitionCoe() const { return m_dAdditionCoe; }
  void SetAdditionCoe(double coefficient) { m_dAdditionCoe = coefficient; }

  void Empty3T4T(); // no tees and crosses; the rest stays

  CZPArray<CZPPipeParts, CZPPipeParts&> m_arrParts; // in the order of first adding
  CZPPipe3T4TCoeNum m_num3T4T;
  double m_dOtherCoe = 0;    // 其它局部阻力系数
  double m_dAdditionCoe = 0; // 附加局部阻力系数
  CString m_strDN = L"DN20"; // the section's diameter, which chooses the column of each fitting
};
