#include "tests/host/db/DrawingFixture.h"

#include "host/afx/MessageLog.h"
#include "host/db/LinetypeFile.h"

#include <filesystem>
#include <fstream>

#include <unistd.h>

namespace {

class LinetypeFiles : public Drawing {
 protected:
  void SetUp() override {
    m_folder = std::filesystem::temp_directory_path() / ("zp-lin-" + std::to_string(::getpid()));
    std::filesystem::create_directories(m_folder);
    AcDbDatabase::setSupportFolders({CString::FromUtf8(m_folder.string())});
  }
  void TearDown() override {
    AcDbDatabase::setSupportFolders({});
    std::filesystem::remove_all(m_folder);
  }
  void write(const char* name, const std::string& text) { std::ofstream(m_folder / name) << text; }
  const AcDbLinetypeTableRecord* find(const wchar_t* name) {
    AcDbObjectId id;
    return db.tableOf("LTYPE")->getAt(name, id) == Acad::eOk ? &at<AcDbLinetypeTableRecord>(id) : nullptr;
  }

 private:
  std::filesystem::path m_folder;
};

} // namespace

TEST_F(LinetypeFiles, LoadsTheOneThatIsAskedFor) {
  write("acad.lin",
        ";; comment\n*CENTER,中心线 ____ _ ____\nA,31.75,-6.35,6.35,-6.35\n*DOT,点线\nA,0,-6.35\n");
  ASSERT_EQ(db.loadLineTypeFile(L"center", L"acad.lin"), Acad::eOk);
  const auto* center = find(L"CENTER");
  ASSERT_TRUE(center);
  EXPECT_EQ(center->comments(), L"中心线 ____ _ ____");
  EXPECT_EQ(center->dashes().size(), 4u);
  EXPECT_DOUBLE_EQ(center->patternLength(), 50.8);
  EXPECT_FALSE(find(L"DOT"));
}

TEST_F(LinetypeFiles, TellsWhyNothingWasLoaded) {
  write("acad.lin", "*DOT,x\nA,0,-6.35\n");
  EXPECT_EQ(db.loadLineTypeFile(L"DOT", L"missing.lin"), Acad::eFileNotFound);
  EXPECT_EQ(db.loadLineTypeFile(L"CENTER", L"acad.lin"), Acad::eUndefinedLineType);
  EXPECT_EQ(db.loadLineTypeFile(L"DOT", L"acad.lin"), Acad::eOk);
  EXPECT_EQ(db.loadLineTypeFile(L"DOT", L"acad.lin"), Acad::eDuplicateRecordName);
}

TEST_F(LinetypeFiles, AStarLoadsAllThatAreNotThereYet) {
  write("acad.lin", "*DOT,x\nA,0,-6.35\n*DASHED,y\nA,12.7,-6.35\n");
  ASSERT_EQ(db.loadLineTypeFile(L"*", L"acad.lin"), Acad::eOk);
  EXPECT_TRUE(find(L"DOT"));
  EXPECT_TRUE(find(L"DASHED"));
}

TEST_F(LinetypeFiles, ADamagedDefinitionIsNamedByLineAndTheOthersAreRead) {
  const auto file = readLinetypeText(
      "*A,x\nB,1,2\n*B,y\nA,1,nan\n*C\nA,1,-1\nlost\n*D,no pattern\n*E,e\nA,[TRACK1]\n", L"t.lin");
  ASSERT_EQ(file.linetypes.size(), 1u);
  EXPECT_EQ(file.linetypes[0].name, L"C");
  ASSERT_EQ(file.problems.size(), 5u);
  EXPECT_NE(file.problems[0].Find(L"t.lin 第 2 行"), -1) << file.problems[0].ToUtf8();
  EXPECT_NE(file.problems[1].Find(L"第 4 行"), -1);
  EXPECT_NE(file.problems[2].Find(L"第 7 行"), -1);
  EXPECT_NE(file.problems[3].Find(L"第 8 行"), -1);
  EXPECT_NE(file.problems[4].Find(L"第 10 行"), -1);
}

TEST_F(LinetypeFiles, ADefinitionWithoutANameIsNamedByTheLineOfItsStar) {
  const auto file = readLinetypeText("*\nA,1,-1\n* ,described\nA,1,-1\n*C\nA,1,-1\n", L"t.lin");
  ASSERT_EQ(file.linetypes.size(), 1u);
  EXPECT_EQ(file.linetypes[0].name, L"C");
  ASSERT_EQ(file.problems.size(), 2u);
  EXPECT_NE(file.problems[0].Find(L"第 1 行"), -1);
  EXPECT_NE(file.problems[1].Find(L"第 3 行"), -1);
}

TEST_F(LinetypeFiles, ADashWithAZeroCharacterBehindItsNumberIsNoNumber) {
  const auto file = readLinetypeText(std::string_view("*A\nA,1,-1\0x\n", 12), L"t.lin");
  EXPECT_TRUE(file.linetypes.empty());
  ASSERT_EQ(file.problems.size(), 1u);
  EXPECT_NE(file.problems[0].Find(L"第 2 行"), -1);
}

TEST_F(LinetypeFiles, AnyTextIsReadWithoutHarm) {
  std::string text = "*A,x\nA,1,-1\n*\n*,\nA\nA,\n\xff\xfe\n";
  for (std::size_t cut = 0; cut <= text.size(); ++cut) readLinetypeText(text.substr(0, cut), L"t.lin");
}
