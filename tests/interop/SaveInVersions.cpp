// Saves drawings in every version. Usage: save_in_versions FOLDER DRAWING...  NAME.dxf becomes
// FOLDER/NAME_R2000.dxf.
#include "host/db/AcDbDatabase.h"
#include "host/dxf/DrawingFile.h"
#include "host/dxf/FileVersion.h"

#include <cstdio>
#include <filesystem>

int main(int count, char** arguments) {
  if (count < 3) return 2;
  const std::filesystem::path folder = arguments[1];
  for (int i = 2; i < count; ++i) {
    AcDbDatabase database(false);
    const auto report = dxf::ReadDrawing(CString::FromUtf8(arguments[i]), database);
    if (!report.ok) {
      std::fprintf(stderr, "%s\n", report.error.ToUtf8().c_str());
      return 1;
    }
    const std::string stem = std::filesystem::path(arguments[i]).stem().string();
    for (const dxf::FileVersion& version : dxf::writableVersions()) {
      const auto path = folder / (stem + "_" + CString(version.name).ToUtf8() + ".dxf");
      const auto written =
          dxf::WriteDrawing(database, CString::FromUtf8(path.string()), {std::string(version.mark), {}});
      if (written.ok) continue;
      std::fprintf(stderr, "%s\n", written.error.ToUtf8().c_str());
      return 1;
    }
  }
  return 0;
}
