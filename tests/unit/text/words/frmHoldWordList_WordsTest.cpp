#include "support/MenuEntries.h"
#include "unit/text/words/WordListStage.h"

#include <algorithm>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WordListWords : public WordListStage {};

// Looks.

TEST_F(WordListWords, HasItsMenu) {
    const frmHoldWordList f(t.app);
    Entries entries = EntriesOf(f.OfficeMenu1);
    std::erase_if(entries, [](const auto& entry) { return entry.second.empty(); });
    EXPECT_EQ(entries, (Entries{{"mnuInfo", u"&Info on word list"},
                                {"mnuLoad", u"&Open"},
                                {"mnuNew", u"&New list"},
                                {"mnuAppendToFile", u"Append items to &file"},
                                {"mnuSave", u"&Save"},
                                {"mnuAutoSave", u"&Autosave"},
                                {"mnuCancel", u"E&xit"},
                                {"mnuInsert", u"&Copy to text"},
                                {"mnuFindString", u"&Find string in text"},
                                {"mnuEdit", u"&Edit entry"},
                                {"mnuEntry", u"&Add entry"},
                                {"mnuDelete", u"&Delete entry"},
                                {"mnuSelectAll", u"Select a&ll"},
                                {"mnuClip", u"&To clipboard"},
                                {"mnuSort", u"So&rt"},
                                {"mnuArrowUp", u"Move item up    ( Alt-U )"},
                                {"mnuArrowDown", u"Move item down    ( Alt-D )"},
                                {"mnuPinsey", u"Load &Pinsey"},
                                {"mnuFont", u"&Font"},
                                {"mnuLorrit", u"File &Lorrit"},
                                {"mnuExplorer", u"&Windows Explorer"}}));
}

TEST_F(WordListWords, HasItsTips) {
    const frmHoldWordList f(t.app);
    const auto tip = [&f](std::string_view name) { return f.Find(name)->ToolTipText.Get(); };
    EXPECT_EQ(tip("cmdInfo"), u"Info on current list");
    EXPECT_EQ(tip("cmdLoad"), u"Open list from disk");
    EXPECT_EQ(tip("cmdNewList"), u"Start new list");
    EXPECT_EQ(tip("cmdAppendToFile"), u"Append selected items to list");
    EXPECT_EQ(tip("cmdSave"), u"Save list");
    EXPECT_EQ(tip("cmdAutoSave"), u"Autosave list on closing window");
    EXPECT_EQ(tip("cmdCancel"), u"Exit");
    EXPECT_EQ(tip("cmdOk"), u"Insert item(s)");
    EXPECT_EQ(tip("cmdFind"), u"Find string in current text");
    EXPECT_EQ(tip("cmdEdit"), u"Edit current entry");
    EXPECT_EQ(tip("cmdEntry"), u"Add entry to list");
    EXPECT_EQ(tip("cmdClear"), u"Delete item from list");
    EXPECT_EQ(tip("cmdSelectAll"), u"Select all");
    EXPECT_EQ(tip("cmdClip"), u"Item(s) to clipboard");
    EXPECT_EQ(tip("cmdSort"), u"Sort entries in list");
}

// Opening and closing.

TEST_F(WordListWords, ShowsEachWordOnceAndNoEmptyOnes) {
    Have({u"one", u"", u"  ", u"One", u"one", u" one"});
    EXPECT_THAT(Listed(), ElementsAre(u"one", u"One", u" one"));
}

TEST_F(WordListWords, NumbersTheRows) {
    Have({u"one", u"two", u"three"});
    Open([this](frmHoldWordList& f) {
        EXPECT_EQ(f.lstWordList.KeyAt(3), u"K_3");
        t.user.Answer(Answer::Yes);
        f.cmdClear.Press();
        EXPECT_EQ(f.lstWordList.KeyAt(1), u"K_1");
        EXPECT_EQ(f.lstWordList.KeyAt(2), u"K_2");
    });
}

TEST_F(WordListWords, CountsInItsCaption) {
    Open([](frmHoldWordList& f) { EXPECT_EQ(f.Caption.Get(), u"File: (not yet saved!)  | Items: 0"); });
    Have({u"one", u"two"});
    t.app.Settings.WordListFile = u"C:\\gone\\my.lst";
    Open([](frmHoldWordList& f) { EXPECT_EQ(f.Caption.Get(), u"File: my.lst  | Items: 2"); });
}

TEST_F(WordListWords, WhatTheUserMadeOfTheListIsThereAgainWithoutReadingTheFile) {
    HaveFile("one\r\ntwo\r\n");
    Open([this](frmHoldWordList& f) {
        Type(u"three", u"Enter string to put in list.");
        f.cmdEntry.Press();
        f.lstWordList.SetCurrent(2);
        f.OfficeMenu1.Choose("mnuArrowUp");
    });
    HaveFile("changed meanwhile\r\n");
    EXPECT_THAT(Listed(), ElementsAre(u"two", u"one", u"three"));
}

TEST_F(WordListWords, BeginsWithTheRowFromWhichWordsWereTakenLast) {
    Have({u"one", u"two", u"three"});
    const auto current = [this] {
        int row = 0;
        Open([&row](frmHoldWordList& f) { row = f.lstWordList.Current(); });
        return row;
    };
    EXPECT_EQ(current(), 1);
    Open([](frmHoldWordList& f) {
        f.lstWordList.SetCurrent(3);
        f.cmdOk.Press();
    });
    EXPECT_EQ(current(), 3);
    Open([](frmHoldWordList& f) { f.lstWordList.SetCurrent(2); });
    EXPECT_EQ(current(), 3);
    State().WordListBuffer = u"one\r";
    EXPECT_EQ(current(), 1);
}

