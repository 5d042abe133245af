#include "dbops/windows/frmFindReplace.h"

#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

class FindReplace : public testing::Test {
protected:
    using Script = std::function<void(frmFindReplace&)>;

    FindReplace() {
        t.Fill({{u"one", u"two", u"three", u"four"},
                {u"abc", u"find me", u"", u"last"},
                {u"ABC", u"", u"do find me too", u"end"}});
    }
    void InFindMode(const Script& script) { Play(script, &mnuEdit_Find_Clack); }
    void InReplaceMode(const Script& script) { Play(script, &mnuEdit_Replace_Clack); }
    void AnswerNoFind(const Text& text) {
        t.user.Answer({u"No (further) find for string: \r\n\r\n\"" + text + u"\"", MessageIcon::Exclamation},
                      Answer::Ok);
    }
    static void PressReturn(TextBox& box, bool& consumed) {
        KeyEvent key{Key::Return, Mask::None};
        box.KeyDown(key);
        consumed = key.consumed;
    }

    TestTab t;

private:
    void Play(const Script& script, void (*command)(const TabContext&)) {
        t.user.On<frmFindReplace>([&script](frmFindReplace& window) {
            script(window);
            window.cmdCancel.Press();
        });
        command(t.tab);
    }
};

TEST_F(FindReplace, HasItsCaptions) {
    InReplaceMode([](frmFindReplace& f) {
        EXPECT_EQ(f.Caption.Get(), u"Find and Replace");
        EXPECT_EQ(f.Check1.Caption.Get(), u"&Case sensitive search");
        EXPECT_EQ(f.cmdFindButton.Caption.Get(), u"&Find");
        EXPECT_EQ(f.cmdReplaceButton.Caption.Get(), u"&Replace");
        EXPECT_EQ(f.cmdSwitch.Caption.Get(), u"&Switch");
        EXPECT_EQ(f.cmdSwitch.ToolTipText.Get(), u"Switch find and replace strings");
        EXPECT_EQ(f.cmdTextTop.Caption.Get(), u"&Top of db.");
        EXPECT_EQ(f.cmdCancel.Caption.Get(), u"E&xit");
    });
}

TEST_F(FindReplace, OpensWithItsTextSelected) {
    t.app.Settings.FindText = u"abc";
    InFindMode([](frmFindReplace& f) {
        EXPECT_EQ(f.Text1.SelText(), u"abc");
        EXPECT_EQ(f.Focused(), &f.Text1);
    });
}

TEST_F(FindReplace, InFindModeNothingCanBeReplaced) {
    InFindMode([](frmFindReplace& f) {
        EXPECT_FALSE(f.Text2.Enabled);
        EXPECT_EQ(f.Text2.BackColor.Get(), Colour{0xE0E0E0});
        EXPECT_FALSE(f.cmdReplaceButton.Enabled);
        EXPECT_TRUE(f.cmdFindButton.Enabled);
    });
}

TEST_F(FindReplace, InReplaceModeEverythingIsEnabled) {
    InReplaceMode([](frmFindReplace& f) {
        EXPECT_TRUE(f.Text2.Enabled);
        EXPECT_EQ(f.Text2.BackColor.Get(), kNoColour);
        EXPECT_TRUE(f.cmdReplaceButton.Enabled);
    });
}

TEST_F(FindReplace, AFindAfterAReplaceIsInFindModeAgain) {
    InReplaceMode([](frmFindReplace&) {});
    InFindMode([](frmFindReplace& f) { EXPECT_FALSE(f.cmdReplaceButton.Enabled); });
}

TEST_F(FindReplace, TakesOverAndKeepsTextsAndCheckBox) {
    t.app.Settings.FindText = u"old find";
    t.app.Settings.ReplaceText = u"old replacement";
    t.app.Settings.ReplaceOption = 1;
    InReplaceMode([](frmFindReplace& f) {
        EXPECT_EQ(f.Text1.Text.Get(), u"old find");
        EXPECT_EQ(f.Text2.Text.Get(), u"old replacement");
        EXPECT_EQ(f.Check1.Value, 1);
        f.Text1.Type(u"new find");
        f.Text2.Type(u"new replacement");
        f.Check1.Press();
    });
    EXPECT_EQ(t.app.Settings.FindText, u"new find");
    EXPECT_EQ(t.app.Settings.ReplaceText, u"new replacement");
    EXPECT_EQ(t.app.Settings.ReplaceOption, 0);
}

