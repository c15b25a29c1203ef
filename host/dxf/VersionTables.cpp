#include "host/dxf/VersionTables.h"

#include "host/dxf/FileVersion.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

using dxf::kR2004;
using dxf::kR2007;
using dxf::kR2010;
using dxf::kR2013;

constexpr dxf::NewerTag kNewerTags[] = {
    {"AcDbEntity", 420, 439, kR2004, L"真彩色"},
    {"AcDbEntity", 440, 440, kR2004, L"透明度", "0"},
    {"AcDbEntity", 284, 284, kR2007, L"阴影方式", "0"},
    {"AcDbEntity", 347, 347, kR2007, L"材质", "0"},
    {"AcDbEntity", 348, 348, kR2010, L"视觉样式", "0"},
    {"AcDbLayerTableRecord", 420, 439, kR2004, L"图层真彩色"},
    {"AcDbLayerTableRecord", 440, 440, kR2004, L"图层透明度", "0"},
    {"AcDbLayerTableRecord", 347, 348, kR2007, L"图层材质与视觉样式", "0"},
    {"AcDbBlockTableRecord", 70, 70, kR2007, L"块单位", "0"},
    {"AcDbBlockTableRecord", 280, 280, kR2007, L"块可分解", "1"},
    {"AcDbBlockTableRecord", 281, 281, kR2007, L"块按统一比例缩放", "0"},
    {"AcDbViewportTableRecord", 60, 61, kR2007, L"视口栅格设置", "3", "5"},
    {"AcDbViewportTableRecord", 63, 63, kR2007, L"视口环境光", "250", "256"},
    {"AcDbViewportTableRecord", 141, 142, kR2007, L"视口亮度与对比度", "0"},
    {"AcDbViewportTableRecord", 282, 282, kR2007, L"视口默认光源", "1"},
    {"AcDbViewportTableRecord", 292, 292, kR2007, L"视口默认光源", "1"},
    {"AcDbViewportTableRecord", 333, 361, kR2007, L"视口视觉样式与背景", "0"},
    {"AcDbViewportTableRecord", 421, 431, kR2007, L"视口环境光", "3358443"},
    {"AcDbViewTableRecord", 73, 73, kR2007, L"视图相机", "0"},
    {"AcDbViewTableRecord", 331, 361, kR2007, L"视图视觉样式与背景", "0"},
    {"AcDbViewTableRecord", 63, 63, kR2007, L"视图环境光", "250"},
    {"AcDbViewTableRecord", 141, 142, kR2007, L"视图亮度与对比度", "0"},
    {"AcDbViewTableRecord", 282, 282, kR2007, L"视图默认光源", "1"},
    {"AcDbViewTableRecord", 292, 292, kR2007, L"视图默认光源", "1"},
    {"AcDbViewTableRecord", 421, 431, kR2007, L"视图环境光", "3358443"},
    {"AcDbViewport", 170, 170, kR2004, L"视口着色打印", "0"},
    {"AcDbViewport", 61, 61, kR2007, L"视口栅格设置", "5"},
    {"AcDbViewport", 63, 63, kR2007, L"视口环境光", "250", "256"},
    {"AcDbViewport", 141, 142, kR2007, L"视口亮度与对比度", "0"},
    {"AcDbViewport", 282, 282, kR2007, L"视口默认光源", "1"},
    {"AcDbViewport", 292, 292, kR2007, L"视口默认光源", "1"},
    {"AcDbViewport", 332, 335, kR2007, L"视口背景", "0"},
    {"AcDbViewport", 348, 361, kR2007, L"视口视觉样式", "0"},
    {"AcDbViewport", 421, 431, kR2007, L"视口环境光", "3358443"},
    {"AcDbDimStyleTableRecord", 90, 90, kR2007, L"标注弧长符号", "0"},
    {"AcDbDimStyleTableRecord", 49, 49, kR2007, L"标注固定尺寸界线", "1"},
    {"AcDbDimStyleTableRecord", 50, 50, kR2007, L"标注折弯角度", "0.785398163397448", "0.7853981633974483"},
    {"AcDbDimStyleTableRecord", 69, 69, kR2007, L"标注文字背景", "0"},
    {"AcDbDimStyleTableRecord", 290, 290, kR2007, L"标注固定尺寸界线", "0"},
    {"AcDbDimStyleTableRecord", 345, 347, kR2007, L"标注线型", "0"},
    {"AcDbDimStyleTableRecord", 294, 294, kR2010, L"标注文字方向", "0"},
    {"AcDbDimension", 280, 280, kR2010, nullptr},
    {"AcDbDimension", 74, 75, kR2007, L"标注箭头翻转", "0"},
    {"AcDbMText", 45, 45, kR2004, L"多行文字背景", "1.5"},
    {"AcDbMText", 63, 63, kR2004, L"多行文字背景"},
    {"AcDbMText", 90, 90, kR2004, L"多行文字背景", "0"},
    {"AcDbMText", 420, 441, kR2004, L"多行文字背景"},
    {"AcDbMText", 46, 46, kR2007, L"多行文字列高", "0"},
    {"AcDbHatch", 450, 453, kR2004, L"渐变填充", "0"},
    {"AcDbHatch", 460, 463, kR2004, L"渐变填充", "0", "1"},
    {"AcDbHatch", 470, 470, kR2004, L"渐变填充", ""},
    {"AcDbAttribute", 280, 280, kR2007, L"属性锁定位置", "0"},
    {"AcDbAttributeDefinition", 280, 280, kR2007, L"属性锁定位置", "0"},
    {"AcDbPolyline", 91, 91, kR2010, L"顶点标识", "0"},
    {"AcDbVertex", 91, 91, kR2010, L"顶点标识", "0"},
    {"AcDbPlotSettings", 76, 78, kR2004, L"着色打印设置", "0", "300"},
    {"AcDbPlotSettings", 333, 333, kR2007, L"着色打印设置", "0"},
    {"AcDb3dSolid", 350, 350, kR2007, L"实体历史记录", "0"},
    {"AcDbRasterImage", 290, 290, kR2010, L"图像反向剪裁", "0"},
};

