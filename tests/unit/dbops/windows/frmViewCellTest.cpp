#include "dbops/windows/frmViewCell.h"

#include "context/ports/FontPicker.h"
#include "support/HandlerFailure.h"
#include "unit/dbops/FakePorts.h"
#include "unit/dbops/TestTab.h"

#include <gtest/gtest.h>

#include <functional>

namespace korvane {
namespace {

constexpr int kCtrlAlt = Mask::Ctrl | Mask::Alt;
constexpr auto kAlteredCaption = u"   ( cell text has been altered )";

class ViewCell : public testing::Test {
protected:
    using Script = std::function<void(frmViewCell&)>;

    ViewCell() { t.Fill({{u"one", u"two"}, {u"first line\r\nsecond line\r\n", u"four"}}); }
    /// Opens the current cell; the script leaves the window.
    void Open(const Script& script) {
        t.user.On<frmViewCell>(script);
        mnuEdit_EditCell_Clack(t.tab);
    }
    /// Does the same, and leaves the window by the button that writes nothing back.
    void Look(const Script& script) {
        Open([&script](frmViewCell& f) {
            script(f);
            f.cmdExit.Press();
        });
    }
    static bool Press(frmViewCell& f, int code, int mask) {
        KeyEvent key{code, mask};
        f.txtCell.KeyDown(key);
        return key.consumed;
    }
    static void Select(frmViewCell& f, int start, int length) {
        f.txtCell.SelStart = start;
        f.txtCell.SelLength = length;
    }
    static std::vector<std::pair<std::string_view, Text>> MenuCaptions(const frmViewCell& f) {
        std::vector<std::pair<std::string_view, Text>> captions;
        for (const MenuEntry& entry : f.OfficeMenu1.Entries()) {
            if (entry.level == 1 && !entry.caption.empty()) captions.emplace_back(entry.name, entry.caption);
        }
        return captions;
    }