TEST_F(FindReplace, GivesTheGridTheKeyboardAtTheEnd) {
    InFindMode([](frmFindReplace&) {});
    EXPECT_EQ(t.watcher.focusWanted, 1);
    InReplaceMode([](frmFindReplace&) {});
    EXPECT_EQ(t.watcher.focusWanted, 2);
}

TEST_F(FindReplace, FindGoesToTheNextMatchWithEachClick) {
    InFindMode([this](frmFindReplace& f) {
        f.Text1.Type(u"find");
        f.cmdFindButton.Press();
        EXPECT_EQ(t.app.Settings.FindText, u"find");
        EXPECT_EQ(t.Current(), At(2, 2));
        f.cmdFindButton.Press();
        EXPECT_EQ(t.Current(), At(3, 3));
        AnswerNoFind(u"find");
        f.cmdFindButton.Press();
        EXPECT_EQ(t.Current(), At(3, 3));
    });
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_EQ(t.watcher.rowsWanted, (std::vector{Row{2}, Row{3}}));
}

// Kept for compatibility: find-passes-over-last-column.
TEST_F(FindReplace, PassesOverTheLastColumnOfTheCurrentRowFromTheOneBeforeIt) {
    t.GoTo(2, 3);
    InFindMode([this](frmFindReplace& f) {
        f.Text1.Type(u"last");
        AnswerNoFind(u"last");
        f.cmdFindButton.Press();
        EXPECT_EQ(t.Current(), At(2, 3));
    });
}

// Kept for compatibility: case-box-without-effect.
TEST_F(FindReplace, CountsCaseWithAndWithoutTheCheckBox) {
    t.GoTo(2, 1);
    InFindMode([this](frmFindReplace& f) {
        f.Text1.Type(u"abc");
        for (const std::int16_t value : {std::int16_t{0}, std::int16_t{1}}) {
            f.Check1.Value = value;
            AnswerNoFind(u"abc");
            f.cmdFindButton.Press();
        }
    });
}

TEST_F(FindReplace, AnEmptyStringIsPartOfTheNextCell) {
    InFindMode([this](frmFindReplace& f) {
        f.cmdFindButton.Press();
        EXPECT_EQ(t.Current(), At(1, 2));
    });
}

TEST_F(FindReplace, TheTopIsTheWayBackFromTheLastCell) {
    t.GoTo(3, 4);
    InFindMode([this](frmFindReplace& f) {
        f.Text1.Type(u"two");
        AnswerNoFind(u"two");
        f.cmdFindButton.Press();
        f.cmdTextTop.Press();
        EXPECT_EQ(t.Current(), At(1, 1));
        f.cmdFindButton.Press();
        EXPECT_EQ(t.Current(), At(1, 2));
    });
}

TEST_F(FindReplace, SwitchSwapsTheTwoTexts) {
    InReplaceMode([](frmFindReplace& f) {
        f.Text1.Type(u"a");
        f.Text2.Type(u"b");
        f.cmdSwitch.Press();
        EXPECT_EQ(f.Text1.Text.Get(), u"b");
        EXPECT_EQ(f.Text2.Text.Get(), u"a");
    });
}

TEST_F(FindReplace, ReturnInTheFirstFieldFindsAndIsConsumed) {
    InFindMode([this](frmFindReplace& f) {
        f.Text1.Type(u"find");
        bool consumed = false;
        PressReturn(f.Text1, consumed);
        EXPECT_TRUE(consumed);
        EXPECT_EQ(t.Current(), At(2, 2));
    });
}

TEST_F(FindReplace, ReturnInTheSecondFieldReplaces) {
    InReplaceMode([this](frmFindReplace& f) {
        f.Text1.Type(u"find");
        f.Text2.Type(u"lose");
        bool consumed = false;
        PressReturn(f.Text2, consumed);
        EXPECT_EQ(t.Cell(2, 2), u"lose me");
    });
}

TEST_F(FindReplace, OtherKeysPassTheFields) {
    InFindMode([this](frmFindReplace& f) {
        f.Text1.Type(u"find");
        KeyEvent key{'A', Mask::None};
        f.Text1.KeyDown(key);
        EXPECT_FALSE(key.consumed);
        EXPECT_EQ(t.Current(), At(1, 1));
    });
}

