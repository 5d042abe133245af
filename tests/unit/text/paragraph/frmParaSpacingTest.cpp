#include "text/paragraph/frmParaSpacing.h"

#include "support/DesignerFile.h"
#include "unit/text/paragraph/ParagraphStage.h"

namespace korvane {
namespace {

class ParaSpacingTest : public ParagraphStage {
protected:
    ParaSpacingTest() { window.EnsureLoaded(); }

    frmParaSpacing window{t.app};
};

TEST_F(ParaSpacingTest, HasItsCaptions) {
    EXPECT_EQ(window.Caption.Get(), u"Paragraph spacing");
    ExpectLook(window, "text/paragraph", {"Before", "After"});
    EXPECT_EQ(CaptionsOf(window),
              (std::vector<Text>{u"&Single line spacing", u"&Accept", u"&Remove all spacing"}));
}

TEST_F(ParaSpacingTest, ListsTheSpacings) {
    for (const ListBox* const list : {&window.lstSpacingTop, &window.lstSpacingBottom}) {
        EXPECT_EQ(RowsOf(*list),
                  (std::vector<Text>{u"  0.0", u"  0.5", u"  1.0", u"  1.5", u"  2.0", u"  2.5", u"  3.0",
                                     u"  4.0", u"  5.0", u"  6.0", u"  7.0", u"  8.0"}));
        EXPECT_EQ(list->Font.Get().name, u"Courier New");
    }
}

TEST_F(ParaSpacingTest, AcceptSetsFiftyTwipsForEachPart) {
    window.lstSpacingTop.Select(1);
    window.lstSpacingBottom.Select(11);
    window.cmdOk.Press();
    EXPECT_EQ(control.IndentT(), 25);
    EXPECT_EQ(control.IndentB(), 400);
    control.SetSelStart(5);
    EXPECT_EQ(control.IndentB(), 0);
    window.EnsureLoaded();
    EXPECT_EQ(window.lstSpacingTop.ListIndex(), 1);
    EXPECT_EQ(window.lstSpacingBottom.ListIndex(), 11);
}

TEST_F(ParaSpacingTest, SpacingIsRemovedWithThatOfTheLinesIfTheBoxSaysSo) {
    control.SetIndentT(100);
    control.SetIndentB(200);
    control.SetLineSpacing(150);
    window.cmdRemoveSpacing.Press();
    EXPECT_EQ(control.IndentT(), 0);
    EXPECT_EQ(control.IndentB(), 0);
    EXPECT_EQ(control.LineSpacing(), 150);
    window.chkSingleLineSpacing.Press();
    window.cmdRemoveSpacing.Press();
    EXPECT_EQ(control.LineSpacing(), 100);
    window.Close();
    EXPECT_EQ(t.app.Exchange<ParagraphChoices>().SingleSpacingOnRemove, 1);
}

TEST_F(ParaSpacingTest, KeepsItsPlaceAndChangesNothingWithoutTheTextWindow) {
    t.app.SetPort<OpenText>(nullptr);
    window.lstSpacingTop.Select(4);
    window.Left = Twips{300};
    window.cmdOk.Press();
    EXPECT_EQ(control.IndentT(), 0);
    EXPECT_EQ(t.app.Settings.ParaSpacingLeft, 300);
    EXPECT_EQ(t.app.Exchange<ParagraphChoices>().ParaSpaceBefore, 2);
}

} // namespace
} // namespace korvane
