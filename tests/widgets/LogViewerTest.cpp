#include "dialogs/CLoggingViewerDlg.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace ondrilo {
namespace {

class LogViewerTest : public testing::Test {
  protected:
    void Add(int first, int last) {
        for (int i = first; i <= last; ++i)
            viewer.AddLine("10:00:00.000 \"\" NEW_WORD WORD_" + std::to_string(i) +
                           "  -  - generico \"ol\xE1\"");
    }
    [[nodiscard]] QString Row(int row) const { return rows->index(row, 0).data().toString(); }
    /// That many rows are there in the end, the last one in view.
    [[nodiscard]] bool Shows(int count, int lastNumber) {
        const auto last = QString("WORD_%1 ").arg(lastNumber);
        return QTest::qWaitFor([&] { return Row(rows->rowCount() - 1).contains(last); }) &&
               rows->rowCount() == count &&
               list->viewport()->rect().intersects(list->visualRect(rows->index(count - 1, 0)));
    }

    QWidget owner;
    CLoggingViewerDlg viewer{owner};
    QListView* list = viewer.findChild<QListView*>("logLines");
    QAbstractItemModel* rows = list->model();
};

TEST_F(LogViewerTest, LinesComeInOrderAndStayWhenThePersonClosesTheWindow) {
    ASSERT_TRUE(viewer.Show());
    Add(1, 200);
    ASSERT_TRUE(Shows(200, 200));
    EXPECT_EQ(Row(0), QString::fromUtf8("10:00:00.000 \"\" NEW_WORD WORD_1  -  - generico \"olá\""));
    viewer.resize(200, 200);
    viewer.AddLine(Text(300, 'm'));
    ASSERT_TRUE(QTest::qWaitFor([&] { return rows->rowCount() == 201; }));
    const int widest = list->fontMetrics().horizontalAdvance(QString(300, 'm'));
    EXPECT_GT(list->horizontalScrollBar()->maximum() + list->viewport()->width(), widest);

    viewer.close();
    EXPECT_FALSE(viewer.IsVisible());
    ASSERT_TRUE(viewer.Show());
    Add(201, 201);
    EXPECT_TRUE(Shows(202, 201));

    Add(202, 202); // still waiting when the list is emptied
    viewer.findChild<QPushButton*>("clearLog")->click();
    Add(203, 203);
    EXPECT_TRUE(Shows(1, 203));
    viewer.Close();
    EXPECT_FALSE(viewer.IsVisible());
    EXPECT_EQ(rows->rowCount(), 0) << "the next log begins with an empty window";
}

TEST_F(LogViewerTest, AStormOfLinesHoldsUpNobodyAndOnlyTheLastAreKept) {
    ASSERT_TRUE(viewer.Show());
    Add(1, 20'000);
    EXPECT_EQ(rows->rowCount(), 0) << "whoever writes a line does not wait for the window";
    EXPECT_TRUE(Shows(LogLines::kMostLines, 20'000));
    Add(20'001, 20'003);
    EXPECT_TRUE(Shows(LogLines::kMostLines, 20'003));
}

} // namespace
} // namespace ondrilo
