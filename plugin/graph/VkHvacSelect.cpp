#include "plugin/graph/VkHvacSelect.h"

#include "host/ed/EdKeyPresses.h"
#include "host/ed/SelectionPrompt.h"

VkHvacSelect* VkHvacSelect::GetInstance() {
  static VkHvacSelect select;
  return &select;
}

int VkHvacSelect::SingleSelectEntity(const CString& prompt, AcDbObjectId& id, const resbuf* filter) {
  ed::SelectionQuestion question;
  question.prompt = prompt;
  question.single = true;
  question.usePickFirst = false;
  const auto answer = ed::AskSelection(question, SelectionFilter(filter));
  if (answer.cancelled) return RTCAN;
  if (answer.set.ids().empty()) return RTERROR;
  id = answer.set.ids().front();
  return RTNORM;
}

void VkHvacSelect::StartGetPressKey(const CString& keys) {
  EdKeyPresses::instance().start(keys);
}

void VkHvacSelect::EndGetPressKey() {
  EdKeyPresses::instance().end();
}

CString VkHvacSelect::GetPressKey() const {
  return EdKeyPresses::instance().pressed();
}
