#include "tests/support/EditorFixture.h"

#include <memory>

namespace {

using DocManager = EditorFixture;

struct Recorder : AcApDocManagerReactor {
  std::vector<std::string> events;
  bool refuseLocks = false;
  Recorder() { acDocManager->addReactor(this); }
  ~Recorder() override { acDocManager->removeReactor(this); }
  void documentCreated(AcApDocument*) override { events.push_back("created"); }
  void documentToBeDestroyed(AcApDocument* d) override {
    events.push_back(d->database() ? "destroying" : "destroying without database");
  }
  void documentDestroyed(const wchar_t*) override { events.push_back("destroyed"); }
  void documentToBeDeactivated(AcApDocument*) override { events.push_back("leaving"); }
  void documentBecameCurrent(AcApDocument*) override { events.push_back("current"); }
  void documentLockModeChanged(AcApDocument*, AcAp::DocLockMode, AcAp::DocLockMode, const wchar_t*) override {
    if (refuseLocks) veto();
  }
};

} // namespace

TEST_F(DocManager, ANewDocumentIsCurrentAndItsDatabaseTheWorkingOne) {
  EXPECT_EQ(document, acDocManager->curDocument());
  EXPECT_EQ(document->database(), acdbHostApplicationServices()->workingDatabase());
  EXPECT_FALSE(document->isNamed());
  auto& second = acDocManager->newDocument();
  EXPECT_EQ(&second, acDocManager->mdiActiveDocument());
  EXPECT_NE(second.docTitle(), document->docTitle());
  EXPECT_EQ(Acad::eOk, acDocManager->activateDocument(document));
  EXPECT_EQ(document->database(), acdbHostApplicationServices()->workingDatabase());
  EXPECT_EQ(Acad::eNoDocument, acDocManager->activateDocument(nullptr));
}

TEST_F(DocManager, TellsItsObservers) {
  Recorder recorder;
  auto& second = acDocManager->newDocument();
  acDocManager->closeDocument(&second);
  EXPECT_EQ((std::vector<std::string>{"created", "leaving", "current", "destroying", "leaving", "current",
                                      "destroyed"}),
            recorder.events);
}

TEST_F(DocManager, IteratesInTheOrderOfOpening) {
  auto& second = acDocManager->newDocument();
  const std::unique_ptr<AcApDocumentIterator> walk(acDocManager->newAcApDocumentIterator());
  EXPECT_EQ(document, walk->document());
  walk->step();
  EXPECT_EQ(&second, walk->document());
  walk->step();
  EXPECT_TRUE(walk->done());
  EXPECT_EQ(nullptr, walk->document());
}

TEST_F(DocManager, LocksNestAndCount) {
  EXPECT_EQ(AcAp::kNotLocked, document->lockMode());
  EXPECT_EQ(Acad::eOk, acDocManager->lockDocument(document, AcAp::kRead));
  EXPECT_EQ(Acad::eOk, acDocManager->lockDocument(document, AcAp::kWrite));
  EXPECT_EQ(AcAp::kWrite, document->lockMode());
  EXPECT_EQ(2u, document->lockCount());
  EXPECT_EQ(Acad::eDocumentLocked, acDocManager->closeDocument(document));
  EXPECT_EQ(Acad::eOk, acDocManager->unlockDocument(document));
  EXPECT_EQ(AcAp::kRead, document->lockMode());
  EXPECT_EQ(Acad::eOk, acDocManager->unlockDocument(document));
  EXPECT_EQ(Acad::eNotApplicable, acDocManager->unlockDocument(document));
  EXPECT_EQ(Acad::eInvalidInput, acDocManager->lockDocument(document, AcAp::kNone));
  EXPECT_EQ(Acad::eNoDocument, acDocManager->lockDocument(nullptr));
}

