// A fitting with its local-resistance coefficient for each nominal diameter. Coefficients have no unit: they
// are multiples of the velocity pressure in the section.
#pragma once

#include "host/afx/CString.h"
#include "plugin/base/ZpExport.h"

class ZP_EXPORT CZPPipePartsCoe {
 public:
  CZPPipePartsCoe() = default;
  CZPPipePartsCoe(const CZPPipePartsCoe&) = default;
  CZPPipePartsCoe& operator=(const CZPPipePartsCoe&) = default;
  virtual ~CZPPipePartsCoe();

  // The coefficient for a diameter such as "DN20". The number that ends the text is put into the band around
  // a nominal diameter, and a bound belongs to the band below: 22.5 takes the column DN20. A text without
  // such a number takes the column DN15, everything above 45 the column DN50.
  double GetCoe(const CString& dn) const;
  CString GetName() const { return szName; }

  CString szName; // by which sections refer to the fitting
  double dbDN15 = 0;
  double dbDN20 = 0;
  double dbDN25 = 0;
  double dbDN32 = 0;
  double dbDN40 = 0;
  double dbDN50 = 0; // and above
  int nSpare = 0;    // for siblings: copied along, otherwise neither looked at nor stored
};
