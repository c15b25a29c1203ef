// Pictures over the drawing that belong to no drawing: what is dragged, previews, marks. Whoever shows one
// keeps it; front ends draw all of them over the picture whenever one changes.
#pragma once

#include <functional>
#include <vector>

class AcGiWorldDraw;

class EdTransients {
 public:
  using Drawing = std::function<void(AcGiWorldDraw&)>;

  // Told whenever something is to be drawn anew; may be empty.
  void setObserver(std::function<void()> changed) { m_changed = std::move(changed); }
  // In the order in which they were shown.
  void draw(AcGiWorldDraw& draw) const;
  bool isEmpty() const { return m_shown.empty(); }

 private:
  friend class EdTransient;
  void changed() const {
    if (m_changed) m_changed();
  }
  std::vector<const Drawing*> m_shown;
  std::function<void()> m_changed;
};

// One picture, shown as long as this stands.
class EdTransient {
 public:
  EdTransient(EdTransients& transients, EdTransients::Drawing drawing);
  ~EdTransient();
  EdTransient(const EdTransient&) = delete;
  EdTransient& operator=(const EdTransient&) = delete;

  // It looks different now.
  void changed() const { m_transients.changed(); }

 private:
  EdTransients& m_transients;
  EdTransients::Drawing m_drawing;
};
