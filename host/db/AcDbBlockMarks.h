// The BLOCK and ENDBLK of a block: where its name, base point, flags and external path stand in a file.
#pragma once

#include "host/db/AcDbEntity.h"

class AcDbBlockBegin : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbBlockBegin);

 public:
  AcGePoint3d basePoint() const { return m_basePoint; }
  Acad::ErrorStatus setBasePoint(const AcGePoint3d& point);
  // Group 70: 1 anonymous, 2 has attribute definitions, 4 external reference, 8 overlay, 32 resolved.
  int flags() const { return m_flags; }
  Acad::ErrorStatus setFlags(int flags);
  const CString& xrefPath() const { return m_xrefPath; }
  Acad::ErrorStatus setXrefPath(const CString& path);
  const CString& comments() const { return m_comments; }
  Acad::ErrorStatus setComments(const CString& comments);
  // The name as the file has it, which is the block record's once the drawing is complete.
  static CString nameIn(DxfTags tags);

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  AcGePoint3d m_basePoint;
  CString m_xrefPath;
  CString m_comments;
  int m_flags = 0;
};

class AcDbBlockEnd : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(AcDbBlockEnd);

 protected:
  void dxfOutFields(DxfRecordEditor& editor) const override;
};
