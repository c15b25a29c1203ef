// Whether a drawing shows others, which are read where they are needed, by one thread.
#pragma once

class AcDbDatabase;

namespace scene {

bool RefersToOthers(const AcDbDatabase& database);

} // namespace scene
