#include "context/exchange/ListerRequest.h"
#include "unit/text/words/WordListStage.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WordListFile : public WordListStage {
protected:
    /// Shows the box of a read that failed and answers it.
    void ExpectUnread(const Text& file) {
        t.user.Answer({u"Can't open file: " + file, MessageIcon::Exclamation}, Answer::Ok);
    }
    /// The last box tells that the file can't be written.
    bool UnwrittenTold(TextView file) const {
        return t.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n" + Text(file));
    }
};

// Reading.

/// Kept for compatibility: word-list-drops-comments.
TEST_F(WordListFile, ReadsTheFileWithoutCommentsAndEmptyLinesAndSavesItSo) {
    HaveFile("; my words\r\none\r\n\r\n two \r\n;off\r\n ; no comment\r\none\r\n");
    dialog.answer = kFile;
    Open([](frmHoldWordList& f) {
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one", u" two ", u" ; no comment", u"one"));
        EXPECT_EQ(f.Caption.Get(), u"File: words.lst  | Items: 4");
        f.cmdSave.Press();
    });
    EXPECT_EQ(Written(Text(kFile)), "one\r\n two \r\n ; no comment\r\none\r\n");
}

TEST_F(WordListFile, TheFileIsReadAtTheFirstOpeningAlone) {
    HaveFile("one\r\n");
    Open();
    HaveFile("two\r\n");
    EXPECT_THAT(Listed(), ElementsAre(u"one"));
}

TEST_F(WordListFile, TheFirstReadingTakesThePlaceOfWhatWasCollected) {
    HaveFile("one\r\n");
    Have({u"collected"});
    EXPECT_THAT(Listed(), ElementsAre(u"one"));
}

TEST_F(WordListFile, WithoutAFileWhatWasCollectedIsThere) {
    t.app.Settings.WordListFile = u"C:\\Korvane\\gone.lst";
    Have({u"collected"});
    EXPECT_THAT(Listed(), ElementsAre(u"collected"));
}

