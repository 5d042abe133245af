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

TEST_F(WordListWords, AMenuEntryPressesItsButton) {
    static constexpr std::pair<const char*, CommandButton frmHoldWordList::*> kRows[] = {
        {"mnuInfo", &frmHoldWordList::cmdInfo},
        {"mnuLoad", &frmHoldWordList::cmdLoad},
        {"mnuNew", &frmHoldWordList::cmdNewList},
        {"mnuAppendToFile", &frmHoldWordList::cmdAppendToFile},
        {"mnuSave", &frmHoldWordList::cmdSave},
        {"mnuAutoSave", &frmHoldWordList::cmdAutoSave},
        {"mnuCancel", &frmHoldWordList::cmdCancel},
        {"mnuInsert", &frmHoldWordList::cmdOk},
        {"mnuFindString", &frmHoldWordList::cmdFind},
        {"mnuEdit", &frmHoldWordList::cmdEdit},
        {"mnuEntry", &frmHoldWordList::cmdEntry},
        {"mnuDelete", &frmHoldWordList::cmdClear},
        {"mnuSelectAll", &frmHoldWordList::cmdSelectAll},
        {"mnuClip", &frmHoldWordList::cmdClip},
        {"mnuSort", &frmHoldWordList::cmdSort},
    };
    frmHoldWordList f(t.app);
    std::string pressed;
    for (const auto& [entry, button] : kRows)
        (f.*button).Click = [&pressed, entry = entry] { pressed += entry; };
    for (const auto& [entry, button] : kRows) {
        pressed.clear();
        f.OfficeMenu1.Choose(entry);
        EXPECT_EQ(pressed, entry);
    }
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

TEST_F(WordListWords, BeginsWithTheKeyboardInTheList) {
    Have({u"one"});
    Open([](frmHoldWordList& f) { EXPECT_EQ(f.Focused(), &f.lstWordList); });
}

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

// Changing the list.

TEST_F(WordListWords, ANewWordComesToTheEndAndIsCurrent) {
    Have({u"one"});
    Open([this](frmHoldWordList& f) {
        Type(u"One", u"Enter string to put in list.");
        f.cmdEntry.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"One"));
        EXPECT_EQ(f.lstWordList.Current(), 2);
        EXPECT_EQ(f.Caption.Get(), u"File: (not yet saved!)  | Items: 2");
        for (const auto& nothing : {std::optional<Text>(), std::optional<Text>(u"  ")}) {
            Type(nothing, u"Enter string to put in list.");
            f.cmdEntry.Press();
        }
        EXPECT_EQ(f.lstWordList.Count(), 2);
    });
}

/// Kept for compatibility: word-list-known-word-first.
TEST_F(WordListWords, AWordThatIsThereIsntAdded) {
    Have({u"one", u"two"});
    Open([this](frmHoldWordList& f) {
        Type(u"two", u"Enter string to put in list.");
        t.user.Answer({u"\"two\"\r\n\r\nString already in list: ", MessageIcon::Information}, Answer::Ok);
        f.cmdEntry.Press();
        EXPECT_EQ(f.lstWordList.Count(), 2);
    });
}

TEST_F(WordListWords, KnowsTheWordsAfterEveryChange) {
    Have({u"one", u"two", u"three"});
    Open([this](frmHoldWordList& f) {
        const auto isThere = [&](const Text& word) {
            const int count = f.lstWordList.Count();
            Type(word, u"Enter string to put in list.");
            const std::size_t boxes = t.user.Messages().size();
            t.user.Answer(Answer::Ok);
            f.cmdEntry.Press();
            return f.lstWordList.Count() == count && t.user.Messages().size() > boxes;
        };
        EXPECT_TRUE(isThere(u"one"));
        f.lstWordList.SetCurrent(1);
        Type(u"four", u"Edit text line as required.", u"one");
        f.cmdEdit.Press();
        EXPECT_TRUE(isThere(u"four"));
        f.lstWordList.SetCurrent(1);
        f.OfficeMenu1.Choose("mnuArrowDown");
        EXPECT_TRUE(isThere(u"two"));
        EXPECT_TRUE(isThere(u"four"));
        t.user.Answer(Answer::Yes);
        f.cmdSort.Press();
        EXPECT_TRUE(isThere(u"three"));
        t.user.Answer(Answer::Yes);
        f.cmdClear.Press();
        Type(u"four", u"Enter string to put in list.");
        f.cmdEntry.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"three", u"two", u"four"));
    });
}

TEST_F(WordListWords, AnEntryIsEdited) {
    Have({u"one", u"two"});
    Open([this](frmHoldWordList& f) {
        f.lstWordList.SetCurrent(2);
        Type(std::nullopt, u"Edit text line as required.", u"two");
        f.cmdEdit.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"two"));
        Type(u"one", u"Edit text line as required.", u"two");
        f.cmdEdit.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"one"));
    });
    EXPECT_THAT(Listed(), ElementsAre(u"one"));
}

