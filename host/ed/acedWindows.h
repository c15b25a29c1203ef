// The host's windows, as parents of plug-ins' dialogs. Opaque here, and null where there are none.
#pragma once

class CWnd;

CWnd* acedGetAcadDwgView();
CWnd* acedGetAcadFrame();