// Header variables by the version that brought them.
constexpr std::string_view kVariables2004[] = {
    "$DIMASSOC", "$HALOGAP",  "$HIDETEXT",    "$INDEXCTL", "$INTERSECTIONCOLOR", "$INTERSECTIONDISPLAY",
    "$OBSCOLOR", "$OBSLTYPE", "$PROJECTNAME", "$SORTENTS", "$XCLIPFRAME",        "$LASTSAVEDBY",
    "$XEDIT"};
constexpr std::string_view kVariables2007[] = {"$3DDWFPREC",
                                               "$CAMERADISPLAY",
                                               "$CAMERAHEIGHT",
                                               "$CMATERIAL",
                                               "$CSHADOW",
                                               "$DGNFRAME",
                                               "$DIMARCSYM",
                                               "$DIMFXL",
                                               "$DIMFXLON",
                                               "$DIMJOGANG",
                                               "$DIMLTEX1",
                                               "$DIMLTEX2",
                                               "$DIMLTYPE",
                                               "$DIMTFILL",
                                               "$DIMTFILLCLR",
                                               "$DWFFRAME",
                                               "$INTERFERECOLOR",
                                               "$LATITUDE",
                                               "$LENSLENGTH",
                                               "$LIGHTGLYPHDISPLAY",
                                               "$LOFTANG1",
                                               "$LOFTANG2",
                                               "$LOFTMAG1",
                                               "$LOFTMAG2",
                                               "$LOFTNORMALS",
                                               "$LOFTPARAM",
                                               "$LONGITUDE",
                                               "$NORTHDIRECTION",
                                               "$PSOLHEIGHT",
                                               "$PSOLWIDTH",
                                               "$REALWORLDSCALE",
                                               "$SHADOWPLANELOCATION",
                                               "$SHOWHIST",
                                               "$SOLIDHIST",
                                               "$STEPSIZE",
                                               "$STEPSPERSEC",
                                               "$TILEMODELIGHTSYNCH",
                                               "$TIMEZONE"};
constexpr std::string_view kVariables2010[] = {"$DIMTXTDIRECTION", "$INTERFEREOBJVS", "$INTERFEREVPVS"};
constexpr std::string_view kVariables2013[] = {"$REQUIREDVERSIONS"};
constexpr std::string_view kVariablesR12Only[] = {"$ATTDIA",   "$ATTREQ",   "$BLIPMODE", "$COORDS",
                                                  "$DRAGMODE", "$HANDLING", "$OSMODE"};
