// A room in the drawing: its number and name at a place, the outline where it is known, and the loads that
// were calculated for it. The record of the calculation itself stands beside it (RoomRecord.h). Drawings are
// read and saved with their rooms where the plug-in is missing; docs/formats/rooms.md tells the form.
#pragma once

#include <memory>
#include <vector>

#include "host/afx/CString.h"
#include "host/db/AcDbEntity.h"
#include "host/ge/AcGePoint2d.h"
#include "plugin/base/ZpExport.h"
#include "plugin/rooms/HvacSpaceLoads.h"

class AcDbText;

class ZP_EXPORT VkDbHvacSpace : public AcDbEntity {
  ACRX_DECLARE_MEMBERS(VkDbHvacSpace);

 public:
  VkDbHvacSpace();
  ~VkDbHvacSpace() override;

  // Loads in W.
  double GetTotalHeatLoad() const { return m_loads.totalHeat; }
  double GetTotalCoolLoad() const { return m_loads.totalCool; }
  double GetWinTotalMostLoad() const { return m_loads.winterMost; } // the largest total of the winter
  double GetSumTotalMostLoad() const { return m_loads.summerMost; } // the largest total of the summer
  // eInvalidInput for what is not finite, as with all setters; eNotOpenForWrite.
  Acad::ErrorStatus SetTotalHeatLoad(double load);
  Acad::ErrorStatus SetTotalCoolLoad(double load);
  Acad::ErrorStatus SetWinTotalMostLoad(double load);
  Acad::ErrorStatus SetSumTotalMostLoad(double load);

  const CString& GetNumber() const { return m_number; } // as it is shown: "101"
  const CString& GetName() const { return m_name; }
  Acad::ErrorStatus SetNumber(const CString& number);
  Acad::ErrorStatus SetName(const CString& name);

  // Where the texts begin, in world coordinates. The outline stays where it is, but for its height, which is
  // always that of the place.
  AcGePoint3d GetPosition() const;
  Acad::ErrorStatus SetPosition(const AcGePoint3d& position);
  // Drawing units, above 0. A new room has 350: 3.5 mm in a plot of 1:100.
  double GetTextHeight() const { return m_textHeight; }
  Acad::ErrorStatus SetTextHeight(double height);

  // The corners of the outline, in world coordinates, which closes by itself; none where it is not known.
  // They are brought to the plane of the place. eInvalidInput for one or two corners.
  std::vector<AcGePoint3d> GetBoundary() const;
  Acad::ErrorStatus SetBoundary(const std::vector<AcGePoint3d>& corners);

  // The outline and a line of text each for number and name; a room without an outline shows a point.
  Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
  // eCannotScaleNonUniformly for what would distort the texts.
  Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;
  // A closed polyline, or a point, and texts, with the room's properties.
  Acad::ErrorStatus explode(std::vector<AcDbEntity*>& parts) const override;

 protected:
  void dxfInFields(DxfTags tags, const DxfDecodeContext& context) override;
  void dxfOutFields(DxfRecordEditor& editor) const override;

 private:
  // What the room shows, outside any drawing.
  std::vector<std::unique_ptr<AcDbEntity>> Parts() const;
  std::unique_ptr<AcDbText> TextLine(const CString& text, int line) const;

  // Geometry stands in the system of the normal.
  AcGePoint3d m_position;
  AcGeVector3d m_normal{0, 0, 1};
  double m_rotation = 0.0; // of the texts, radians
  double m_textHeight = 350.0;
  std::vector<AcGePoint2d> m_boundary;
  bool m_boundaryChanged = false;
  CString m_number;
  CString m_name;
  HvacSpaceLoads m_loads;
  int m_version = 1; // of the groups in the file; one that is newer than this program stays
};
