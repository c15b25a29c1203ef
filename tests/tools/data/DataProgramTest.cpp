// The program that writes the shipped catalogues, run as a developer runs it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>

#include "ZpPaths.h"
#include "tests/support/TempInstall.h"

namespace {

namespace fs = std::filesystem;

const fs::path kTables = fs::path(ZP_SOURCE_DIR) / "tools/data/tables";
const fs::path kShipped = fs::path(ZP_SOURCE_DIR) / "data";

std::string Bytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::string Quoted(const fs::path& path) {
  std::string text("'");
  text += path.string();
  text += "'";
  return text;
}

class DataProgram : public testing::Test {
 protected:
  DataProgram() {
    fs::create_directories(folder.Root() / "tables");
    for (const auto& table : fs::directory_iterator(kTables))
      fs::copy_file(table.path(), folder.Root() / "tables" / table.path().filename());
  }
  // The exit status; what was said is in Said().
  int Run(const std::string& arguments) {
    const std::string command =
        std::string(ZP_DATA_PROGRAM) + " " + arguments + " 2> " + Quoted(folder.Root() / "said");
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  int RunOnCopies() { return Run(Quoted(folder.Root() / "tables") + " " + Quoted(folder.Root() / "out")); }
  std::string Said() const { return folder.Read("said"); }
  void AppendTo(const char* table, const std::string& line) const {
    std::ofstream(folder.Root() / "tables" / table, std::ios::app) << line << "\n";
  }
  TempInstall folder;
};

TEST_F(DataProgram, WritesTheShippedCataloguesByteForByte) {
  ASSERT_EQ(RunOnCopies(), 0) << Said();
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(folder.Root() / "out")) {
    if (!entry.is_regular_file()) continue;
    ++files;
    const auto relative = fs::relative(entry.path(), folder.Root() / "out");
    EXPECT_EQ(Bytes(entry.path()), Bytes(kShipped / relative)) << relative << ": run the target \"data\"";
  }
  EXPECT_EQ(files, 7);
}

TEST_F(DataProgram, GivesTheSameWhateverStoodThereBefore) {
  folder.Write("out/Data/PipeMaterial.idp", R"(["",{"Version":"1.0","别的":"x"}])");
  folder.Write("out/Data/PipeLimit.idp", R"(["",{"Version":"1.0","水管界限方案":["",{"0":[0,{"7":0}]}]}])");
  folder.Write("out/Data/LayerManager/默认方案.idp", "damaged");
  ASSERT_EQ(RunOnCopies(), 0) << Said();
  EXPECT_EQ(folder.Read("out/Data/PipeMaterial.idp"), Bytes(kShipped / "Data/PipeMaterial.idp"));
  EXPECT_EQ(folder.Read("out/Data/PipeLimit.idp"), Bytes(kShipped / "Data/PipeLimit.idp"));
  EXPECT_FALSE(folder.Has("out/Data/LayerManager/默认方案.idp.rescued-1"));
}

TEST_F(DataProgram, NamesTableLineAndReasonOfAFault) {
  AppendTo("pipes.tsv", "GP\t镀锌钢管(普通)\tGB/T 3091\t0.2\tDN200\t200\t219\t6\t208\tx\tM");
  EXPECT_EQ(RunOnCopies(), 1);
  const std::string table = folder.Read("tables/pipes.tsv");
  const auto lastLine = std::to_string(std::count(table.begin(), table.end(), '\n'));
  EXPECT_NE(Said().find("pipes.tsv:" + lastLine + ": inner diameter"), std::string::npos) << Said();
}

struct Fault {
  const char* table;
  const char* line;
  const char* reason;
};

class DataProgramFault : public DataProgram, public testing::WithParamInterface<Fault> {};

TEST_P(DataProgramFault, EndsItWithTheReason) {
  AppendTo(GetParam().table, GetParam().line);
  EXPECT_EQ(RunOnCopies(), 1);
  EXPECT_NE(Said().find(GetParam().reason), std::string::npos) << Said();
}

INSTANTIATE_TEST_SUITE_P(
    Faults, DataProgramFault,
    testing::Values(
        Fault{"pipes.tsv", "GP\t镀锌钢管", "2 fields, not 11"},
        Fault{"pipes.tsv", "GP\t镀锌钢管(普通)\tx\t0.2\tDN200\t200\t219\t\t207\tx\tM", "wall_mm: no number"},
        Fault{"pipes.tsv", "GP\t镀锌钢管(普通)\tx\t0.5\tDN200\t200\t219\t6\t207\tx\tM", "two roughnesses"},
        Fault{"pipes.tsv", "GP\t镀锌钢管(普通)\tx\t0.2\tDe200\t200\t219\t6\t207\tx\tM", "nominal: not DN"},
        Fault{"pipes.tsv", "NEW\t新管材\tx\t0.2\tDN200\t200\t219\t6\t207\tx\tM", "no label for NEW"},
        Fault{"duct_materials.tsv", "GS\t镀锌钢板\t0.15\tx\tM", "material twice"},
        Fault{"duct_materials.tsv", "NEW\t新\t0\tx\tM", "roughness_mm: not above 0"},
        Fault{"duct_materials.tsv", "NEW\t新\t0.1\t\tM", "source: none"},
        Fault{"duct_materials.tsv", "NEW\t新\t0.1\tx\tX", "conf: not H, M or L"},
        Fault{"duct_thickness.tsv", "GB 50243-2016\t微压、低压\t圆形\t4500\t5000\t2\t\tx\tM",
              "bands don't follow"},
        Fault{"duct_thickness.tsv", "GB 50243-2016\t微压、低压\t圆形\t4000\t4000\t2\t\tx\tM",
              "bands don't follow"},
        Fault{"duct_thickness.tsv", "GB 50243-2002\t高压\t圆形\t0\t1\t\t\t\tM", "source: none"},
        Fault{"ducts.tsv", "rect\t统一规格\t500\t240\tx\tM", "no side of the series"},
        Fault{"ducts.tsv", "rect\t统一规格\t250\t500\tx\tM", "not as 1:1 to 4:1"},
        Fault{"ducts.tsv", "rect\t统一规格\t2000\t400\tx\tM", "not as 1:1 to 4:1"},
        Fault{"ducts.tsv", "rect\t统一规格\t500\t250\tx\tM", "size twice"},
        Fault{"ducts.tsv", "rect\t统一规格\t500\t\tx\tM", "b_mm: no number"},
        Fault{"ducts.tsv", "round\t基本\t100\t\tx\tM", "size twice"},
        Fault{"ducts.tsv", "round\t基本\t101\t5\tx\tM", "b_mm: a round size"},
        Fault{"ducts.tsv", "oval\t基本\t101\t5\tx\tM", "kind: not"},
        Fault{"velocity.tsv", "空调水-闭式\tDN400\t400\t1\t2\t100\t400\tx\tM", "dn: not above"},
        Fault{"velocity.tsv", "空调水-闭式\tDN500\t450\t1\t2\t100\t400\tx\tM", "dn: not the nominal"},
        Fault{"velocity.tsv", "空调水-开式\tDN500\t500\t2\t1\t100\t400\tx\tM", "v_max: not above"},
        Fault{"velocity.tsv", "空调水-开式\tDN500\t500\t1\t2\t100\t\tx\tM", "r_max_pa_m: no number"},
        Fault{"layers.tsv", "公用\t标注\t公用标注\t另一层\t3\tDOT\t1\t0.18\tx\tx", "identifier twice"},
        Fault{"layers.tsv", "公用\t标注\t另一标识\t暖通-公用-标注\t3\tDOT\t1\t0.18\tx\tx", "layer twice"},
        Fault{"layers.tsv", "公用\t标注\t新\t新\t3.5\tDOT\t1\t0.18\tx\tx", "color: no whole number"},
        Fault{"radiators.tsv", "甲\t乙\t组\t2\t\t\t\t80\t\t\t\t\t\tx\tM\t", "unit: neither"},
        Fault{"radiators.tsv", "甲\t乙\t片\t3\t\t\t\t80\t\t\t\t\t\tx\tM\t", "formula: not 0, 1 or 2"},
        Fault{"radiators.tsv", "甲\t乙\t片\t0\t0.5\t\t\t\t\t\t\t\t\tx\tM\t", "b: no number"},
        Fault{"radiators.tsv", "甲\t乙\t片\t2\t\t\t\t0\t\t\t\t\t\tx\tM\t", "q_w: not above 0"},
        Fault{"radiators.tsv", "甲\t乙\t片\t1\t2.503\t0.293\t0.235\t\t8.6\t\t\t\t\tx\tM\t",
              "k_pub: not what"},
        Fault{"radiators.tsv", "甲\t乙\tm\t2\t\t\t1.8\t674.541\t5.9\t\t\t\t\tx\tM\t", "k_pub: not what"},
        Fault{"radiators.tsv", "甲\t\t片\t2\t\t\t\t80\t\t\t\t\t\tx\tM\t", "no maker or no model"},
        Fault{"radiators.tsv", "铸铁散热器(教材)\t四柱760型\t片\t2\t\t\t\t80\t\t\t\t\t\tx\tM\t",
              "model twice"},
        Fault{"fittings.tsv", "F99\t弯头\tx\t1\t1\t1\t1\t1\t1\tx\tx\tM", "name twice"},
        Fault{"fittings.tsv", "F99\t\tx\t1\t1\t1\t1\t1\t1\tx\tx\tM", "no name"},
        Fault{"fittings.tsv", "F99\t新件\tx\t1\t1\t-1\t1\t1\t1\tx\tx\tM", "DN25: below 0"},
        Fault{"fittings.tsv", "F99\t新件\tx\t1\t1\t1\t1\t1\t0.125\tx\tx\tM", "DN50: more than two"},
        Fault{"fittings.tsv", "F99\t新件\tx\t1\t1\t1\t1\t约2\t1\tx\tx\tM", "DN40: no number"},
        Fault{"tees.tsv", "3汇1-2\t三通\t1→2\t1\tx\tx\tx\tM", "direction: unknown"},
        Fault{"tees.tsv", "3汇1-3\t三通\t1→3\t1\tx\tx\tx\tM", "3汇1-3 twice"},
        Fault{"tees.tsv", "3汇1-3\t三通\t3→1\t1\tx\tx\tx\tM", "path: not that"},
        Fault{"tee_pictures.tsv", "3汇\t另.svg", "3汇 twice"}));

// A table without one of its lines.
struct Gap {
  const char* table;
  const char* line; // how it begins, behind the end of the line before
  const char* reason;
};

class DataProgramGap : public DataProgram, public testing::WithParamInterface<Gap> {};

TEST_P(DataProgramGap, EndsItWithTheReason) {
  const auto path = std::string("tables/") + GetParam().table;
  std::string text = folder.Read(path);
  const auto at = text.find(GetParam().line);
  ASSERT_NE(at, std::string::npos);
  folder.Write(path, text.erase(at, text.find('\n', at + 1) - at));
  EXPECT_EQ(RunOnCopies(), 1);
  EXPECT_NE(Said().find(GetParam().reason), std::string::npos) << Said();
}

INSTANTIATE_TEST_SUITE_P(Gaps, DataProgramGap,
                         testing::Values(Gap{"tees.tsv", "\n4通1-4\t", "tees.tsv: no 4通1-4"},
                                         Gap{"tee_pictures.tsv", "\n4通\t", "tee_pictures.tsv: no 4通"}));

TEST_F(DataProgram, RefusesAFlowWhoseCoefficientIsNotThatOfItsClass) {
  const std::string table = folder.Read("tables/tees.tsv");
  const std::string from = "4通1-3\t四通\t1→3\t2.0";
  ASSERT_NE(table.find(from), std::string::npos);
  folder.Write("tables/tees.tsv",
               std::string(table).replace(table.find(from), from.size(), "4通1-3\t四通\t1→3\t3.0"));
  EXPECT_EQ(RunOnCopies(), 1);
  EXPECT_NE(Said().find("xi: not that of its class"), std::string::npos) << Said();
}

TEST_F(DataProgram, EndsWithoutATable) {
  fs::remove(folder.Root() / "tables/layers.tsv");
  EXPECT_EQ(RunOnCopies(), 1);
  EXPECT_NE(Said().find("layers.tsv"), std::string::npos);
}

TEST_F(DataProgram, EndsWhenAFileCannotBeWritten) {
  folder.Write("out/Data", "a file where the folder should be");
  EXPECT_EQ(RunOnCopies(), 1);
}

TEST_F(DataProgram, AsksForTwoArguments) {
  EXPECT_EQ(Run(""), 2);
  EXPECT_EQ(Run("one"), 2);
  EXPECT_NE(Said().find("Usage"), std::string::npos);
}

} // namespace
