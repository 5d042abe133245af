#include "table/frmDesignTable.h"

#include "common/number/Number.h"
#include "support/TestTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace korvane {
namespace {

using Titles = std::vector<Text>;

class DesignTable : public testing::Test {
protected:
    /// Shows the window as it opens; `script` closes it.
    void Show(const std::function<void(frmDesignTable&)>& script) {
        user.On<frmDesignTable>(script);
        frmDesignTable(on.tab).ShowModal();
    }
    /// Does the same, and cancels the window at the end.
    void Try(const std::function<void(frmDesignTable&)>& script) {
        Show([&script](frmDesignTable& f) {
            script(f);
            f.cmdCancel.Press();
        });
    }
    static Text Title(const frmDesignTable& f, int entry) { return f.ListView1.RowAt(entry).texts.at(1); }
    static Text Number(const frmDesignTable& f, int entry) { return f.ListView1.RowAt(entry).texts.at(0); }
    static void Assign(frmDesignTable& f, int entry, const Text& title) {
        f.ListView1.Select(entry);
        f.txtColumnName.Text = title;
        f.cmdAssign.Press();
    }
    /// Does the same and goes back to the entry.
    static void AssignAndStay(frmDesignTable& f, int entry, const Text& title) {
        Assign(f, entry, title);
        f.ListView1.Select(entry);
    }
    static Message Question(const Text& count) {
        return {u"Delete  [ " + count + u" ]  entries ?\r\n", MessageIcon::Question, MessageButtons::YesNo};
    }
    const Titles& Made() const { return on.model.lstNewTableColumns; }

