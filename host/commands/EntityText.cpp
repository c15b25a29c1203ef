#include "host/commands/EntityText.h"

#include "host/commands/LayerText.h"
#include "host/commands/NumberText.h"
#include "host/db/AcDbAttribute.h"
#include "host/db/AcDbBlockReference.h"
#include "host/db/AcDbCurves.h"
#include "host/db/AcDbSymbolTableRecord.h"
#include "host/db/AcDbText.h"
#include "host/db/resbuf.h"

#include <cmath>
#include <numbers>

namespace commands {
namespace {

struct Kind {
  const wchar_t* record;
  const wchar_t* name;
};
constexpr Kind kKinds[] = {
    {L"LINE", L"直线"},         {L"CIRCLE", L"圆"},           {L"ARC", L"圆弧"},
    {L"LWPOLYLINE", L"多段线"}, {L"POLYLINE", L"旧式多段线"}, {L"POINT", L"点"},
    {L"TEXT", L"单行文字"},     {L"MTEXT", L"多行文字"},      {L"INSERT", L"块参照"},
    {L"HATCH", L"图案填充"},    {L"DIMENSION", L"标注"},      {L"SPLINE", L"样条曲线"},
    {L"ELLIPSE", L"椭圆"},      {L"SOLID", L"实心面"},        {L"3DFACE", L"三维面"},
    {L"LEADER", L"引线"},       {L"ATTDEF", L"属性定义"},     {L"ATTRIB", L"属性"},
    {L"VIEWPORT", L"视口"},     {L"IMAGE", L"图像"},
};

double degrees(double radians) {
  return radians * 180.0 / std::numbers::pi;
}

CString row(const CString& title, const CString& value) {
  return L"  " + title + L"：" + value + L"\n";
}

CString lineText(const AcDbLine& line) {
  const auto along = line.endPoint() - line.startPoint();
  return row(L"起点", PointText(line.startPoint())) + row(L"端点", PointText(line.endPoint())) +
         row(L"长度", NumberText(along.length())) +
         row(L"角度", NumberText(degrees(std::atan2(along.y, along.x))));
}

CString circleText(const AcDbCircle& circle) {
  const double radius = circle.radius();
  return row(L"圆心", PointText(circle.center())) + row(L"半径", NumberText(radius)) +
         row(L"周长", NumberText(2 * std::numbers::pi * radius)) +
         row(L"面积", NumberText(std::numbers::pi * radius * radius));
}

CString arcText(const AcDbArc& arc) {
  return row(L"圆心", PointText(arc.center())) + row(L"半径", NumberText(arc.radius())) +
         row(L"起始角", NumberText(degrees(arc.startAngle()))) +
         row(L"终止角", NumberText(degrees(arc.endAngle())));
}

CString polylineText(const AcDbPolyline& polyline) {
  CString text = row(L"闭合", polyline.isClosed() ? L"是" : L"否");
  double width = 0;
  if (polyline.getConstantWidth(width) == Acad::eOk) text += row(L"宽度", NumberText(width));
  for (unsigned i = 0; i < polyline.numVerts(); ++i) {
    AcGePoint3d point;
    double bulge = 0;
    polyline.getPointAt(i, point);
    polyline.getBulgeAt(i, bulge);
    CString title;
    title.Format(L"顶点 %d", i + 1);
    text += row(title, PointText(point) + (bulge != 0 ? L"，凸度 " + NumberText(bulge) : CString()));
  }
  return text;
}

CString textText(const AcDbText& text) {
  return row(L"内容", text.textString()) + row(L"插入点", PointText(text.position())) +
         row(L"高度", NumberText(text.height())) + row(L"旋转角", NumberText(degrees(text.rotation())));
}

CString insertText(const AcDbBlockReference& insert) {
  const auto* block = AcDbSymbolTableRecord::cast(insert.blockTableRecord().object());
  const auto scale = insert.scaleFactors();
  CString attributes;
  for (const auto& id : insert.attributes()) {
    const auto& attribute = *AcDbAttribute::cast(id.object());
    attributes += row(L"属性 " + attribute.tag(), attribute.textString());
  }
  return row(L"块名", block ? block->name() : CString()) + row(L"插入点", PointText(insert.position())) +
         row(L"比例", NumberText(scale.x) + L"," + NumberText(scale.y) + L"," + NumberText(scale.z)) +
         row(L"旋转角", NumberText(degrees(insert.rotation()))) + attributes;
}

CString geometryText(const AcDbEntity& entity) {
  if (const auto* line = AcDbLine::cast(&entity)) return lineText(*line);
  if (const auto* circle = AcDbCircle::cast(&entity)) return circleText(*circle);
  if (const auto* arc = AcDbArc::cast(&entity)) return arcText(*arc);
  if (const auto* polyline = AcDbPolyline::cast(&entity)) return polylineText(*polyline);
  if (const auto* point = AcDbPoint::cast(&entity)) return row(L"位置", PointText(point->position()));
  if (const auto* text = AcDbText::cast(&entity)) return textText(*text);
  if (const auto* insert = AcDbBlockReference::cast(&entity)) return insertText(*insert);
  if (!entity.isA()->isCustom()) return L"  几何：不作解释，原样保存\n";
  AcDbExtents box;
  const CString owner =
      CString(entity.isA()->name()) + L"（" + CString::FromUtf8(entity.isA()->application()) + L"）";
  if (entity.getGeomExtents(box) != Acad::eOk) return row(L"类", owner);
  return row(L"类", owner) + row(L"范围", PointText(box.minPoint()) + L" 到 " + PointText(box.maxPoint()));
}

CString valueText(const resbuf& item) {
  switch (dxf::valueKind(item.restype)) {
  case dxf::ValueKind::text:
  case dxf::ValueKind::handle:
    return item.resval.rstring;
  case dxf::ValueKind::real:
    if (item.restype >= 1010 && item.restype < 1020)
      return PointText({item.resval.rpoint[0], item.resval.rpoint[1], item.resval.rpoint[2]});
    return NumberText(item.resval.rreal);
  case dxf::ValueKind::binary: {
    CString text;
    text.Format(L"%d 字节", static_cast<int>(item.resval.rbinary.clen));
    return text;
  }
  default: {
    CString text;
    text.Format(L"%d", item.restype == 1071 ? static_cast<int>(item.resval.rlong) : item.resval.rint);
    return text;
  }
  }
}

CString extendedDataText(const AcDbEntity& entity) {
  CString text;
  const ResbufPtr data(entity.xData());
  for (const resbuf* item = data.get(); item; item = item->rbnext) {
    if (item->restype == 1001)
      text += row(L"扩展数据", item->resval.rstring);
    else
      text.AppendFormat(L"    %d：%s\n", static_cast<int>(item->restype), valueText(*item));
  }
  return text;
}

CString entityColor(int index) {
  if (index == AcCmColor::kByLayer) return L"随层";
  if (index == AcCmColor::kByBlock) return L"随块";
  return ColorText(index);
}

CString entityWeight(AcDb::LineWeight weight) {
  if (weight == AcDb::kLnWtByLayer) return L"随层";
  if (weight == AcDb::kLnWtByBlock) return L"随块";
  return WeightText(weight);
}

} // namespace

CString EntityKind(const AcDbEntity& entity) {
  const CString record = entity.dxfName();
  for (const auto& kind : kKinds)
    if (record == kind.record) return kind.name;
  return record;
}

CString EntityText(const AcDbEntity& entity) {
  CString text = EntityKind(entity) + L"\n";
  text += row(L"图层", entity.layer()) + row(L"句柄", entity.handle().ascii()) +
          row(L"颜色", entityColor(entity.colorIndex())) + row(L"线型", entity.linetype()) +
          row(L"线宽", entityWeight(entity.lineWeight()));
  if (entity.visibility() == AcDb::kInvisible) text += row(L"可见", L"否");
  return text + geometryText(entity) + extendedDataText(entity);
}

} // namespace commands
