// Holds the windows against the Designer files beside them, as far as that goes without a display.

#include "SourceTree.h"
#include "dbops/frmChooseRange.h"
#include "dbops/frmDelimiterType.h"
#include "dbops/frmFindReplace.h"
#include "dbops/frmRowColour.h"
#include "dbops/frmSetRowHeight.h"
#include "dbops/frmTxtDbAddRows.h"
#include "dbops/frmTxtDbColName.h"
#include "dbops/frmViewCell.h"
#include "support/TempDir.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

namespace korvane {
namespace {

class Looks : public testing::Test {
protected:
    static std::string LookOf(const std::string& window) {
        return ReadBytes(std::filesystem::path(KORVANE_SOURCE_DIR) / "src/dbops" / (window + ".ui"));
    }
    /// The texts between `before` and `after`, wherever they stand.
    static std::set<std::string> Between(const std::string& text, const std::string& before,
                                         const std::string& after) {
        std::set<std::string> found;
        for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
            at += before.size();
            found.insert(text.substr(at, text.find(after, at) - at));
        }
        return found;
    }
    static std::set<std::string> WidgetNames(const std::string& look) {
        std::set<std::string> names;
        for (const std::string& widget : Between(look, "<widget class=\"", ">")) {
            names.merge(Between(widget, "name=\"", "\""));
        }
        return names;
    }
    /// Each control has its widget, the keyboard reaches it, and each plain text stands in the look.
    static void Check(const Form& form, const std::set<std::string>& reached,
                      const std::set<std::string>& plainTexts) {
        const std::string look = LookOf(form.Name());
        const auto names = WidgetNames(look);
        for (const Control* control : form.Controls())
            EXPECT_TRUE(names.contains(control->Name())) << form.Name() << ": no widget " << control->Name();
        EXPECT_EQ(Between(look, "<tabstop>", "</tabstop>"), reached);
        const auto texts = Between(look, "<string>", "</string>");
        for (const std::string& text : plainTexts)
            EXPECT_TRUE(texts.contains(text)) << form.Name() << ": no text " << text;
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
    Check(frmTxtDbColName(t.app, u""), {"txtNewColumnName", "cmdColAccept", "cmdColReject"},
          {" Alter name of current column ", "Old name", "New name"});
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
