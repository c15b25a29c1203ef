#include "host/db/SaveInVersion.h"

#include "host/db/AcDbDatabase.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

struct Row {
  int version;
  const char* mark; // as $ACADVER has it
};
constexpr Row kVersions[] = {{AcDb::kDwgR12, "AC1009"},
                             {AcDb::kDwg2000, "AC1015"},
                             {AcDb::kDwg2004, "AC1018"},
                             {AcDb::kDwg2007, "AC1021"},
                             {AcDb::kDwg2010, "AC1024"}};

} // namespace

Acad::ErrorStatus acdbSaveAs(AcDbDatabase* database, const wchar_t* fileName, int version) {
  if (!database) return Acad::eNoDatabase;
  const auto* row = std::find_if(std::begin(kVersions), std::end(kVersions),
                                 [&](const Row& candidate) { return candidate.version == version; });
  if (row == std::end(kVersions)) return Acad::eInvalidInput;
  std::string& chosen = database->form().saveVersion;
  const std::string before = std::exchange(chosen, row->mark);
  const auto status = database->saveAs(fileName);
  chosen = before;
  return status;
}
