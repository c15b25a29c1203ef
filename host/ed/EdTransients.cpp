#include "host/ed/EdTransients.h"

#include "host/db/AcGiWorldDraw.h"

void EdTransients::draw(AcGiWorldDraw& draw) const {
  const auto shown = m_shown; // a copy: drawing may show more
  for (const auto* drawing : shown) {
    draw.subEntityTraits() = AcGiSubEntityTraits(); // not those of the one before
    (*drawing)(draw);
  }
}

EdTransient::EdTransient(EdTransients& transients, EdTransients::Drawing drawing)
    : m_transients(transients), m_drawing(std::move(drawing)) {
  m_transients.m_shown.push_back(&m_drawing);
  m_transients.changed();
}

EdTransient::~EdTransient() {
  std::erase(m_transients.m_shown, &m_drawing);
  m_transients.changed();
}