    TestTable on;
    ScriptedUser& user = on.program.user;
    const Message noNames{u"No column names have been specified!", MessageIcon::Exclamation};
};

TEST_F(DesignTable, HasItsCaptionsAndTips) {
    const frmDesignTable f(on.tab);
    EXPECT_EQ(f.Caption.Get(), u"Devise columns for new table");
    EXPECT_EQ(f.cmdAssign.Caption.Get(), u"&Assign label to column");
    EXPECT_EQ(f.cmdAutoLabel.Caption.Get(), u"A&uto label cols.");
    EXPECT_EQ(f.cmdDeleteEntry.Caption.Get(), u"&Delete entries");
    EXPECT_EQ(f.cmdMake.Caption.Get(), u"&Make table");
    EXPECT_EQ(f.cmdCancel.Caption.Get(), u"&Cancel");
    EXPECT_EQ(f.Image2.ToolTipText.Get(), u"Move current item up in list");
    EXPECT_EQ(f.Image1.ToolTipText.Get(), u"Move current item down in list");
}

TEST_F(DesignTable, ListsTwentyFourEntriesWithoutTitles) {
    Try([](frmDesignTable& f) {
        ASSERT_EQ(f.ListView1.Count(), 24);
        for (int entry = 1; entry <= 24; ++entry) {
            EXPECT_EQ(f.ListView1.RowAt(entry).key, u"K_" + NumberText(entry));
            EXPECT_EQ(Number(f, entry), NumberText(entry));
            EXPECT_EQ(Title(f, entry), u"");
        }
        EXPECT_TRUE(f.ListView1.GridLines);
    });
}

TEST_F(DesignTable, OpensOnTheFirstEntryWithTheListInUse) {
    Try([](frmDesignTable& f) {
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_TRUE(f.ListView1.RowAt(1).selected);
        EXPECT_EQ(f.Focused(), &f.ListView1);
        EXPECT_EQ(f.txtColumnName.Text.Get(), u"(enter label)");
        EXPECT_EQ(f.txtColumnName.SelText(), u"(enter label)");
    });
}

TEST_F(DesignTable, TheNumbersTakeATenthOfTheListAndTheTitlesTwoThirds) {
    Try([](frmDesignTable& f) {
        f.Width = Twips{10000};
        f.Resize();
        const auto& columns = f.ListView1.Columns.Get();
        ASSERT_EQ(columns.size(), 2u);
        EXPECT_EQ(columns[0].header, u"No.");
        EXPECT_EQ(columns[1].header, u"Title");
        // The list is 8950 twips wide then.
        EXPECT_EQ(columns[0].width, Twips{895});
        EXPECT_EQ(columns[1].width, Twips{5966});
    });
}

TEST_F(DesignTable, AssignsTheLabelToTheCurrentEntry) {
    Try([](frmDesignTable& f) {
        Assign(f, 3, u" Name ");
        EXPECT_EQ(Title(f, 3), u" Name ");
        EXPECT_EQ(f.ListView1.Current(), 4);
        EXPECT_EQ(f.txtColumnName.SelText(), u" Name ");
        EXPECT_EQ(f.Focused(), &f.txtColumnName);
    });
}

TEST_F(DesignTable, TheSelectionStaysOnTheLastEntry) {
    Try([](frmDesignTable& f) {
        Assign(f, 24, u"Name");
        EXPECT_EQ(f.ListView1.Current(), 24);
    });
}

TEST_F(DesignTable, TakesTitlesThatAreTypedIntoTheList) {
    Show([](frmDesignTable& f) {
        f.ListView1.TypeText(1, u"Name", 1);
        EXPECT_EQ(f.ListView1.Current(), 2);
        f.ListView1.TypeText(2, u"Town", 1);
        f.ListView1.TypeText(3, u"   ", 1);
        EXPECT_EQ(Title(f, 3), u"");
        f.ListView1.TypeText(4, u"Street", 0);
        EXPECT_EQ(f.ListView1.Current(), 4);
        f.cmdMake.Press();
    });
    EXPECT_EQ(Made(), (Titles{u"Name", u"Town", u"Street"}));
}

TEST_F(DesignTable, ReturnInTheListGoesOn) {
    Try([](frmDesignTable& f) {
        KeyEvent key{Key::Return, Mask::None};
        f.ListView1.KeyDown(key);
        EXPECT_TRUE(key.consumed);
        EXPECT_EQ(f.ListView1.Current(), 2);
    });
}

TEST_F(DesignTable, OfSeveralSelectedEntriesTheCurrentOneTakesTheLabel) {
    Try([](frmDesignTable& f) {
        f.ListView1.Select(3);
        f.ListView1.SetSelected(5, true);
        f.txtColumnName.Text = u"Name";
        f.cmdAssign.Press();
        EXPECT_EQ(Title(f, 3), u"Name");
        EXPECT_EQ(Title(f, 5), u"");
    });
}

TEST_F(DesignTable, ReturnInTheBoxAssigns) {
    Try([](frmDesignTable& f) {
        f.ListView1.Select(2);
        f.txtColumnName.Text = u"Town";
        KeyEvent key{Key::Return, Mask::None};
        f.txtColumnName.KeyDown(key);
        EXPECT_TRUE(key.consumed);
        EXPECT_EQ(Title(f, 2), u"Town");
        KeyEvent other{Key::Return, Mask::Ctrl};
        f.txtColumnName.KeyDown(other);
        EXPECT_FALSE(other.consumed);
    });
}

TEST_F(DesignTable, ALabelOfBlanksIsNotAssigned) {
    Try([](frmDesignTable& f) {
        Assign(f, 1, u"Name");
        Assign(f, 1, u"   ");
        EXPECT_EQ(Title(f, 1), u"Name");
        Assign(f, 1, u"");
        EXPECT_EQ(Title(f, 1), u"Name");
    });
}

TEST_F(DesignTable, AutoLabelNumbersAllTitles) {
    Try([](frmDesignTable& f) {
        Assign(f, 2, u"Name");
        f.cmdAutoLabel.Press();
        EXPECT_EQ(Title(f, 1), u"Col 1");
        EXPECT_EQ(Title(f, 2), u"Col 2");
        EXPECT_EQ(Title(f, 24), u"Col 24");
    });
}

TEST_F(DesignTable, AutoLabelCountsThePlacesAlsoWhereEntriesWereMoved) {
    Try([](frmDesignTable& f) {
        f.Image1.Press();
        f.cmdAutoLabel.Press();
        EXPECT_EQ(Number(f, 1), u"2");
        EXPECT_EQ(Title(f, 1), u"Col 1");
    });
}

TEST_F(DesignTable, DeletesNothingWhereNoEntryIsSelected) {
    user.Answer({u"No items checked.", MessageIcon::Information}, Answer::Ok);
    user.On<frmDesignTable>([](frmDesignTable& f) { f.cmdCancel.Press(); });
    frmDesignTable f(on.tab);
    f.EnsureLoaded();
    AssignAndStay(f, 1, u"Name");
    f.ListView1.SetSelected(1, false);
    f.cmdDeleteEntry.Press();
    EXPECT_EQ(Title(f, 1), u"Name");
    f.ShowModal();
}

TEST_F(DesignTable, DeletesTheTitlesOfTheSelectedEntriesAfterAsking) {
    frmDesignTable f(on.tab);
    f.EnsureLoaded();
    f.cmdAutoLabel.Press();
    f.ListView1.Select(4);
    f.ListView1.SetSelected(7, true);
    f.txtColumnName.SetFocus();
    user.Answer(Question(u"2"), Answer::Yes);
    f.cmdDeleteEntry.Press();
    ASSERT_EQ(f.ListView1.Count(), 24);
    EXPECT_EQ(Title(f, 4), u"");
    EXPECT_EQ(Number(f, 4), u"4");
    EXPECT_EQ(Title(f, 7), u"");
    EXPECT_EQ(Title(f, 5), u"Col 5");
    EXPECT_EQ(f.ListView1.Current(), 1);
    EXPECT_FALSE(f.ListView1.RowAt(4).selected);
    EXPECT_EQ(f.Focused(), &f.ListView1);
}

TEST_F(DesignTable, ANoKeepsTheTitlesAndTheSelection) {
    frmDesignTable f(on.tab);
    f.EnsureLoaded();
    f.cmdAutoLabel.Press();
    f.ListView1.Select(4);
    user.Answer(Question(u"1"), Answer::No);
    f.cmdDeleteEntry.Press();
    EXPECT_EQ(Title(f, 4), u"Col 4");
    EXPECT_EQ(f.ListView1.Current(), 4);
}

TEST_F(DesignTable, TheDeleteKeyInTheListDeletes) {
    frmDesignTable f(on.tab);
    f.EnsureLoaded();
    AssignAndStay(f, 1, u"Name");
    user.Answer(Question(u"1"), Answer::Yes);
    KeyEvent key{Key::Delete, Mask::None};
    f.ListView1.KeyDown(key);
    EXPECT_TRUE(key.consumed);
    EXPECT_EQ(Title(f, 1), u"");
    KeyEvent other{Key::Insert, Mask::None};
    f.ListView1.KeyDown(other);
    EXPECT_FALSE(other.consumed);
}

TEST_F(DesignTable, MovesAnEntryWithItsNumberAndTheSelectionGoesAlong) {
    Try([](frmDesignTable& f) {
        Assign(f, 3, u"Town");
        AssignAndStay(f, 2, u"Name");
        f.Image1.Press();
        EXPECT_EQ(Title(f, 3), u"Name");
        EXPECT_EQ(Title(f, 2), u"Town");
        EXPECT_EQ(Number(f, 3), u"2");
        EXPECT_EQ(Number(f, 2), u"3");
        EXPECT_EQ(f.ListView1.Current(), 3);
        EXPECT_FALSE(f.ListView1.RowAt(2).selected);
        f.Image2.Press();
        EXPECT_EQ(Title(f, 2), u"Name");
        EXPECT_EQ(Number(f, 2), u"2");
        EXPECT_EQ(f.ListView1.Current(), 2);
    });
}

TEST_F(DesignTable, AnEntryMovesNoFurtherThanTheEndsOfTheList) {
    Try([](frmDesignTable& f) {
        f.Image2.Press();
        EXPECT_EQ(Number(f, 1), u"1");
        EXPECT_EQ(f.ListView1.Current(), 1);
        f.ListView1.Select(24);
        f.Image1.Press();
        EXPECT_EQ(Number(f, 24), u"24");
        EXPECT_EQ(f.ListView1.Current(), 24);
    });
}

TEST_F(DesignTable, WithoutAnyTitleItSaysSoAndStays) {
    on.model.lstNewTableColumns = {u"earlier"};
    user.On<frmDesignTable>([](frmDesignTable& f) {
        f.cmdMake.Press();
        EXPECT_TRUE(f.Shown());
        f.cmdCancel.Press();
    });
    user.Answer(noNames, Answer::Ok);
    frmDesignTable(on.tab).ShowModal();
    EXPECT_EQ(Made(), Titles{u"earlier"});
}

TEST_F(DesignTable, HandsOverTheTitlesInListOrderWithoutGaps) {
    on.model.lstNewTableColumns = {u"earlier", u"ones"};
    Show([](frmDesignTable& f) {
        Assign(f, 1, u"Name");
        Assign(f, 5, u"Town");
        f.Image2.Press();
        f.cmdMake.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(Made(), (Titles{u"Name", u"Town"}));
}

TEST_F(DesignTable, AfterAutoLabelAndADeletionOnlyTheRestIsHandedOver) {
    frmDesignTable f(on.tab);
    f.EnsureLoaded();
    f.cmdAutoLabel.Press();
    for (int entry = 3; entry <= 24; ++entry)
        f.ListView1.SetSelected(entry, true);
    user.Answer(Question(u"23"), Answer::Yes);
    f.cmdDeleteEntry.Press();
    f.cmdMake.Press();
    EXPECT_EQ(Made(), Titles{u"Col 2"});
}

TEST_F(DesignTable, CancelLeavesWhatAnEarlierDesignHandedOver) {
    on.model.lstNewTableColumns = {u"earlier"};
    Try([](frmDesignTable& f) { f.cmdAutoLabel.Press(); });
    EXPECT_EQ(Made(), Titles{u"earlier"});
}

TEST_F(DesignTable, EscGivesUp) {
    const frmDesignTable f(on.tab);
    EXPECT_TRUE(f.cmdCancel.Cancel);
}

} // namespace
} // namespace korvane
