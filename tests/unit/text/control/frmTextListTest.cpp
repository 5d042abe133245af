#include "text/control/frmTextList.h"

#include "unit/text/control/ControlStage.h"

namespace korvane {
namespace {

class ListWindowTest : public ControlStage {
protected:
    template <class Script>
    void Accept(Script script) {
        t.user.On<frmTextList>([script](frmTextList& window) {
            script(window);
            window.cmdOK.Press();
        });
        control.ListAttrDialog();
    }
    void MakeList(doc::ListKind kind) {
        Accept([kind](frmTextList& window) { window.lstKind.SetListIndex(static_cast<int>(kind)); });
    }
};

TEST_F(ListWindowTest, ParagraphsBecomeAList) {
    control.SetSelection(0, 8);
    MakeList(doc::ListKind::Decimal);
    const doc::ParaFormat first = Paragraph(0);
    EXPECT_EQ(first.list.kind, doc::ListKind::Decimal);
    EXPECT_EQ(first.list.start, 1);
    EXPECT_NE(first.list.list, 0U);
    EXPECT_EQ(first.left, 360);
    EXPECT_EQ(first.first, -360);
    EXPECT_EQ(Paragraph(5), first);
    EXPECT_EQ(Paragraph(10).list.kind, doc::ListKind::None);
}

TEST_F(ListWindowTest, ALevelIsIndentedFurther) {
    Accept([](frmTextList& window) {
        window.lstKind.SetListIndex(3);
        window.cboLevel.SetListIndex(2);
        window.txtStart.Text = u"5";
    });
    EXPECT_EQ(Paragraph(0).list.kind, doc::ListKind::LowerLetter);
    EXPECT_EQ(Paragraph(0).list.level, 2);
    EXPECT_EQ(Paragraph(0).list.start, 5);
    EXPECT_EQ(Paragraph(0).left, 1080);
}

TEST_F(ListWindowTest, AListEndsAndItsIndentGoes) {
    MakeList(doc::ListKind::Bullet);
    MakeList(doc::ListKind::None);
    EXPECT_EQ(Paragraph(0), doc::ParaFormat{});
}

TEST_F(ListWindowTest, APlainParagraphKeepsItsIndent) {
    control.SetIndentL(700);
    control.SetDataChanged(false);
    MakeList(doc::ListKind::None);
    EXPECT_EQ(Paragraph(0).left, 700);
    EXPECT_FALSE(control.DataChanged());
}

TEST_F(ListWindowTest, AnotherListBeginsUnlessItContinuesTheOneBefore) {
    MakeList(doc::ListKind::Decimal);
    const std::uint32_t first = Paragraph(0).list.list;
    control.SetSelStart(5);
    Accept([](frmTextList& window) {
        EXPECT_TRUE(window.txtStart.Enabled == false);
        window.lstKind.SetListIndex(2);
        EXPECT_TRUE(window.chkContinue.Enabled);
        EXPECT_TRUE(window.txtStart.Enabled);
    });
    EXPECT_NE(Paragraph(5).list.list, first);
    control.SetSelStart(10);
    Accept([](frmTextList& window) {
        window.lstKind.SetListIndex(2);
        window.chkContinue.Press();
        EXPECT_FALSE(window.txtStart.Enabled);
    });
    EXPECT_EQ(Paragraph(10).list.list, Paragraph(5).list.list);
}

TEST_F(ListWindowTest, AListThatLooksOtherwiseStaysTheSameList) {
    MakeList(doc::ListKind::Decimal);
    const std::uint32_t list = Paragraph(0).list.list;
    MakeList(doc::ListKind::UpperRoman);
    EXPECT_EQ(Paragraph(0).list.list, list);
    EXPECT_EQ(Paragraph(0).list.kind, doc::ListKind::UpperRoman);
}

TEST_F(ListWindowTest, BulletsHaveNoNumberToStartAt) {
    Accept([](frmTextList& window) {
        EXPECT_FALSE(window.cboLevel.Enabled);
        window.lstKind.SetListIndex(1);
        EXPECT_TRUE(window.cboLevel.Enabled);
        EXPECT_FALSE(window.txtStart.Enabled);
        EXPECT_FALSE(window.chkContinue.Enabled);
    });
    EXPECT_EQ(Paragraph(0).list.kind, doc::ListKind::Bullet);
}

} // namespace
} // namespace korvane
