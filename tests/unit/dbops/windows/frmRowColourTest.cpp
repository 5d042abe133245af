#include "dbops/windows/frmRowColour.h"

#include "context/exchange/RowColourMemory.h"
#include "grid/Grid.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

constexpr Colour kTableBack{0x123456};

class RowColourWindow : public testing::Test {
protected:
    RowColourWindow() { t.Fill({{u"a", u"b"}, {u"c", u"d"}}); }

    /// Shows the window, runs `script` in it and returns the result that it leaves.
    int Show(const std::function<void(frmRowColour&)>& script) {
        t.user.On<frmRowColour>(script);
        t.app.DialogResult = 0;
        frmRowColour(t.tab, kTableBack).ShowModal();
        return t.app.DialogResult;
    }
    /// The settings' background and text colour after the entry was accepted.
    std::pair<int, int> Accepted(int index) {
        Show([index](frmRowColour& window) {
            window.lstColourOptions.Select(index);
            window.cmdAccept.Press();
        });
        return {t.app.Settings.ColourChoiceB, t.app.Settings.ColourChoiceA};
    }

    TestTab t;
};

TEST_F(RowColourWindow, HasItsCaptions) {
    Show([](frmRowColour& window) {
        EXPECT_EQ(window.Caption.Get(), u"Set colour for checked items in list");
        EXPECT_EQ(window.chkRemoveChecksAtstart.Caption.Get(), u"Remove all checks in grid first");
        EXPECT_EQ(window.optAttribute[0].Caption.Get(), u"Ita&lic");
        EXPECT_EQ(window.optAttribute[1].Caption.Get(), u"B&old");
        EXPECT_EQ(window.optAttribute[2].Caption.Get(), u"Strikethroug&h");
        EXPECT_EQ(window.cmdAccept.Caption.Get(), u"&Set row colour");
        EXPECT_EQ(window.cmdSelect.Caption.Get(), u"Select &rows with colour");
        EXPECT_EQ(window.cmdFilterToAttribute.Caption.Get(), u"Filter to &attribute");
        EXPECT_EQ(window.cmdRemoveFilter.Caption.Get(), u"Remo&ve filter");
        EXPECT_EQ(window.cmdCancel.Caption.Get(), u"&Cancel");
        EXPECT_EQ(window.cmdItalic.Caption.Get(), u"&Italic [Ctrl-Shift-I]");
        EXPECT_EQ(window.cmdBold.Caption.Get(), u"&Bold [Ctrl-Shift-B]");
        EXPECT_EQ(window.cmdStrikethrough.Caption.Get(), u"Stri&kethrough [Ctrl-Shift-X]");
        window.cmdCancel.Press();
    });
}

TEST_F(RowColourWindow, ListsTheColoursWithTheirKeysBeside) {
    Show([](frmRowColour& window) {
        ASSERT_EQ(window.lstColourOptions.ListCount(), 9);
        EXPECT_EQ(window.lstColourOptions.List(0), u" De[f]ault");
        EXPECT_EQ(window.lstColourOptions.List(6), u" [G[reen");
        EXPECT_EQ(window.lstColourOptions.List(8), u" [O]range");
        EXPECT_EQ(window.Text1.Text.Get(), u" Alt-1,Ctrl-Alt-F\r\n Alt-2,Ctrl-Alt-H\r\n Alt-3,Ctrl-Alt-Y\r\n"
                                           u" Alt-4,Ctrl-Alt-R\r\n Alt-5,Ctrl-Alt-K\r\n Alt-6,Ctrl-Alt-L\r\n"
                                           u" Alt-7,Ctrl-Alt-G\r\n Alt-8,Ctrl-Alt-A\r\n Alt-9,Ctrl-Alt-O");
        window.cmdCancel.Press();
    });
}

TEST_F(RowColourWindow, EachButtonThatClosesHasItsResult) {
    EXPECT_EQ(Show([](frmRowColour& window) { window.cmdAccept.Press(); }), 1);
    EXPECT_EQ(Show([](frmRowColour& window) { window.lstColourOptions.DoubleClick(3); }), 1);
    EXPECT_EQ(Show([](frmRowColour& window) { window.cmdSelect.Press(); }), 2);
    EXPECT_EQ(Show([](frmRowColour& window) { window.cmdFilterToAttribute.Press(); }), 4);
    EXPECT_EQ(Show([](frmRowColour& window) { window.cmdRemoveFilter.Press(); }), 5);
    EXPECT_EQ(Show([](frmRowColour& window) { window.cmdCancel.Press(); }), 0);
    EXPECT_EQ(Show([](frmRowColour& window) { window.Close(); }), 0);
}

TEST_F(RowColourWindow, AcceptPutsTheColoursOfTheEntryIntoTheSettings) {
    EXPECT_EQ(Accepted(0), (std::pair{0x123456, 0}));
    EXPECT_EQ(Accepted(1), (std::pair{0x123456, 0xE0E0E0}));
    EXPECT_EQ(Accepted(2), (std::pair{0x80FFFF, 0}));
    EXPECT_EQ(Accepted(8), (std::pair{0x80C0FF, 0xC00000}));
}

