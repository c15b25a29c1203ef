// Drawings from and to files. Reading fills an empty database; writing gives back every tag that was read,
// and what was changed in its place.
#pragma once

#include "host/afx/CString.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class AcDbDatabase;
class EntityWatcher;

namespace dxf {

// Something in a file that was not as it should be and was mended without losing anything.
struct Repair {
  std::size_t line = 0; // in the file, from 1; 0 where it belongs to no line
  int groupCode = -1;   // -1 where it belongs to no tag
  CString what;         // a sentence for the user
};

// Told how much of a long reading or writing is done, 0 to 1; giving false cancels it.
using Progress = std::function<bool(double)>;

struct ReadOptions {
  // Take what can be saved of a file that is cut off or broken, instead of refusing it. Each loss is listed.
  bool recover = false;
  Progress progress;
  EntityWatcher* watcher = nullptr; // null for none; must outlive the reading
};

struct ReadReport {
  bool ok = false;
  bool wasRead = false; // whether the bytes of the file came, good or bad
  CString error;        // names the file, and line and group where there are any; empty when ok
  std::vector<Repair> repairs;
};

// database must be a fresh one made with AcDbDatabase(false). On failure it is to be thrown away.
ReadReport ReadDrawing(const CString& path, AcDbDatabase& database, const ReadOptions& options = {});
// The same from the bytes of a file; name is for messages.
ReadReport ReadDrawingBytes(std::string bytes, const CString& name, AcDbDatabase& database,
                            const ReadOptions& options = {});

struct WriteOptions {
  // One of writableVersions() by its mark (FileVersion.h); empty: the one chosen for the drawing with SAVEAS
  // (DrawingForm::saveVersion), or else the one that was read.
  std::string version;
  Progress progress;
  bool isCopy = false; // the drawing's own file stays the one that it was
};

struct WriteReport {
  bool ok = false;
  CString error;
  std::vector<CString> losses; // what the drawing has and its file version can't hold, a sentence each
};

// Writes atomically: on failure, and when cancelled, the old file is as it was.
WriteReport WriteDrawing(AcDbDatabase& database, const CString& path, const WriteOptions& options = {});
std::string WriteDrawingBytes(AcDbDatabase& database, std::vector<CString>* losses = nullptr,
                              const WriteOptions& options = {});
// What would be lost by writing in that version, without writing anything.
std::vector<CString> LossesInVersion(AcDbDatabase& database, const std::string& version);

// Fills a fresh AcDbDatabase(false) with an empty metric drawing that other programs open without complaint.
void BuildNewDrawing(AcDbDatabase& database);

} // namespace dxf
