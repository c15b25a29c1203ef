// A layer control bar beside a drawing with the layers 0, 甲, 乙, 丙 and 丁, in a frame that counts how often
// it gets the keyboard.
#pragma once

#include "host/ui/CFrameWnd.h"
#include "plugin/layers/bar/CCADLayerControlBar.h"
#include "plugin/layers/bar/LayerIcons.h"
#include "plugin/layers/bar/LayerRows.h"
#include "tests/plugin/layers/DrawingFixture.h"
#include "tests/plugin/layers/groups/GroupFixture.h"
#include "tests/support/RefusedLocks.h"
#include "tests/support/UiFrontEndScript.h"

class BarFixture : public DrawingFixture, protected TestGroups {
 protected:
  BarFixture() { editor.frame = &frame; }
  ~BarFixture() override { editor.frame = nullptr; }

  void Open() {
    EXPECT_TRUE(bar.Create(&frame, L"当前CAD图纸图层管理"));
    bar.FirstShow();
    bar.ShowBar(true);
    bar.Refresh();
    frame.activations = 0;
  }
  CTableWnd& Grid() { return bar.m_grid; }
  int Row(const wchar_t* name) {
    for (int row = 0; row < Grid().GetRowCount(); ++row)
      if (Grid().GetItemText(row, layers::kNameColumn) == name) return row;
    ADD_FAILURE() << "no row " << CString(name).ToUtf8();
    return -1;
  }
  void Click(const wchar_t* name, int column) { EXPECT_TRUE(Grid().UserPress(Row(name), column)); }
  void Choose(const wchar_t* command) {
    EXPECT_TRUE(Grid().UserOpenMenu(-1, 0));
    int id = -1;
    for (const UiMenuItem& item : Grid().Menu.Items())
      if (item.text == command) id = item.id;
    EXPECT_TRUE(Grid().Menu.UserChoose(id)) << CString(command).ToUtf8();
  }
  // The three icons of a row, such as "0 1 2".
  CString Icons(const wchar_t* name) {
    CString text;
    const int row = Row(name);
    text.Format(L"%d %d %d", Grid().Cell(row, layers::kOffColumn).image,
                Grid().Cell(row, layers::kFrozenColumn).image, Grid().Cell(row, layers::kLockedColumn).image);
    return text;
  }
  CString Names() {
    CString names;
    for (int row = 0; row < Grid().GetRowCount(); ++row)
      names += (row == 0 ? L"" : L" ") + Grid().GetItemText(row, layers::kNameColumn);
    return names;
  }
  CString Off() { return LayersThat(&AcDbLayerTableRecord::isOff); }
  CString Frozen() { return LayersThat(&AcDbLayerTableRecord::isFrozen); }
  CString Locked() { return LayersThat(&AcDbLayerTableRecord::isLocked); }
  void MakeCurrent(const wchar_t* name) {
    EXPECT_EQ(Database().setClayer(WorkingDrawing::LayerOf(Database(), name)), Acad::eOk);
  }
  // What was sent to the current document, taken out.
  static CString Sent() {
    CString all;
    while (auto text = acDocManagerPtr()->takePendingText()) all += text->text;
    return all;
  }

  struct Frame : CFrameWnd {
    int activations = 0;
    void SetActiveWindow() override { ++activations; }
  };
  Frame frame;
  UiFrontEndScript ui;
  CCADLayerControlBar bar;
};