    TestTab t;
};

TEST_F(ViewCell, HasItsButtons) {
    Look([](frmViewCell& f) {
        EXPECT_EQ(f.cmdWriteBack.Caption.Get(), u"Write back changes");
        EXPECT_EQ(f.cmdOk.Caption.Get(), u"Just continue");
        EXPECT_EQ(f.cmdExit.Caption.Get(), u"Close this window");
        EXPECT_EQ(f.cmdClipboard.ToolTipText.Get(), u"Clipboard");
        EXPECT_EQ(f.cmdWordList.ToolTipText.Get(), u"Word list");
        EXPECT_EQ(f.cmdDateTime.ToolTipText.Get(), u"Insert date and/or time");
        EXPECT_EQ(f.cmdAsciiBox.ToolTipText.Get(), u"Table of Ascii characters");
        EXPECT_EQ(f.cmdElements.ToolTipText.Get(), u"Insert style element");
        EXPECT_EQ(f.cmdFonts.ToolTipText.Get(), u"Specify font for text box");
        EXPECT_EQ(f.cmdHTML.ToolTipText.Get(), u"Get HTML code");
    });
}

TEST_F(ViewCell, HasAMenuEntryForEachButton) {
    Look([](frmViewCell& f) {
        const std::vector<std::pair<std::string_view, Text>> expected{
            {"mnuWriteBack", u"&Write back changes"},
            {"mnuContinue", u"&Just continue"},
            {"mnuExit", u"E&xit"},
            {"mnuClipboard", u"Clip&board"},
            {"mnuWordList", u"&Wordlist"},
            {"mnuDateTime", u"&Insert date/time"},
            {"mnuAscii", u"&Ascii table"},
            {"mnuElements", u"St&yle elements"},
            {"mnuFont", u"Set fon&t"},
            {"mnuHTML", u"Get& HTML code"}};
        EXPECT_EQ(MenuCaptions(f), expected);
    });
}

// Opening.

TEST_F(ViewCell, ShowsTheCurrentCellWithTheKeyboardInItsBox) {
    t.GoTo(2, 2);
    Look([](frmViewCell& f) {
        EXPECT_EQ(f.txtCell.Text.Get(), u"four");
        EXPECT_EQ(f.txtCell.SelLength, 0);
        EXPECT_EQ(f.Focused(), &f.txtCell);
    });
}

TEST_F(ViewCell, TheFillingIsNoChange) {
    Look([](frmViewCell& f) { EXPECT_NE(f.Caption.Get(), kAlteredCaption); });
}

TEST_F(ViewCell, TheBoxTakesTheFontOfTheSettings) {
    t.app.Settings.ViewCellFontName = u"Courier New";
    t.app.Settings.ViewCellFontSize = 14;
    Look([](frmViewCell& f) { EXPECT_EQ(f.txtCell.Font.Get(), (FontSpec{u"Courier New", 14})); });
}

TEST_F(ViewCell, ComesUpWhereItWasClosed) {
    Look([](frmViewCell& f) {
        f.Left = Twips{100};
        f.Top = Twips{200};
        f.Width = Twips{6000};
        f.Height = Twips{5000};
    });
    EXPECT_EQ(t.app.Settings.ViewCellLeft, 100);
    EXPECT_EQ(t.app.Settings.ViewCellTop, 200);
    EXPECT_EQ(t.app.Settings.ViewCellWidth, 6000);
    EXPECT_EQ(t.app.Settings.ViewCellHeight, 5000);
    Look([](frmViewCell& f) {
        EXPECT_EQ(f.Left.Get(), Twips{100});
        EXPECT_EQ(f.Top.Get(), Twips{200});
        EXPECT_EQ(f.Width.Get(), Twips{6000});
        EXPECT_EQ(f.Height.Get(), Twips{5000});
    });
}

TEST_F(ViewCell, AFirstRunComesUpInsideTheWorkArea) {
    Look([this](frmViewCell& f) {
        EXPECT_EQ(f.Left.Get(), t.screen.WorkArea().left + 600);
        EXPECT_EQ(f.Top.Get(), t.screen.WorkArea().top + 600);
        EXPECT_EQ(f.Width.Get(), Twips{4800});
        EXPECT_EQ(f.Height.Get(), Twips{3200});
    });
}

TEST_F(ViewCell, EveryWayOfClosingKeepsThePlace) {
    const std::vector<Script> ways{[](frmViewCell& f) { f.cmdWriteBack.Press(); },
                                   [](frmViewCell& f) { f.cmdOk.Press(); },
                                   [](frmViewCell& f) { f.Close(); }};
    int left = 1000;
    for (const Script& way : ways) {
        left += 10;
        Open([&](frmViewCell& f) {
            f.Left = Twips{left};
            way(f);
        });
        EXPECT_EQ(t.app.Settings.ViewCellLeft, left);
    }
}

TEST_F(ViewCell, ASelectionStartSelectsTheLengthOfTheLastText) {
    CellExchange exchange{u"some words", 5};
    t.app.Settings.ViewCellText = u"abc";
    t.user.On<frmViewCell>([](frmViewCell& f) {
        EXPECT_EQ(f.txtCell.SelText(), u"wor");
        f.cmdExit.Press();
    });
    frmViewCell(t.app, exchange).ShowModal();
}

// Changes and the ways out.

TEST_F(ViewCell, TheFirstChangeShowsInTheCaption) {
    Look([](frmViewCell& f) {
        f.txtCell.Type(u"changed");
        EXPECT_EQ(f.Caption.Get(), kAlteredCaption);
        f.Caption = u"as set";
        f.txtCell.Type(u"changed again");
        EXPECT_EQ(f.Caption.Get(), u"as set");
    });
}

TEST_F(ViewCell, WritesBackTheText) {
    t.GoTo(1, 2);
    Open([this](frmViewCell& f) {
        f.txtCell.Type(u"new\r\ntext");
        t.GoTo(2, 1);
        f.cmdWriteBack.Press();
        EXPECT_EQ(t.app.DialogResult, 999);
    });
    EXPECT_EQ(t.Cell(1, 2), u"new\r\ntext");
    EXPECT_EQ(t.table.TableAltered, 1);
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(ViewCell, WritesBackAlsoWithoutAChange) {
    Open([](frmViewCell& f) { f.cmdWriteBack.Press(); });
    EXPECT_EQ(t.Cell(1, 1), u"one");
    EXPECT_EQ(t.table.TableAltered, 1);
}

TEST_F(ViewCell, ACellOfSeveralLinesComesBackUnchanged) {
    t.GoTo(2, 1);
    Open([](frmViewCell& f) {
        EXPECT_EQ(f.txtCell.Text.Get(), u"first line\r\nsecond line\r\n");
        f.cmdWriteBack.Press();
    });
    EXPECT_EQ(t.Cell(2, 1), u"first line\r\nsecond line\r\n");
}

TEST_F(ViewCell, JustContinueLeavesCellAndTable) {
    Open([this](frmViewCell& f) {
        f.txtCell.Type(u"lost");
        t.app.DialogResult = 5;
        f.cmdOk.Press();
        EXPECT_EQ(t.app.DialogResult, 0);
    });
    EXPECT_EQ(t.Cell(1, 1), u"one");
    EXPECT_EQ(t.table.TableAltered, 0);
}

// Kept for compatibility: cell-window-closes-unasked.
TEST_F(ViewCell, ClosesAfterChangesWithoutAQuestionAndWithoutWritingBack) {
    Look([](frmViewCell& f) { f.txtCell.Type(u"lost"); });
    EXPECT_EQ(t.Cell(1, 1), u"one");
    EXPECT_EQ(t.table.TableAltered, 0);
    EXPECT_TRUE(t.user.Messages().empty());
}

TEST_F(ViewCell, AnOlderResultWritesNothingBack) {
    t.app.DialogResult = 999;
    Look([](frmViewCell& f) { f.txtCell.Type(u"lost"); });
    EXPECT_EQ(t.Cell(1, 1), u"one");
}

TEST_F(ViewCell, RepaintsTheGridAndGivesItTheKeyboard) {
    const int before = t.watcher.refreshes;
    Look([](frmViewCell&) {});
    EXPECT_EQ(t.watcher.refreshes, before + 1);
    EXPECT_EQ(t.watcher.focusWanted, 1);
}

TEST_F(ViewCell, AnEmptyTableShowsAnEmptyText) {
    t.grid.SetRowCount(Row{0});
    Open([](frmViewCell& f) {
        EXPECT_EQ(f.txtCell.Text.Get(), u"");
        f.txtCell.Type(u"nowhere");
        f.cmdWriteBack.Press();
    });
    EXPECT_EQ(t.grid.RowCount(), Row{0});
}

// Keys.

TEST_F(ViewCell, EscWithAnyModifierContinuesWhileNothingIsAltered) {
    for (const int mask : {Mask::None, Mask::Shift, kCtrlAlt}) {
        Open([mask](frmViewCell& f) {
            EXPECT_TRUE(Press(f, Key::Escape, mask));
            EXPECT_FALSE(f.Shown());
        });
    }
}

// Kept for compatibility: esc-keeps-changed-cell.
TEST_F(ViewCell, EscAfterAChangeDoesNothing) {
    Look([](frmViewCell& f) {
        f.txtCell.Type(u"changed");
        EXPECT_TRUE(Press(f, Key::Escape, Mask::None));
        EXPECT_TRUE(f.Shown());
    });
}

TEST_F(ViewCell, TabWithAnyModifierIsTextInTheBox) {
    Look([](frmViewCell& f) {
        Select(f, 0, 2);
        EXPECT_TRUE(Press(f, Key::Tab, Mask::None));
        EXPECT_EQ(f.txtCell.Text.Get(), u"\te");
        EXPECT_TRUE(Press(f, Key::Tab, Mask::Shift));
        EXPECT_EQ(f.txtCell.Text.Get(), u"\t\te");
    });
}

TEST_F(ViewCell, OtherKeysPassTheBox) {
    Look([](frmViewCell& f) {
        EXPECT_FALSE(Press(f, 'V', Mask::Ctrl));
        EXPECT_FALSE(Press(f, 'L', Mask::Ctrl));
        EXPECT_FALSE(Press(f, 'K', kCtrlAlt));
        EXPECT_FALSE(Press(f, Key::Return, Mask::None));
        EXPECT_EQ(f.txtCell.Text.Get(), u"one");
    });
}

// Tools.

TEST_F(ViewCell, RetrievedClipboardTextReplacesTheSelection) {
    FakeClipboardView view(t.app);
    view.retrieves = true;
    t.clipboard.SetText(u"pasted");
    Look([](frmViewCell& f) {
        Select(f, 1, 1);
        f.cmdClipboard.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"opastede");
        EXPECT_EQ(f.txtCell.SelStart, 7);
        EXPECT_TRUE(Press(f, 'V', kCtrlAlt));
        f.OfficeMenu1.Choose("mnuClipboard");
        EXPECT_EQ(f.txtCell.Text.Get(), u"opastedpastedpastede");
        EXPECT_EQ(f.Caption.Get(), kAlteredCaption);
    });
    EXPECT_EQ(view.offered, 3);
}

TEST_F(ViewCell, LinesThatEndInLfAloneInTheClipboardEndInCrLfInTheCell) {
    FakeClipboardView view(t.app);
    view.retrieves = true;
    t.clipboard.SetText(u"a\nb\r\n");
    Look([](frmViewCell& f) {
        Select(f, 1, 1);
        f.cmdClipboard.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"oa\r\nb\r\ne");
    });
}

TEST_F(ViewCell, AClipboardThatIsNotRetrievedChangesNothing) {
    const FakeClipboardView view(t.app);
    t.clipboard.SetText(u"pasted");
    Look([](frmViewCell& f) {
        f.cmdClipboard.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"one");
    });
    EXPECT_EQ(view.offered, 1);
}

