// Linetypes: patterns of dashes, gaps and dots.
#pragma once

#include "host/db/AcDbSymbolTable.h"

#include <vector>

class AcDbLinetypeTableRecord : public AcDbSymbolTableRecord {
  ACRX_DECLARE_MEMBERS(AcDbLinetypeTableRecord);

 public:
  struct Dash {
    double length = 0; // drawing units; positive a dash, negative a gap, 0 a dot
  };
  const CString& comments() const { return m_comments; }
  double patternLength() const;
  const std::vector<Dash>& dashes() const { return m_dashes; }
  Acad::ErrorStatus setComments(const CString& comments);
  Acad::ErrorStatus setDashes(std::vector<Dash> dashes);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  CString m_comments;
  std::vector<Dash> m_dashes;
  bool m_dashesChanged = false; // until then the pattern, with shapes or texts in it, stays as it came
};

ZP_SYMBOL_TABLE(AcDbLinetype);
