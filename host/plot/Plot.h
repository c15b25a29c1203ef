// Puts a scene on paper: a PDF, an SVG or a PNG file.
#pragma once

#include "host/afx/FileResult.h"
#include "host/plot/PageLayout.h"
#include "host/scene/Scene.h"

#include <functional>
#include <optional>
#include <string>

namespace plot {

enum class Format { pdf, svg, png };

// By the ending of a file name, without case; nothing for another ending.
std::optional<Format> FormatOf(const CString& path);

struct PlotOptions {
  PageOptions page;
  double dotsPerInch = 200; // of a PNG; fewer where the picture would be too large for one
  CString title;
  // When the drawing was last changed, as "2024-05-01T12:00:00Z", for the file's own record; may be empty.
  // The time of plotting is written nowhere, so that the same drawing gives the same bytes.
  CString date;
  // Told how much is done, 0 to 1; giving false cancels the plot.
  std::function<bool(double)> progress;
};

struct PlotResult {
  bool ok = false;
  CString error; // a sentence for the user
  std::string bytes;
  Page page;
  double dotsPerInch = 0; // that a PNG got
};

PlotResult Plot(const scene::Scene& scene, Format format, const PlotOptions& options = {});

} // namespace plot
