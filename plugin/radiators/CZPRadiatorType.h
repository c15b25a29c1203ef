// A group of radiators; owns them. The user sees its name as 散热器材质, as a rule a maker or a material.
#pragma once

#include "plugin/base/CZPArray.h"
#include "plugin/radiators/CZPRadiator.h"

class ZP_EXPORT CZPRadiatorType : public CZPRadiatorObject {
  DECLARE_DYNAMIC(CZPRadiatorType)

 public:
  CZPRadiatorType();
  CZPRadiatorType(const CZPRadiatorType&) = delete;
  CZPRadiatorType& operator=(const CZPRadiatorType&) = delete;
  ~CZPRadiatorType() override;

  // The radiator of exactly that name, or null.
  CZPRadiator* GetRadiator(const CString& name) const;

  // Appends, takes ownership and becomes the parent. False for null and for a name that is in already; the
  // caller keeps the refused object.
  bool Add(CZPRadiator* radiator);
  // Deletes the radiator. False when the pointer isn't in.
  bool Remove(CZPRadiator* radiator);

  CZPArray<CZPRadiator*, CZPRadiator*> m_arrRadiators; // in order of adding; may hold null elements
};
