#include "text/control/frmTextPage.h"

#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

class PageWindowTest : public ControlStage {
protected:
    PageWindowTest() {
        const int sizes[] = {11906, 16838, 1440, 1440, 1440, 1440};
        for (int size = 0; size < 6; ++size)
            control.SetPageSize(static_cast<doc::Page::Size>(size), sizes[size]);
        control.SetDataChanged(false);
    }
    template <class Script>
    void Accept(Script script) {
        t.user.On<frmTextPage>([script](frmTextPage& window) {
            script(window);
            window.cmdOK.Press();
        });
        control.PageSetupDialog();
    }
};

TEST_F(PageWindowTest, ShowsThePaperAndTheMargins) {
    control.ScaleUnits = TextControl::kMillimetres;
    Accept([](frmTextPage& window) {
        EXPECT_EQ(window.cboPaper.Chosen(), u"A4");
        EXPECT_TRUE(window.optPortrait.Value);
        EXPECT_EQ(window.txtWidth.Text.Get(), u"21 cm");
        EXPECT_EQ(window.txtHeight.Text.Get(), u"29.7 cm");
        EXPECT_EQ(window.txtMarginTop.Text.Get(), u"2.54 cm");
    });
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(PageWindowTest, APaperAndItsOrientationGiveTheSize) {
    Accept([](frmTextPage& window) {
        window.optLandscape.Press();
        EXPECT_EQ(window.txtWidth.Length(), 16838);
        window.cboPaper.SetListIndex(3);
        EXPECT_EQ(window.txtWidth.Text.Get(), u"11 in");
    });
    EXPECT_EQ(control.PageSize(doc::Page::Width), 15840);
    EXPECT_EQ(control.PageSize(doc::Page::Height), 12240);
    EXPECT_TRUE(control.DataChanged());
}

TEST_F(PageWindowTest, ATypedSizeIsAPaperOnlyIfItHasItsSize) {
    Accept([](frmTextPage& window) {
        window.txtWidth.Text = u"5 in";
        EXPECT_EQ(window.cboPaper.Chosen(), u"Own size");
        window.txtWidth.Text = u"210 mm";
        EXPECT_EQ(window.cboPaper.Chosen(), u"A4");
        window.txtWidth.Text = u"5 in";
        window.txtMarginLeft.Text = u"1 cm";
    });
    EXPECT_EQ(control.PageSize(doc::Page::Width), 7200);
    EXPECT_EQ(control.PageSize(doc::Page::MarginLeft), 567);
    EXPECT_EQ(control.PageSize(doc::Page::MarginRight), 1440);
}

TEST_F(PageWindowTest, MarginsThatLeaveNoRoomAreRefused) {
    t.user.On<frmTextPage>([this](frmTextPage& window) {
        window.txtMarginTop.Text = u"11 in";
        t.user.Answer(
            {u"The margins leave no room for the text.", MessageIcon::Exclamation, MessageButtons::Ok},
            Answer::Ok);
        window.cmdOK.Press();
        EXPECT_TRUE(window.Shown());
        window.cmdCancel.Press();
    });
    control.PageSetupDialog();
    EXPECT_EQ(control.PageSize(doc::Page::MarginTop), 1440);
}

} // namespace
} // namespace korvane
