// A vertical riser.
#pragma once

#include "plugin/pipes/attributes/CZPPipe.h"

class ZP_EXPORT CZPRiserPipe : public CZPPipe {
 public:
  explicit CZPRiserPipe(const AcDbObjectId& id) : CZPPipe(id) {}
  ~CZPRiserPipe() override;

  // Calls the virtual setters below, so that a kind of riser derived from this one sees them.
  void InitEntityXdata() override;

  // The riser's number, and the text ahead of it.
  virtual bool GetCode(int& code) const;
  virtual bool SetCode(int code);
  virtual bool GetPreLable(CString& text) const;
  virtual bool SetPreLable(const CString& text);

  bool SetStartElevation(double elevation);
  bool GetStartElevation(double& elevation) const;
  bool SetEndElevation(double elevation);
  bool GetEndElevation(double& elevation) const;
};
