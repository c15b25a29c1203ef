// The settings of a drawing that change how it looks.
#pragma once

class AcDbDatabase;

namespace scene {

struct DrawingVariables {
  double linetypeScale = 1;       // LTSCALE
  bool paperLinetypeScale = true; // PSLTSCALE: dashes seen through a viewport keep their length on paper
  bool fills = true;              // FILLMODE
  bool quickText = false;         // QTEXTMODE: frames in place of texts
  int pointMode = 0;              // PDMODE
  double pointSize = 0;           // PDSIZE
  int attributeMode = 1;          // ATTMODE: 0 none shown, 1 as each says, 2 all
  bool mirrorsText = false;       // MIRRTEXT
  double dimensionScale = 1;      // DIMSCALE
  double dimensionArrow = 0.18;   // DIMASZ
  double dimensionText = 0.18;    // DIMTXT
  bool operator==(const DrawingVariables&) const = default;
};

DrawingVariables VariablesOf(const AcDbDatabase& database);

} // namespace scene