TEST_F(DocManager, WhatIsChangedUnderALockOutsideOfCommandsIsOneStepOfUndo) {
  UndoHistory& undo = database().undo();
  acDocManager->lockDocument(document, AcAp::kWrite, L"灯");
  addLine({0, 0, 0}, {1, 1, 0});
  acDocManager->lockDocument(document, AcAp::kWrite, L"开关");
  addLine({0, 0, 0}, {1, 1, 0});
  acDocManager->unlockDocument(document);
  EXPECT_EQ(0u, undo.commandCount());
  acDocManager->unlockDocument(document);
  ASSERT_EQ(1u, undo.commandCount());
  EXPECT_EQ(L"灯", undo.undoName());
  EXPECT_EQ(Acad::eOk, undo.undo());
  EXPECT_EQ(0u, undo.commandCount());
  acDocManager->lockDocument(document);
  addLine({0, 0, 0}, {1, 1, 0});
  acDocManager->unlockDocument(document);
  EXPECT_EQ(L"修改", undo.undoName());
}

TEST_F(DocManager, ALockUnderWhichNothingChangesLeavesNoStep) {
  acDocManager->lockDocument(document);
  acDocManager->unlockDocument(document);
  EXPECT_EQ(0u, database().undo().commandCount());
}

TEST_F(DocManager, NeitherALockForReadingNorOneThatIsRefusedBeginsAStep) {
  acDocManager->lockDocument(document, AcAp::kRead);
  EXPECT_FALSE(database().undo().isRecording());
  acDocManager->unlockDocument(document);
  Recorder recorder;
  recorder.refuseLocks = true;
  acDocManager->lockDocument(document);
  EXPECT_FALSE(database().undo().isRecording());
}

TEST_F(DocManager, LocksWithinACommandBelongToItsStep) {
  define(L"ADD", [] {
    acDocManager->lockDocument(curDoc(), AcAp::kWrite, L"灯");
    addLine({0, 0, 0}, {1, 1, 0});
    acDocManager->unlockDocument(curDoc());
    addLine({0, 0, 0}, {1, 1, 0});
  });
  run(L"ADD");
  ASSERT_EQ(1u, database().undo().commandCount());
  EXPECT_EQ(L"ADD", database().undo().undoName());
}

TEST_F(DocManager, AnObserverMayRefuseALock) {
  Recorder recorder;
  recorder.refuseLocks = true;
  EXPECT_EQ(Acad::eLockViolation, acDocManager->lockDocument(document));
  EXPECT_EQ(0u, document->lockCount());
}

TEST_F(DocManager, TheResourceStackHasADepth) {
  int resource = 0;
  EXPECT_EQ(0u, acDocManager->resourceDepth());
  acDocManager->pushResourceHandle(&resource);
  acDocManager->pushResourceHandle(nullptr);
  EXPECT_EQ(2u, acDocManager->resourceDepth());
  EXPECT_EQ(Acad::eOk, acDocManager->popResourceHandle());
  EXPECT_EQ(Acad::eOk, acDocManager->popResourceHandle());
  EXPECT_EQ(Acad::eInvalidInput, acDocManager->popResourceHandle());
}

TEST_F(DocManager, SentTextWaitsForItsDocument) {
  auto& second = acDocManager->newDocument();
  acDocManager->sendStringToExecute(document, L"A\n", false);
  EXPECT_FALSE(acDocManager->hasPendingText());
  acDocManager->activateDocument(document);
  EXPECT_EQ(L"A\n", acDocManager->takePendingText()->text);
  acDocManager->sendStringToExecute(&second, L"B\n", false);
  acDocManager->closeDocument(&second);
  EXPECT_FALSE(acDocManager->hasPendingText());
  EXPECT_EQ(Acad::eNoDocument, acDocManager->sendStringToExecute(nullptr, L"x"));
}

TEST_F(DocManager, AFileThatIsNoneGivesAReasonAndNoDocument) {
  dxf::ReadReport report;
  EXPECT_EQ(nullptr, acDocManager->openDocument(L"no-such-file.dxf", report));
  EXPECT_FALSE(report.error.IsEmpty());
  EXPECT_EQ(document, acDocManager->curDocument());
}
