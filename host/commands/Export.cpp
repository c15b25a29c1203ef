// EXPORT: the drawing as a PDF, SVG or PNG file.
#include "host/afx/AtomicFile.h"
#include "host/afx/Numbers.h"
#include "host/afx/Paths.h"
#include "host/commands/AskFileName.h"
#include "host/commands/CommandFunctions.h"
#include "host/commands/DrawingDate.h"
#include "host/commands/DrawingFiles.h"
#include "host/commands/NumberText.h"
#include "host/db/AcDbDatabase.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/LongTask.h"
#include "host/ed/acutPrintf.h"
#include "host/plot/FontMetrics.h"
#include "host/plot/PaperSizes.h"
#include "host/plot/Plot.h"
#include "host/scene/BuildScene.h"
#include "host/scene/Layouts.h"

#include <filesystem>

namespace commands {
namespace {

struct Job {
  CString path;
  plot::Format format = plot::Format::pdf;
  AcDbObjectId space;
  plot::PlotOptions options;
  bool hasSheet = false; // a layout brings its own
};

void refuse(const CString& reason, const CString& expected) {
  EdSession::instance().refuse(reason, expected);
}

CString defaultName(const AcApDocument& document) {
  namespace fs = std::filesystem;
  const std::string stem = fs::path(afx::NativePath(document.docTitle())).stem().string();
  return CString::FromUtf8(stem) + L".pdf";
}

bool askFile(const AcApDocument& document, Job& job) {
  const CString usual = defaultName(document);
  const auto name = AskFileName({L"输入文件名（以 .pdf、.svg 或 .png 结尾） <" + usual + L">:",
                                 L"输出",
                                 {L"*.pdf", L"*.svg", L"*.png"},
                                 usual,
                                 true});
  if (!name) return false;
  job.path = *name;
  if (job.path.IsEmpty()) job.path = usual;
  const auto format = plot::FormatOf(job.path);
  if (!format) {
    refuse(L"“" + ed::Excerpt(job.path) + L"”不能输出：结尾说明不了文件的格式。",
           L"以 .pdf、.svg 或 .png 结尾的文件名");
    return false;
  }
  job.format = *format;
  return true;
}

bool askWindow(Job& job) {
  const auto first = ed::AskPoint({L"指定第一个角点:", {}, RSG_NONULL, {}});
  if (!first.hasValue()) return false;
  const auto second = ed::AskPoint({L"指定对角点:", {}, RSG_NONULL, first.point});
  if (!second.hasValue()) return false;
  job.options.page.area =
      ge::Box2d::FromCorners({first.point.x, first.point.y}, {second.point.x, second.point.y});
  const ge::Box2d& area = job.options.page.area;
  if (area.maxX > area.minX && area.maxY > area.minY) return true;
  refuse(L"窗口没有宽度或高度，未输出。", L"不在同一水平线或竖直线上的两个角点");
  return false;
}

bool askLayout(AcDbDatabase& database, Job& job) {
  std::vector<scene::Layout> layouts = scene::LayoutsOf(database);
  std::erase_if(layouts, [](const scene::Layout& layout) { return layout.isModelSpace; });
  if (layouts.empty()) {
    refuse(L"图形没有布局，未输出。", L"全部(E) 或 窗口(W)");
    return false;
  }
  CString names;
  for (const scene::Layout& layout : layouts) names += (names.IsEmpty() ? L"" : L"、") + layout.name;
  const auto answer = ed::AskText({L"输入布局名 <" + layouts.front().name + L">:", {}, 0, {}});
  if (answer.isCancelled()) return false;
  const CString typed = CString(answer.text).Trim();
  for (const scene::Layout& layout : layouts) {
    if (layout.name.CompareNoCase(typed.IsEmpty() ? layouts.front().name : typed) != 0) continue;
    job.space = layout.space;
    if (layout.paper.IsEmpty()) return true;
    plot::PageOptions& page = job.options.page;
    page.area = layout.paper;
    page.scale = layout.unit;
    page.width = (layout.paper.maxX - layout.paper.minX) * layout.unit;
    page.height = (layout.paper.maxY - layout.paper.minY) * layout.unit;
    page.margin = 0;
    job.hasSheet = true;
    return true;
  }
  refuse(L"没有布局“" + ed::Excerpt(typed) + L"”，未输出。", names);
  return false;
}

bool askArea(AcDbDatabase& database, Job& job) {
  job.space = database.modelSpaceId();
  const auto answer =
      ed::AskKeyword({L"输入输出范围 [全部(E)/窗口(W)/布局(L)] <全部>:", L"Extents Window Layout", 0, {}});
  if (answer.isCancelled()) return false;
  if (answer.isKeyword(L"Window")) return askWindow(job);
  if (answer.isKeyword(L"Layout")) return askLayout(database, job);
  return true;
}

bool askPaper(Job& job) {
  const CString usual = job.hasSheet ? L"布局的图纸" : L"适应";
  const auto answer =
      ed::AskText({L"输入图纸尺寸（A0 至 A4，或毫米，如 420x297） <" + usual + L">:", {}, 0, {}});
  if (answer.isCancelled()) return false;
  const CString typed = CString(answer.text).Trim();
  if (typed.IsEmpty() || typed == usual.GetString()) return true;
  const auto paper = plot::PaperOf(typed);
  if (!paper) {
    refuse(L"“" + ed::Excerpt(typed) + L"”不是图纸尺寸，未输出。",
           L"A0、A1、A2、A3、A4，或如 420x297，每边 10 至 5000 毫米");
    return false;
  }
  plot::PageOptions& page = job.options.page;
  page.width = paper->width;
  page.height = paper->height;
  page.scale = 0;
  return true;
}

void report(const Job& job, const plot::PlotResult& result, const scene::Scene& picture) {
  CString text;
  text.Format(L"\n已输出 %s：图纸 %s x %s 毫米，1 毫米合 %s 图形单位。\n", job.path,
              NumberText(result.page.width), NumberText(result.page.height),
              NumberText(1 / result.page.scale));
  acutPrintText(text);
  if (picture.groups.empty()) acutPrintf(L"这个范围没有可画的实体。\n");
  if (picture.leftOut.empty()) return;
  acutPrintf(L"没有画出的内容：\n");
  for (const CString& line : picture.leftOut) acutPrintText(L"  " + line + L"\n");
}

} // namespace

void Export() {
  AcApDocument& document = *curDoc();
  AcDbDatabase& database = *document.database();
  Job job;
  if (!askFile(document, job) || !askArea(database, job) || !askPaper(job)) return;
  if (!MayReplace(job.path, L"未输出")) return;
  const plot::FontMetrics metrics;
  scene::SceneOptions sceneOptions;
  sceneOptions.metrics = &metrics;
  sceneOptions.forPlotting = true;
  const scene::Scene picture = scene::BuildScene(database, job.space, sceneOptions);
  job.options.title = document.docTitle();
  job.options.date = DrawingDate(database);
  LongTask task(L"输出");
  job.options.progress = task.progress();
  const plot::PlotResult result = plot::Plot(picture, job.format, job.options);
  if (task.isCancelled()) {
    acutPrintf(L"\n输出已取消；文件 %s 未改动。\n", job.path);
    return;
  }
  if (!result.ok) return refuse(L"“" + job.path + L"”未输出。" + result.error, L"较小的图纸或范围");
  const auto written = afx::WriteFileAtomically(job.path, result.bytes);
  if (!written.ok) return refuse(written.message, L"可写的文件夹和文件名；原文件未改动");
  report(job, result, picture);
}

} // namespace commands
