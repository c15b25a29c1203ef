// Makes the picture of a space of a drawing.
#pragma once

#include "host/scene/Scene.h"

#include <span>

class AcDbDatabase;

namespace scene {

class TextMetrics;

// What a picture may cost. A drawing beyond it gets the picture that fits, and is told what is missing.
struct Limits {
  std::size_t entities = 4'000'000; // counted anew in each insertion
  std::size_t points = 120'000'000;
  int copies = 100'000;             // of one insertion in rows and columns
  int depth = 64;                   // of insertions within one another
  std::size_t hatchLines = 100'000; // dashes and lines of one hatch
};

struct SceneOptions {
  const TextMetrics* metrics = nullptr; // estimated ones without it
  bool forPlotting = false;             // leaves out layers that are not plotted
  bool viewports = true;                // shows model space in the viewports of a layout
  // Entities that the host has no painter for are asked to draw themselves. Only the thread that edits may do
  // that; without it they are left out, and Scene::asksPlugIns tells that there are some.
  bool asksPlugIns = true;
  // The drawing is being read and has no objects yet, see EntityWatcher. What asks for more than that is
  // left out, and Scene::isProvisional tells.
  bool whileReading = false;
  Limits limits;
};

// A space is the block record of model space or of a layout. The drawing stays as it is; nothing of the scene
// points into it but the ids of the groups.
Scene BuildScene(AcDbDatabase& database, const AcDbObjectId& space, const SceneOptions& options = {});
// The picture of some entities of a space only, such as those that changed.
Scene BuildScene(AcDbDatabase& database, std::span<const AcDbObjectId> entities,
                 const SceneOptions& options = {});

} // namespace scene