constexpr std::string_view kVariablesR12[] = {
    "$ACADVER",    "$ANGBASE",    "$ANGDIR",      "$ATTDIA",     "$ATTMODE",     "$ATTREQ",    "$AUNITS",
    "$AUPREC",     "$AXISMODE",   "$AXISUNIT",    "$BLIPMODE",   "$CECOLOR",     "$CELTYPE",   "$CHAMFERA",
    "$CHAMFERB",   "$CLAYER",     "$COORDS",      "$DIMALT",     "$DIMALTD",     "$DIMALTF",   "$DIMAPOST",
    "$DIMASO",     "$DIMASZ",     "$DIMBLK",      "$DIMBLK1",    "$DIMBLK2",     "$DIMCEN",    "$DIMCLRD",
    "$DIMCLRE",    "$DIMCLRT",    "$DIMDLE",      "$DIMDLI",     "$DIMEXE",      "$DIMEXO",    "$DIMGAP",
    "$DIMLFAC",    "$DIMLIM",     "$DIMPOST",     "$DIMRND",     "$DIMSAH",      "$DIMSCALE",  "$DIMSE1",
    "$DIMSE2",     "$DIMSHO",     "$DIMSOXD",     "$DIMSTYLE",   "$DIMTAD",      "$DIMTFAC",   "$DIMTIH",
    "$DIMTIX",     "$DIMTM",      "$DIMTOFL",     "$DIMTOH",     "$DIMTOL",      "$DIMTP",     "$DIMTSZ",
    "$DIMTVP",     "$DIMTXT",     "$DIMZIN",      "$DRAGMODE",   "$DWGCODEPAGE", "$ELEVATION", "$EXTMAX",
    "$EXTMIN",     "$FASTZOOM",   "$FILLETRAD",   "$FILLMODE",   "$GRIDMODE",    "$GRIDUNIT",  "$HANDLING",
    "$HANDSEED",   "$INSBASE",    "$LIMCHECK",    "$LIMMAX",     "$LIMMIN",      "$LTSCALE",   "$LUNITS",
    "$LUPREC",     "$MAXACTVP",   "$MENU",        "$MIRRTEXT",   "$ORTHOMODE",   "$OSMODE",    "$PDMODE",
    "$PDSIZE",     "$PELEVATION", "$PEXTMAX",     "$PEXTMIN",    "$PINSBASE",    "$PLIMCHECK", "$PLIMMAX",
    "$PLIMMIN",    "$PLINEGEN",   "$PLINEWID",    "$PSLTSCALE",  "$PUCSNAME",    "$PUCSORG",   "$PUCSXDIR",
    "$PUCSYDIR",   "$QTEXTMODE",  "$REGENMODE",   "$SHADEDGE",   "$SHADEDIF",    "$SKETCHINC", "$SKPOLY",
    "$SNAPANG",    "$SNAPBASE",   "$SNAPISOPAIR", "$SNAPMODE",   "$SNAPSTYLE",   "$SNAPUNIT",  "$SPLFRAME",
    "$SPLINESEGS", "$SPLINETYPE", "$SURFTAB1",    "$SURFTAB2",   "$SURFTYPE",    "$SURFU",     "$SURFV",
    "$TDCREATE",   "$TDINDWG",    "$TDUPDATE",    "$TDUSRTIMER", "$TEXTSIZE",    "$TEXTSTYLE", "$THICKNESS",
    "$TILEMODE",   "$TRACEWID",   "$UCSNAME",     "$UCSORG",     "$UCSXDIR",     "$UCSYDIR",   "$UNITMODE",
    "$USERI1",     "$USERI2",     "$USERI3",      "$USERI4",     "$USERI5",      "$USERR1",    "$USERR2",
    "$USERR3",     "$USERR4",     "$USERR5",      "$USRTIMER",   "$VIEWCTR",     "$VIEWDIR",   "$VIEWSIZE",
    "$VISRETAIN",  "$WORLDVIEW"};

