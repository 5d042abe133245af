#include "text/control/frmTextTable.h"

#include "text/control/frmTextInsertTable.h"
#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

class TableWindowTest : public ControlStage {
protected:
    /// Puts a table of two rows and three columns before the text, with the cursor in the cell.
    int MakeTable(int row, int column) {
        control.SetSelStart(0);
        const int table = control.InsertTable(2, 3);
        control.SetSelStart(control.CellStart(table, row, column) - 1);
        control.SetDataChanged(false);
        return table;
    }
    template <class Script>
    void Accept(Script script) {
        t.user.On<frmTextTable>([script](frmTextTable& window) {
            script(window);
            window.cmdOK.Press();
        });
        control.TableAttrDialog();
    }
    template <class Value>
    std::vector<Value> Cells(int table, Value doc::CellFormat::*value) {
        std::vector<Value> values;
        for (int row = 1; row <= 2; ++row) {
            for (int column = 1; column <= 3; ++column)
                values.push_back(control.FormatOfCell(table, row, column).value_or(doc::CellFormat{}).*value);
        }
        return values;
    }
};

TEST_F(TableWindowTest, ATableIsInsertedAtTheCursor) {
    control.SetSelStart(5);
    t.user.On<frmTextInsertTable>([](frmTextInsertTable& window) {
        window.txtColumns.Type(u"2");
        window.txtRows.Text = u"4";
        window.cmdOK.Press();
    });
    control.TableInsertDialog();
    const int table = control.TableAtInputPos();
    EXPECT_GT(table, 0);
    EXPECT_EQ(control.TableRows(table), 4);
    EXPECT_EQ(control.TableColumns(table), 2);
    EXPECT_EQ(control.SelStart(), control.CellStart(table, 1, 1) - 1);
    const int text = control.PageSize(doc::Page::Width) - control.PageSize(doc::Page::MarginLeft) -
                     control.PageSize(doc::Page::MarginRight);
    EXPECT_EQ(control.FormatOfCell(table, 1, 1)->width, text / 2);
    EXPECT_EQ(control.FormatOfCell(table, 4, 2)->border[0], 15);
    ASSERT_TRUE(control.Undo());
    EXPECT_EQ(control.All(), u"one\r\ntwo\r\nthree");
}

TEST_F(TableWindowTest, ATableWithoutCellsIsRefused) {
    t.user.On<frmTextInsertTable>([this](frmTextInsertTable& window) {
        window.txtRows.Text = u"none";
        t.user.Answer(Answer::Ok);
        window.cmdOK.Press();
        EXPECT_TRUE(window.Shown());
        window.Close();
    });
    control.TableInsertDialog();
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(TableWindowTest, ATableInATableIsRefused) {
    MakeTable(1, 1);
    t.user.On<frmTextInsertTable>([this](frmTextInsertTable& window) {
        t.user.Answer({u"The text cursor is currently inside a table.\r\nMove it outside and try again.",
                       MessageIcon::Exclamation, MessageButtons::Ok},
                      Answer::Ok);
        window.cmdOK.Press();
    });
    control.TableInsertDialog();
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(TableWindowTest, TheWholeTableIsChangedUnlessTheUserSaysOtherwise) {
    const int table = MakeTable(2, 2);
    Accept([](frmTextTable& window) {
        EXPECT_EQ(window.cboExtent.Chosen(), u"Table");
        window.txtGapLeft.Text = u"0.1 in";
    });
    EXPECT_EQ(Cells(table, &doc::CellFormat::gapLeft), (std::vector<std::int32_t>(6, 144)));
    Accept([](frmTextTable& window) {
        window.cboExtent.SetListIndex(1);
        window.txtGapLeft.Text = u"1 in";
    });
    EXPECT_EQ(Cells(table, &doc::CellFormat::gapLeft),
              (std::vector<std::int32_t>{144, 144, 144, 1440, 1440, 1440}));
    Accept([](frmTextTable& window) {
        window.cboExtent.SetListIndex(2);
        window.txtWidth.Text = u"2 in";
    });
    EXPECT_EQ(Cells(table, &doc::CellFormat::width),
              (std::vector<std::int32_t>{1800, 2880, 1800, 1800, 2880, 1800}));
}

TEST_F(TableWindowTest, ACellGetsItsOwnColourAndLines) {
    const int table = MakeTable(1, 3);
    Accept([this](frmTextTable& window) {
        window.cboExtent.SetListIndex(3);
        t.user.ChooseColour(Colour{255});
        window.cmdBack.Press();
        EXPECT_EQ(window.lblBack.BackColor, Colour{255});
        window.txtBorder.Text = u"2 pt";
    });
    EXPECT_EQ(control.FormatOfCell(table, 1, 3)->back, Colour{255});
    EXPECT_EQ(control.FormatOfCell(table, 1, 3)->border[2], 40);
    EXPECT_EQ(control.FormatOfCell(table, 1, 2)->back, kNoColour);
    Accept([](frmTextTable& window) { window.cmdNoBack.Press(); });
    EXPECT_EQ(control.FormatOfCell(table, 1, 3)->back, kNoColour);
}

TEST_F(TableWindowTest, ARowBeginsWhereItsFirstCellDoes) {
    const int table = MakeTable(2, 3);
    Accept([](frmTextTable& window) {
        window.cboExtent.SetListIndex(1);
        window.txtLeft.Text = u"1 in";
    });
    EXPECT_EQ(control.FormatOfCell(table, 1, 1)->left, std::nullopt);
    EXPECT_EQ(control.FormatOfCell(table, 2, 1)->left, 1440);
    EXPECT_EQ(control.FormatOfCell(table, 2, 3)->left, std::nullopt);
    control.SetDataChanged(false);
    Accept([](frmTextTable&) {});
    EXPECT_FALSE(control.DataChanged());
}

} // namespace
} // namespace korvane
