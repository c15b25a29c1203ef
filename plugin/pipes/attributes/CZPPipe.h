// The engineering data of a pipe, which a drawing keeps on the pipe's entity as extended data. A wrapper
// holds nothing but the entity's id: every getter reads the entity, every setter writes it. CZPMainPipe and
// CZPRiserPipe are the two kinds.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "plugin/base/ZpExport.h"

// Setters give true when the entity took the value: false for an id that can't be opened for write. Getters
// give true when the entity has the value; else they leave the argument as it was. Numbers are kept with five
// decimals.
class ZP_EXPORT CZPPipe {
 public:
  explicit CZPPipe(const AcDbObjectId& id) : m_id(id) {}
  CZPPipe(const CZPPipe&) = default;
  CZPPipe& operator=(const CZPPipe&) = default;
  virtual ~CZPPipe();

  // The wrapper is of that entity from now on.
  virtual void AttachEntityId(const AcDbObjectId& id);
  // Writes what a new pipe of the kind begins with, the material being the first of the catalogue. No length:
  // that is measured.
  virtual void InitEntityXdata() = 0;

  bool SetMaterial(const CString& name);
  bool GetMaterial(CString& name) const;
  bool SetDN(double dn); // mm
  bool GetDN(double& dn) const;
  bool SetFlowRate(double rate);
  bool GetFlowRate(double& rate) const;
  bool SetFlowVelocity(double velocity);
  bool GetFlowVelocity(double& velocity) const;
  bool SetBMZ(double loss); // specific friction loss
  bool GetBMZ(double& loss) const;
  bool SetYcZl(double resistance); // friction resistance along the run
  bool GetYcZl(double& resistance) const;

  // Metres. A length that was set goes before the geometry, even where that has changed since; without one
  // the length of the curve is measured, a drawing unit being a millimetre. False when there is neither.
  bool SetLength(double metres);
  bool GetLength(double& metres) const;

  // Puts the entity, its attributes and vertices included, on the layer of the identifier, by layer in colour
  // and linetype, with the definition's linetype scale and weight. False, with nothing changed, when the
  // entity can't be opened for write or the scheme doesn't know the identifier.
  bool SetLayerId(const CString& layerId);
  // The identifier that the entity's layer is marked with.
  bool GetLayerId(CString& layerId) const;

 protected:
  // The data that both kinds begin with.
  void InitCommonXdata();

  AcDbObjectId m_id;
};
