// Compares the windows with the Designer files beside them, as far as that is possible without a display.

#include "dbops/windows/frmChooseRange.h"
#include "dbops/windows/frmDelimiterType.h"
#include "dbops/windows/frmFindReplace.h"
#include "dbops/windows/frmFormatTable.h"
#include "dbops/windows/frmRowColour.h"
#include "dbops/windows/frmSetRowHeight.h"
#include "dbops/windows/frmTxtDbAddRows.h"
#include "dbops/windows/frmTxtDbColName.h"
#include "dbops/windows/frmViewCell.h"
#include "support/DesignerFile.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace korvane {
namespace {

class Looks : public testing::Test {
protected:
    /// Checks that the look fits the form and contains the plain texts, and that the keyboard reaches these
    /// controls.
    static void Check(const Form& form, const std::set<std::string>& reached,
                      const std::set<std::string>& plainTexts) {
        ExpectLook(form, "dbops/windows", plainTexts);
        EXPECT_EQ(Between(LookOf("dbops/windows", form.Name()), "<tabstop>", "</tabstop>"), reached);
    }

    TestTab t;
    CopyRequest request;
};

TEST_F(Looks, FindReplace) {
    Check(frmFindReplace(t.tab, FindMode::Find),
          {"Text1", "Text2", "Check1", "cmdFindButton", "cmdReplaceButton", "cmdSwitch", "cmdTextTop",
           "cmdCancel"},
          {"Find string", "Replace with"});
}

TEST_F(Looks, ChooseRange) {
    Check(frmChooseRange(t.app), {"Option1", "Option2", "cmdProceed", "cmdCancel"},
          {"Choose range for pending operation"});
}

TEST_F(Looks, ViewCell) {
    CellExchange exchange;
    Check(frmViewCell(t.app, exchange),
          {"txtCell", "cmdWriteBack", "cmdOk", "cmdExit", "cmdClipboard", "cmdWordList", "cmdDateTime",
           "cmdAsciiBox", "cmdElements", "cmdFonts", "cmdHTML"},
          {"Text of the cell"});
}

TEST_F(Looks, DelimiterType) {
    Check(frmDelimiterType(t.tab, request),
          {"lstColumns", "optDelimiter0", "optDelimiter1", "optDelimiter2", "optDelimiter3", "optDelimiter4",
           "chkBreakAfterFieldThree", "cmdProceed", "cmdCancel"},
          {"Columns to copy"});
}

TEST_F(Looks, AddRows) {
    Check(frmTxtDbAddRows(t.app), {"List1", "cmdProceed", "cmdCancel"},
          {" Add rows to text database ", "Rows to add"});
}

TEST_F(Looks, SetRowHeight) {
    Check(frmSetRowHeight(t.tab), {"cboRowHeight", "cmdProceed", "cmdCancel"}, {"Set row height"});
}

TEST_F(Looks, ColName) {
    Check(frmTxtDbColName(t.app, u""),
          {"txtNewColumnName", "lblOldColumnName", "cmdColAccept", "cmdColReject"},
          {" Alter name of current column ", "Old name", "New name"});
}

TEST_F(Looks, FormatTable) {
    Check(frmFormatTable(t.app),
          {"chkColumnToFirstRow", "chkTDB_FirstLineDark", "cmdGetFirstLineBackColour",
           "cmdGetFirstLineForeColour", "chkTDB_AlternateLinesGrey", "cmdGetAlternateLinesColour",
           "TableLeftMarginText", "cboCellBorderWidth", "cboCellTextGap", "cmdProceed", "cmdCancel"},
          {"Left margin", "Cell border width", "Cell text offset",
           "Note: The most flexible means of making a table is to create\n"
           "or edit a text database and then convert it to a table."});
}

TEST_F(Looks, RowColour) {
    Check(frmRowColour(t.tab, Colour{0}),
          {"lstColourOptions", "Text1", "chkRemoveChecksAtstart", "optAttribute1", "optAttribute2",
           "optAttribute3", "cmdAccept", "cmdSelect", "cmdFilterToAttribute", "cmdRemoveFilter", "cmdItalic",
           "cmdBold", "cmdStrikethrough", "cmdCancel"},
          {"Attribute"});
}

} // namespace
} // namespace korvane
