// A page of the manager of coefficients: what it shows is the user's own until it is committed.
#pragma once

#include "host/ui/CPropertyPage.h"

class CoefficientPage : public CPropertyPage {
 public:
  using CPropertyPage::CPropertyPage;

  // Shows what the store holds.
  virtual void Open() = 0;
  // Puts what the page shows into the store, and saves that.
  virtual void Commit() = 0;
};