TEST_F(WordListWords, TakesAStoredPlaceAndStoresIt) {
    Settings& settings = t.app.Settings;
    settings.WordListLeft = 700;
    settings.WordListTop = 800;
    settings.WordListWidth = 1201;
    settings.WordListHeight = 1601;
    Open([](frmHoldWordList& f) {
        EXPECT_EQ(f.Left.Get(), Twips{700});
        EXPECT_EQ(f.Height.Get(), Twips{1601});
        f.Top = Twips{900};
    });
    EXPECT_EQ(settings.WordListTop, 900);
    EXPECT_EQ(settings.WordListWidth, 1201);
}

TEST_F(WordListWords, IsCentredOnTheMainWindowWithoutAStoredPlace) {
    t.app.Settings.WordListLeft = 700;
    for (const auto& [width, height] : {std::pair{1200, 9000}, std::pair{9000, 1600}}) {
        t.app.Settings.WordListWidth = width;
        t.app.Settings.WordListHeight = height;
        Open([](frmHoldWordList& f) {
            EXPECT_EQ(f.Left.Get(), Twips{9000 + (10000 - f.Width.Get().Number()) / 2});
            EXPECT_EQ(f.Top.Get(), Twips{1000 + (9000 - f.Height.Get().Number()) / 2});
        });
    }
}

TEST_F(WordListWords, AFontThatIsChosenStays) {
    Open([this](frmHoldWordList& f) {
        t.user.ChooseFont(FontSpec{u"Courier", 14});
        f.OfficeMenu1.Choose("mnuFont");
        EXPECT_EQ(f.lstWordList.Font.Get(), (FontSpec{u"Courier", 14}));
        t.user.ChooseFont(std::nullopt);
        f.OfficeMenu1.Choose("mnuFont");
    });
    Open([](frmHoldWordList& f) { EXPECT_EQ(f.lstWordList.Font.Get(), (FontSpec{u"Courier", 14})); });
}

// Taking words.

TEST_F(WordListWords, OneWordIsTakenWithoutALineEndAndSeveralWith) {
    Have({u"one", u"two", u"three"});
    const auto taken = [this](const std::vector<int>& rows) {
        return Open([&rows](frmHoldWordList& f) {
            Pick(f, rows);
            f.cmdOk.Press();
        });
    };
    EXPECT_EQ(taken({2}), u"two");
    EXPECT_EQ(taken({3, 1}), u"one\r\nthree\r\n");
    EXPECT_EQ(taken({}), std::nullopt);
}

TEST_F(WordListWords, ADoubleClickTakesTheWord) {
    Have({u"one", u"two"});
    EXPECT_EQ(Open([](frmHoldWordList& f) { f.lstWordList.DoubleClick(2); }), u"two");
}

TEST_F(WordListWords, SelectedWordsGoToTheClipboard) {
    Have({u"one", u"two", u"three"});
    Open([this](frmHoldWordList& f) {
        f.cmdSelectAll.Press();
        EXPECT_EQ(f.lstWordList.SelectedCount(), 3);
        f.cmdClip.Press();
        EXPECT_EQ(t.clipboard.GetText(), u"one\r\ntwo\r\nthree");
        Pick(f, {});
        f.cmdClip.Press();
        EXPECT_EQ(t.clipboard.GetText(), u"one\r\ntwo\r\nthree");
    });
}

/// Kept for compatibility: word-list-pinsey-starts-dunmark.
TEST_F(WordListWords, PinseyStartsTheTextToolWithTheWordsInTheClipboard) {
    t.files.AddFile(kDunmark);
    t.clipboard.SetText(u"old");
    Have({u"one", u"two"});
    const Message question{u"Load Dunmark with 2 items in Windows clipboard ?", MessageIcon::Question,
                           MessageButtons::YesNoCancel};
    Open([&](frmHoldWordList& f) {
        f.cmdSelectAll.Press();
        t.user.Answer(question, Answer::Cancel);
        f.OfficeMenu1.Choose("mnuPinsey");
        EXPECT_THAT(t.shell.Starts(), IsEmpty());
        t.user.Answer(question, Answer::No);
        f.OfficeMenu1.Choose("mnuPinsey");
        EXPECT_EQ(t.clipboard.GetText(), u"old");
        t.user.Answer(question, Answer::Yes);
        f.OfficeMenu1.Choose("mnuPinsey");
        EXPECT_EQ(t.clipboard.GetText(), u"one\r\ntwo");
        Pick(f, {});
        f.OfficeMenu1.Choose("mnuPinsey");
    });
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{Text(kDunmark)}, ProgramStart{Text(kDunmark)}));
}

/// Kept for compatibility: word-list-finds-nothing.
TEST_F(WordListWords, FindingInTheTextNeverHits) {
    const Message question{u"\"two\"\r\n\r\nNo (further) find for: \r\n\r\nGoto beginning of text?",
                           MessageIcon::Question, MessageButtons::YesNo};
    Have({u"one", u"two"});
    Open([&](frmHoldWordList& f) {
        f.lstWordList.SetCurrent(2);
        for (const Answer answer : {Answer::Yes, Answer::No}) {
            t.user.Answer(question, answer);
            f.cmdFind.Press();
        }
    });
}

} // namespace
} // namespace korvane
