// Keys that end a drag by being pressed, without Enter: somebody names them before the drag, and asks
// afterwards which one it was. At the console a line of that one letter is the key press.
#pragma once

#include "host/afx/CString.h"

class EdKeyPresses {
 public:
  static EdKeyPresses& instance();

  // Letters, separated by blanks, of which case doesn't matter. Forgets what was pressed before.
  void start(const CString& keys);
  void end() { m_keys.Empty(); }
  const CString& keys() const { return m_keys; }
  // The key as the user gave it; empty when none was pressed since start.
  const CString& pressed() const { return m_pressed; }

  // Takes the line as a key press if it is one of the keys.
  bool takes(const CString& line);

 private:
  CString m_keys;
  CString m_pressed;
};