TEST_F(WordListFile, AFileThatIsNamedAfterTheFirstOpeningIsNotRead) {
    Open();
    EXPECT_EQ(State().WordListLoaded, 1);
    HaveFile("one\r\n");
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(WordListFile, AFileThatCannotBeReadLeavesTheListAlone) {
    HaveFile("one\r\n");
    Have({u"collected"});
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    ExpectUnread(Text(kFile));
    EXPECT_THAT(Listed(), ElementsAre(u"collected"));
}

TEST_F(WordListFile, ABinaryFileIsNoList) {
    HaveFile(std::string_view("MZ\0\1", 4));
    ExpectUnread(Text(kFile));
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(WordListFile, AutosaveTellsOfWordsThatItLeavesUnsaved) {
    HaveFile("one\r\n");
    Have({u"collected"});
    State().WordListAutoSave = 1;
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    ExpectUnread(Text(kFile));
    Open([this](frmHoldWordList&) { ExpectUnread(Text(kFile)); });
    EXPECT_EQ(Written(Text(kFile)), "one\r\n");
}

TEST_F(WordListFile, AutosaveLeavesAFileThatCouldNotBeRead) {
    const std::string_view program("MZ\0\1", 4);
    HaveFile(program);
    State().WordListAutoSave = 1;
    ExpectUnread(Text(kFile));
    Open();
    Open();
    EXPECT_EQ(Written(Text(kFile)), program);
    dialog.answer = kFile;
    Have({u"one"});
    Open([](frmHoldWordList& f) { f.cmdSave.Press(); });
    EXPECT_EQ(Written(Text(kFile)), "one\r\n");
}

TEST_F(WordListFile, ReadsManyLinesAndOnesOfAMegabyte) {
    std::string bytes;
    for (int line = 0; line < 20'000; ++line)
        bytes += "entry " + std::to_string(line) + "\r\n";
    const std::string large(1'000'000, 'x');
    bytes += large + "\r\n" + large;
    HaveFile(bytes);
    const auto words = Listed();
    ASSERT_THAT(words, testing::SizeIs(20'002));
    EXPECT_EQ(words[19'999], u"entry 19999");
    EXPECT_EQ(words[20'001].size(), large.size());
}

TEST_F(WordListFile, AFileThatIsFarTooLargeIsNotRead) {
    HaveFile(std::string(64'000'001, 'x'));
    ExpectUnread(Text(kFile));
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(WordListFile, AnEmptyFileIsAnEmptyList) {
    HaveFile("");
    Have({u"collected"});
    EXPECT_THAT(Listed(), IsEmpty());
}

// Opening another list.

TEST_F(WordListFile, AnotherListIsOpenedWithTheChooser) {
    t.files.AddFile(u"C:\\Korvane\\other.txt", "three\r\n");
    Open([this](frmHoldWordList& f) {
        t.user.ChooseFile(u"C:\\Korvane\\other.txt");
        f.cmdLoad.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"three"));
        EXPECT_EQ(f.Caption.Get(), u"File: other.txt  | Items: 1");
        t.user.CancelChooser();
        f.cmdLoad.Press();
    });
    EXPECT_EQ(t.user.Requests().front().FileDialogFilter, u"*.lst;*.txt;*.asc");
    EXPECT_EQ(t.user.Requests().front().FileDialogCaption, u"");
    EXPECT_EQ(t.app.Settings.WordListFile, u"C:\\Korvane\\other.txt");
    EXPECT_EQ(State().WordListBuffer, u"three\r");
}

/// Kept for compatibility: word-list-names-file-first.
TEST_F(WordListFile, TheNameIsTakenBeforeTheQuestionAndNoClearsAsYesDoes) {
    const Message question{u"Clear existing list of 2 items before loading new list from disk?",
                           MessageIcon::Question, MessageButtons::YesNoCancel, 2};
    for (const Answer answer : {Answer::Cancel, Answer::Yes, Answer::No}) {
        t.files.AddFile(u"C:\\Korvane\\other.lst", "three\r\n");
        t.app.Settings.WordListFile.clear();
        State().WordListBuffer = u"one\rtwo\r";
        Open([&](frmHoldWordList& f) {
            t.user.ChooseFile(u"C:\\Korvane\\other.lst");
            t.user.Answer(question, answer);
            f.cmdLoad.Press();
            EXPECT_EQ(f.lstWordList.Count(), answer == Answer::Cancel ? 2 : 1);
        });
        EXPECT_EQ(t.app.Settings.WordListFile, u"C:\\Korvane\\other.lst");
    }
}

TEST_F(WordListFile, TheChooserLeavesTheDirectoryAsItWas) {
    t.files.AddDir(u"C:\\Else");
    t.files.AddFile(u"C:\\Else\\other.lst", "three\r\n");
    const Text before = t.files.CurrentDir();
    Open([this](frmHoldWordList& f) {
        t.user.OnChooser([this](ListerRequest& request) {
            t.files.ChangeDir(u"C:\\Else");
            request.ChosenFilePath = u"C:\\Else\\other.lst";
        });
        f.cmdLoad.Press();
    });
    EXPECT_EQ(t.files.CurrentDir(), before);
}

TEST_F(WordListFile, AListThatIsntThereLeavesTheWordsAndIsTheFileOfTheNextSave) {
    Have({u"one"});
    Open([this](frmHoldWordList& f) {
        t.user.ChooseFile(u"C:\\Korvane\\gone.lst");
        t.user.Answer(Answer::Yes);
        f.cmdLoad.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one"));
        f.cmdSave.Press();
    });
    EXPECT_EQ(t.app.Settings.WordListFile, u"C:\\Korvane\\gone.lst");
    EXPECT_EQ(dialog.requests.back().name, u"gone.lst");
}

TEST_F(WordListFile, AnotherListThatCannotBeReadLeavesTheWords) {
    Have({u"one"});
    t.files.AddFile(u"C:\\Korvane\\other.lst", std::string_view("\0", 1));
    Open([this](frmHoldWordList& f) {
        t.user.ChooseFile(u"C:\\Korvane\\other.lst");
        t.user.Answer(Answer::Yes);
        ExpectUnread(u"C:\\Korvane\\other.lst");
        f.cmdLoad.Press();
        EXPECT_THAT(WordsIn(f), ElementsAre(u"one"));
    });
}

// Saving.

TEST_F(WordListFile, SavesUnderAName) {
    Have({u"one", u"\u2018two\u2019"});
    main.folder = u"C:\\Data";
    t.app.Settings.WordListFile = u"C:\\Korvane\\old.lst";
    t.files.AddDir(u"C:\\Else");
    const Text before = t.files.CurrentDir();
    dialog.whileOpen = [this] { t.files.ChangeDir(u"C:\\Else"); };
    Open([this](frmHoldWordList& f) {
        f.cmdSave.Press();
        EXPECT_EQ(t.app.Settings.WordListFile, u"C:\\Korvane\\old.lst");
        dialog.answer = kFile;
        f.cmdSave.Press();
        EXPECT_EQ(f.Caption.Get(), u"File: words.lst  | Items: 2");
    });
    EXPECT_EQ(dialog.requests.front(),
              (SystemFileDialog::Request{SystemFileDialog::Purpose::Save,
                                         u"List files (*.lst)|*.lst|All files (*.*)|*.*",
                                         u"Save Word List As",
                                         u"old.lst",
                                         {},
                                         u"C:\\Data"}));
    EXPECT_EQ(Written(Text(kFile)), "one\r\n\x91two\x92\r\n");
    EXPECT_EQ(t.files.CurrentDir(), before);
}

TEST_F(WordListFile, AFailedSaveIsTold) {
    Have({u"one"});
    t.files.AddFile(kFile, "old\r\n");
    t.files.SetFileReadOnly(kFile);
    dialog.answer = kFile;
    Open([this](frmHoldWordList& f) {
        t.user.AnswerAfter([] {}, Answer::Ok);
        f.cmdSave.Press();
        EXPECT_EQ(f.Caption.Get(), u"File: (not yet saved!)  | Items: 1");
    });
    EXPECT_TRUE(UnwrittenTold(kFile));
    EXPECT_EQ(Written(Text(kFile)), "old\r\n");
}

TEST_F(WordListFile, AutosaveIsAskedForWithItsPresentValue) {
    const auto question = [](const Text& value) {
        return Message{u"Automatically save word list on closing window ?\r\n\r\nCurrent value: " + value,
                       MessageIcon::Question, MessageButtons::YesNo};
    };
    Open([&](frmHoldWordList& f) {
        t.user.Answer(question(u"NO"), Answer::No);
        f.cmdAutoSave.Press();
        t.user.Answer(question(u"NO"), Answer::Yes);
        f.cmdAutoSave.Press();
        EXPECT_EQ(State().WordListAutoSave, 1);
        t.user.Answer(question(u"YES"), Answer::No);
        f.cmdAutoSave.Press();
    });
    EXPECT_EQ(State().WordListAutoSave, 0);
}

TEST_F(WordListFile, AutosaveWritesAtEveryClosing) {
    HaveFile("one\r\n");
    State().WordListAutoSave = 1;
    Open([this](frmHoldWordList& f) {
        Type(u"two", u"Enter string to put in list.");
        f.cmdEntry.Press();
    });
    EXPECT_EQ(Written(Text(kFile)), "one\r\ntwo\r\n");
    Open([](frmHoldWordList& f) { f.cmdOk.Press(); });
    EXPECT_EQ(Written(Text(kFile)), "one\r\ntwo\r\n");
}

TEST_F(WordListFile, AutosaveWritesAnEmptyListToo) {
    HaveFile("one\r\n");
    State().WordListAutoSave = 1;
    Open([this](frmHoldWordList& f) {
        t.user.Answer(Answer::Yes);
        f.cmdClear.Press();
    });
    EXPECT_EQ(Written(Text(kFile)), "");
}

TEST_F(WordListFile, AutosaveWithoutAFileTellsThatItFailed) {
    for (const std::vector<Text>& words : {std::vector<Text>{u"one"}, std::vector<Text>{}}) {
        State().WordListBuffer.clear();
        Have(words);
        State().WordListAutoSave = 1;
        t.user.On<frmHoldWordList>([this](frmHoldWordList& f) {
            t.user.Answer(Answer::Ok);
            f.cmdCancel.Press();
        });
        EXPECT_EQ(list.Choose(), std::nullopt);
        EXPECT_TRUE(UnwrittenTold(u"( no name specified or name is empty ! )"));
    }
}

// A new list.

TEST_F(WordListFile, ANewListAsksForTheOldOne) {
    HaveFile("one\r\n");
    const Message question{u"C:\\Korvane\\words.lst\r\n\r\nSave current list before starting a new one?",
                           MessageIcon::Question, MessageButtons::YesNoCancel};
    Open([&](frmHoldWordList& f) {
        t.user.Answer(question, Answer::Cancel);
        f.cmdNewList.Press();
        EXPECT_EQ(f.lstWordList.Count(), 1);
        // The user gives up saving, and nothing of the list is lost.
        t.user.Answer(question, Answer::Yes);
        f.cmdNewList.Press();
        EXPECT_EQ(f.lstWordList.Count(), 1);
        dialog.answer = u"C:\\Korvane\\kept.lst";
        t.user.Answer(question, Answer::Yes);
        f.cmdNewList.Press();
        EXPECT_EQ(f.Caption.Get(), u"File: New_WordList.lst  | Items: 0");
    });
    EXPECT_EQ(Written(u"C:\\Korvane\\kept.lst"), "one\r\n");
    EXPECT_EQ(t.app.Settings.WordListFile, u"New_WordList.lst");
    EXPECT_THAT(Listed(), IsEmpty());
}

TEST_F(WordListFile, ANewListDropsTheOldOneOnNo) {
    HaveFile("one\r\n");
    Open([this](frmHoldWordList& f) {
        t.user.Answer(Answer::No);
        f.cmdNewList.Press();
        EXPECT_EQ(f.lstWordList.Count(), 0);
    });
    EXPECT_EQ(Written(Text(kFile)), "one\r\n");
}

TEST_F(WordListFile, ANewListDoesntAskWithoutAFileOrWords) {
    Have({u"one"});
    Open([](frmHoldWordList& f) {
        f.cmdNewList.Press();
        EXPECT_EQ(f.lstWordList.Count(), 0);
        f.cmdNewList.Press();
    });
}

TEST_F(WordListFile, AutosaveWritesANewListInTheCurrentDirectory) {
    State().WordListAutoSave = 1;
    t.files.ChangeDir(u"C:\\Korvane");
    Open([this](frmHoldWordList& f) {
        f.cmdNewList.Press();
        Type(u"two", u"Enter string to put in list.");
        f.cmdEntry.Press();
    });
    EXPECT_EQ(Written(u"C:\\Korvane\\New_WordList.lst"), "two\r\n");
}

TEST_F(WordListFile, WithoutAFileTheCommandsForItsFolderTakeTheCurrentOne) {
    const Text lorrit = u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe";
    t.files.AddFile(lorrit);
    t.files.ChangeDir(u"C:\\Korvane");
    Open([this](frmHoldWordList& f) {
        t.user.Answer(
            {u"Current \"Word List\" file:\r\nFile:  \r\nFolder:  \r\nItem total:  0\r\nSelected:  0",
             MessageIcon::Information},
            Answer::Ok);
        f.cmdInfo.Press();
        f.OfficeMenu1.Choose("mnuExplorer");
        f.OfficeMenu1.Choose("mnuLorrit");
    });
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, u"C:\\Korvane"}));
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{lorrit}));
}

TEST_F(WordListFile, ACancelLeavesTheDirectoryAsItWas) {
    Have({u"one"});
    t.files.AddDir(u"C:\\Else");
    t.files.AddFile(u"C:\\Else\\other.lst", "three\r\n");
    const Text before = t.files.CurrentDir();
    const auto leave = [this] { t.files.ChangeDir(u"C:\\Else"); };
    dialog.whileOpen = leave;
    Open([&](frmHoldWordList& f) {
        const auto cancel = [&](CommandButton frmHoldWordList::*button) {
            (f.*button).Press();
            EXPECT_EQ(t.files.CurrentDir(), before);
        };
        cancel(&frmHoldWordList::cmdSave);
        cancel(&frmHoldWordList::cmdAppendToFile);
        dialog.answer = u"C:\\Else\\other.lst";
        t.user.Answer(Answer::Cancel);
        cancel(&frmHoldWordList::cmdAppendToFile);
        t.user.OnChooser([&](ListerRequest& request) {
            leave();
            request.ChosenFilePath = u"C:\\Else\\other.lst";
        });
        t.user.Answer(Answer::Cancel);
        cancel(&frmHoldWordList::cmdLoad);
        t.user.OnChooser([&](ListerRequest&) { leave(); });
        cancel(&frmHoldWordList::cmdLoad);
    });
}

TEST_F(WordListFile, TellsOfItsFile) {
    HaveFile("one\r\ntwo\r\nthree\r\n");
    Open([this](frmHoldWordList& f) {
        Pick(f, {1, 3});
        t.user.Answer({u"Current \"Word List\" file:\r\nFile:  words.lst\r\nFolder:  C:\\Korvane\r\n"
                       u"Item total:  3\r\nSelected:  2",
                       MessageIcon::Information},
                      Answer::Ok);
        f.cmdInfo.Press();
    });
}

// Appending to another file.

class AppendWords : public WordListFile {
protected:
    AppendWords() { Have({u"one", u"two", u"three"}); }

    /// Appends the first and the last word with this answer.
    void Append(const Text& path, Answer answer) {
        dialog.answer = path;
        Open([&](frmHoldWordList& f) {
            Pick(f, {1, 3});
            t.user.Answer({u"Append items to beginning (= YES) or end (= NO) of file?", MessageIcon::Question,
                           MessageButtons::YesNoCancel},
                          answer);
            if (answer != Answer::Cancel) t.user.Answer(Answer::Ok);
            f.cmdAppendToFile.Press();
        });
    }
};

TEST_F(AppendWords, GoToTheBeginningOrTheEndOfTheFile) {
    const Text path = u"C:\\Korvane\\notes.txt";
    t.files.AddFile(path, "old\r\n");
    Append(path, Answer::Yes);
    EXPECT_EQ(Written(path), "one\r\nthree\r\nold\r\n");
    EXPECT_EQ(
        t.user.Messages().back(),
        (Message{u"2 items appended to beginning of this file: \r\n\r\n" + path, MessageIcon::Information}));
    Append(path, Answer::No);
    EXPECT_EQ(Written(path), "one\r\nthree\r\nold\r\none\r\nthree\r\n");
    EXPECT_EQ(t.user.Messages().back().text, u"2 items appended to end of this file: \r\n\r\n" + path);
    Append(path, Answer::Cancel);
    EXPECT_EQ(Written(path), "one\r\nthree\r\nold\r\none\r\nthree\r\n");
    EXPECT_EQ(dialog.requests.front(),
              (SystemFileDialog::Request{SystemFileDialog::Purpose::Open,
                                         u"List files (*.lst)|*.lst|All files (*.*)|*.*",
                                         u"Get file to append selected items to"}));
}

TEST_F(AppendWords, AFormattedFileKeepsItsFormat) {
    const Text path = u"C:\\Korvane\\notes.rtf";
    t.files.AddFile(path, "{\\rtf1 {\\b bold}\\par}");
    Append(path, Answer::No);
    EXPECT_THAT(Written(path), testing::StartsWith("{\\rtf1"));
    EXPECT_THAT(Written(path), testing::HasSubstr("\\b"));
    EXPECT_THAT(Written(path), testing::HasSubstr("three"));
}

TEST_F(AppendWords, AFileThatCannotBeReadIsTold) {
    dialog.answer = u"C:\\Korvane\\gone.txt";
    Open([this](frmHoldWordList& f) {
        ExpectUnread(u"C:\\Korvane\\gone.txt");
        f.cmdAppendToFile.Press();
        dialog.answer.reset();
        f.cmdAppendToFile.Press();
    });
}

TEST_F(AppendWords, AFileThatCannotBeWrittenIsTold) {
    const Text path = u"C:\\Korvane\\notes.txt";
    t.files.AddFile(path, "old\r\n");
    t.files.SetDiskReadOnly();
    Append(path, Answer::No);
    EXPECT_TRUE(UnwrittenTold(path));
    t.files.SetDiskReadOnly(false);
    EXPECT_EQ(Written(path), "old\r\n");
}

TEST_F(AppendWords, WithoutASelectionNothingIsAppended) {
    const Text path = u"C:\\Korvane\\notes.txt";
    t.files.AddFile(path, "old\r\n");
    dialog.answer = path;
    Open([&](frmHoldWordList& f) {
        Pick(f, {});
        t.user.Answer(Answer::No);
        t.user.Answer({u"0 items appended to end of this file: \r\n\r\n" + path, MessageIcon::Information},
                      Answer::Ok);
        f.cmdAppendToFile.Press();
    });
    EXPECT_EQ(Written(path), "old\r\n");
}

TEST_F(AppendWords, TheDirectoryStays) {
    const Text path = u"C:\\Korvane\\notes.txt";
    t.files.AddFile(path, "old\r\n");
    t.files.AddDir(u"C:\\Else");
    const Text before = t.files.CurrentDir();
    dialog.whileOpen = [this] { t.files.ChangeDir(u"C:\\Else"); };
    Append(path, Answer::Yes);
    EXPECT_EQ(t.files.CurrentDir(), before);
}

} // namespace
} // namespace korvane
