// Headings of tables: they stay while rows scroll, and columns fill the width.
#include "tests/host/qt/DialogView.h"

#include <QHeaderView>
#include <QRegularExpression>
#include <QScrollBar>

namespace {

class TableHeadings : public DialogView {
 protected:
  static QTableView& grid() { return find<QTableView>("表格"); }
  // Drags the right border of the first column.
  static void widen(int by) {
    auto& header = *grid().horizontalHeader();
    const QPoint from(header.sectionViewportPosition(0) + header.sectionSize(0) - 1, header.height() / 2);
    const QPoint to = from + QPoint(by, 0);
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, header.viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(header.viewport(), &move);
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, to);
  }
  static QImage heading() { return grid().horizontalHeader()->viewport()->grab().toImage(); }
};

TEST_F(TableHeadings, StayWhileTheRowsScroll) {
  for (int i = 3; i < 200; ++i) {
    CString number;
    number.Format(L"%d", i);
    dialog.grid.AddRow({number, L"1"});
  }
  show({[&] {
          EXPECT_TRUE(grid().isRowHidden(0)) << "it stands in the heading";
          EXPECT_FALSE(grid().isRowHidden(1));
          grid().verticalScrollBar()->setValue(grid().verticalScrollBar()->maximum());
        },
        [&] {
          EXPECT_LT(grid().visualRect(grid().model()->index(1, 0)).bottom(), 0) << "scrolled away";
          EXPECT_TRUE(grid().horizontalHeader()->isVisible());
          EXPECT_GE(grid().horizontalHeader()->height(), grid().fontMetrics().height());
          const int last = grid().model()->rowCount() - 1;
          EXPECT_LE(grid().visualRect(grid().model()->index(last, 0)).bottom(), grid().viewport()->height());
        }});
}

TEST_F(TableHeadings, ShowTheTextsOfFixedRowsAsTheyChange) {
  QImage before, after;
  show({[&] { before = heading(); }, [&] { dialog.grid.SetItemText(0, 1, L"另一个很长的标题"); },
        [&] { after = heading(); }});
  EXPECT_NE(before, after);
}

TEST_F(TableHeadings, ShowThePicturesOfFixedRows) {
  QImage red(20, 12, QImage::Format_RGB32);
  red.fill(Qt::red);
  const QString file = folder.filePath(QStringLiteral("连接.bmp"));
  ASSERT_TRUE(red.save(file));
  dialog.grid.SetItemText(0, 1, CString());
  dialog.grid.SetCellPicture(0, 1, desktop::FromQt(file));
  dialog.grid.SetRowHeight(0, 55);
  QColor middle;
  show({[&] {
    const int centre = grid().columnWidth(0) + grid().columnWidth(1) / 2;
    middle = heading().pixelColor(centre, 27);
  }});
  EXPECT_EQ(middle, QColor(Qt::red));
}

TEST_F(TableHeadings, GrowWithTheirRows) {
  int one = 0, two = 0, none = -1;
  bool visible = true;
  show({[&] { one = grid().horizontalHeader()->height(); },
        [&] {
          dialog.grid.SetRowFixed(dialog.grid.InsertRow(1, {L"", L"(mm)"}), true);
        },
        [&] { two = grid().horizontalHeader()->height(); },
        [&] {
          dialog.grid.SetRowFixed(0, false);
          dialog.grid.SetRowFixed(1, false);
        },
        [&] {
          none = dialog.grid.GetFixedRowCount();
          visible = grid().horizontalHeader()->isVisible();
          EXPECT_FALSE(grid().isRowHidden(0));
        }});
  EXPECT_EQ(two, 2 * one);
  EXPECT_EQ(none, 0);
  EXPECT_FALSE(visible);
}

TEST_F(TableHeadings, LeaveNoLineBetweenMergedCells) {
  QColor apart, merged;
  const auto between = [] { return heading().pixelColor(grid().columnWidth(0) - 1, 3); };
  show(
      {[&] { apart = between(); }, [&] { dialog.grid.MergeCells(0, 0, 0, 1); }, [&] { merged = between(); }});
  EXPECT_NE(apart, merged);
}

TEST_F(TableHeadings, AreWideEnoughForTheirTexts) {
  dialog.list.AddColumn(L"一个不短的列标题", 10);
  show({[&] {
    auto& list = find<QTableView>("管材");
    QFont bold = list.font();
    bold.setBold(true);
    EXPECT_GE(list.columnWidth(2), QFontMetrics(bold).horizontalAdvance(QStringLiteral("一个不短的列标题")));
  }});
}

TEST_F(TableHeadings, SpanTheWidthOfTheTable) {
  const auto spanned = [](QTableView& table) {
    int width = 0;
    for (int column = 0; column < table.model()->columnCount(); ++column) width += table.columnWidth(column);
    return table.viewport()->width() - width;
  };
  show({[&] { EXPECT_EQ(0, spanned(grid())); }, [&] { top()->resize(top()->width() + 101, top()->height()); },
        [&] { EXPECT_EQ(0, spanned(grid())); }, [&] { dialog.grid.SetColumnWidth(0, 0); },
        [&] {
          EXPECT_TRUE(grid().isColumnHidden(0));
          EXPECT_EQ(0, spanned(grid()));
          dialog.grid.SetColumnWidth(0, 5000);
        },
        [&] { EXPECT_LT(spanned(grid()), 0) << "what has no room is scrolled to"; }});
}

TEST_F(TableHeadings, KeepTheWidthThatTheUserGivesAColumn) {
  int wide = 0;
  const auto same = [&wide] { EXPECT_EQ(wide, grid().columnWidth(0)); };
  show({[&] {
          const int before = grid().columnWidth(0);
          widen(37);
          wide = grid().columnWidth(0);
          EXPECT_EQ(before + 37, wide);
          dialog.grid.AddRow({L"3", L"1"});
        },
        same, [&] { top()->resize(top()->width() + 101, top()->height()); }, same,
        [&] { dialog.grid.AddColumn(L"", 80); },
        [&] { EXPECT_NE(wide, grid().columnWidth(0)) << "the columns are others"; }});
  show({[&] { EXPECT_NE(wide, grid().columnWidth(0)) << "a table without a name for its state"; }});
}

TEST_F(TableHeadings, KeepWidthsFromOneOpeningToTheNext) {
  dialog.grid.SetStateName(L"测试 表/名");
  int wide = 0;
  show({[&] {
    widen(37);
    wide = grid().columnWidth(0);
  }});
  show({[&] { EXPECT_EQ(wide, grid().columnWidth(0)); }});
  const QStringList kept = settings.allKeys().filter(QRegularExpression(QStringLiteral("^columns/")));
  ASSERT_EQ(1, kept.size()) << "one table has a name for its state";
  for (const char* damaged : {"", "x,y", "-5,40", "99999999,40", "40"}) {
    settings.setValue(kept[0], QString::fromUtf8(damaged).split(QLatin1Char(',')));
    show({[&] {
      EXPECT_GT(grid().columnWidth(0), 40) << damaged;
      EXPECT_LT(grid().columnWidth(0), 2000) << damaged;
    }});
  }
}

} // namespace