TEST_F(ViewCell, AWordOfTheListReplacesTheSelection) {
    FakeWordList list(t.app);
    Look([&list](frmViewCell& f) {
        f.cmdWordList.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"one");
        list.word = u"word";
        Select(f, 0, 3);
        f.cmdWordList.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"word");
        EXPECT_TRUE(Press(f, 'K', Mask::Ctrl));
        f.OfficeMenu1.Choose("mnuWordList");
        EXPECT_EQ(f.txtCell.Text.Get(), u"wordwordword");
    });
}

TEST_F(ViewCell, ADateReplacesTheSelection) {
    FakeInsertTools tools(t.app);
    Look([&tools](frmViewCell& f) {
        f.cmdDateTime.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"one");
        tools.dateTime = u"today";
        f.txtCell.SelectAll();
        f.cmdDateTime.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"today");
        f.OfficeMenu1.Choose("mnuDateTime");
        EXPECT_EQ(f.txtCell.Text.Get(), u"todaytoday");
    });
}

TEST_F(ViewCell, TheInsertToolsWriteIntoTheBox) {
    const FakeInsertTools tools(t.app);
    Look([](frmViewCell& f) {
        f.txtCell.SelectAll();
        f.cmdAsciiBox.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"<character>");
        f.txtCell.SelectAll();
        f.cmdElements.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"<element>");
        f.OfficeMenu1.Choose("mnuAscii");
        f.OfficeMenu1.Choose("mnuElements");
        EXPECT_EQ(f.txtCell.Text.Get(), u"<element><character><element>");
    });
}

