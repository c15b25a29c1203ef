// A horizontal main.
#pragma once

#include "plugin/pipes/attributes/CZPPipe.h"

class ZP_EXPORT CZPMainPipe : public CZPPipe {
 public:
  explicit CZPMainPipe(const AcDbObjectId& id) : CZPPipe(id) {}
  ~CZPMainPipe() override;

  void InitEntityXdata() override;

  // Relative to the floor. ZP::SetElevation writes the same value with two decimals.
  bool SetElevation(double elevation);
  bool GetElevation(double& elevation) const;
};
