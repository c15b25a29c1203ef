#include "host/ed/EdPromptState.h"

#include "host/afx/LetterCase.h"

#include <algorithm>

const EdPromptState& EdPromptStates::current() const {
  static const EdPromptState command;
  return m_open.empty() ? command : *m_open.back();
}

bool EdPromptStates::cursorMoved(const AcGePoint3d& world) const {
  const auto follow = current().follow; // a copy: following may open and close prompts
  if (follow) follow(world);
  return static_cast<bool>(follow);
}

bool EdPromptStates::takesKey(wchar_t key) const {
  const auto keys = current().keys.View();
  return std::any_of(keys.begin(), keys.end(),
                     [&](wchar_t k) { return k != L' ' && afx::ToLower(k) == afx::ToLower(key); });
}

EdPromptScope::EdPromptScope(EdPromptStates& states, EdPromptState state)
    : m_states(states), m_state(std::move(state)) {
  m_states.m_open.push_back(&m_state);
}

EdPromptScope::~EdPromptScope() {
  m_states.m_open.pop_back();
}
