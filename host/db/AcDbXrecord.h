// Free data of the OBJECTS section, as tags of any code.
#pragma once

#include "host/db/AcDbObject.h"

#include <optional>
#include <string>

class AcDbXrecord : public AcDbObject {
  ACRX_DECLARE_MEMBERS(AcDbXrecord);

 public:
  // The data as a new chain that the caller releases; null for an empty record.
  Acad::ErrorStatus rbChain(resbuf** chain) const;
  // eInvalidInput for a chain with a group code outside 1 to 369.
  Acad::ErrorStatus setFromRbChain(const resbuf& chain);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  std::optional<std::string> m_newData; // tags; the data stays in the record until it is changed
};
