#include "host/ed/SystemVariables.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbLayerTable.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/DxfRecordEditor.h"
#include "host/db/DxfText.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdSession.h"
#include "host/ed/ViewState.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

namespace {

using Value = SystemVariables::Value;
using Result = SystemVariables::Result;

constexpr double kAny = std::numeric_limits<double>::infinity();
constexpr double kAboveZero = std::numeric_limits<double>::min();
constexpr double kShortMax = 32767;

enum class Place { header, session, computed };
enum class Type { integer, real, text, point };

struct Row {
  const wchar_t* name;
  Type type;
  Place place;
  int code; // group code in the header; 0 elsewhere
  double low;
  double high;
  double number;       // start value of a session variable, or what the header means by leaving it out
  const wchar_t* text; // the same for texts
  bool readOnly;
  const wchar_t* title;
};

constexpr Row kRows[] = {
    {L"ACADVER", Type::text, Place::session, 0, 0, 0, 0, L"18.0", true, L"接口版本"},
    {L"ANGBASE", Type::real, Place::header, 50, -kAny, kAny, 0, L"", false, L"零角度方向"},
    {L"ANGDIR", Type::integer, Place::header, 70, 0, 1, 0, L"", false, L"正角度方向"},
    {L"ATTDIA", Type::integer, Place::session, 0, 0, 1, 0, L"", false, L"插入块时用对话框输入属性"},
    {L"ATTREQ", Type::integer, Place::session, 0, 0, 1, 1, L"", false, L"插入块时询问属性"},
    {L"AUNITS", Type::integer, Place::header, 70, 0, 4, 0, L"", false, L"角度单位"},
    {L"AUPREC", Type::integer, Place::header, 70, 0, 8, 0, L"", false, L"角度小数位数"},
    {L"CECOLOR", Type::integer, Place::header, 62, 0, 256, 256, L"", false, L"当前颜色"},
    {L"CELTSCALE", Type::real, Place::header, 40, kAboveZero, kAny, 1, L"", false, L"当前线型比例"},
    {L"CELTYPE", Type::text, Place::header, 6, 0, 0, 0, L"ByLayer", false, L"当前线型"},
    {L"CELWEIGHT", Type::integer, Place::header, 370, -3, 211, -1, L"", false, L"当前线宽"},
    {L"CLAYER", Type::text, Place::computed, 8, 0, 0, 0, L"0", false, L"当前图层"},
    {L"CMDECHO", Type::integer, Place::session, 0, 0, 1, 1, L"", false, L"命令回显"},
    {L"CMDNAMES", Type::text, Place::computed, 0, 0, 0, 0, L"", true, L"正在运行的命令"},
    {L"COPYMODE", Type::integer, Place::session, 0, 0, 1, 0, L"", false, L"复制一次即止（0 为重复）"},
    {L"DBMOD", Type::integer, Place::computed, 0, 0, 0, 0, L"", true, L"图形自保存后有修改"},
    {L"DIMSCALE", Type::real, Place::header, 40, 0, kAny, 1, L"", false, L"标注比例"},
    {L"DWGCODEPAGE", Type::text, Place::computed, 0, 0, 0, 0, L"", true, L"图形的代码页"},
    {L"DWGNAME", Type::text, Place::computed, 0, 0, 0, 0, L"", true, L"图形文件名"},
    {L"DWGPREFIX", Type::text, Place::computed, 0, 0, 0, 0, L"", true, L"图形所在文件夹"},
    {L"DWGTITLED", Type::integer, Place::computed, 0, 0, 0, 0, L"", true, L"图形已命名"},
    {L"EXPERT", Type::integer, Place::session, 0, 0, 5, 0, L"", false, L"少问确认（2 起替换文件不问）"},
    {L"EXTMAX", Type::point, Place::header, 10, 0, 0, 0, L"", true, L"图形范围右上角"},
    {L"EXTMIN", Type::point, Place::header, 10, 0, 0, 0, L"", true, L"图形范围左下角"},
    {L"FILEDIA", Type::integer, Place::session, 0, 0, 1, 1, L"", false, L"使用文件对话框"},
    {L"FILLMODE", Type::integer, Place::header, 70, 0, 1, 1, L"", false, L"填充显示"},
    {L"INSNAME", Type::text, Place::session, 0, 0, 0, 0, L"", false, L"上一次插入的块"},
    {L"INSUNITS", Type::integer, Place::header, 70, 0, 24, 0, L"", false, L"图形单位"},
    {L"LASTPOINT", Type::point, Place::computed, 0, 0, 0, 0, L"", false, L"上一点"},
    {L"LIMMAX", Type::point, Place::header, 10, 0, 0, 0, L"", false, L"图形界限右上角"},
    {L"LIMMIN", Type::point, Place::header, 10, 0, 0, 0, L"", false, L"图形界限左下角"},
    {L"LTSCALE", Type::real, Place::header, 40, kAboveZero, kAny, 1, L"", false, L"全局线型比例"},
    {L"LUNITS", Type::integer, Place::header, 70, 1, 5, 2, L"", false, L"长度单位制"},
    {L"LUPREC", Type::integer, Place::header, 70, 0, 8, 4, L"", false, L"长度小数位数"},
    {L"MEASUREMENT", Type::integer, Place::header, 70, 0, 1, 0, L"", false, L"公制"},
    {L"ORTHOMODE", Type::integer, Place::header, 70, 0, 1, 0, L"", false, L"正交"},
    {L"OSMODE", Type::integer, Place::session, 0, 0, 32767, 4133, L"", false, L"对象捕捉"},
    {L"PDMODE", Type::integer, Place::header, 70, 0, 100, 0, L"", false, L"点样式"},
    {L"PDSIZE", Type::real, Place::header, 40, -kAny, kAny, 0, L"", false, L"点大小"},
    {L"PICKADD", Type::integer, Place::session, 0, 0, 2, 1, L"", false, L"连续选择"},
    {L"PICKBOX", Type::integer, Place::session, 0, 0, 50, 3, L"", false, L"拾取框大小（像素）"},
    {L"PICKFIRST", Type::integer, Place::session, 0, 0, 1, 1, L"", false, L"先选择后执行"},
    {L"PRODUCT", Type::text, Place::session, 0, 0, 0, 0, L"zpcad", true, L"程序名"},
    {L"TEXTSIZE", Type::real, Place::header, 40, kAboveZero, kAny, 2.5, L"", false, L"文字高度"},
    {L"TEXTSTYLE", Type::text, Place::header, 7, 0, 0, 0, L"Standard", false, L"文字样式"},
    {L"TILEMODE", Type::integer, Place::header, 70, 0, 1, 1, L"", false, L"模型选项卡"},
    {L"USERI1", Type::integer, Place::header, 70, -kShortMax, kShortMax, 0, L"", false, L"用户整数 1"},
    {L"USERI2", Type::integer, Place::header, 70, -kShortMax, kShortMax, 0, L"", false, L"用户整数 2"},
    {L"USERI3", Type::integer, Place::header, 70, -kShortMax, kShortMax, 0, L"", false, L"用户整数 3"},
    {L"USERI4", Type::integer, Place::header, 70, -kShortMax, kShortMax, 0, L"", false, L"用户整数 4"},
    {L"USERI5", Type::integer, Place::header, 70, -kShortMax, kShortMax, 0, L"", false, L"用户整数 5"},
    {L"USERR1", Type::real, Place::header, 40, -kAny, kAny, 0, L"", false, L"用户实数 1"},
    {L"USERR2", Type::real, Place::header, 40, -kAny, kAny, 0, L"", false, L"用户实数 2"},
    {L"USERR3", Type::real, Place::header, 40, -kAny, kAny, 0, L"", false, L"用户实数 3"},
    {L"USERR4", Type::real, Place::header, 40, -kAny, kAny, 0, L"", false, L"用户实数 4"},
    {L"USERR5", Type::real, Place::header, 40, -kAny, kAny, 0, L"", false, L"用户实数 5"},
    {L"VIEWCTR", Type::point, Place::computed, 0, 0, 0, 0, L"", true, L"视图中心"},
    {L"VIEWSIZE", Type::real, Place::computed, 0, 0, 0, 1, L"", true, L"视图高度"},
    {L"WORLDUCS", Type::integer, Place::session, 0, 0, 1, 1, L"", true, L"坐标系为世界坐标系"},
};

const Row* find(const CString& name) {
  for (const auto& row : kRows)
    if (name.CompareNoCase(row.name) == 0) return &row;
  return nullptr;
}

Value startValue(const Row& row) {
  switch (row.type) {
  case Type::integer:
    return static_cast<long>(row.number);
  case Type::real:
    return row.number;
  case Type::text:
    return CString(row.text);
  case Type::point:
    return AcGePoint3d();
  }
  return 0L;
}

std::map<CString, Value>& sessionValues() {
  static std::map<CString, Value> values;
  return values;
}

std::string headerName(const Row& row) {
  return CString(L'$' + CString(row.name)).ToUtf8();
}

// --- header
// -----------------------------------------------------------------------------------------------------

Value fromHeader(const AcDbHeader& header, const Row& row) {
  const auto tags = header.variable(headerName(row));
  if (tags.empty()) return startValue(row);
  const auto& first = tags.front().value;
  switch (row.type) {
  case Type::integer:
    return static_cast<long>(dxf::toInteger(first).value_or(static_cast<long long>(row.number)));
  case Type::real:
    return dxf::toReal(first).value_or(row.number);
  case Type::text:
    return dxf::decodeText(first);
  case Type::point: {
    AcGePoint3d point;
    for (unsigned i = 0; i < 3 && i < tags.size(); ++i) point[i] = dxf::toReal(tags[i].value).value_or(0.0);
    return point;
  }
  }
  return startValue(row);
}

std::string headerTags(const AcDbHeader& header, const Row& row, const Value& value) {
  if (const auto* integer = std::get_if<long>(&value))
    return DxfRecordEditor::tag(row.code, std::to_string(*integer));
  if (const auto* real = std::get_if<double>(&value)) return DxfRecordEditor::realTag(row.code, *real);
  if (const auto* text = std::get_if<CString>(&value))
    return DxfRecordEditor::tag(row.code, dxf::encodeText(*text));
  const auto& point = std::get<AcGePoint3d>(value);
  std::string tags = DxfRecordEditor::realTag(10, point.x) + DxfRecordEditor::realTag(20, point.y);
  const auto before = header.variable(headerName(row)).size();
  if (before == 0 || before > 2) tags += DxfRecordEditor::realTag(30, point.z); // limits have two coordinates
  return tags;
}

Result toHeader(AcDbDatabase& database, const Row& row, const Value& value) {
  AcDbObjectPointer<AcDbHeader> header(database.headerId(), AcDb::kForWrite);
  if (!header) return Result::readOnly;
  const auto tags = headerTags(*header.object(), row, value);
  return header->setVariable(headerName(row), tags) == Acad::eOk ? Result::ok : Result::outOfRange;
}

// --- computed
// ---------------------------------------------------------------------------------------------------

CString folderOf(const CString& fileName) {
  const int end = std::max(fileName.ReverseFind(L'/'), fileName.ReverseFind(L'\\'));
  return fileName.Left(end + 1);
}

CString currentLayer(const AcDbDatabase& database) {
  const auto* layer = AcDbSymbolTableRecord::cast(database.clayer().object());
  return layer ? layer->name() : CString(L"0");
}

Value compute(const Row& row, const AcApDocument* document) {
  const CString name = row.name;
  if (name == L"CMDNAMES") return EdSession::instance().runningCommands();
  if (!document) return startValue(row);
  const auto& database = *document->database();
  if (name == L"CLAYER") return currentLayer(database);
  if (name == L"DBMOD") return database.isModified() ? 1L : 0L;
  if (name == L"DWGCODEPAGE") return CString::FromUtf8(database.form().codePage);
  if (name == L"DWGNAME") return document->docTitle();
  if (name == L"DWGPREFIX") return folderOf(document->fileName());
  if (name == L"DWGTITLED") return document->isNamed() ? 1L : 0L;
  if (name == L"LASTPOINT") return document->edit().lastPoint;
  if (name == L"VIEWCTR" || name == L"VIEWSIZE") {
    const auto view = ed::CurrentView(*document);
    if (name == L"VIEWSIZE") return view.height;
    return AcGePoint3d(view.centre.x, view.centre.y, 0);
  }
  return startValue(row);
}

Result setComputed(const Row& row, AcApDocument& document, const Value& value) {
  const CString name = row.name;
  if (name == L"LASTPOINT") {
    document.edit().lastPoint = std::get<AcGePoint3d>(value);
    return Result::ok;
  }
  AcDbObjectPointer<AcDbLayerTable> layers(document.database()->layerTableId(), AcDb::kForRead);
  AcDbObjectId layer;
  if (!layers || layers->getAt(std::get<CString>(value), layer) != Acad::eOk) return Result::outOfRange;
  layers.close();
  return document.database()->setClayer(layer) == Acad::eOk ? Result::ok : Result::outOfRange;
}

// A value of the row's own type; whole numbers serve for real ones.
std::optional<Value> converted(const Row& row, const Value& value) {
  const auto* integer = std::get_if<long>(&value);
  switch (row.type) {
  case Type::integer:
    return integer ? std::optional<Value>(value) : std::nullopt;
  case Type::real:
    if (integer) return static_cast<double>(*integer);
    return std::holds_alternative<double>(value) ? std::optional<Value>(value) : std::nullopt;
  case Type::text:
    return std::holds_alternative<CString>(value) ? std::optional<Value>(value) : std::nullopt;
  case Type::point:
    return std::holds_alternative<AcGePoint3d>(value) ? std::optional<Value>(value) : std::nullopt;
  }
  return std::nullopt;
}

bool isInRange(const Row& row, const Value& value) {
  if (const auto* integer = std::get_if<long>(&value)) {
    const auto number = static_cast<double>(*integer);
    return number >= row.low && number <= row.high;
  }
  if (const auto* real = std::get_if<double>(&value))
    return std::isfinite(*real) && *real >= row.low && *real <= row.high;
  if (const auto* point = std::get_if<AcGePoint3d>(&value))
    return std::isfinite(point->x) && std::isfinite(point->y) && std::isfinite(point->z);
  return true;
}

bool hasType(const CString& name, Type type) {
  const auto* row = find(name);
  return row && row->type == type;
}

} // namespace

