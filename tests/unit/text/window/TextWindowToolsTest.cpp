// The text window together with its real tools.

#include "text/find/FindWindow.h"
#include "text/find/frmFindString.h"
#include "text/formats/FontWindows.h"
#include "text/formats/frmQuickNameSize.h"
#include "text/insert/InsertWindows.h"
#include "text/insert/frmASCIIBox.h"
#include "text/insert/frmDateType.h"
#include "text/insert/frmElements.h"
#include "text/insert/frmSymbolTables.h"
#include "text/words/WordListWindow.h"
#include "text/words/frmHoldWordList.h"
#include "unit/text/window/TextWindowStage.h"

namespace korvane {
namespace {

class TextWindowTools : public TextWindowStage {
protected:
    TextWindowTools() {
        t.app.Settings.FindOptionB = 1;
        t.clock.Set({2026, 3, 4, 15, 7, 9});
        Open();
    }
    void Choose(const char* entry) { window->OfficeMenu1.Choose(entry); }
    /// What the user does in the next window of this kind, which is closed afterwards.
    template <class Window>
    void In(const std::function<void(Window&)>& act) {
        t.user.On<Window>([act](Window& shown) {
            act(shown);
            if (shown.Shown()) shown.Close();
        });
    }
    Text FontAt(int place) {
        Control().SetSelection(place, 1);
        return Control().FontName();
    }
    static void Return(frmFindString& f) {
        KeyEvent key{Key::Return};
        f.txtFindString.KeyDown(key);
    }

