#include "host/ui/ObeyUser.h"

#include "host/afx/CFileException.h"
#include "host/afx/MessageLog.h"
#include "tests/support/UiFrontEndScript.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

TEST(ObeyUser, GivesTheOutcomeOfTheEvent) {
  EXPECT_TRUE(ObeyUser([] { return UiOutcome(); }));
  EXPECT_EQ(ObeyUser([] { return UiOutcome(L"不行", L"别的"); }).reason, L"不行");
}

TEST(ObeyUser, TellsOfAFileThatARuleCouldNotChange) {
  UiFrontEndScript frontEnd;
  afx::ClearLoggedMessages();
  EXPECT_TRUE(ObeyUser([]() -> UiOutcome { throw CFileException(L"无法改名"); })) << "the line was obeyed";
  ASSERT_EQ(frontEnd.boxes.size(), 1u);
  EXPECT_EQ(frontEnd.boxes[0].text, L"无法改名");
  EXPECT_EQ(frontEnd.boxes[0].icon, UiMessageBox::Icon::exclamation);
  EXPECT_TRUE(frontEnd.boxes[0].caption.IsEmpty());
  EXPECT_EQ(afx::LoggedMessages().size(), 1u);
}

TEST(ObeyUser, LetsFaultsOfTheProgramPass) {
  UiFrontEndScript frontEnd;
  EXPECT_THROW(ObeyUser([]() -> UiOutcome { throw std::logic_error("fault"); }), std::logic_error);
  EXPECT_TRUE(frontEnd.boxes.empty());
}

} // namespace
