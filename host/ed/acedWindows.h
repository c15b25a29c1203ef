// The host's windows. Those that are parents of plug-ins' dialogs are opaque here, and null where there are
// none.
#pragma once

class AcDbObjectId;
class CWnd;

CWnd* acedGetAcadDwgView();
CWnd* acedGetAcadFrame();

// Draws what is still to be drawn before it returns.
void acedUpdateDisplay();

// Leaves an entity out of the picture, or takes it in again; hidden entities can't be picked. The drawing
// doesn't change, nor is it remembered with it. False for an id that is none of an entity of an open drawing.
bool acedSetEntityHidden(const AcDbObjectId& id, bool hidden);
