#include "text/insert/frmElements.h"

#include "testing/MemoryFonts.h"
#include "unit/text/insert/InsertStage.h"

#include <memory>
#include <span>

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

TEST_F(ElementsTest, EachRowPutsItsCharacterIn) {
    // The codes of the code page, in the order of the rows.
    static constexpr unsigned char kShapes[] = {74,  75,  76,  223, 224, 225, 226, 239, 240,
                                                241, 242, 199, 196, 228, 230, 229, 227, 252};
    static constexpr unsigned char kSymbols[] = {
        150, 151, 149, 183, 145, 146, 139, 155, 171, 187, 147, 148, 188, 189, 190, 167, 169, 163, 165,
        177, 134, 196, 228, 214, 246, 220, 252, 223, 140, 156, 205, 237, 201, 233, 193, 225, 211, 243,
        218, 250, 221, 253, 204, 236, 200, 232, 192, 224, 210, 242, 217, 249, 206, 238, 202, 234, 194,
        226, 212, 244, 219, 251, 195, 227, 213, 245, 207, 239, 203, 235, 159, 255, 197, 229, 216, 248,
        198, 230, 199, 231, 209, 241, 138, 154, 208, 240, 222, 254, 161, 191, 181};
    Open(&target);
    const auto check = [this](std::span<const unsigned char> codes, ListBox& list, CommandButton& accept,
                              const Text& font) {
        ASSERT_EQ(list.ListCount(), static_cast<int>(codes.size()));
        for (int row = 0; row < list.ListCount(); ++row) {
            const Text character(1, t.app.Page().Decode(codes[static_cast<std::size_t>(row)]));
            EXPECT_EQ(list.List(row), character);
            control.SetSelection(0, -1);
            list.Select(row);
            accept.Press();
            EXPECT_EQ(control.All(), character) << row;
            EXPECT_EQ(FontAt(0), (FontSpec{font, 14})) << row;
        }
    };
    check(kShapes, window->lstShapes, window->cmdAccept1, u"Wingdings");
    check(kSymbols, window->lstSymbols, window->cmdAccept2, u"Cambria");
}

TEST_F(ElementsTest, EachSizeCanBeChosenOnBothSides) {
    Open(&target);
    for (int row = 0; row < 7; ++row) {
        const auto size = static_cast<std::int16_t>(10 + row);
        window->lstShapeSize.Select(row);
        window->lstSymbolSize.Select(row);
        control.SetSelection(0, -1);
        window->cmdAccept1.Press();
        EXPECT_EQ(FontAt(0), (FontSpec{u"Wingdings", size}));
        control.SetSelection(0, -1);
        window->cmdAccept2.Press();
        EXPECT_EQ(FontAt(0), (FontSpec{u"Cambria", size}));
        EXPECT_EQ(Choices().ShapeSize, size);
        EXPECT_EQ(Choices().SymbolSize, size);
        EXPECT_EQ(Choices().ShapeSizeIndex, row);
        EXPECT_EQ(Choices().SymbolSizeIndex, row);
    }
}

TEST_F(ElementsTest, ACharacterTakesThePlaceOfTheSelection) {
    control.SetSelection(0, -1);
    Open(&target).cmdAccept1.Press();
    EXPECT_EQ(control.All(), u"J");
    EXPECT_EQ(control.FontName(), u"Georgia");
    EXPECT_EQ(control.FontSize(), 11);
    box.SelStart = 0;
    box.SelLength = 2;
    Open(&boxTarget).cmdAccept2.Press();
    EXPECT_EQ(box.Text.Get(), u"\u2013");
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

TEST_F(ElementsTest, HasItsCaptions) {
    const frmElements f(t.app, &target);
    EXPECT_EQ(f.cmdAccept1.Caption.Get(), u"Insert shape (left window)");
    EXPECT_EQ(f.cmdAccept2.Caption.Get(), u"Insert symbol (right window)");
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
        EXPECT_EQ(shown.Top.Get(), Twips{2000});
        EXPECT_EQ(shown.Width.Get(), Twips{6000});
        EXPECT_EQ(shown.Height.Get(), Twips{5000});
        shown.Left = Twips{1500};
        shown.Top = Twips{1600};
        shown.Width = Twips{6100};
        shown.Height = Twips{5100};
        KeyEvent escape{Key::Escape};
        shown.KeyDown(escape);
    });
    frmElements(t.app, &target).ShowModal();
    EXPECT_EQ(t.app.Settings.ElementsLeft, 1500);
    EXPECT_EQ(t.app.Settings.ElementsTop, 1600);
    EXPECT_EQ(t.app.Settings.ElementsWidth, 6100);
    EXPECT_EQ(t.app.Settings.ElementsHeight, 5100);
}

} // namespace
} // namespace korvane
