// A chosen text is passed on as it stands, so each cell keeps the decimals of its source.
#include "plugin/radiators/CorrectionTables.h"

#include <algorithm>

#include "host/afx/CInvalidArgException.h"
#include "plugin/base/Folders.h"

namespace radiators {
namespace {

constexpr CorrectionCell Picture(const wchar_t* fileName) {
  return {fileName, true};
}

// clang-format off
constexpr CorrectionCell kLengthCells[] = {
    {L"安装形式"}, {L"各种铸铁及钢制柱型"}, {}, {}, {}, {L"钢制板型及扁管型"}, {}, {},
    {L"每组片数或长度"}, {L"＜6片"}, {L"6～10"}, {L"11～20"}, {L"＞20"}, {L"≤600"}, {L"800"}, {L"≥1000"},
    {L"β1"}, {L"0.95"}, {L"1"}, {L"1.05"}, {L"1.1"}, {L"0.95"}, {L"0.92"}, {L"1"},
};

constexpr CorrectionCell kConnectionCells[] = {
    {L"连接方式"}, Picture(L"β2_1_1.BMP"), Picture(L"β2_1_2.BMP"), Picture(L"β2_1_3.BMP"), Picture(L"β2_1_4.BMP"), Picture(L"β2_1_5.BMP"),
    {L"各类柱形"}, {L"1"}, {L"1.009"}, {L"-"}, {L"-"}, {L"-"},
    {L"钢铝复合柱翼型"}, {L"1"}, {L"0.96"}, {L"1.01"}, {L"1.14"}, {L"1.08"},
    {L"连接方式"}, Picture(L"β2_2_1.BMP"), Picture(L"β2_2_2.BMP"), Picture(L"β2_2_3.BMP"), Picture(L"β2_2_4.BMP"), {},
    {L"各类柱形"}, {L"1.251"}, {L"-"}, {L"1.39"}, {L"1.39"}, {},
    {L"钢铝复合柱翼型"}, {L"1.1"}, {L"1.38"}, {L"1.39"}, {L"-"}, {},
};

constexpr CorrectionCell kInstallationCells[] = {
    {L"安装形式"}, {L"β3"},
    {L"装在墙体的凹槽内（半暗装）散热器上部距墙距离为100mm"}, {L"1.06"},
    {L"明装但散热器上部有窗台板覆盖，散热器距离台板高度为150mm"}, {L"1.02"},
    {L"装在罩内，上部敞开，下部距地150mm"}, {L"0.95"},
    {L"装在罩内，上部、下部开口，开口高度均为150mm"}, {L"1.04"},
};

constexpr CorrectionCell kFlowCells[] = {
    {L"散热器类型"}, {L"流量增加倍数"}, {}, {}, {}, {}, {}, {},
    {}, {L"1"}, {L"2"}, {L"3"}, {L"4"}, {L"5"}, {L"6"}, {L"7"},
    {L"柱型、柱翼型、多翼型、长翼型、镶翼型"}, {L"1"}, {L"0.9"}, {L"0.86"}, {L"0.85"}, {L"0.83"}, {L"0.83"}, {L"0.82"},
    {L"扁管型散热器"}, {L"1"}, {L"0.94"}, {L"0.93"}, {L"0.92"}, {L"0.91"}, {L"0.9"}, {L"0.9"},
};
// clang-format on

constexpr int kFirstRow[] = {0};
constexpr int kFirstTwoRows[] = {0, 1};
constexpr int kPictureRows[] = {0, 3};

constexpr CellBlock kLengthBlocks[] = {{0, 1, 1, 4}, {0, 5, 1, 3}};
constexpr CellBlock kFlowBlocks[] = {{0, 0, 2, 1}, {0, 1, 1, 7}};

constexpr int kLengthWidths[] = {160, 80, 80, 80, 80, 80, 80, 80};
constexpr int kLengthHeights[] = {25, 25, 25};
constexpr int kConnectionWidths[] = {120, 120, 120, 120, 120, 120};
constexpr int kConnectionHeights[] = {55, 0, 0, 55, 0, 0}; // room for the pictures
constexpr int kInstallationWidths[] = {400, 80};
constexpr int kInstallationHeights[] = {0, 0, 0, 0, 0};
constexpr int kFlowWidths[] = {280, 0, 0, 0, 0, 0, 0, 0};
constexpr int kFlowHeights[] = {0, 0, 0, 0};

constexpr CorrectionTable kTables[kCorrectionTableCount] = {
    {L"散热器安装长度修正系数β1", 3, 8, kFirstTwoRows, kLengthBlocks, kLengthWidths, kLengthHeights,
     kLengthCells},
    {L"散热器支管连接方式修正系数β2",
     6,
     6,
     kPictureRows,
     {},
     kConnectionWidths,
     kConnectionHeights,
     kConnectionCells},
    {L"散热器安装形式修正系数β3",
     5,
     2,
     kFirstRow,
     {},
     kInstallationWidths,
     kInstallationHeights,
     kInstallationCells},
    {L"进入散热器流量修正系数β4", 4, 8, kFirstTwoRows, kFlowBlocks, kFlowWidths, kFlowHeights, kFlowCells},
};

} // namespace

const CorrectionCell& CorrectionTable::At(int row, int column) const {
  if (row < 0 || row >= rows || column < 0 || column >= columns) AfxThrowInvalidArgException();
  return cells[static_cast<std::size_t>(row * columns + column)];
}

bool CorrectionTable::IsLabel(int row, int column) const {
  return column == 0 || std::ranges::find(fixedRows, row) != fixedRows.end();
}

const CorrectionTable* FindCorrectionTable(int index) {
  return index >= 0 && index < kCorrectionTableCount ? &kTables[index] : nullptr;
}

CString CorrectionPicturePath(const CString& fileName) {
  return ZP::GetSystemPath() + L"HeatingData\\SrqPicture\\" + fileName;
}

} // namespace radiators