template <std::size_t N> bool has(const std::string_view (&names)[N], std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

// Group codes of the records of R12.
constexpr int kPoints1[] = {10, 20, 30};
constexpr int kLine[] = {10, 20, 30, 11, 21, 31};
constexpr int kPoint[] = {10, 20, 30, 50};
constexpr int kCircle[] = {10, 20, 30, 40};
constexpr int kArc[] = {10, 20, 30, 40, 50, 51};
constexpr int kTrace[] = {10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23, 33};
constexpr int kFace[] = {10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23, 33, 70};
constexpr int kText[] = {10, 20, 30, 40, 1, 50, 41, 51, 7, 71, 72, 11, 21, 31, 73};
constexpr int kShape[] = {10, 20, 30, 40, 2, 50, 41, 51};
constexpr int kInsert[] = {66, 2, 10, 20, 30, 41, 42, 43, 50, 70, 71, 44, 45};
constexpr int kAttrib[] = {10, 20, 30, 40, 1, 2, 3, 70, 73, 50, 41, 51, 7, 71, 72, 74, 11, 21, 31};
constexpr int kPolyline[] = {66, 10, 20, 30, 70, 40, 41, 71, 72, 73, 74, 75};
constexpr int kVertex[] = {10, 20, 30, 40, 41, 42, 70, 50, 71, 72, 73, 74};
constexpr int kDimension[] = {2,  3,  10, 20, 30, 11, 21, 31, 12, 22, 32, 13, 23, 33, 14,
                              24, 34, 15, 25, 35, 16, 26, 36, 70, 1,  50, 51, 52, 53, 40};
constexpr int kBlock[] = {2, 70, 10, 20, 30, 3, 1};
constexpr int kLtype[] = {2, 70, 3, 72, 73, 40, 49};
constexpr int kLayer[] = {2, 70, 62, 6};
constexpr int kStyle[] = {2, 70, 40, 41, 50, 71, 42, 3, 4};
constexpr int kView[] = {2, 70, 40, 10, 20, 41, 11, 21, 31, 12, 22, 32, 42, 43, 44, 50, 71};
constexpr int kUcs[] = {2, 70, 10, 20, 30, 11, 21, 31, 12, 22, 32};
constexpr int kAppid[] = {2, 70};
constexpr int kVport[] = {2,  70, 10, 20, 11, 21, 12, 22, 13, 23, 14, 24, 15, 25, 16, 26, 36, 17, 27,
                          37, 40, 41, 42, 43, 44, 50, 51, 68, 69, 71, 72, 73, 74, 75, 76, 77, 78};
constexpr int kDimstyle[] = {2,  70, 3,   4,   5,   6,   7,   40,  41,  42,  43,  44,  45, 46,
                             47, 48, 140, 141, 142, 143, 144, 145, 146, 147, 71,  72,  73, 74,
                             75, 76, 77,  78,  170, 171, 172, 173, 174, 175, 176, 177, 178};
constexpr int kTable[] = {2, 70};

constexpr dxf::R12Record kR12Records[] = {
    {"LINE", kLine},         {"POINT", kPoint},       {"CIRCLE", kCircle}, {"ARC", kArc},
    {"TRACE", kTrace},       {"SOLID", kTrace},       {"3DFACE", kFace},   {"TEXT", kText},
    {"SHAPE", kShape},       {"INSERT", kInsert},     {"ATTRIB", kAttrib}, {"ATTDEF", kAttrib},
    {"POLYLINE", kPolyline}, {"VERTEX", kVertex},     {"SEQEND", {}},      {"DIMENSION", kDimension},
    {"BLOCK", kBlock},       {"ENDBLK", {}},          {"LTYPE", kLtype},   {"LAYER", kLayer},
    {"STYLE", kStyle},       {"VIEW", kView},         {"UCS", kUcs},       {"APPID", kAppid},
    {"VPORT", kVport},       {"DIMSTYLE", kDimstyle}, {"TABLE", kTable},
};

// What R2000 brought and R12 lacks, for the list of losses. No type: of every entity.
struct TagR12Lacks {
  std::string_view type;
  int first;
  int last;
  const wchar_t* name;
  std::string_view plain{};
  std::string_view plain2{};
};
constexpr TagR12Lacks kTagsR12Lacks[] = {
    {"LAYER", 290, 290, L"图层不打印", "1"},
    {"LAYER", 370, 370, L"图层线宽", "-3"},
    {"LAYER", 390, 390, nullptr},
    {"LAYER", 347, 348, nullptr},
    {"LAYER", 420, 439, L"图层真彩色"},
    {"LAYER", 440, 440, L"图层透明度", "0"},
    {"LTYPE", 74, 75, L"复杂线型的形或文字", "0"},
    {"LTYPE", 44, 50, L"复杂线型的形或文字"},
    {"LTYPE", 9, 9, L"复杂线型的形或文字"},
    {"LTYPE", 340, 340, L"复杂线型的形或文字", "0"},
    {"VPORT", 0, 999, nullptr},
    {"VIEW", 0, 999, nullptr},
    {"UCS", 0, 999, nullptr},
    {"DIMSTYLE", 340, 340, nullptr},
    {"DIMSTYLE", 0, 999, L"标注样式的新变量"},
    {"DIMENSION", 71, 72, nullptr},
    {"DIMENSION", 41, 41, nullptr},
    {"DIMENSION", 42, 42, nullptr},
    {"DIMENSION", 280, 280, nullptr},
    {"DIMENSION", 73, 75, L"标注箭头翻转", "0"},
    {"ATTRIB", 280, 280, L"属性锁定位置", "0"},
    {"ATTDEF", 280, 280, L"属性锁定位置", "0"},
    {"VERTEX", 91, 91, L"顶点标识", "0"},
    {"BLOCK", 4, 4, L"块说明", ""},
    {"TABLE", 71, 71, nullptr},
    {"TABLE", 340, 340, nullptr},
    {"", 370, 370, L"线宽", "-1"},
    {"", 48, 48, L"线型比例", "1"},
    {"", 60, 60, L"不可见标记", "0"},
    {"", 390, 390, L"打印样式"},
    {"", 420, 439, L"真彩色"},
    {"", 440, 440, L"透明度", "0"},
    {"", 284, 284, L"阴影方式", "0"},
    {"", 347, 348, L"材质与视觉样式", "0"},
    {"", 92, 92, L"代理图形", "0"},
    {"", 160, 160, L"代理图形", "0"},
    {"", 310, 310, L"代理图形"},
    {"", 410, 410, nullptr},
    {"", 999, 999, L"注释"},
};

bool isPlainValue(std::string_view value, std::string_view plain, std::string_view plain2) {
  const std::string_view v = dxf::trimBlanks(value);
  for (const std::string_view candidate : {plain, plain2}) {
    if (!candidate.data()) continue;
    if (v == candidate) return true;
    const auto a = dxf::toReal(v);
    if (a && a == dxf::toReal(candidate)) return true;
  }
  return false;
}

} // namespace

