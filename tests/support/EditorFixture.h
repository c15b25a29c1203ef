// An editor with one empty drawing, for the length of a test.
#pragma once

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbLayerTable.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/AcEdCommandStack.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"
#include "tests/support/ScriptedFrontEnd.h"

#include <gtest/gtest.h>

class EditorFixture : public ::testing::Test {
 protected:
  EditorFixture() {
    session().reset();
    session().setFrontEnd(&frontEnd);
    document = &acDocManagerPtr()->newDocument();
  }
  ~EditorFixture() override {
    acedRegCmds->removeGroup(L"TEST");
    acDocManagerPtr()->clearPendingText();
    acDocManagerPtr()->closeAll();
    SystemVariables::reset();
    session().reset();
    session().setFrontEnd(nullptr);
  }

  static EdSession& session() { return EdSession::instance(); }
  AcDbDatabase& database() { return *document->database(); }

  static void define(const wchar_t* name, AcRxFunctionPtr function, unsigned flags = ACRX_CMD_USEPICKSET) {
    ASSERT_EQ(Acad::eOk, acedRegCmds->addCommand(L"TEST", name, name, flags, function));
  }
  // Runs a command whose prompts are answered by the lines.
  void run(const wchar_t* command, std::initializer_list<const wchar_t*> answers = {}) {
    frontEnd.type(answers);
    session().executeLine(command);
  }
  std::size_t entityCount() {
    AcDbObjectPointer<AcDbBlockTableRecord> space(database().modelSpaceId(), AcDb::kForRead);
    std::size_t count = 0;
    for (const auto& id : space->entities()) count += id.isErased() ? 0 : 1;
    return count;
  }
  static AcDbObjectId addLine(const AcGePoint3d& from, const AcGePoint3d& to,
                              const wchar_t* layer = nullptr) {
    auto* line = new AcDbLine(from, to);
    if (layer) line->setLayer(layer);
    return add(line);
  }
  static AcDbObjectId add(AcDbEntity* entity) {
    EXPECT_EQ(Acad::eOk, ArxDbgUtils::addToCurrentSpace(entity));
    const auto id = entity->objectId();
    entity->close();
    return id;
  }
  AcDbObjectId addLayer(const wchar_t* name) {
    AcDbObjectPointer<AcDbLayerTable> layers(database().layerTableId(), AcDb::kForWrite);
    auto* layer = new AcDbLayerTableRecord;
    layer->setName(name);
    EXPECT_EQ(Acad::eOk, layers->add(layer));
    const auto id = layer->objectId();
    layer->close();
    return id;
  }

  ScriptedFrontEnd frontEnd;
  AcApDocument* document = nullptr;
};
