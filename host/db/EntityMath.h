// Small pieces that the entity classes share: object coordinate systems, angles in degrees in files and
// radians in memory, and the walk over an entity's own tags.
#pragma once

#include "host/db/DxfTag.h"
#include "host/ge/AcGeMatrix3d.h"
#include "host/ge/AcGePoint3d.h"
#include "host/ge/AcGeVector3d.h"

class DxfDecodeContext;
class DxfRecordEditor;

namespace entity {

bool isFinite(const AcGePoint3d& p);
bool isFinite(const AcGeVector3d& v);
bool isFinite(const AcGeMatrix3d& matrix);

// Between world coordinates and those of a normal; the usual normal 0,0,1 changes nothing.
AcGePoint3d toWorld(const AcGePoint3d& p, const AcGeVector3d& normal);
AcGePoint3d toObject(const AcGePoint3d& p, const AcGeVector3d& normal);
AcGeVector3d xAxis(const AcGeVector3d& normal);
// The unit normal after a matrix; a reflection turns it round, so that what was anticlockwise about it stays
// so only with start and end changed.
AcGeVector3d transformedNormal(const AcGeVector3d& normal, const AcGeMatrix3d& matrix);

double fromDegrees(double degrees);
// Writes an angle in degrees, keeping the old text where it means the same angle.
void writeDegrees(DxfRecordEditor& editor, int code, double radians, bool onlyIfSet = false);
double angleOf(const AcGeVector3d& v); // 0 to 2 pi
// From start to end anticlockwise, above 0 and at most a full turn.
double sweep(double start, double end);
AcGePoint3d onCircle(const AcGePoint3d& objectCentre, const AcGeVector3d& normal, double radius,
                     double angle);

// Reads the three tags of a vector that begins at code; others are passed over. It may come out as zero,
// for which ge::ArbitraryAxis has the world's axes.
void readVector(const DxfTag& tag, int code, AcGeVector3d& vector, const DxfDecodeContext& context);

// The tags that are an entity's own geometry: behind the common properties, no 102 groups, no extended data.
class FieldScope {
 public:
  explicit FieldScope(DxfTags tags);
  auto begin() const { return m_tags.begin(); }
  auto end() const { return m_tags.end(); }

 private:
  DxfTags m_tags;
};

} // namespace entity