TEST_F(ViewCell, TagsEncloseTheSelectionOfTheBox) {
    const FakeMarkupPicker picker(t.app);
    Look([](frmViewCell& f) {
        Select(f, 1, 1);
        f.cmdHTML.Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"o<B>n</B>e");
        f.txtCell.SelectAll();
        EXPECT_TRUE(Press(f, 'L', kCtrlAlt));
        EXPECT_EQ(f.txtCell.Text.Get(), u"<B>o<B>n</B>e</B>");
        f.OfficeMenu1.Choose("mnuHTML");
        EXPECT_EQ(f.txtCell.Text.Get(), u"<B>o<B>n</B>e</B><B></B>");
    });
}

TEST_F(ViewCell, TheChosenFontGoesToTheBoxAndTheSettings) {
    t.app.Settings.ViewCellFontName = u"Courier New";
    t.app.Settings.ViewCellFontSize = 14;
    FakeFontPicker picker(t.app);
    Look([&picker](frmViewCell& f) {
        f.cmdFonts.Press();
        EXPECT_EQ(picker.offered, (FontSpec{u"Courier New", 14}));
        EXPECT_EQ(f.txtCell.Font.Get(), (FontSpec{u"Courier New", 14}));
        picker.font = FontSpec{u"Arial", 10, true};
        f.OfficeMenu1.Choose("mnuFont");
        EXPECT_EQ(f.txtCell.Font.Get(), (FontSpec{u"Arial", 10}));
        EXPECT_NE(f.Caption.Get(), kAlteredCaption);
    });
    EXPECT_EQ(t.app.Settings.ViewCellFontName, u"Arial");
    EXPECT_EQ(t.app.Settings.ViewCellFontSize, 10);
}

TEST_F(ViewCell, ToolsThatAreNotThereChangeNothing) {
    t.app.SetPort<FontPicker>(nullptr);
    Look([](frmViewCell& f) {
        for (CommandButton* tool : {&f.cmdClipboard, &f.cmdWordList, &f.cmdDateTime, &f.cmdAsciiBox,
                                    &f.cmdElements, &f.cmdFonts, &f.cmdHTML})
            tool->Press();
        EXPECT_EQ(f.txtCell.Text.Get(), u"one");
    });
}

TEST_F(ViewCell, TheMenuHasTheWaysOutToo) {
    Open([](frmViewCell& f) {
        f.txtCell.Type(u"by menu");
        f.OfficeMenu1.Choose("mnuWriteBack");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.Cell(1, 1), u"by menu");
    for (const auto* const entry : {"mnuContinue", "mnuExit"}) {
        Open([entry](frmViewCell& f) {
            f.txtCell.Type(u"lost");
            f.OfficeMenu1.Choose(entry);
            EXPECT_FALSE(f.Shown());
        });
    }
    EXPECT_EQ(t.Cell(1, 1), u"by menu");
}

TEST_F(ViewCell, EscClosesItAlsoAfterAFailureWhileTheBoxWasFilled) {
    CellExchange exchange{u"text"};
    frmViewCell form(t.app, exchange);
    form.txtCell.Change = &FailInHandler;
    EXPECT_THROW(form.Load(), HandlerFailure);
    t.app.DialogResult = 5;
    EXPECT_TRUE(Press(form, Key::Escape, Mask::None));
    EXPECT_EQ(t.app.DialogResult, 0);
}

} // namespace
} // namespace korvane
