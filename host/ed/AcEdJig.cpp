#include "host/ed/AcEdJig.h"

#include "host/db/AcDbEntity.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/ArxDbgUtils.h"
#include "host/ed/EdKeyPresses.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcEdJig, AcRxObject);

AcEdJig::AcEdJig() = default;
AcEdJig::~AcEdJig() = default;

AcEdJig::DragStatus AcEdJig::sampler() {
  return kCancel;
}

bool AcEdJig::update() {
  return false;
}

AcDbEntity* AcEdJig::entity() const {
  return nullptr;
}

AcDbObjectId AcEdJig::append() {
  auto* shown = entity();
  if (!shown || ArxDbgUtils::addToCurrentSpace(shown) != Acad::eOk) return {};
  const auto id = shown->objectId();
  shown->close();
  return id;
}

void AcEdJig::setKeywordList(const CString& keywords) {
  m_keywordList = keywords;
  m_keywords = EdKeywords(keywords);
}

// --- the loop ---

AcEdJig::DragStatus AcEdJig::sampleAndUpdate() {
  m_sampling = true;
  const auto status = sampler();
  m_sampling = false;
  if (status == kNormal) update();
  return status;
}

AcEdJig::DragStatus AcEdJig::drag() {
  auto& session = EdSession::instance();
  CString prompt = m_prompt;
  prompt.TrimLeft(L"\n");
  EdTransient picture(session.transients(), [this](AcGiWorldDraw& draw) {
    if (const auto* shown = entity()) shown->worldDraw(draw);
  });
  EdPromptState state;
  state.wants = EdPromptState::Wants::point;
  state.prompt = prompt;
  state.keys = EdKeyPresses::instance().keys();
  EdPromptScope asking(session.prompts(), std::move(state));
  const auto sample = [&] {
    const auto status = sampleAndUpdate();
    asking.state().keywords = m_keywords;
    asking.state().base = m_base;
    if (status == kNormal) picture.changed();
    return status;
  };
  bool changed = false;
  const auto moveTo = [&](const AcGePoint3d& cursor) {
    if (m_sampling) return; // a sampler that opens windows of its own
    m_sample = {cursor, {}, {}, {}};
    changed |= sample() == kNormal;
  };
  asking.state().follow = moveTo;
  while (true) {
    const auto line = session.input().read(prompt);
    if (!line) {
      ed::PrintInputEnd(prompt);
      return kCancel;
    }
    if (const auto cursor = ed::ParseDrag(line->text, lastPoint())) {
      moveTo(*cursor);
      continue;
    }
    session.noteInput(false);
    if (EdKeyPresses::instance().takes(line->text)) return kOther;
    m_sample = {{}, line->text, {}, {}};
    const auto status = sample();
    if (!m_sample.problem.IsEmpty()) {
      session.refuse(m_sample.problem, m_sample.expected);
      continue;
    }
    if (status == kNormal) return kNormal;
    if (status == kNoChange) return changed ? kNormal : kNoChange;
    return status;
  }
}
