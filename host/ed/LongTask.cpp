#include "host/ed/LongTask.h"

#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdSession.h"

LongTask::~LongTask() {
  auto* frontEnd = EdSession::instance().frontEnd();
  if (m_told && frontEnd) frontEnd->progressEnded();
}

bool LongTask::advance(double done) {
  auto& session = EdSession::instance();
  if (m_cancelled || !session.frontEnd()) return !m_cancelled;
  m_told = true;
  m_cancelled = !session.frontEnd()->showProgress(m_name, done);
  if (!m_cancelled) return true;
  // The command that runs counts as cancelled, as by Escape at its last prompt; what a script meant to do
  // with the outcome is not done.
  session.noteInput(true);
  session.input().stopScripts();
  return false;
}
