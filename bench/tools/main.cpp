// The ratios that README.md tells of.
#include "bench/RatioReporter.h"

int main(int argc, char** argv) {
  return bench::RunWithRatios(
      argc, argv,
      {{"dragged group of 10,000 by its points alone", "GroupDragged/10000", "PointsDragged/10000"},
       {"dragged group of 10,000 by one of 1,000", "GroupDragged/10000", "GroupDragged/1000"},
       {"path of 10,000 points by one of 1,250", "PathMeasured/10000", "PathMeasured/1250"},
       {"path of 20,000 points by one of 10,000", "PathMeasured/20000", "PathMeasured/10000"},
       {"path of 10,000 points by its lines added and erased", "PathMeasured/10000", "LinesAdded/10000"}});
}