// The rows of one subclass stand together.
std::span<const dxf::NewerTag> dxf::newerTags(std::string_view subclass) {
  const auto isOther = [&](const NewerTag& row) { return row.subclass != subclass; };
  const auto* first = std::find_if_not(std::begin(kNewerTags), std::end(kNewerTags), isOther);
  return {first, std::find_if(first, std::end(kNewerTags), isOther)};
}

bool dxf::isPlain(const NewerTag& row, std::string_view value) {
  return isPlainValue(value, row.plain, row.plain2);
}

std::string_view dxf::variableSince(std::string_view name) {
  if (has(kVariablesR12, name)) return kR12;
  if (has(kVariables2004, name)) return kR2004;
  if (has(kVariables2007, name)) return kR2007;
  if (has(kVariables2010, name)) return kR2010;
  if (has(kVariables2013, name)) return kR2013;
  return kR2000;
}

bool dxf::isR12OnlyVariable(std::string_view name) {
  return has(kVariablesR12Only, name);
}

const dxf::R12Record* dxf::r12Record(std::string_view type) {
  const auto* found = std::find_if(std::begin(kR12Records), std::end(kR12Records),
                                   [&](const R12Record& record) { return record.type == type; });
  return found == std::end(kR12Records) ? nullptr : found;
}

bool dxf::r12Has(const R12Record& record, int code) {
  return std::find(record.codes.begin(), record.codes.end(), code) != record.codes.end();
}

const wchar_t* dxf::nameOfTagR12Lacks(std::string_view type, const DxfTag& tag, bool& isPlain) {
  for (const TagR12Lacks& row : kTagsR12Lacks) {
    if (tag.code < row.first || tag.code > row.last || !(row.type.empty() || row.type == type)) continue;
    isPlain = !row.name || isPlainValue(tag.value, row.plain, row.plain2);
    return row.name;
  }
  isPlain = false;
  return nullptr;
}
