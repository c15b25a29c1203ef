#include "plugin/rooms/CTQRoom.h"

IMPLEMENT_DYNAMIC(CTQRoom, CTQFloorSub)

CTQRoom::CTQRoom() = default;
CTQRoom::~CTQRoom() = default;
