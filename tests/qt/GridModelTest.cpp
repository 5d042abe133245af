#include "platform/qt/grid/GridModel.h"

#include "QtSupport.h"
#include "controls/Form.h"
#include "platform/qt/binder/QtFormHost.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

namespace korvane {
namespace {

class GridModelTest : public testing::Test {
protected:
    GridModelTest() {
        for (int row = 1; row <= 5; ++row) {
            Store().SetCellValue(Row{row}, Col{1}, u"row " + NumberText(row));
        }
    }

    Grid& Store() { return box.Store(); }
    QVariant At(int row, int column, int role = Qt::DisplayRole) {
        return model.data(model.index(row, column), role);
    }

    QtFormHost host{{}};
    Form form{host, "frmTest", u""};
    GridBox box{form, "iGrid1", test::MakeStore(5, 2)};
    GridModel model{box};
};

TEST_F(GridModelTest, OnlyTheBeginningOfALongCaptionIsLaidOut) {
    const Text name(1'000'000, u'n');
    Store().SetColHeaderText(Col{1}, name);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), QString(1000, 'n'));
    EXPECT_EQ(Store().ColHeaderText(Col{1}), name) << "the name stays whole";
}

TEST_F(GridModelTest, KeepsTheRulesOfItsKind) {
    Store().SetCellCheckShown(Row{2}, true);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    Store().SetRowVisible(Row{1}, false);
    model.ReadShape();
    EXPECT_EQ(model.rowCount(), 4);
}

TEST_F(GridModelTest, ReadsTheStore) {
    Store().SetColHeaderText(Col{2}, u"Title");
    Store().SetCellValue(Row{3}, Col{2}, u"a\r\nb");
    EXPECT_EQ(model.rowCount(), 5);
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(At(2, 1).toString(), QString("a\nb"));
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QString("Title"));
}

TEST_F(GridModelTest, HiddenRowsAreNoRows) {
    Store().SetRowVisible(Row{2}, false);
    Store().SetRowVisible(Row{5}, false);
    model.ReadShape();
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(At(1, 0).toString(), QString("row 3"));
    EXPECT_EQ(model.RowOf(2), Row{4});
    EXPECT_EQ(model.ModelRowOf(Row{4}), 2);
    EXPECT_EQ(model.ModelRowOf(Row{5}), -1);
}

TEST_F(GridModelTest, ATableOfHiddenRowsIsEmpty) {
    for (int row = 1; row <= 5; ++row)
        Store().SetRowVisible(Row{row}, false);
    model.ReadShape();
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.RowOf(0), Row{0});
    EXPECT_EQ(model.ModelRowOf(Row{1}), -1);
}

TEST_F(GridModelTest, ChangesBetweenHiddenRowsAreToldByShownRows) {
    Store().SetRowVisible(Row{2}, false);
    model.ReadShape();
    std::vector<std::pair<int, int>> told;
    QObject::connect(
        &model, &QAbstractItemModel::dataChanged,
        [&told](const QModelIndex& from, const QModelIndex& to) { told.emplace_back(from.row(), to.row()); });
    model.TellChanged(Row{2}, Row{2});
    model.TellChanged(Row{2}, Row{4});
    model.TellChanged(Row{5}, Row{5});
    EXPECT_EQ(told, (std::vector<std::pair<int, int>>{{1, 2}, {3, 3}}));
}

TEST_F(GridModelTest, WhatIsTypedReachesTheStoreWithCrLf) {
    int edits = 0;
    box.AfterEdit = [&edits](Row row, Col col) {
        EXPECT_EQ(row, Row{1});
        EXPECT_EQ(col, Col{2});
        ++edits;
    };
    EXPECT_TRUE(model.setData(model.index(0, 1), QString("a\nb"), Qt::EditRole));
    EXPECT_EQ(Store().CellValue(Row{1}, Col{2}), u"a\r\nb");
    EXPECT_EQ(edits, 1);
}

TEST_F(GridModelTest, TextThatNobodyTouchedKeepsItsLineEnds) {
    Store().SetCellValue(Row{1}, Col{1}, u"a\nb\rc");
    box.AfterEdit = [](Row, Col) { FAIL() << "nothing was edited"; };
    model.setData(model.index(0, 0), At(0, 0, Qt::EditRole), Qt::EditRole);
    EXPECT_EQ(Store().CellValue(Row{1}, Col{1}), u"a\nb\rc");
}

TEST_F(GridModelTest, OnlyAShownBoxOfTheFirstColumnCanBeTicked) {
    Store().SetCellCheckShown(Row{1}, true);
    EXPECT_EQ(At(0, 0, Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_FALSE(At(0, 1, Qt::CheckStateRole).isValid());
    EXPECT_FALSE(At(1, 0, Qt::CheckStateRole).isValid());
    EXPECT_TRUE(model.setData(model.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(Store().CellCheck(Row{1}), 1);
    EXPECT_FALSE(model.setData(model.index(0, 1), Qt::Checked, Qt::CheckStateRole));
}

} // namespace
} // namespace korvane