TEST_F(RowColourWindow, ADoubleClickTakesTheColoursOfItsEntry) {
    Show([](frmRowColour& window) { window.lstColourOptions.DoubleClick(3); });
    EXPECT_EQ(t.app.Settings.ColourChoiceB, 0x0000FF);
    EXPECT_EQ(t.app.Settings.ColourChoiceA, 0xFFFFFF);
}

TEST_F(RowColourWindow, SelectPutsTheColoursOfTheEntryIntoTheSettings) {
    Show([](frmRowColour& window) {
        window.lstColourOptions.Select(5);
        window.cmdSelect.Press();
    });
    EXPECT_EQ(t.app.Settings.ColourChoiceB, 0xFFFFC0);
    EXPECT_EQ(t.app.Settings.ColourChoiceA, 0xC00000);
}

TEST_F(RowColourWindow, WithoutAnEntryTheChosenColoursStay) {
    t.app.Exchange<RowColourMemory>().RowColourIndex = -1;
    t.app.Settings.ColourChoiceB = 11;
    t.app.Settings.ColourChoiceA = 12;
    EXPECT_EQ(Show([](frmRowColour& window) { window.cmdAccept.Press(); }), 1);
    EXPECT_EQ(t.app.Settings.ColourChoiceB, 11);
    EXPECT_EQ(t.app.Settings.ColourChoiceA, 12);
}

TEST_F(RowColourWindow, OtherButtonsLeaveTheChosenColours) {
    t.app.Settings.ColourChoiceB = 11;
    t.app.Settings.ColourChoiceA = 12;
    for (CommandButton frmRowColour::*button :
         {&frmRowColour::cmdFilterToAttribute, &frmRowColour::cmdRemoveFilter, &frmRowColour::cmdCancel}) {
        Show([button](frmRowColour& window) {
            window.lstColourOptions.Select(3);
            (window.*button).Press();
        });
        EXPECT_EQ(t.app.Settings.ColourChoiceB, 11);
        EXPECT_EQ(t.app.Settings.ColourChoiceA, 12);
    }
}

TEST_F(RowColourWindow, OpensOnTheFirstEntryAndItalicForTheFirstTime) {
    Show([](frmRowColour& window) {
        EXPECT_EQ(window.lstColourOptions.ListIndex(), 0);
        EXPECT_EQ(window.chkRemoveChecksAtstart.Value, 0);
        EXPECT_TRUE(window.optAttribute[0].Value);
        EXPECT_FALSE(window.optAttribute[1].Value);
        EXPECT_FALSE(window.optAttribute[2].Value);
        window.cmdCancel.Press();
    });
}

TEST_F(RowColourWindow, RemembersItsChoicesHoweverItWasClosed) {
    Show([](frmRowColour& window) {
        window.lstColourOptions.Select(4);
        window.chkRemoveChecksAtstart.Press();
        window.optAttribute[2].Press();
        window.cmdCancel.Press();
    });
    EXPECT_EQ(t.app.Exchange<RowColourMemory>().RowAttribute, CellFlag::Strikethrough);
    Show([](frmRowColour& window) {
        EXPECT_EQ(window.lstColourOptions.ListIndex(), 4);
        EXPECT_EQ(window.chkRemoveChecksAtstart.Value, 1);
        EXPECT_FALSE(window.optAttribute[0].Value);
        EXPECT_TRUE(window.optAttribute[2].Value);
        window.chkRemoveChecksAtstart.Press();
        window.optAttribute[1].Press();
        window.cmdFilterToAttribute.Press();
    });
    EXPECT_EQ(t.app.Exchange<RowColourMemory>().RemoveChecksAtStart, 0);
    EXPECT_EQ(t.app.Exchange<RowColourMemory>().RowAttribute, CellFlag::Bold);
}

TEST_F(RowColourWindow, TheFlagButtonsFlipTheCurrentRowAndLeaveTheWindowOpen) {
    t.GoTo(2, 1);
    const int result = Show([this](frmRowColour& window) {
        window.cmdItalic.Press();
        window.cmdBold.Press();
        window.cmdStrikethrough.Press();
        EXPECT_TRUE(window.Shown());
        for (const CellFlag flag : {CellFlag::Italic, CellFlag::Bold, CellFlag::Strikethrough}) {
            EXPECT_TRUE(t.grid.CellFontFlag(Row{2}, Col{1}, flag));
            EXPECT_TRUE(t.grid.CellFontFlag(Row{2}, Col{2}, flag));
            EXPECT_FALSE(t.grid.CellFontFlag(Row{1}, Col{1}, flag));
        }
        window.cmdBold.Press();
        EXPECT_FALSE(t.grid.CellFontFlag(Row{2}, Col{1}, CellFlag::Bold));
        window.cmdCancel.Press();
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(RowColourWindow, ShowsTheColoursOfItsChoices) {
    Show([](frmRowColour& f) {
        const auto red = f.lstColourOptions.SampleAt(3);
        ASSERT_TRUE(red);
        EXPECT_EQ(red->back, Colour{0x0000FF});
        EXPECT_EQ(red->text, Colour{0xFFFFFF});
        EXPECT_EQ(f.lstColourOptions.SampleAt(0)->back, kTableBack);
        EXPECT_FALSE(f.lstColourOptions.SampleAt(9));
        f.cmdCancel.Press();
    });
}

} // namespace
} // namespace korvane
