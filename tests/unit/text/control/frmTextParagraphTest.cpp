#include "text/control/frmTextParagraph.h"

#include "text/control/frmTextTabs.h"
#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

class ParagraphWindowTest : public ControlStage {
protected:
    /// Opens the window as the control does and accepts what the script does.
    template <class Script>
    void Accept(Script script) {
        t.user.On<frmTextParagraph>([script](frmTextParagraph& window) {
            script(window);
            window.cmdOK.Press();
        });
        control.ParagraphDialog();
    }
};

TEST_F(ParagraphWindowTest, ShowsTheFormatOfTheFirstParagraph) {
    control.SetAlignment(3);
    control.SetIndentL(1440);
    control.SetIndentFL(-720);
    control.SetIndentB(240);
    control.SetLineSpacing(150);
    t.user.On<frmTextParagraph>([](frmTextParagraph& window) {
        EXPECT_EQ(window.cboAlignment.Chosen(), u"Justified");
        EXPECT_EQ(window.txtLeft.Text.Get(), u"1 in");
        EXPECT_EQ(window.txtFirst.Text.Get(), u"-0.5 in");
        EXPECT_EQ(window.txtAfter.Text.Get(), u"0.17 in");
        EXPECT_EQ(window.cboSpacing.Chosen(), u"1.5 lines");
        EXPECT_FALSE(window.txtSpacing.Enabled);
        EXPECT_EQ(window.chkPageBreak.Value, 0);
        window.Close();
    });
    control.ParagraphDialog();
}

TEST_F(ParagraphWindowTest, AcceptingWithoutAChangeLeavesTheTextUnaltered) {
    Accept([](frmTextParagraph&) {});
    EXPECT_FALSE(control.DataChanged());
    EXPECT_FALSE(control.Undo());
}

TEST_F(ParagraphWindowTest, OnlyWhatIsChangedIsChangedInAllParagraphs) {
    control.SetSelection(5, 3);
    control.SetIndentL(500);
    control.SetAlignment(2);
    control.SetSelection(0, 8);
    Accept([](frmTextParagraph& window) {
        window.txtBefore.Text = u"12 pt";
        window.chkPageBreak.Press();
    });
    EXPECT_EQ(Paragraph(0).before, 240);
    EXPECT_EQ(Paragraph(5).before, 240);
    EXPECT_TRUE(Paragraph(5).pageBreakBefore);
    EXPECT_EQ(Paragraph(5).left, 500);
    EXPECT_EQ(Paragraph(5).alignment, doc::Alignment::Centred);
    EXPECT_EQ(Paragraph(10).before, 0);
}

TEST_F(ParagraphWindowTest, AllOfOneAcceptIsOneStepToUndo) {
    Accept([](frmTextParagraph& window) {
        window.cboAlignment.SetListIndex(1);
        window.txtLeft.Text = u"1 cm";
        window.cboSpacing.SetListIndex(2);
    });
    EXPECT_EQ(Paragraph(0).alignment, doc::Alignment::Right);
    EXPECT_EQ(Paragraph(0).left, 567);
    EXPECT_EQ(Paragraph(0).spacingPercent, 200);
    ASSERT_TRUE(control.Undo());
    EXPECT_EQ(Paragraph(0), doc::ParaFormat{});
}

TEST_F(ParagraphWindowTest, LinesHaveAMultipleOrAnExactHeight) {
    Accept([](frmTextParagraph& window) {
        window.cboSpacing.SetListIndex(3);
        EXPECT_EQ(window.txtSpacing.Text.Get(), u"100 %");
        window.txtSpacing.Text = u"130";
    });
    EXPECT_EQ(Paragraph(0).spacingPercent, 130);
    Accept([](frmTextParagraph& window) {
        EXPECT_EQ(window.cboSpacing.Chosen(), u"Multiple");
        window.cboSpacing.SetListIndex(4);
        EXPECT_EQ(window.txtSpacing.Text.Get(), u"12 pt");
        window.txtSpacing.Text = u"20 pt";
    });
    EXPECT_EQ(Paragraph(0).spacingExact, 400);
    Accept([](frmTextParagraph& window) {
        EXPECT_EQ(window.txtSpacing.Text.Get(), u"20 pt");
        window.cboSpacing.SetListIndex(0);
    });
    EXPECT_EQ(Paragraph(0).spacingExact, 0);
    EXPECT_EQ(Paragraph(0).spacingPercent, 100);
}

TEST_F(ParagraphWindowTest, LeadsToTheTabs) {
    t.user.On<frmTextParagraph>([this](frmTextParagraph& window) {
        t.user.On<frmTextTabs>([](frmTextTabs& tabs) { tabs.Close(); });
        window.cmdTabs.Press();
        window.cmdCancel.Press();
    });
    control.ParagraphDialog();
    EXPECT_FALSE(control.DataChanged());
}

} // namespace
} // namespace korvane
