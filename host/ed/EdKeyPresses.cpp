#include "host/ed/EdKeyPresses.h"

EdKeyPresses& EdKeyPresses::instance() {
  static auto* presses = new EdKeyPresses; // never destroyed: plug-ins may end theirs while they are unloaded
  return *presses;
}

void EdKeyPresses::start(const CString& keys) {
  m_keys = keys;
  m_pressed.Empty();
}

bool EdKeyPresses::takes(const CString& line) {
  const CString text = CString(line).Trim();
  int at = 0;
  for (CString key = m_keys.Tokenize(L" ", at); at != -1; key = m_keys.Tokenize(L" ", at)) {
    if (text.CompareNoCase(key) != 0) continue;
    m_pressed = text;
    return true;
  }
  return false;
}
