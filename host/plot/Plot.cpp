#include "host/plot/Plot.h"

#include "host/plot/ScenePainter.h"
#include "host/plot/StableSvg.h"

#include <cairo/cairo-pdf.h>
#include <cairo/cairo-svg.h>
#include <cairo/cairo.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace plot {
namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kMostPixels = 20'000; // of a side of a PNG
constexpr double kMostPixelsInAll = 200e6;
constexpr double kFinestOnPaper = 0.05; // millimetres

struct FormatRow {
  const wchar_t* ending;
  Format format;
};
constexpr FormatRow kFormats[] = {{L".pdf", Format::pdf}, {L".svg", Format::svg}, {L".png", Format::png}};

struct Release {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* target) const { cairo_destroy(target); }
};
using Surface = std::unique_ptr<cairo_surface_t, Release>;
using Target = std::unique_ptr<cairo_t, Release>;

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int size) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), size);
  return CAIRO_STATUS_SUCCESS;
}

double resolution(const Page& page, double wanted) {
  const double longest = std::max(page.width, page.height) / kMillimetresPerInch;
  const double area = page.width * page.height / (kMillimetresPerInch * kMillimetresPerInch);
  return std::min({wanted, kMostPixels / longest, std::sqrt(kMostPixelsInAll / area)});
}

Surface makeSurface(Format format, const PlotOptions& options, PlotResult& result) {
  const double width = result.page.width * kPointsPerMillimetre;
  const double height = result.page.height * kPointsPerMillimetre;
  if (format == Format::png) {
    result.dotsPerInch = resolution(result.page, options.dotsPerInch);
    const auto pixels = [&](double mm) {
      return std::max(1, static_cast<int>(std::lround(mm / kMillimetresPerInch * result.dotsPerInch)));
    };
    return Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels(result.page.width),
                                              pixels(result.page.height)));
  }
  if (format == Format::svg)
    return Surface(cairo_svg_surface_create_for_stream(append, &result.bytes, width, height));
  Surface surface(cairo_pdf_surface_create_for_stream(append, &result.bytes, width, height));
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "zpcad");
  if (!options.title.IsEmpty())
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, options.title.ToUtf8().c_str());
  // Without one cairo writes the time of now.
  const CString date = options.date.IsEmpty() ? CString(L"1970-01-01T00:00:00Z") : options.date;
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, date.ToUtf8().c_str());
  return surface;
}

} // namespace

std::optional<Format> FormatOf(const CString& path) {
  CString name = path;
  name.MakeLower();
  for (const FormatRow& row : kFormats)
    if (name.View().ends_with(row.ending)) return row.format;
  return std::nullopt;
}

PlotResult Plot(const scene::Scene& scene, Format format, const PlotOptions& options) {
  PlotResult result;
  result.page = LayOutPage(scene.box, options.page);
  Surface surface = makeSurface(format, options, result);
  Target target(cairo_create(surface.get()));
  const double unit = format == Format::png ? result.dotsPerInch / kMillimetresPerInch : kPointsPerMillimetre;
  cairo_scale(target.get(), unit, unit);
  const double finest = format == Format::png ? 1 / unit : kFinestOnPaper;
  if (!ScenePainter(target.get(), scene, result.page, finest).paint(options.progress)) {
    result.bytes.clear();
    result.error = L"已取消";
    return result;
  }
  cairo_show_page(target.get());
  cairo_status_t status = cairo_status(target.get());
  target.reset();
  cairo_surface_flush(surface.get());
  if (status == CAIRO_STATUS_SUCCESS && format == Format::png)
    status = cairo_surface_write_to_png_stream(surface.get(), append, &result.bytes);
  cairo_surface_finish(surface.get());
  if (status == CAIRO_STATUS_SUCCESS) status = cairo_surface_status(surface.get());
  if (format == Format::svg) result.bytes = StableSvg(result.bytes);
  result.ok = status == CAIRO_STATUS_SUCCESS;
  if (!result.ok) {
    result.bytes.clear();
    result.error.Format(L"绘制失败：%s", CString::FromUtf8(cairo_status_to_string(status)));
  }
  return result;
}

} // namespace plot
