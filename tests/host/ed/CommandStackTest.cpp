#include "host/ed/AcEdCommandStack.h"
#include "host/ed/AcRxDictionary.h"
#include "host/ed/AcRxDynamicLinker.h"

#include <gtest/gtest.h>

namespace {
void first() {}
void second() {}
} // namespace

TEST(CommandStack, FindsCommandsByEitherNameWithoutCase) {
  AcEdCommandStack stack;
  ASSERT_EQ(Acad::eOk, stack.addCommand(L"G", L"Abc", L"甲", 2, first));
  EXPECT_EQ(first, stack.lookupCmd(L"ABC")->functionAddr());
  EXPECT_EQ(2u, stack.lookupCmd(L"甲")->commandFlags());
  EXPECT_EQ(nullptr, stack.lookupCmd(L"AB"));
}

TEST(CommandStack, RefusesWhatIsNoCommand) {
  AcEdCommandStack stack;
  EXPECT_EQ(Acad::eInvalidInput, stack.addCommand(L"G", L"", L"x", 0, first));
  EXPECT_EQ(Acad::eInvalidInput, stack.addCommand(L"", L"A", L"A", 0, first));
  EXPECT_EQ(Acad::eInvalidInput, stack.addCommand(L"G", L"A B", L"A", 0, first));
  EXPECT_EQ(Acad::eInvalidInput, stack.addCommand(L"G", L"A", L"A", 0, nullptr));
  ASSERT_EQ(Acad::eOk, stack.addCommand(L"G", L"A", L"B", 0, first));
  EXPECT_EQ(Acad::eDuplicateKey, stack.addCommand(L"g", L"b", L"C", 0, first));
}

TEST(CommandStack, TheLaterGroupWins) {
  AcEdCommandStack stack;
  stack.addCommand(L"G", L"A", L"A", 0, first);
  stack.addCommand(L"H", L"A", L"A", 0, second);
  EXPECT_EQ(second, stack.lookupCmd(L"a")->functionAddr());
  EXPECT_EQ(Acad::eOk, stack.removeGroup(L"h"));
  EXPECT_EQ(first, stack.lookupCmd(L"a")->functionAddr());
}

TEST(CommandStack, KeepsTheOrderOfAdding) {
  AcEdCommandStack stack;
  stack.addCommand(L"G", L"Z", L"Z", 0, first);
  stack.addCommand(L"H", L"M", L"M", 0, first);
  stack.addCommand(L"G", L"A", L"A", 0, first);
  std::vector<CString> names;
  for (const auto& command : stack.commands()) names.push_back(command->globalName());
  EXPECT_EQ((std::vector<CString>{L"Z", L"A", L"M"}), names);
}

TEST(CommandStack, RemovingTheUnknownSaysSo) {
  AcEdCommandStack stack;
  stack.addCommand(L"G", L"A", L"A", 0, first);
  EXPECT_EQ(Acad::eKeyNotFound, stack.removeGroup(L"QR"));
  EXPECT_EQ(Acad::eKeyNotFound, stack.removeCmd(L"G", L"B"));
  EXPECT_EQ(Acad::eKeyNotFound, stack.removeCmd(L"X", L"A"));
  EXPECT_EQ(Acad::eOk, stack.removeCmd(L"g", L"a"));
}

TEST(SystemRegistry, NamesTheHostsObjects) {
  EXPECT_EQ(acedRegCmds, AcEdCommandStack::cast(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS")));
  EXPECT_EQ(acrxDynamicLinker, AcRxDynamicLinker::cast(acrxSysRegistry()->at(L"DynamicLinker")));
  EXPECT_EQ(nullptr, acrxSysRegistry()->at(L"Nothing"));
  auto* classes = AcRxClassDictionary::cast(acrxSysRegistry()->at(L"ClassDictionary"));
  ASSERT_NE(nullptr, classes);
  EXPECT_EQ(AcEdCommandStack::desc(), classes->at(L"AcEdCommandStack"));
  EXPECT_EQ(nullptr, classes->at(L"NoSuchClass"));
}
