#include "dbops/windows/frmDelimiterType.h"

#include "context/exchange/DelimiterChoice.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

class DelimiterType : public testing::Test {
protected:
    DelimiterType() {
        t.Fill({{u"a", u"b", u"c"}});
        t.grid.SetColHeaderText(Col{1}, u"First");
        t.grid.SetColHeaderText(Col{2}, u"Second");
        t.grid.SetColHeaderText(Col{3}, u"Third");
    }
    /// Shows the window as it opens; `script` leaves it by a button.
    void Show(const std::function<void(frmDelimiterType&)>& script) {
        t.app.DialogResult = 0;
        t.user.On<frmDelimiterType>(script);
        frmDelimiterType(t.tab, request).ShowModal();
    }
    int OptionShownFor(const Text& delimiter) {
        t.app.Settings.DelimiterString = delimiter;
        int shown = -1;
        Show([&shown](frmDelimiterType& f) {
            for (int index = 0; index < 5; ++index) {
                if (f.optDelimiter[static_cast<std::size_t>(index)].Value) shown = index;
            }
            f.cmdCancel.Press();
        });
        return shown;
    }

    TestTab t;
    CopyRequest request{CopyDestination::Clipboard, 17, {}};
};

TEST_F(DelimiterType, HasItsCaptions) {
    const frmDelimiterType form(t.tab, request);
    EXPECT_EQ(form.optDelimiter[0].Caption.Get(), u"Tabulator stop");
    EXPECT_EQ(form.optDelimiter[1].Caption.Get(), u"A comma");
    EXPECT_EQ(form.optDelimiter[2].Caption.Get(), u"A semi-colon");
    EXPECT_EQ(form.optDelimiter[3].Caption.Get(), u"A space character");
    EXPECT_EQ(form.optDelimiter[4].Caption.Get(), u"No delimiter");
    EXPECT_EQ(form.chkBreakAfterFieldThree.Caption.Get(), u"Add line break from field 3 onwards");
    EXPECT_EQ(form.cmdProceed.Caption.Get(), u"&Proceed with copying");
    EXPECT_EQ(form.cmdCancel.Caption.Get(), u"&Cancel");
}

TEST_F(DelimiterType, TellsDestinationAndNumberOfRows) {
    Show([](frmDelimiterType& f) {
        EXPECT_EQ(f.lblDestination.Caption.Get(), u"clipboard");
        EXPECT_EQ(f.lblCheckedRows.Caption.Get(), u"17");
        f.cmdCancel.Press();
    });
    request.destination = CopyDestination::TextWindow;
    Show([](frmDelimiterType& f) {
        EXPECT_EQ(f.lblDestination.Caption.Get(), u"text module");
        f.cmdCancel.Press();
    });
}

TEST_F(DelimiterType, ListsTheColumnsByTheirHeadersAllChecked) {
    Show([](frmDelimiterType& f) {
        ASSERT_EQ(f.lstColumns.ListCount(), 3);
        EXPECT_EQ(f.lstColumns.List(0), u"First");
        EXPECT_EQ(f.lstColumns.List(2), u"Third");
        for (int index = 0; index < 3; ++index)
            EXPECT_TRUE(f.lstColumns.Selected(index));
        f.cmdCancel.Press();
    });
}

TEST_F(DelimiterType, SelectsTheEntryOfThePresentDelimiter) {
    EXPECT_EQ(OptionShownFor(u"\t"), 0);
    EXPECT_EQ(OptionShownFor(u","), 1);
    EXPECT_EQ(OptionShownFor(u";"), 2);
    EXPECT_EQ(OptionShownFor(u" "), 3);
    EXPECT_EQ(OptionShownFor(u""), 4);
}

TEST_F(DelimiterType, ProceedTakesEachDelimiter) {
    const std::vector<Text> delimiters{u"\t", u",", u";", u" ", u""};
    for (std::size_t index = 0; index < delimiters.size(); ++index) {
        Show([index](frmDelimiterType& f) {
            f.optDelimiter[index].Press();
            f.cmdProceed.Press();
        });
        EXPECT_EQ(t.app.DialogResult, 1);
        EXPECT_EQ(t.app.Settings.DelimiterString, delimiters[index]);
        EXPECT_EQ(t.app.Settings.ImportDelimiterType, static_cast<int>(index));
    }
}

TEST_F(DelimiterType, AnotherStoredDelimiterStaysUnlessOneIsChosen) {
    EXPECT_EQ(OptionShownFor(u"||"), -1);
    Show([](frmDelimiterType& f) { f.cmdProceed.Press(); });
    EXPECT_EQ(t.app.Settings.DelimiterString, u"||");
}

TEST_F(DelimiterType, UncheckedColumnsAreNotIncluded) {
    Show([](frmDelimiterType& f) {
        f.lstColumns.SetSelected(1, false);
        f.cmdProceed.Press();
    });
    EXPECT_TRUE(request.ColumnIncluded[Col{1}]);
    EXPECT_FALSE(request.ColumnIncluded[Col{2}]);
    EXPECT_TRUE(request.ColumnIncluded[Col{3}]);
    EXPECT_FALSE(request.ColumnIncluded[Col{4}]);
}

TEST_F(DelimiterType, EachOpeningIncludesAllColumnsAnew) {
    request.ColumnIncluded.Set(Col{9}, true);
    Show([](frmDelimiterType& f) { f.cmdProceed.Press(); });
    EXPECT_TRUE(request.ColumnIncluded[Col{2}]);
    EXPECT_FALSE(request.ColumnIncluded[Col{9}]);
}

TEST_F(DelimiterType, ACancelGivesZeroAndTakesNothing) {
    t.app.Settings.DelimiterString = u",";
    Show([](frmDelimiterType& f) {
        f.optDelimiter[2].Press();
        f.chkBreakAfterFieldThree.Press();
        f.cmdCancel.Press();
    });
    EXPECT_EQ(t.app.DialogResult, 0);
    EXPECT_EQ(t.app.Settings.DelimiterString, u",");
    EXPECT_EQ(t.app.Exchange<DelimiterChoice>().BreakAfterFieldThree, 0);
}

TEST_F(DelimiterType, RestoresTheLineBreakBox) {
    Show([](frmDelimiterType& f) {
        EXPECT_EQ(f.chkBreakAfterFieldThree.Value, 0);
        f.chkBreakAfterFieldThree.Press();
        f.cmdProceed.Press();
    });
    Show([](frmDelimiterType& f) {
        EXPECT_EQ(f.chkBreakAfterFieldThree.Value, 1);
        f.cmdCancel.Press();
    });
}

} // namespace
} // namespace korvane