SystemVariables::Result SystemVariables::get(const CString& name, Value& value) {
  const auto* row = find(name);
  if (!row) return Result::unknown;
  const auto* document = curDoc();
  switch (row->place) {
  case Place::header:
    if (!document) return Result::noDocument;
    value = fromHeader(document->database()->header(), *row);
    break;
  case Place::session: {
    const auto found = sessionValues().find(row->name);
    value = found == sessionValues().end() ? startValue(*row) : found->second;
    break;
  }
  case Place::computed:
    value = compute(*row, document);
    break;
  }
  return Result::ok;
}

SystemVariables::Result SystemVariables::set(const CString& name, const Value& value) {
  const auto* row = find(name);
  if (!row) return Result::unknown;
  if (row->readOnly) return Result::readOnly;
  const auto own = converted(*row, value);
  if (!own) return Result::wrongType;
  if (!isInRange(*row, *own)) return Result::outOfRange;
  if (row->place == Place::session) {
    sessionValues()[row->name] = *own;
    return Result::ok;
  }
  auto* document = curDoc();
  if (!document) return Result::noDocument;
  if (row->place == Place::computed) return setComputed(*row, *document, *own);
  return toHeader(*document->database(), *row, *own);
}

long SystemVariables::integer(const CString& name) {
  Value value;
  const auto* number = get(name, value) == Result::ok ? std::get_if<long>(&value) : nullptr;
  return number ? *number : 0;
}

bool SystemVariables::isReadOnly(const CString& name) {
  const auto* row = find(name);
  return row && row->readOnly;
}

bool SystemVariables::isReal(const CString& name) {
  return hasType(name, Type::real);
}
bool SystemVariables::isInteger(const CString& name) {
  return hasType(name, Type::integer);
}

std::vector<CString> SystemVariables::names() {
  std::vector<CString> all;
  for (const auto& row : kRows) all.emplace_back(row.name);
  return all;
}

CString SystemVariables::title(const CString& name) {
  const auto* row = find(name);
  return row ? row->title : L"";
}

void SystemVariables::reset() {
  sessionValues().clear();
}

CString SystemVariables::reason(Result result, const CString& name) {
  switch (result) {
  case Result::ok:
    return {};
  case Result::unknown:
    return L"没有系统变量“" + name + L"”。";
  case Result::readOnly:
    return L"系统变量“" + name + L"”只读。";
  case Result::wrongType:
    return L"值的类型不对。";
  case Result::outOfRange:
    return L"值超出范围，或图形中没有这个名称。";
  case Result::noDocument:
    return L"没有打开的图形。";
  }
  return {};
}
