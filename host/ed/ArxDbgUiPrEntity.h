// Asks for one entity.
#pragma once

#include "host/ed/ArxDbgUiPrBase.h"

class ArxDbgUiPrEntity : public ArxDbgUiPrBase {
 public:
  using ArxDbgUiPrBase::ArxDbgUiPrBase;
  Status go() override {
    const auto answer = ed::AskEntity(question());
    if (answer.hasValue()) {
      m_objectId = answer.entity;
      m_pickPoint = answer.point;
    }
    return finish(answer);
  }
  const AcDbObjectId& objectId() const { return m_objectId; }
  // The point typed; the origin for an entity given by its handle.
  const AcGePoint3d& pickPt() const { return m_pickPoint; }

 private:
  AcDbObjectId m_objectId;
  AcGePoint3d m_pickPoint;
};
