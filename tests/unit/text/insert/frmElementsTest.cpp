#include "text/insert/frmElements.h"

#include "unit/text/insert/InsertStage.h"

#include <memory>

namespace korvane {
namespace {

class ElementsTest : public InsertStage {
protected:
    frmElements& Open(InsertTarget* into) {
        window = std::make_unique<frmElements>(t.app, into);
        window->EnsureLoaded();
        return *window;
    }

    std::unique_ptr<frmElements> window;
};

TEST_F(ElementsTest, ListsTheCharactersOfTheCodePage) {
    Open(&target);
    EXPECT_EQ(window->Caption.Get(), u"Shapes & Symbols");
    EXPECT_EQ(window->lstShapes.ListCount(), 18);
    EXPECT_EQ(window->lstShapes.List(0), u"J");
    EXPECT_EQ(window->lstShapes.List(17), u"\u00FC");
    EXPECT_EQ(window->lstShapes.Font.Get().name, u"Wingdings");
    EXPECT_EQ(window->lstSymbols.ListCount(), 91);
    EXPECT_EQ(window->lstSymbols.List(0), u"\u2013");
    EXPECT_EQ(window->lstSymbols.List(90), u"\u00B5");
    EXPECT_EQ(window->lstSymbols.Font.Get().name, u"Cambria");
    for (const ListBox* sizes : {&window->lstShapeSize, &window->lstSymbolSize}) {
        EXPECT_EQ(sizes->ListCount(), 7);
        EXPECT_EQ(sizes->List(0), u"10");
        EXPECT_EQ(sizes->List(6), u"16");
        EXPECT_EQ(sizes->ListIndex(), 4);
    }
}

TEST_F(ElementsTest, AShapeComesInItsFontAndLeavesTheFontOfTheCursor) {
    Open(&target);
    window->lstShapes.Select(4);
    window->cmdAccept1.Press();
    EXPECT_EQ(control.All(), u"a\u00E0b");
    EXPECT_EQ(control.FontName(), u"Georgia");
    EXPECT_EQ(control.FontSize(), 11);
    control.Type(u"x");
    EXPECT_EQ(FontAt(1), (FontSpec{u"Wingdings", 14}));
    EXPECT_EQ(FontAt(2), (FontSpec{u"Georgia", 11}));
}

TEST_F(ElementsTest, TheSizeOfTheCursorIsKeptToTheHalfPoint) {
    control.SetFontHalfPoints(21);
    Open(&target);
    window->lstShapes.Select(4);
    window->cmdAccept1.Press();
    EXPECT_EQ(control.FontHalfPoints(), 21);
}

TEST_F(ElementsTest, ASymbolComesInTheSizeThatIsChosen) {
    Open(&target);
    window->lstSymbols.Select(1);
    window->lstSymbolSize.Select(6);
    window->cmdAccept2.Press();
    EXPECT_EQ(control.All(), u"a\u2014b");
    EXPECT_EQ(FontAt(1), (FontSpec{u"Cambria", 16}));
    EXPECT_EQ(Choices().SymbolSize, 16);
    EXPECT_EQ(Choices().SymbolSizeIndex, 6);
    EXPECT_EQ(Choices().ShapeSizeIndex, 4);
    EXPECT_EQ(Open(&target).lstSymbolSize.ListIndex(), 6);
}

TEST_F(ElementsTest, ASizeThatNothingWasWrittenInIsForgotten) {
    Open(&target).lstShapeSize.Select(0);
    window->Close();
    EXPECT_EQ(Open(&target).lstShapeSize.ListIndex(), 4);
}

TEST_F(ElementsTest, ACharacterIsOneStepToUndo) {
    Open(&target).cmdAccept1.Press();
    EXPECT_TRUE(control.Undo());
    EXPECT_EQ(control.All(), u"ab");
    EXPECT_EQ(control.FontName(), u"Georgia");
}

TEST_F(ElementsTest, WithoutTheFontTheListShowsWhatTheShapesMean) {
    t.fonts.Set({u"Arial"});
    Open(&target);
    EXPECT_EQ(window->lstShapes.Font.Get().name, u"");
    EXPECT_EQ(window->lstShapes.List(0), u"\u263A");
    EXPECT_EQ(window->lstShapes.List(4), u"\u2192");
    window->lstShapes.Select(4);
    window->cmdAccept1.Press();
    EXPECT_EQ(control.All(), u"a\u00E0b");
    EXPECT_EQ(FontAt(1).name, u"Wingdings");
}

TEST_F(ElementsTest, EveryShapeMeansSomething) {
    t.fonts.Set({});
    Open(&target);
    for (int row = 0; row < window->lstShapes.ListCount(); ++row)
        EXPECT_GT(window->lstShapes.List(row)[0], u'\u2000') << row;
}

TEST_F(ElementsTest, NothingHappensWithoutATarget) {
    Open(nullptr);
    EXPECT_FALSE(window->cmdAccept1.Enabled);
    EXPECT_FALSE(window->cmdAccept2.Enabled);
    window->lstShapeSize.Select(0);
    window->OfficeMenu1.Choose("mnuShape");
    window->OfficeMenu1.Choose("mnuSymbol");
    window->cmdAccept1.Press();
    window->cmdAccept2.Press();
    EXPECT_EQ(Choices().ShapeSizeIndex, 4);
}

TEST_F(ElementsTest, NothingHappensWithoutACharacter) {
    Open(&target);
    window->lstShapes.SetListIndex(-1);
    window->cmdAccept1.Press();
    EXPECT_EQ(control.All(), u"ab");
}

TEST_F(ElementsTest, APlainBoxKeepsItsFont) {
    Open(&boxTarget);
    window->cmdAccept1.Press();
    EXPECT_EQ(box.Text.Get(), u"aJb");
    EXPECT_EQ(box.Font.Get(), (FontSpec{u"Georgia", 11, true}));
}

TEST_F(ElementsTest, ReturnAndADoubleClickPutACharacterIn) {
    Open(&target);
    window->lstShapes.DoubleClick(1);
    window->lstSymbols.DoubleClick(0);
    EXPECT_EQ(control.All(), u"aK\u2013b");
    KeyEvent enter{Key::Return};
    window->lstSymbols.KeyDown(enter);
    EXPECT_EQ(control.All(), u"aK\u2013\u2013b");
}

TEST_F(ElementsTest, TheMenuDoesTheSame) {
    Open(&target);
    window->OfficeMenu1.Choose("mnuShape");
    window->OfficeMenu1.Choose("mnuSymbol");
    EXPECT_EQ(control.All(), u"aJ\u2013b");
}

TEST_F(ElementsTest, KeepsItsPlaceAndClosesWithEsc) {
    t.app.Settings.ElementsLeft = 1000;
    t.app.Settings.ElementsTop = 2000;
    t.app.Settings.ElementsWidth = 6000;
    t.app.Settings.ElementsHeight = 5000;
    t.user.On<frmElements>([](frmElements& shown) {
        EXPECT_EQ(shown.Left.Get(), Twips{1000});
        EXPECT_EQ(shown.Height.Get(), Twips{5000});
        shown.Left = Twips{1500};
        KeyEvent escape{Key::Escape};
        shown.KeyDown(escape);
    });
    frmElements(t.app, &target).ShowModal();
    EXPECT_EQ(t.app.Settings.ElementsLeft, 1500);
}

} // namespace
} // namespace korvane
