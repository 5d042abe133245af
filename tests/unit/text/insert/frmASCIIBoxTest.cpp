#include "text/insert/frmASCIIBox.h"

#include "testing/MemoryFonts.h"
#include "unit/text/insert/InsertStage.h"

#include <memory>

namespace korvane {
namespace {

class ASCIIBoxTest : public InsertStage {
protected:
    frmASCIIBox& Open(InsertTarget* into) {
        window = std::make_unique<frmASCIIBox>(t.app, into);
        window->EnsureLoaded();
        return *window;
    }

    std::unique_ptr<frmASCIIBox> window;
};

TEST_F(ASCIIBoxTest, ShowsAllCharactersOfTheCodePage) {
    Open(&target);
    EXPECT_EQ(window->Caption.Get(), u"Insert symbols / characters");
    const auto& tiles = window->Grid1.Items.Get();
    ASSERT_EQ(tiles.size(), 256U);
    EXPECT_EQ(tiles[65].text, u"A");
    EXPECT_EQ(tiles[128].text, u"\u20AC");
    EXPECT_EQ(tiles[255].text, u"\u00FF");
    EXPECT_EQ(tiles[9].text, u"");
    EXPECT_EQ(tiles[127].text, u"");
    EXPECT_EQ(tiles[129].text, u"");
    EXPECT_EQ(tiles[160].text, u"\u00A0");
    EXPECT_EQ(tiles[65].spoken, u"A Alt+65 ");
}

TEST_F(ASCIIBoxTest, HasItsCaptions) {
    const frmASCIIBox f(t.app, &target);
    EXPECT_EQ(f.cmdInsert.Caption.Get(), u"&Insert");
    EXPECT_EQ(f.cmdMakeDefault.Caption.Get(), u"&Make default");
}

TEST_F(ASCIIBoxTest, TheLabelTellsTheKeysOfTheCellUnderTheMouse) {
    Open(&target);
    window->Grid1.PointAt(65);
    EXPECT_EQ(window->lblKeyStroke.Caption.Get(), u" Alt+65 ");
    window->Grid1.PointAt(126);
    EXPECT_EQ(window->lblKeyStroke.Caption.Get(), u" Alt+126 ");
    window->Grid1.PointAt(127);
    EXPECT_EQ(window->lblKeyStroke.Caption.Get(), u" Alt+0127 ");
    window->Grid1.PointAt(169);
    EXPECT_EQ(window->lblKeyStroke.Caption.Get(), u" Alt+0169 ");
}

TEST_F(ASCIIBoxTest, TheLabelFollowsTheKeyboardToo) {
    Open(&target).Grid1.Select(66);
    EXPECT_EQ(window->lblKeyStroke.Caption.Get(), u" Alt+66 ");
}

TEST_F(ASCIIBoxTest, ACharacterComesInItsFontWhichStays) {
    Open(&target);
    window->cboFont.Select(2);
    EXPECT_EQ(window->Grid1.Font.Get().name, u"Courier New");
    window->Grid1.Select(169);
    window->cmdInsert.Press();
    EXPECT_EQ(control.All(), u"a\u00A9b");
    EXPECT_EQ(control.FontName(), u"Courier New");
    EXPECT_EQ(FontAt(1), (FontSpec{u"Courier New", 11}));
}

TEST_F(ASCIIBoxTest, APlainBoxTakesTheFontAsAWhole) {
    Open(&boxTarget).Grid1.DoubleClick(65);
    EXPECT_EQ(box.Text.Get(), u"aAb");
    EXPECT_EQ(box.Font.Get(), (FontSpec{u"Arial", 11, true}));
}

TEST_F(ASCIIBoxTest, ReturnPutsTheCharacterIn) {
    Open(&target).Grid1.Select(65);
    KeyEvent enter{Key::Return};
    window->Grid1.KeyDown(enter);
    EXPECT_TRUE(enter.consumed);
    EXPECT_EQ(control.All(), u"aAb");
}

TEST_F(ASCIIBoxTest, TheCharacter0IsNotPutIn) {
    Open(&target);
    EXPECT_EQ(window->Grid1.Current(), 0);
    window->cmdInsert.Press();
    EXPECT_EQ(control.All(), u"ab");
}

TEST_F(ASCIIBoxTest, NothingHappensWithoutATarget) {
    Open(nullptr);
    EXPECT_FALSE(window->cmdInsert.Enabled);
    window->Grid1.DoubleClick(65);
    KeyEvent enter{Key::Return};
    window->Grid1.KeyDown(enter);
    EXPECT_EQ(control.All(), u"ab");
}

TEST_F(ASCIIBoxTest, TheCellIsKept) {
    Open(&target).Grid1.Select(200);
    window->Close();
    EXPECT_EQ(Choices().AsciiRow, 12);
    EXPECT_EQ(Choices().AsciiCol, 8);
    EXPECT_EQ(Open(&target).Grid1.Current(), 200);
}

TEST_F(ASCIIBoxTest, TheDefaultFontIsAnotherOneWhenAsked) {
    EXPECT_EQ(Open(&target).cboFont.Chosen(), u"Arial");
    window->cboFont.Select(1);
    window->Close();
    EXPECT_EQ(Open(&target).cboFont.Chosen(), u"Arial");
    window->cboFont.Select(1);
    window->cmdMakeDefault.Press();
    EXPECT_EQ(Choices().AsciiFontName, u"Cambria");
    EXPECT_EQ(Open(&target).cboFont.Chosen(), u"Cambria");
}

TEST_F(ASCIIBoxTest, TheTableIsInTheFontThatIsChosen) {
    Choices().AsciiFontName = u"Cambria";
    EXPECT_EQ(Open(&target).Grid1.Font.Get(), (FontSpec{u"Cambria"}));
    for (int row = 0; row < window->cboFont.ListCount(); ++row) {
        window->cboFont.Select(row);
        EXPECT_EQ(window->Grid1.Font.Get().name, window->cboFont.List(row));
    }
}

TEST_F(ASCIIBoxTest, ACharacterTakesThePlaceOfTheSelection) {
    control.SetSelection(0, -1);
    Open(&target).Grid1.DoubleClick(65);
    EXPECT_EQ(control.All(), u"A");
}

TEST_F(ASCIIBoxTest, AFontThatIsGoneIsStillTheDefault) {
    t.fonts.Set({u"DejaVu Sans"});
    Open(&target);
    EXPECT_EQ(window->cboFont.Chosen(), u"Arial");
    EXPECT_EQ(window->cboFont.ListCount(), 2);
    window->Grid1.DoubleClick(65);
    EXPECT_EQ(FontAt(1).name, u"Arial");
}

TEST_F(ASCIIBoxTest, KeepsItsPlaceAndClosesWithEsc) {
    t.app.Settings.AsciiLeft = 1000;
    t.app.Settings.AsciiTop = 2000;
    t.app.Settings.AsciiWidth = 8000;
    t.app.Settings.AsciiHeight = 7000;
    t.user.On<frmASCIIBox>([](frmASCIIBox& shown) {
        EXPECT_EQ(shown.Left.Get(), Twips{1000});
        EXPECT_EQ(shown.Top.Get(), Twips{2000});
        EXPECT_EQ(shown.Width.Get(), Twips{8000});
        EXPECT_EQ(shown.Height.Get(), Twips{7000});
        shown.Left = Twips{800};
        shown.Top = Twips{900};
        shown.Width = Twips{8100};
        shown.Height = Twips{7100};
        KeyEvent escape{Key::Escape};
        shown.KeyDown(escape);
    });
    frmASCIIBox(t.app, &target).ShowModal();
    EXPECT_EQ(t.app.Settings.AsciiLeft, 800);
    EXPECT_EQ(t.app.Settings.AsciiTop, 900);
    EXPECT_EQ(t.app.Settings.AsciiWidth, 8100);
    EXPECT_EQ(t.app.Settings.AsciiHeight, 7100);
}

} // namespace
} // namespace korvane
