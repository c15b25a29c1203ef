#include "host/qt/window/HostMenus.h"

namespace desktop {
namespace {

constexpr wchar_t kFile[] = L"文件(&F)";
constexpr wchar_t kEdit[] = L"编辑(&E)";
constexpr wchar_t kView[] = L"视图(&V)";
constexpr wchar_t kDraw[] = L"绘图(&D)";
constexpr wchar_t kTools[] = L"工具(&T)";
constexpr wchar_t kHelp[] = L"帮助(&H)";

constexpr HostMenuRow kRows[] = {
    {kFile, L"NEW", nullptr, nullptr, "Ctrl+N"},     {kFile, L"OPEN", nullptr, nullptr, "Ctrl+O"},
    {kFile, L"RECOVER", nullptr, nullptr, nullptr},  {kFile, nullptr, nullptr, nullptr, nullptr},
    {kFile, L"SAVE", nullptr, nullptr, "Ctrl+S"},    {kFile, L"SAVEAS", nullptr, nullptr, "Ctrl+Shift+S"},
    {kFile, L"EXPORT", nullptr, nullptr, nullptr},   {kFile, L"AUDIT", nullptr, nullptr, nullptr},
    {kFile, L"PURGE", nullptr, nullptr, nullptr},    {kFile, nullptr, nullptr, nullptr, nullptr},
    {kFile, L"CLOSE", nullptr, nullptr, "Ctrl+W"},   {kFile, L"QUIT", nullptr, nullptr, "Ctrl+Q"},
    {kEdit, L"U", nullptr, nullptr, "Ctrl+Z"},       {kEdit, L"REDO", nullptr, nullptr, "Ctrl+Y"},
    {kEdit, nullptr, nullptr, nullptr, nullptr},     {kEdit, L"ERASE", nullptr, nullptr, "Del"},
    {kEdit, L"MOVE", nullptr, nullptr, nullptr},     {kEdit, L"COPY", nullptr, nullptr, nullptr},
    {kEdit, L"ROTATE", nullptr, nullptr, nullptr},   {kEdit, nullptr, nullptr, nullptr, nullptr},
    {kEdit, L"SELECT", nullptr, nullptr, nullptr},   {kView, L"ZOOM", L"A", L"显示全部", "Ctrl+0"},
    {kView, L"ZOOM", L"W", L"窗口缩放", nullptr},    {kView, L"ZOOM", L"P", L"上一个视图", nullptr},
    {kView, L"REGEN", nullptr, nullptr, nullptr},    {kDraw, L"LINE", nullptr, nullptr, nullptr},
    {kDraw, L"PLINE", nullptr, nullptr, nullptr},    {kDraw, L"ARC", nullptr, nullptr, nullptr},
    {kDraw, L"CIRCLE", nullptr, nullptr, nullptr},   {kDraw, L"POINT", nullptr, nullptr, nullptr},
    {kDraw, L"TEXT", nullptr, nullptr, nullptr},     {kDraw, L"INSERT", nullptr, nullptr, nullptr},
    {kTools, L"LAYER", nullptr, nullptr, nullptr},   {kTools, L"CLAYER", nullptr, nullptr, nullptr},
    {kTools, L"DDSTYLE", nullptr, nullptr, nullptr}, {kTools, nullptr, nullptr, nullptr, nullptr},
    {kTools, L"LIST", nullptr, nullptr, nullptr},    {kTools, L"ID", nullptr, nullptr, nullptr},
    {kTools, L"SETVAR", nullptr, nullptr, nullptr},  {kTools, nullptr, nullptr, nullptr, nullptr},
    {kTools, L"SCRIPT", nullptr, nullptr, nullptr},  {kTools, L"APPLOAD", nullptr, nullptr, nullptr},
    {kHelp, L"HELP", nullptr, nullptr, "F1"},
};

} // namespace

std::span<const HostMenuRow> HostMenus() {
  return kRows;
}

} // namespace desktop
