// Questions about pipes: a material and a diameter of the catalogue, a layer of the scheme. As in Asking.h
// nothing means Escape; an empty catalogue or scheme is told, and then the answer is nothing as well.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/ge/AcGePoint3d.h"
#include "plugin/pipes/SZPPipeDNData.h"
#include "plugins/workbench/Asking.h"

#include <optional>

class CZPPipeMaterial;

namespace workbench {

// By name, or by number in the list that "?" shows. A preset that the catalogue lacks becomes its first
// material. Owned by the catalogue; null means nothing.
const CZPPipeMaterial* AskMaterial(const CString& preset);

// The material that the pipe's data name; null when the catalogue lacks it.
const CZPPipeMaterial* MaterialOf(const AcDbObjectId& pipe);

// A row of the material's table, by pipe name ("DN50") or by nominal diameter ("50"). A preset (mm) that the
// table lacks becomes its first row.
std::optional<SZPPipeDNData> AskDiameter(const CZPPipeMaterial& material, double preset);
// The row of exactly that nominal diameter, mm.
std::optional<SZPPipeDNData> FindDiameter(const CZPPipeMaterial& material, double nominal);
// Its pipe name, such as "DN50".
CString PipeNameOf(const CZPPipeMaterial& material, const SZPPipeDNData& row);

// The identifier of a layer of the scheme; the layer's own name is taken for it, too. usual are identifiers
// that "?" shows, up to a null; those that the scheme lacks are left out.
std::optional<CString> AskLayerIdentifier(const CString& preset, const wchar_t* const* usual);

// Of pipes above their floor, m.
inline constexpr Range kElevations{-1000, 1000};

// A plan is flat: what is drawn lies at z 0, and the elevation is an attribute. Pipes that meet in the plan
// have one point in common then, whatever their elevations.
inline AcGePoint3d OnPlan(const AcGePoint3d& point) {
  return {point.x, point.y, 0};
}

} // namespace workbench