    FindWindow finder{t.app};
    FontWindows fonts{t.app};
    InsertWindows insert{t.app};
    WordListWindow words{t.app};
};

TEST_F(TextWindowTools, TheSearchGoesFromHitToHitInTheWindowsText) {
    Control().SetAll(u"one two one");
    Control().SetSelStart(0);
    window->TextAltered = 0;
    In<frmFindString>([this](frmFindString& f) {
        f.txtFindString.SetAll(u"one");
        Return(f);
        EXPECT_EQ(Control().SelStart(), 0);
        EXPECT_EQ(Control().SelText(), u"one");
        Return(f);
        EXPECT_EQ(Control().SelStart(), 8);
        f.optUp.Press();
        f.OfficeMenu1.Choose("mnuFind");
        EXPECT_EQ(Control().SelStart(), 0);
        f.chkWholeWord.Press();
        f.txtFindString.SetAll(u"two");
        Return(f);
        EXPECT_EQ(Control().SelText(), u"two");
    });
    window->cmdFind.Press();
    EXPECT_EQ(Control().SelText(), u"two");
    EXPECT_EQ(window->TextAltered, 0);
}

TEST_F(TextWindowTools, TheSearchTakesCharactersAndSymbolsIntoItsBox) {
    t.files.AddFile(u"C:\\Data\\Symbols.rtf", "{\\rtf1{\\fonttbl{\\f0 Georgia;}}\\f0 xyz}");
    t.app.Settings.SymbolListFile = u"C:\\Data\\Symbols.rtf";
    Control().SetAll(u"text");
    In<frmFindString>([this](frmFindString& f) {
        f.txtFindString.SetAll(u"ab");
        f.txtFindString.SetSelStart(1);
        In<frmASCIIBox>([](frmASCIIBox& table) {
            table.cboFont.Select(2);
            table.Grid1.DoubleClick(169);
        });
        f.OfficeMenu1.Choose("mnuCharacters");
        EXPECT_EQ(f.txtFindString.All(), u"a\u00A9b");
        In<frmSymbolTables>([](frmSymbolTables& symbols) {
            symbols.ThisTextCtrl.SetSelection(1, 1);
            symbols.OfficeMenu1.Choose("mnuInsertSymbol");
        });
        f.OfficeMenu1.Choose("mnuUnicode");
        EXPECT_EQ(f.txtFindString.All(), u"a\u00A9yb");
        f.txtFindString.SetSelection(1, 1);
        EXPECT_EQ(f.txtFindString.FontName(), u"Courier New");
        f.txtFindString.SetSelection(2, 1);
        EXPECT_EQ(f.txtFindString.FontName(), u"Georgia");
    });
    Choose("mnuFind");
    EXPECT_EQ(Control().All(), u"text");
}

TEST_F(TextWindowTools, TheSearchTakesWordsOfTheList) {
    t.app.Exchange<WordListState>().WordListBuffer = u"garden\r";
    In<frmFindString>([this](frmFindString& f) {
        In<frmHoldWordList>([](frmHoldWordList& list) { list.cmdOk.Press(); });
        KeyEvent key{'K', Mask::Ctrl};
        f.txtFindString.KeyDown(key);
        EXPECT_EQ(f.txtFindString.All(), u"garden");
    });
    Choose("mnuFind");
}

TEST_F(TextWindowTools, ASelectionIsCollectedAndNothingComesBackEvenIfItIsTaken) {
    SelectAll(u"one\r\ntwo");
    In<frmHoldWordList>([](frmHoldWordList& list) {
        EXPECT_EQ(list.lstWordList.Count(), 2);
        list.cmdOk.Press();
    });
    window->cmdWordList.Press();
    EXPECT_EQ(Control().SelText(), u"one\r\ntwo");
    EXPECT_EQ(window->Focused(), &Control());

    Control().SetSelStart(0);
    In<frmHoldWordList>([](frmHoldWordList& list) {
        list.lstWordList.SetCurrent(2);
        list.cmdOk.Press();
    });
    Choose("mnuWordList");
    EXPECT_EQ(Control().All(), u"twoone\r\ntwo");
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowTools, AnAcceptedDateTakesThePlaceOfTheSelection) {
    SelectAll(u"when");
    In<frmDateType>([](frmDateType& dates) { dates.cmdExit.Press(); });
    Choose("mnuDateInsert");
    EXPECT_EQ(Control().All(), u"when");
    EXPECT_EQ(Control().SelLength(), 4);
    EXPECT_EQ(window->Focused(), &Control());
    In<frmDateType>([](frmDateType& dates) {
        dates.lstDate.Select(6);
        dates.cmdAccept.Press();
    });
    Choose("mnuDateInsert");
    EXPECT_EQ(Control().All(), u"04.03.2026");
    EXPECT_EQ(window->Focused(), &Control());
}

TEST_F(TextWindowTools, CharactersAndShapesAreWrittenAtTheCursor) {
    SelectAll(u"abc");
    Control().SetFontName(u"Georgia");
    Control().SetSelection(1, 1);
    In<frmASCIIBox>([](frmASCIIBox& table) { table.Grid1.DoubleClick(65); });
    Choose("mnuCharacters");
    EXPECT_EQ(Control().All(), u"aAc");
    In<frmElements>([](frmElements& elements) { elements.cmdAccept1.Press(); });
    Choose("mnuSymbols");
    EXPECT_EQ(Control().All(), u"aAJc");
    EXPECT_EQ(FontAt(1), u"Arial");
    EXPECT_EQ(FontAt(2), u"Wingdings");
    EXPECT_EQ(FontAt(3), u"Georgia");
}

TEST_F(TextWindowTools, AFontIsChosenForTheSelection) {
    SelectAll(u"abc");
    In<frmQuickNameSize>([](frmQuickNameSize& dialog) {
        dialog.chkItalic.Press();
        dialog.chkStrikethru.Press();
        dialog.cmdApply.Press();
    });
    EXPECT_TRUE(Press('1', Mask::Ctrl));
    EXPECT_EQ(Control().FontItalic(), 1);
    EXPECT_EQ(Control().FontStrikethru(), 1);
    EXPECT_EQ(window->TextAltered, 1);
    EXPECT_EQ(window->Focused(), &Control());
}

} // namespace
} // namespace korvane
