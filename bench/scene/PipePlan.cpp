#include "bench/scene/PipePlan.h"

#include <random>

namespace {

class Writer {
 public:
  void tag(int code, const std::string& value) { m_text += std::to_string(code) + "\n" + value + "\n"; }
  void real(int code, double value) { tag(code, std::to_string(value)); }
  void point(int code, double x, double y) {
    real(code, x);
    real(code + 10, y);
  }
  void entity(const char* kind, const char* subclass, const std::string& layer) {
    tag(0, kind);
    tag(5, hex(m_handle++));
    tag(100, "AcDbEntity");
    tag(8, layer);
    tag(100, subclass);
  }
  void data(int pipe) {
    tag(1001, "HVAC_PIPE");
    tag(1000, "PIPE-" + std::to_string(pipe));
    tag(1002, "{");
    tag(1071, std::to_string(pipe));
    real(1040, 100.0 + pipe % 900);
    tag(1002, "}");
  }
  std::string take() { return std::move(m_text); }

 private:
  static std::string hex(unsigned value) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%X", value);
    return buffer;
  }
  std::string m_text;
  unsigned m_handle = 0x1000;
};

void writeTables(Writer& w) {
  w.tag(0, "SECTION");
  w.tag(2, "HEADER");
  w.tag(9, "$ACADVER");
  w.tag(1, "AC1024");
  w.tag(9, "$LTSCALE");
  w.real(40, 100);
  w.tag(0, "ENDSEC");
  w.tag(0, "SECTION");
  w.tag(2, "TABLES");
  w.tag(0, "TABLE");
  w.tag(2, "LTYPE");
  w.tag(0, "LTYPE");
  w.tag(2, "CENTER");
  w.tag(70, "0");
  w.tag(73, "4");
  for (const double dash : {1.25, -0.25, 0.25, -0.25}) w.real(49, dash);
  w.tag(0, "ENDTAB");
  w.tag(0, "TABLE");
  w.tag(2, "LAYER");
  for (int i = 0; i < 60; ++i) {
    w.tag(0, "LAYER");
    w.tag(2, "暖通-" + std::to_string(i));
    w.tag(70, "0");
    w.tag(62, std::to_string(1 + i));
    w.tag(6, i % 2 ? "CENTER" : "Continuous");
  }
  w.tag(0, "ENDTAB");
  w.tag(0, "ENDSEC");
  w.tag(0, "SECTION");
  w.tag(2, "BLOCKS");
  w.tag(0, "BLOCK");
  w.tag(8, "0");
  w.tag(2, "valve");
  w.tag(70, "0");
  w.point(10, 0, 0);
  for (const double sign : {1.0, -1.0}) {
    w.entity("LINE", "AcDbLine", "0");
    w.point(10, -100, -50 * sign);
    w.point(11, 100, 50 * sign);
  }
  w.entity("CIRCLE", "AcDbCircle", "0");
  w.point(10, 0, 0);
  w.real(40, 40);
  w.tag(0, "ENDBLK");
  w.tag(8, "0");
  w.tag(0, "ENDSEC");
}

} // namespace

std::string PipePlan(int pipes) {
  std::mt19937 random(20240607);
  const auto number = [&](double low, double high) {
    return low + (high - low) * (static_cast<double>(random()) / 4294967296.0);
  };
  Writer w;
  writeTables(w);
  w.tag(0, "SECTION");
  w.tag(2, "ENTITIES");
  for (int i = 0; i < pipes; ++i) {
    const double x = number(0, 200'000);
    const double y = number(0, 120'000);
    const std::string layer = "暖通-" + std::to_string(i % 60);
    w.entity("LINE", "AcDbLine", layer);
    w.point(10, x, y);
    w.point(11, x + number(500, 12'000), y);
    w.data(i);
    w.entity("LWPOLYLINE", "AcDbPolyline", layer);
    w.tag(90, "8");
    w.tag(70, "0");
    for (int k = 0; k < 8; ++k) {
      w.point(10, x + number(-3000, 3000), y + number(-3000, 3000));
      if (k % 4 == 0) w.real(42, 0.41421356);
    }
    w.data(i);
    if (i % 2 == 0) {
      w.entity("ARC", "AcDbCircle", layer);
      w.point(10, x, y);
      w.real(40, number(50, 900));
      w.tag(100, "AcDbArc");
      w.real(50, 0);
      w.real(51, 90);
      w.entity("TEXT", "AcDbText", layer);
      w.point(10, x, y);
      w.real(40, 250);
      w.tag(1, "DN" + std::to_string(15 + i % 200) + " 标高" + std::to_string(i % 4) + "m");
      continue;
    }
    w.entity("INSERT", "AcDbBlockReference", layer);
    if (i % 4 == 1) w.tag(66, "1");
    w.tag(2, "valve");
    w.point(10, x, y);
    w.real(41, 1.5);
    w.real(42, 1.5);
    if (i % 4 != 1) continue;
    w.entity("ATTRIB", "AcDbText", layer);
    w.point(10, x, y);
    w.real(40, 50);
    w.tag(1, "V-" + std::to_string(i));
    w.tag(100, "AcDbAttribute");
    w.tag(2, "TAG");
    w.tag(70, "0");
    w.tag(0, "SEQEND");
    w.tag(8, layer);
  }
  w.tag(0, "ENDSEC");
  w.tag(0, "EOF");
  return w.take();
}