TEST_F(WordListWords, AnEntryThatIsEditedToNothingIsGoneAtTheNextOpening) {
    Have({u"one", u"two"});
    Open([this](frmHoldWordList& f) {
        Type(u"", u"Edit text line as required.", u"one");
        f.cmdEdit.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"", u"two"));
    });
    EXPECT_THAT(Listed(), ElementsAre(u"two"));
}

TEST_F(WordListWords, SelectedEntriesAreDeletedAfterAQuestion) {
    Have({u"one", u"two", u"three", u"four"});
    const Message question{u"Delete 2 items from list ?", MessageIcon::Question, MessageButtons::YesNo, 2};
    Open([&](frmHoldWordList& f) {
        Pick(f, {2, 3});
        t.user.Answer(question, Answer::No);
        f.cmdClear.Press();
        EXPECT_EQ(f.lstWordList.Count(), 4);
        t.user.Answer(question, Answer::Yes);
        f.cmdClear.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"four"));
        EXPECT_EQ(f.lstWordList.Current(), 2);
        EXPECT_EQ(State().WordListBuffer, u"one\rfour\r");
        EXPECT_EQ(f.Caption.Get(), u"File: (not yet saved!)  | Items: 2");
        Pick(f, {});
        f.cmdClear.Press();
        f.cmdSelectAll.Press();
        t.user.Answer(Answer::Yes);
        f.cmdClear.Press();
        EXPECT_THAT(WordsIn(f), IsEmpty());
    });
}

TEST_F(WordListWords, EntriesAreSortedWithTheirDuplicates) {
    Have({u"pear", u"Apple", u"apple", u"fig"});
    Open([this](frmHoldWordList& f) {
        f.lstWordList.SetCurrent(4);
        Type(u"pear", u"Edit text line as required.", u"fig");
        f.cmdEdit.Press();
        const Message question{u"Sort list now?", MessageIcon::Question, MessageButtons::YesNo};
        t.user.Answer(question, Answer::No);
        f.cmdSort.Press();
        EXPECT_EQ(WordsIn(f).front(), u"pear");
        t.user.Answer(question, Answer::Yes);
        f.cmdSort.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"Apple", u"apple", u"pear", u"pear"));
        EXPECT_EQ(f.lstWordList.KeyAt(4), u"K_4");
    });
}

TEST_F(WordListWords, AnEntryMovesAndTheSelectionFollows) {
    Have({u"one", u"two", u"three"});
    Open([](frmHoldWordList& f) {
        const auto& rows = f.lstWordList;
        f.OfficeMenu1.Choose("mnuArrowUp");
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"two", u"three"));
        f.OfficeMenu1.Choose("mnuArrowDown");
        f.OfficeMenu1.Choose("mnuArrowDown");
        f.OfficeMenu1.Choose("mnuArrowDown");
        EXPECT_THAT(WordsIn(f), ElementsAre(u"two", u"three", u"one"));
        EXPECT_EQ(rows.Current(), 3);
        f.OfficeMenu1.Choose("mnuArrowUp");
        EXPECT_THAT(WordsIn(f), ElementsAre(u"two", u"one", u"three"));
        EXPECT_THAT(rows.SelectedRows(), ElementsAre(2));
    });
}

TEST_F(WordListWords, OfSeveralSelectedEntriesTheCurrentOneMoves) {
    Have({u"one", u"two", u"three"});
    Open([](frmHoldWordList& f) {
        f.lstWordList.SetCurrent(3);
        f.lstWordList.SetSelected(1, true);
        f.OfficeMenu1.Choose("mnuArrowUp");
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u"three", u"two"));
        EXPECT_THAT(f.lstWordList.SelectedRows(), ElementsAre(2));
    });
}

TEST_F(WordListWords, AnEmptyListTakesEveryCommand) {
    Open([this](frmHoldWordList& f) {
        for (const char* entry : {"mnuAppendToFile", "mnuSave", "mnuEdit", "mnuDelete", "mnuSelectAll",
                                  "mnuClip", "mnuArrowUp", "mnuArrowDown", "mnuPinsey"})
            f.OfficeMenu1.Choose(entry);
        t.user.Answer(Answer::Yes);
        f.cmdSort.Press();
        EXPECT_EQ(f.lstWordList.Count(), 0);
    });
    EXPECT_THAT(dialog.requests, IsEmpty());
}

TEST_F(WordListWords, HoldsManyEntriesAndLongOnes) {
    const Text large(1'000'000, u'x');
    Text& buffer = State().WordListBuffer;
    for (std::size_t entry = 0; entry < 40'000; ++entry)
        buffer += u"entry " + Text(entry % 40, u'n') + FromAscii(std::to_string(entry)) + u"\r";
    buffer += large + u"\r" + large + u"\r";
    EXPECT_EQ(Open([](frmHoldWordList& f) {
                  EXPECT_EQ(f.lstWordList.Count(), 40'001);
                  f.lstWordList.SetCurrent(40'001);
                  f.cmdOk.Press();
              }),
              large);
    Open([](frmHoldWordList& f) { EXPECT_EQ(f.lstWordList.Current(), 40'001); });
}

} // namespace
} // namespace korvane
