// The functions of the commands, each in the file of its name in commands/. A command is one step for U; one
// whose last prompt was answered with Escape leaves the drawing as it was. The host sees to both.
#pragma once

namespace workbench {

void DrawMainPipe(); // mains from point to point, with material, diameter and elevation
void PlaceRiser();   // risers between two elevations
void EditPipe();     // shows and changes the data of a pipe
void LabelPipe();    // the label of a pipe beside it
void SizePipe();     // the diameter for a flow, velocity and friction

} // namespace workbench
