// zp-data TABLES OUTPUT writes the catalogues of an installation into the folder OUTPUT, from the tables in
// the folder TABLES. Exit status 0; 1 when a table is wrong or a file can't be written, 2 for other
// arguments.
#include <cstdio>
#include <filesystem>
#include <string>

#include "host/afx/Paths.h"
#include "tools/data/Ducts.h"
#include "tools/data/LayerScheme.h"
#include "tools/data/LocalResistances.h"
#include "tools/data/PipeMaterials.h"
#include "tools/data/Radiators.h"
#include "tools/data/Table.h"
#include "tools/data/VelocityLimits.h"
#include "tools/data/fancoil/FanCoils.h"
#include "tools/data/fancoil/WaterSystems.h"

namespace {

// The catalogues load what stands there before they are filled, and pipes and ducts keep each other's
// sections; the result shall depend on the tables alone.
constexpr const char* kFiles[] = {"Data/PipeMaterial.idp",
                                  "Data/PipeLimit.idp",
                                  "Data/LayerManager/默认方案.idp",
                                  "HeatingData/Srq.idp",
                                  "Data/FCUData.idp",
                                  "Data/KTSLDatabase.xml",
                                  "VacCal.xml"};

void Write(const std::string& tables, const std::filesystem::path& output) {
  for (const char* file : kFiles) std::filesystem::remove(output / file);
  afx::SetInstallRoot(CString::FromUtf8(output.string()));
  WritePipeMaterials(tables);
  WriteDucts(tables);
  WriteVelocityLimits(tables);
  WriteLayerScheme(tables);
  WriteRadiators(tables);
  WriteFanCoils(tables);
  WriteWaterSystems(tables);
  WriteLocalResistances(tables);
}

} // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fputs("Usage: zp-data TABLES OUTPUT\n", stderr);
    return 2;
  }
  try {
    Write(arguments[1], std::filesystem::absolute(arguments[2]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zp-data: %s\n", error.what());
    return 1;
  }
  return 0;
}
