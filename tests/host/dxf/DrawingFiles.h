// Short ways for tests to get at drawings: the real ones in tests/data/drawings, those written in the test
// itself, and what opening and saving makes of them.
#pragma once

#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

std::vector<std::string> SampleNames();
std::string SamplePath(const std::string& name);
std::string SampleBytes(const std::string& name);

struct Opened {
  std::unique_ptr<AcDbDatabase> database;
  dxf::ReadReport report;

  bool ok() const { return report.ok; }
  std::string error() const { return report.error.ToUtf8(); }
  // The repairs as "LINE/GROUP sentence", one a line; without the standard entries that short drawings lack.
  std::string repairs() const;
  std::string saved() const { return dxf::WriteDrawingBytes(*database); }
};

Opened Open(std::string bytes, bool recover = false);

// "0 LINE\n8 管线" as a file has it: the code, a line end, the value, a line end.
std::string Tags(std::string_view lines, const char* lineEnd = "\n");
// A drawing of that version: header, the records given for ENTITIES, and the end.
std::string DrawingOf(std::string_view entities, const char* version = "AC1015");

// Model space's entity at a place in its order.
AcDbObjectId EntityAt(const AcDbDatabase& database, std::size_t index);
