#include "host/plot/PageLayout.h"

#include <algorithm>
#include <cmath>

namespace plot {
namespace {

constexpr double kShortestSide = 20; // millimetres, of a paper that follows the area
constexpr double kLongestSide = 20'000;

// An area with width and height: a single line or point lies in the middle of what it gets.
ge::Box2d usableArea(const ge::Box2d& area) {
  if (area.IsEmpty()) return {0, 0, 1, 1};
  ge::Box2d box = area;
  const double size = std::max({box.maxX - box.minX, box.maxY - box.minY});
  const double least = size > 0 ? size * 1e-3 : 1;
  const auto widen = [least](double& low, double& high) {
    if (high - low >= least) return;
    const double middle = (low + high) / 2;
    low = middle - least / 2;
    high = middle + least / 2;
  };
  widen(box.minX, box.maxX);
  widen(box.minY, box.maxY);
  return box;
}

} // namespace

Page LayOutPage(const ge::Box2d& sceneBox, const PageOptions& options) {
  const ge::Box2d area = usableArea(options.area.IsEmpty() ? sceneBox : options.area);
  const double width = area.maxX - area.minX;
  const double height = area.maxY - area.minY;
  Page page;
  page.area = area;
  double margin = std::max(0.0, options.margin);
  if (options.width > 0 && options.height > 0) {
    page.width = std::min(options.width, kLongestSide);
    page.height = std::min(options.height, kLongestSide);
    if (options.mayTurn && (page.width > page.height) != (width > height)) std::swap(page.width, page.height);
    margin = std::min(margin, 0.4 * std::min(page.width, page.height));
    const double fits = std::min((page.width - 2 * margin) / width, (page.height - 2 * margin) / height);
    page.scale = options.scale > 0 ? options.scale : fits;
  } else {
    page.scale = options.scale > 0 ? options.scale
                                   : std::max(options.longSide - 2 * margin, 1.0) / std::max(width, height);
    page.width = std::clamp(width * page.scale + 2 * margin, kShortestSide, kLongestSide);
    page.height = std::clamp(height * page.scale + 2 * margin, kShortestSide, kLongestSide);
  }
  page.left = (page.width - width * page.scale) / 2;
  page.bottom = (page.height + height * page.scale) / 2;
  return page;
}

} // namespace plot
