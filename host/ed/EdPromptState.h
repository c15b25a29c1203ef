// What is being asked for at the moment: front ends look here for what a click, a key or a move of the mouse
// means now. Prompts nest (a window's corners within a selection); the innermost one counts.
#pragma once

#include "host/afx/CString.h"
#include "host/db/AcDbObjectId.h"
#include "host/ed/EdKeywords.h"
#include "host/ge/AcGePoint3d.h"

#include <functional>
#include <optional>
#include <vector>

struct EdPromptState {
  enum class Wants { command, point, corner, entity, selection, number, distance, text, keyword };
  Wants wants = Wants::command;
  CString prompt;
  EdKeywords keywords;
  std::optional<AcGePoint3d> base; // where a rubber band starts
  // Characters that answer by themselves, without Enter.
  CString keys;
  // Told where the cursor is, in world coordinates; empty where nobody follows it.
  std::function<void(const AcGePoint3d&)> follow;
  // Of a selection: what has been selected so far.
  const std::vector<AcDbObjectId>* selected = nullptr;
};

class EdPromptStates {
 public:
  // The innermost prompt, or that of a command where none is open.
  const EdPromptState& current() const;
  // The cursor stands there now. Whether anything follows it.
  bool cursorMoved(const AcGePoint3d& world) const;
  // Whether the character answers the current prompt by itself.
  bool takesKey(wchar_t key) const;

 private:
  friend class EdPromptScope;
  std::vector<const EdPromptState*> m_open;
};

// A prompt is open as long as this stands.
class EdPromptScope {
 public:
  EdPromptScope(EdPromptStates& states, EdPromptState state);
  ~EdPromptScope();
  EdPromptScope(const EdPromptScope&) = delete;
  EdPromptScope& operator=(const EdPromptScope&) = delete;

  EdPromptState& state() { return m_state; }

 private:
  EdPromptStates& m_states;
  EdPromptState m_state;
};
