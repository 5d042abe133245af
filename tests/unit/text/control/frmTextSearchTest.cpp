#include "text/control/frmTextSearch.h"

#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

class SearchWindowTest : public ControlStage {
protected:
    template <class Script>
    void Find(Script script) {
        t.user.On<frmTextSearch>([script](frmTextSearch& window) {
            script(window);
            window.cmdCancel.Press();
        });
        control.FindReplaceDialog(1);
    }
    template <class Script>
    void Replace(Script script) {
        t.user.On<frmTextSearch>([script](frmTextSearch& window) {
            script(window);
            window.cmdCancel.Press();
        });
        control.FindReplaceDialog(2);
    }
};

TEST_F(SearchWindowTest, FindingShowsNothingOfReplacing) {
    Find([](frmTextSearch& window) {
        EXPECT_EQ(window.Caption.Get(), u"Find");
        EXPECT_FALSE(window.txtReplace.Visible);
        EXPECT_FALSE(window.cmdReplace.Visible);
        EXPECT_FALSE(window.cmdReplaceAll.Visible);
    });
    Replace([](frmTextSearch& window) {
        EXPECT_EQ(window.Caption.Get(), u"Find and replace");
        EXPECT_TRUE(window.txtReplace.Visible);
    });
}

TEST_F(SearchWindowTest, GoesFromPlaceToPlaceAndRoundTheEnd) {
    control.SetAll(u"ab x\r\nAB");
    Find([this](frmTextSearch& window) {
        window.txtFind.Text = u"ab";
        window.cmdFind.Press();
        EXPECT_EQ(control.SelStart(), 0);
        EXPECT_EQ(control.SelLength(), 2);
        window.cmdFind.Press();
        EXPECT_EQ(control.SelStart(), 6);
        window.cmdFind.Press();
        EXPECT_EQ(control.SelStart(), 0);
        window.optUp.Press();
        window.cmdFind.Press();
        EXPECT_EQ(control.SelStart(), 6);
        window.chkCase.Press();
        window.cmdFind.Press();
        EXPECT_EQ(control.SelStart(), 0);
    });
    EXPECT_EQ(control.SelText(), u"ab");
}

TEST_F(SearchWindowTest, TellsWhenThereIsNothing) {
    Find([this](frmTextSearch& window) {
        window.txtFind.Text = u"four";
        t.user.Answer({u"\"four\"\r\n\r\nis not in the text.", MessageIcon::Information, MessageButtons::Ok},
                      Answer::Ok);
        window.cmdFind.Press();
        window.txtFind.Text = u"";
        window.cmdFind.Press();
    });
    EXPECT_EQ(control.SelText(), u"one");
}

TEST_F(SearchWindowTest, BeginsWithTheSelectionOrTheLastSearch) {
    Find([](frmTextSearch& window) {
        EXPECT_EQ(window.txtFind.Text.Get(), u"one");
        window.txtFind.Text = u"two";
        window.chkWords.Press();
        window.cmdFind.Press();
    });
    control.SetSelStart(0);
    Find([](frmTextSearch& window) {
        EXPECT_EQ(window.txtFind.Text.Get(), u"two");
        EXPECT_EQ(window.chkWords.Value, 1);
    });
    control.SetSelection(0, -1);
    Find([](frmTextSearch& window) { EXPECT_EQ(window.txtFind.Text.Get(), u"two"); });
}

TEST_F(SearchWindowTest, ReplacesOneByOne) {
    control.SetAll(u"a b a");
    Replace([this](frmTextSearch& window) {
        window.txtFind.Text = u"a";
        window.txtReplace.Text = u"aa";
        // The first press only goes to the place.
        window.cmdReplace.Press();
        EXPECT_EQ(control.All(), u"a b a");
        window.cmdReplace.Press();
        EXPECT_EQ(control.All(), u"aa b a");
        EXPECT_EQ(control.SelStart(), 5);
        window.cmdReplace.Press();
        EXPECT_EQ(control.All(), u"aa b aa");
    });
}

TEST_F(SearchWindowTest, ReplacesUpwardsWithoutComingBackToWhatWasPutIn) {
    control.SetAll(u"a b a");
    control.SetSelStart(5);
    Replace([this](frmTextSearch& window) {
        window.txtFind.Text = u"a";
        window.txtReplace.Text = u"aa";
        window.optUp.Press();
        window.cmdFind.Press();
        window.cmdReplace.Press();
        EXPECT_EQ(control.All(), u"a b aa");
        EXPECT_EQ(control.SelStart(), 0);
    });
}

TEST_F(SearchWindowTest, ReplacesAllInOneStepWithTheLookOfWhatWasThere) {
    control.SetAll(u"one two ONE");
    control.SetSelection(8, 3);
    control.SetFontBold(1);
    Replace([this](frmTextSearch& window) {
        window.txtFind.Text = u"one";
        window.txtReplace.Text = u"1 one";
        t.user.Answer({u"2 places replaced.", MessageIcon::Information, MessageButtons::Ok}, Answer::Ok);
        window.cmdReplaceAll.Press();
    });
    EXPECT_EQ(control.All(), u"1 one two 1 one");
    control.SetSelection(10, 5);
    EXPECT_EQ(control.FontBold(), 1);
    ASSERT_TRUE(control.Undo());
    EXPECT_EQ(control.All(), u"one two ONE");
}

TEST_F(SearchWindowTest, ALockedTextIsOnlySearched) {
    control.Locked = true;
    Replace([](frmTextSearch& window) { EXPECT_FALSE(window.cmdReplaceAll.Visible); });
}

} // namespace
} // namespace korvane
