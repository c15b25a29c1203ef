// A whole drawing once more.
#pragma once

class AcDbDatabase;

// Fills a fresh AcDbDatabase(false) with all that the other one holds and that isn't erased, under the same
// handles, so that it is saved as the same file. Its undo history is empty, and external references are not
// resolved.
void copyDatabase(const AcDbDatabase& from, AcDbDatabase& to);