TEST_F(FindReplace, ReplacesAMatchInTheRowsBelowInsideItsCell) {
    t.GoTo(2, 2);
    InReplaceMode([this](frmFindReplace& f) {
        f.Text1.Type(u"find me");
        f.Text2.Type(u"hide you");
        f.cmdReplaceButton.Press();
        EXPECT_EQ(t.Current(), At(3, 3));
        EXPECT_EQ(t.app.Settings.ReplaceText, u"hide you");
    });
    EXPECT_EQ(t.Cell(3, 3), u"do hide you too");
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(FindReplace, ReplacesOnlyTheFirstMatchInACellAndOneCellForEachClick) {
    t.SetCell(2, 1, u"xx and xx");
    t.SetCell(3, 1, u"xx");
    InReplaceMode([this](frmFindReplace& f) {
        f.Text1.Type(u"xx");
        f.Text2.Type(u"yy");
        f.cmdReplaceButton.Press();
        EXPECT_EQ(t.Cell(2, 1), u"yy and xx");
        EXPECT_EQ(t.Cell(3, 1), u"xx");
        f.cmdReplaceButton.Press();
        EXPECT_EQ(t.Cell(2, 1), u"yy and xx");
        EXPECT_EQ(t.Cell(3, 1), u"yy");
    });
}

// Kept for compatibility: replace-empties-cell.
TEST_F(FindReplace, EmptiesTheCellOfAMatchInTheRestOfTheCurrentRow) {
    InReplaceMode([this](frmFindReplace& f) {
        f.Text1.Type(u"re");
        f.Text2.Type(u"RE");
        f.cmdReplaceButton.Press();
        EXPECT_EQ(t.Current(), At(1, 3));
    });
    EXPECT_EQ(t.Cell(1, 3), u"");
    EXPECT_EQ(t.table.TableAltered, 1);
}

// Kept for compatibility: empty-replacement-does-nothing.
TEST_F(FindReplace, ReplacesNothingByAnEmptyText) {
    t.app.Settings.ReplaceText = u"before";
    InReplaceMode([this](frmFindReplace& f) {
        f.Text2.Type(u"");
        for (const Text& part : {Text(u"two"), Text(u"find")}) {
            f.Text1.Type(part);
            f.cmdReplaceButton.Press();
        }
        EXPECT_EQ(t.Current(), At(2, 2));
        EXPECT_EQ(t.app.Settings.ReplaceText, u"");
    });
    EXPECT_EQ(t.Cell(1, 2), u"two");
    EXPECT_EQ(t.Cell(2, 2), u"find me");
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(FindReplace, WithoutAMatchReplacesNothingAndLeavesTheStoredReplacement) {
    t.app.Settings.ReplaceText = u"before";
    InReplaceMode([this](frmFindReplace& f) {
        f.Text1.Type(u"nowhere");
        f.Text2.Type(u"now");
        AnswerNoFind(u"nowhere");
        f.cmdReplaceButton.Press();
        EXPECT_EQ(t.app.Settings.ReplaceText, u"before");
    });
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(FindReplace, TheFindButtonReplacesNothingInReplaceMode) {
    InReplaceMode([](frmFindReplace& f) {
        f.Text1.Type(u"find");
        f.Text2.Type(u"lose");
        f.cmdFindButton.Press();
    });
    EXPECT_EQ(t.Cell(2, 2), u"find me");
    EXPECT_EQ(t.table.TableAltered, 0);
}

TEST_F(FindReplace, ReplacesInAHiddenRow) {
    t.grid.SetRowVisible(Row{2}, false);
    InReplaceMode([](frmFindReplace& f) {
        f.Text1.Type(u"find");
        f.Text2.Type(u"lose");
        f.cmdReplaceButton.Press();
    });
    EXPECT_EQ(t.Cell(2, 2), u"lose me");
}

TEST_F(FindReplace, KeepsTextsAlsoWhenTheWindowIsClosedOtherwise) {
    t.user.On<frmFindReplace>([](frmFindReplace& f) {
        f.Text1.Type(u"kept");
        f.Close();
    });
    mnuEdit_Find_Clack(t.tab);
    EXPECT_EQ(t.app.Settings.FindText, u"kept");
}

TEST_F(FindReplace, ATableWithoutRowsHoldsNothing) {
    t.grid.SetRowCount(Row{0});
    InReplaceMode([this](frmFindReplace& f) {
        f.Text1.Type(u"one");
        f.Text2.Type(u"two");
        AnswerNoFind(u"one");
        f.cmdReplaceButton.Press();
        f.cmdTextTop.Press();
    });
    EXPECT_EQ(t.table.TableAltered, 0);
}

} // namespace
} // namespace korvane
