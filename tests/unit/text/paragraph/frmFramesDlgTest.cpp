#include "text/paragraph/frmFramesDlg.h"

#include "unit/text/paragraph/ParagraphStage.h"

namespace korvane {
namespace {

class FramesDlgTest : public ParagraphStage {
protected:
    frmFramesDlg window{t.app};
};

TEST_F(FramesDlgTest, HasItsCaptions) {
    EXPECT_EQ(window.Caption.Get(), u"Paragraph frames");
    EXPECT_EQ(CaptionsOf(window),
              (std::vector<Text>{u"&Left", u"&Right", u"&Top", u"&Bottom", u"T&ab Lines", u"&Double Lines",
                                 u"Connected &Frames", u"&OK", u"&Mark all", u"&Text frame"}));
}

TEST_F(FramesDlgTest, ShowsTheFrameOfTheParagraph) {
    control.SetFrameStyle(1 + 8 + 16 + 64 + 128);
    control.SetFrameLineWidth(40);
    control.SetFrameDistance(70);
    window.EnsureLoaded();
    EXPECT_EQ(window.chkLeft.Value, 1);
    EXPECT_EQ(window.chkRight.Value, 0);
    EXPECT_EQ(window.chkTop.Value, 0);
    EXPECT_EQ(window.chkBottom.Value, 1);
    EXPECT_EQ(window.chkTabLines.Value, 1);
    EXPECT_EQ(window.chkDoubleLines.Value, 1);
    EXPECT_EQ(window.chkConnectedFrames.Value, 1);
    EXPECT_EQ(window.cboLineWidth.Text.Get(), u"2 pt");
    EXPECT_EQ(window.cboLineWidth.Items.Get().front(), u"1 pt");
    EXPECT_EQ(window.cboDistance.Text.Get(), u"3.5 pt");
    EXPECT_EQ(window.cboDistance.Items.Get().front(), u"3.5 pt");
    EXPECT_EQ(window.cboDistance.Items.Get()[1], u"1 pt");
}

TEST_F(FramesDlgTest, SendsWhatIsOnAndWhatIsOff) {
    window.EnsureLoaded();
    window.cmdOK.Press();
    EXPECT_EQ(control.FrameStyle(), 256 + 512 + 1024 + 2048 + 4096 + 32);
    window.EnsureLoaded();
    window.cmdBox.Press();
    window.chkTabLines.Press();
    window.chkDoubleLines.Press();
    window.chkConnectedFrames.Press();
    window.cmdOK.Press();
    EXPECT_EQ(control.FrameStyle(), 1 + 2 + 4 + 8 + 16 + 64 + 128);
}

TEST_F(FramesDlgTest, LengthsAreFromOneToTwelvePoints) {
    window.EnsureLoaded();
    window.cboLineWidth.Type(u"0");
    window.cboDistance.Type(u"20");
    window.cmdOK.Press();
    EXPECT_EQ(control.FrameLineWidth(), 20);
    EXPECT_EQ(control.FrameDistance(), 240);
    window.EnsureLoaded();
    window.cboLineWidth.Type(u"20");
    window.cboDistance.Type(u"0");
    window.cmdOK.Press();
    EXPECT_EQ(control.FrameLineWidth(), 240);
    EXPECT_EQ(control.FrameDistance(), 20);
    window.EnsureLoaded();
    window.cboLineWidth.Choose(4);
    window.cmdOK.Press();
    EXPECT_EQ(control.FrameLineWidth(), 100);
}

TEST_F(FramesDlgTest, MarkAllTicksTheFourSidesAlone) {
    window.EnsureLoaded();
    window.cmdBox.Press();
    EXPECT_EQ(window.chkTop.Value, 1);
    EXPECT_EQ(window.chkTabLines.Value, 0);
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(FramesDlgTest, ATextFrameChangesNothing) {
    window.EnsureLoaded();
    window.cmdInsertTextFrame.Press();
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(FramesDlgTest, ChangesNothingWithoutTheTextWindow) {
    t.app.SetPort<OpenText>(nullptr);
    window.EnsureLoaded();
    window.cmdBox.Press();
    window.cmdOK.Press();
    EXPECT_FALSE(control.DataChanged());
}

} // namespace
} // namespace korvane
