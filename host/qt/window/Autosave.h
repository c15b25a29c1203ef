// Copies of changed drawings for the case of a crash: written every few minutes while no command runs, and
// thrown away when the program ends by itself. What another run left behind is offered at the next start.
#pragma once

#include "host/afx/CString.h"

#include <QLockFile>
#include <QString>

#include <map>
#include <memory>
#include <vector>

class AcApDocument;

namespace desktop {

// A copy that a run which ended early has left.
struct LeftDrawing {
  QString file;
  CString title;
  CString original; // the file it was opened from; empty for one that was never saved
};

class Autosave {
 public:
  // Each run has a folder of its own in this one, locked as long as it lives.
  explicit Autosave(const QString& folder);
  ~Autosave();
  Autosave(const Autosave&) = delete;
  Autosave& operator=(const Autosave&) = delete;

  // Writes the changed drawings, and throws away the copies of those that are saved or closed. False, and
  // nothing happens, while a command runs.
  bool save();

  // What runs that are no longer there have left. They are not offered a second time; the files stay where
  // they are until discard.
  std::vector<LeftDrawing> takeLeft();
  void discard(const std::vector<LeftDrawing>& drawings) const;
  // Opens a copy as the changed state of its original, which is copied before a save replaces it.
  static bool open(const LeftDrawing& drawing);

 private:
  QString m_folder;
  QString m_own;
  std::unique_ptr<QLockFile> m_lock;
  std::map<const AcApDocument*, int> m_numbers;
  int m_next = 0;
};

} // namespace desktop
