#include "apps/zpcad/Options.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

std::string describe(const CLI::App*, const CLI::Error& error) {
  const std::string hint = "用 zpcad --help 查看用法。\n";
  if (dynamic_cast<const CLI::ExtrasError*>(&error))
    return std::string("不认识的参数：") + error.what() + "\n" + hint;
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error))
    return std::string("选项缺少值：") + error.what() + "\n" + hint;
  return std::string("参数有误：") + error.what() + "\n" + hint;
}

} // namespace

std::optional<int> ParseOptions(int argc, const char* const* argv, Options& options) {
  CLI::App app("暖通管道 CAD 主程序", "zpcad");
  std::string data;
  std::vector<std::string> plugIns;
  std::string script;
  std::string drawing;
  std::string screenshot;
  app.get_formatter()->label("OPTIONS", "选项");
  app.get_formatter()->label("Usage", "用法");
  app.get_formatter()->label("Positionals", "参数");
  app.option_defaults()->group("选项");
  app.set_help_flag("-h,--help", "显示本说明");
  app.set_version_flag("--version", std::string("zpcad ") + ZP_VERSION, "显示版本");
  app.failure_message(describe);
  app.add_flag("--console", options.console, "在终端中运行，不开窗口");
  auto* dataOption =
      app.add_option("--data", data, "数据文件夹；默认为用户数据文件夹中的副本")->type_name("DIR");
  app.add_option("--plugin", plugIns, "要加载的插件，可多次给出")->type_name("FILE")->allow_extra_args(false);
  auto* scriptOption = app.add_option("--script", script, "从脚本文件取命令行")->type_name("FILE");
  auto* screenshotOption =
      app.add_option("--screenshot", screenshot, "脚本执行完后把窗口画面存为 PNG 文件并退出")
          ->type_name("FILE");
  auto* drawingOption = app.add_option("DRAWING", drawing, "要打开的图形文件")->type_name("");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (app.exit(error, std::cout, std::cout) == 0) return console::kDone;
    return console::kUnusable;
  }
  if (*dataOption) options.dataFolder = data;
  if (*screenshotOption) options.screenshot = screenshot;
  if (*scriptOption) options.job.script = CString::FromUtf8(script);
  if (*drawingOption) options.job.drawing = CString::FromUtf8(drawing);
  for (const auto& plugIn : plugIns) options.job.plugIns.push_back(CString::FromUtf8(plugIn));
  return std::nullopt;
}
