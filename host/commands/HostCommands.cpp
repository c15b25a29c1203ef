#include "host/commands/HostCommands.h"

#include "host/commands/CommandFunctions.h"
#include "host/ed/AcEdCommandStack.h"

namespace commands {
namespace {

constexpr unsigned kSession = ACRX_CMD_SESSION | ACRX_CMD_NO_UNDO_MARKER;
constexpr unsigned kLooks = ACRX_CMD_DOCREADLOCK | ACRX_CMD_NO_UNDO_MARKER | ACRX_CMD_USEPICKSET;
constexpr unsigned kPicks = ACRX_CMD_DOCREADLOCK | ACRX_CMD_NO_UNDO_MARKER | ACRX_CMD_REDRAW;
constexpr unsigned kDraws = ACRX_CMD_MODAL;
constexpr unsigned kEdits = ACRX_CMD_USEPICKSET;

struct Row {
  const wchar_t* name;
  const wchar_t* alias;
  unsigned flags;
  AcRxFunctionPtr function;
  const wchar_t* title;
};

constexpr Row kRows[] = {
    {L"NEW", L"新建", kSession, New, L"新建图形"},
    {L"OPEN", L"打开", kSession, Open, L"打开图形文件"},
    {L"RECOVER", L"修复", kSession, Recover, L"打开损坏的图形文件，尽量抢救"},
    {L"SAVE", L"QSAVE", kLooks, Save, L"保存图形"},
    {L"SAVEAS", L"另存为", kLooks, SaveAs, L"另存为其他文件"},
    {L"EXPORT", L"输出", kLooks, Export, L"输出为 PDF、SVG 或 PNG 文件"},
    {L"CLOSE", L"关闭", kSession, Close, L"关闭当前图形"},
    {L"QUIT", L"EXIT", kSession, Quit, L"退出程序"},
    {L"LINE", L"L", kDraws, Line, L"画直线"},
    {L"PLINE", L"PL", kDraws, Pline, L"画多段线，直线和圆弧"},
    {L"ARC", L"A", kDraws, Arc, L"画圆弧"},
    {L"CIRCLE", L"C", kDraws, Circle, L"画圆"},
    {L"POINT", L"PO", kDraws, Point, L"画点"},
    {L"TEXT", L"DT", kDraws, Text, L"写单行文字"},
    {L"INSERT", L"I", kDraws, Insert, L"插入块，或图形文件作为块"},
    {L"MOVE", L"M", kEdits, Move, L"移动实体"},
    {L"COPY", L"CO", kEdits, Copy, L"复制实体"},
    {L"ROTATE", L"RO", kEdits, Rotate, L"旋转实体"},
    {L"ERASE", L"E", kEdits, Erase, L"删除实体"},
    {L"LAYER", L"-LAYER", kDraws, Layer, L"图层：列表、新建、状态、颜色、线型、线宽"},
    {L"CLAYER", L"当前图层", kDraws, Clayer, L"设置当前图层"},
    {L"DDSTYLE", L"文字样式", kDraws, TextStyle, L"文字样式编辑器"},
    {L"LIST", L"LI", kLooks, List, L"列出实体的特性"},
    {L"ID", L"坐标", kLooks, Id, L"显示点的坐标"},
    {L"SELECT", L"选择", kPicks, Select, L"选择实体，供下一命令使用"},
    {L"SETVAR", L"SET", kDraws, SetVar, L"查看或设置系统变量"},
    {L"ZOOM", L"Z", kLooks, Zoom, L"缩放视图"},
    {L"REGEN", L"RE", kLooks, Regen, L"重新生成图形"},
    {L"AUDIT", L"检查", kDraws, Audit, L"检查图形，更正错误"},
    {L"PURGE", L"PU", kDraws, Purge, L"清理没有用到的块"},
    {L"U", L"放弃", kSession, U, L"放弃上一个命令"},
    {L"UNDO", L"多步放弃", kSession, Undo, L"放弃若干个命令"},
    {L"REDO", L"重做", kSession, Redo, L"重做刚放弃的命令"},
    {L"SCRIPT", L"SCR", kSession, Script, L"执行脚本文件"},
    {L"APPLOAD", L"AP", kSession, Appload, L"加载或卸载插件"},
    {L"HELP", L"?", kSession, Help, L"列出命令"},
};

constexpr wchar_t kGroup[] = L"HOST";

} // namespace

void RegisterHostCommands() {
  for (const auto& row : kRows) acedRegCmds->addCommand(kGroup, row.name, row.alias, row.flags, row.function);
}

CString Title(const CString& globalName) {
  for (const auto& row : kRows)
    if (globalName.CompareNoCase(row.name) == 0) return row.title;
  return {};
}

} // namespace commands
