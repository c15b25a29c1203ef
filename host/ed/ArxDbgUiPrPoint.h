// Asks for a point.
#pragma once

#include "host/ed/ArxDbgUiPrBase.h"

class ArxDbgUiPrPoint : public ArxDbgUiPrBase {
 public:
  using ArxDbgUiPrBase::ArxDbgUiPrBase;
  Status go() override {
    const auto answer = ed::AskPoint(question());
    if (answer.hasValue()) m_value = answer.point;
    return finish(answer);
  }
  // Where the rubber band and relative coordinates start.
  void setBasePt(const AcGePoint3d& base) { question().base = base; }
  void unSetBasePt() { question().base.reset(); }
  // In the user's coordinates, which are the world's here.
  const AcGePoint3d& value() const { return m_value; }

 private:
  AcGePoint3d m_value;
};
