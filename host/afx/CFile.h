// Operations on whole files that raise CFileException when they fail. To read or write a file use
// AtomicFile.h.
#pragma once

#include "host/afx/CString.h"

class CFile {
 public:
  CFile() = delete;

  // Gives a file or folder another name on the same disk. A file that bears the new name already is never
  // replaced: that raises, like everything else that the system refuses. The old name for the new one is
  // legal where there is such a file. Paths as in Paths.h.
  static void Rename(const CString& oldName, const CString& newName);
};
