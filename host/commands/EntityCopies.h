// Copies of a selection, made step by step, so that the last step can be taken back while the command runs.
#pragma once

#include "host/db/AcDbObjectId.h"
#include "host/db/AcadStatus.h"
#include "host/ge/AcGeMatrix3d.h"

#include <vector>

namespace commands {

class EntityCopies {
 public:
  // A copy comes to stand in the space of its original.
  explicit EntityCopies(const std::vector<AcDbObjectId>& ids);

  // Copies all of them once for each matrix, as one step: on locked layers too, for the originals stay as
  // they are. What the host can't move comes as an insertion of an anonymous block. False, with the user
  // told, when nothing could be copied.
  bool add(const std::vector<AcGeMatrix3d>& matrices);
  // Takes the latest step back. False when there is none.
  bool undo();
  int count() const { return m_count; }

 private:
  struct Originals {
    AcDbObjectId space;
    std::vector<AcDbObjectId> ids;
  };
  struct Step {
    std::vector<std::size_t> ends; // of the lists of the spaces before it
    int count;
  };
  std::vector<std::size_t> ends() const;
  void eraseFrom(const std::vector<std::size_t>& ends);
  static Acad::ErrorStatus copyThrough(const Originals& originals, const AcGeMatrix3d& matrix);

  std::vector<Originals> m_originals;
  std::vector<Step> m_steps;
  int m_count = 0;
};

} // namespace commands
