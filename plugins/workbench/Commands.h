// The functions of the commands, each in the file of its name in commands/. A command is one step for U; one
// whose last prompt was answered with Escape leaves the drawing as it was. The host sees to both.
#pragma once

namespace workbench {

void DrawMainPipe(); // mains from point to point, with material, diameter and elevation
void PlaceRiser();   // risers between two elevations
void EditPipe();     // shows and changes the data of a pipe
void LabelPipe();    // the label of a pipe beside it
void MakeBends();    // crossing bends where selected pipes of different elevations meet
void SizePipe();     // the diameter for a flow, velocity and friction
void ResistPipe();   // the local resistances of a pipe and their sum
void ManageResistance();
void PlaceRoom();    // a room with its outline, its loads and its record
void QueryRoom();    // the loads of a room, for heating, for cooling, or with its temperature
void PlaceFanCoil(); // fan-coil units of a model picked from the favourites
void MeasureLength();
void MeasureArea();
void DragGroup();        // copies of what is selected, dragged and turned as one
void CopyXrefs();        // what external references show, as entities of the drawing
void DeleteXrefCopies(); // takes those copies away again

} // namespace workbench
