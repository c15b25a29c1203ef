#include "host/afx/CInvalidArgException.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/acedCommand.h"
#include "host/ed/acedWindows.h"
#include "host/ed/acutPrintf.h"
#include "tests/support/EditorFixture.h"

#include <new>
#include <stdexcept>

namespace {

using Session = EditorFixture;

void drawOne() {
  auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
  ArxDbgUtils::addToCurrentSpaceAndClose(line);
}

void drawAndAsk() {
  drawOne();
  ed::AskPoint({L"点:", {}, 0, {}});
}

void drawAndAskTwice() {
  drawAndAsk();
  ed::AskPoint({L"点:", {}, 0, {}});
}

void drawAndThrow() {
  drawOne();
  throw std::runtime_error("broken");
}

void sendRegen() {
  acDocManager->sendStringToExecute(acDocManager->curDocument(), L"tregen\n", false, false, true);
  acutPrintf(L"[handler returns]");
}

void regenerate() {
  acutPrintf(L"[regen]");
}
void sendItself() {
  acDocManager->sendStringToExecute(curDoc(), L"TSELF\n");
}
void callItself() {
  acedCommandS(RTSTR, L"TCALL", RTNONE);
}
void removeItself() {
  acedRegCmds->removeGroup(L"TEST");
}
void showLock() {
  acutPrintf(L"[%d %s]", static_cast<int>(curDoc()->lockMode()), EdSession::instance().runningCommands());
}

} // namespace

TEST_F(Session, ACommandIsOneUndoStep) {
  define(L"TDRAW", drawOne);
  run(L"'_.tdraw");
  EXPECT_EQ(1u, entityCount());
  EXPECT_EQ(L"TDRAW", database().undo().undoName());
  EXPECT_EQ(Acad::eOk, database().undo().undo());
  EXPECT_EQ(0u, entityCount());
}

TEST_F(Session, ACommandHoldsAWriteLockWhileItRuns) {
  define(L"TLOCK", showLock);
  run(L"TLOCK");
  EXPECT_TRUE(frontEnd.said(L"[4 TLOCK]"));
  EXPECT_TRUE(document->isQuiescent());
}

TEST_F(Session, EscapeRollsTheDrawingBack) {
  define(L"TASK", drawAndAsk);
  run(L"TASK", {L"*cancel*"});
  EXPECT_EQ(0u, entityCount());
  EXPECT_TRUE(frontEnd.said(L"*取消*"));
  EXPECT_TRUE(frontEnd.said(L"图形已恢复"));
  EXPECT_EQ(L"", database().undo().undoName());
  EXPECT_FALSE(database().isModified());
}

TEST_F(Session, TheEndOfTheInputIsEscape) {
  define(L"TASK", drawAndAsk);
  run(L"TASK");
  EXPECT_EQ(0u, entityCount());
}

TEST_F(Session, AnEscapeThatTheCommandGoesOnFromIsNone) {
  define(L"TTWICE", drawAndAskTwice);
  run(L"TTWICE", {L"*cancel*", L"1,1"});
  EXPECT_EQ(1u, entityCount());
}

TEST_F(Session, AThrowingCommandIsReportedAndRolledBack) {
  define(L"TTHROW", drawAndThrow);
  run(L"TTHROW");
  EXPECT_EQ(0u, entityCount());
  ASSERT_EQ(1u, frontEnd.refusals.size());
  EXPECT_GE(frontEnd.refusals[0].reason.Find(L"broken"), 0);
  EXPECT_TRUE(document->isQuiescent());
}

TEST_F(Session, WhatTheHouseItselfRaisesIsToldInTheUsersLanguage) {
  define(L"TMEMORY", [] { throw std::bad_alloc(); });
  define(L"TINDEX", [] { AfxThrowInvalidArgException(); });
  run(L"TMEMORY");
  run(L"TINDEX");
  ASSERT_EQ(2u, frontEnd.refusals.size());
  EXPECT_EQ(L"命令“TMEMORY”出错：内存不足。", frontEnd.refusals[0].reason);
  EXPECT_EQ(L"命令“TINDEX”出错：内部错误，序号或个数超出范围", frontEnd.refusals[1].reason);
}

TEST_F(Session, AnUnknownCommandIsNamed) {
  run(L"nosuch");
  ASSERT_EQ(1u, frontEnd.refusals.size());
  EXPECT_EQ(L"未知命令“NOSUCH”。按 HELP 查看命令。", frontEnd.refusals[0].reason);
  EXPECT_EQ(1, session().refusedLines());
}

TEST_F(Session, AnEmptyLineRepeatsTheLastCommand) {
  define(L"TDRAW", drawOne);
  run(L"");
  EXPECT_EQ(0u, entityCount());
  run(L"TDRAW");
  run(L"");
  EXPECT_EQ(2u, entityCount());
}

TEST_F(Session, SentTextRunsAfterTheCommandHasReturned) {
  define(L"TSEND", sendRegen);
  define(L"TREGEN", regenerate);
  run(L"TSEND");
  EXPECT_TRUE(frontEnd.said(L"[handler returns][regen]"));
}

TEST_F(Session, ACommandThatSendsItselfForEverIsStopped) {
  define(L"TSELF", sendItself);
  run(L"TSELF");
  EXPECT_EQ(1u, frontEnd.refusals.size());
}

TEST_F(Session, ACommandThatCallsItselfForEverIsStopped) {
  define(L"TCALL", callItself);
  run(L"TCALL");
  EXPECT_EQ(1u, frontEnd.refusals.size());
  EXPECT_EQ(0u, session().commandDepth());
}

TEST_F(Session, ACommandMayRemoveItself) {
  define(L"TREMOVE", removeItself);
  run(L"TREMOVE");
  EXPECT_TRUE(frontEnd.refusals.empty());
  EXPECT_EQ(nullptr, acedRegCmds->lookupCmd(L"TREMOVE"));
}

TEST_F(Session, WithoutADocumentCommandsAreRefused) {
  define(L"TDRAW", drawOne);
  acDocManager->closeAll();
  run(L"TDRAW");
  EXPECT_EQ(1u, frontEnd.refusals.size());
}

TEST_F(Session, AnsweredCommandsRunInsideOthers) {
  define(L"TASK", drawAndAsk);
  EXPECT_EQ(RTNORM, acedCommandS(RTSTR, L"TASK", RTSTR, L"1,2", RTNONE));
  const ads_point point = {3, 4, 5};
  EXPECT_EQ(RTNORM, acedCommandS(RTSTR, L"_task", RT3DPOINT, point, RTNONE));
  EXPECT_EQ(AcGePoint3d(3, 4, 5), document->edit().lastPoint);
  EXPECT_EQ(RTCAN, acedCommandS(RTSTR, L"TASK", RTNONE)) << "a prompt without an answer is cancelled";
  EXPECT_EQ(RTERROR, acedCommandS(RTSTR, L"NOSUCH", RTNONE));
  EXPECT_EQ(2u, entityCount());
}

TEST_F(Session, ThereAreNoWindows) {
  EXPECT_EQ(nullptr, acedGetAcadDwgView());
  EXPECT_EQ(nullptr, acedGetAcadFrame());
}
