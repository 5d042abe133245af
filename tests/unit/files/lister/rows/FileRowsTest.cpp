#include "files/lister/rows/FileRows.h"

#include "context/exchange/ListerRequest.h"
#include "grid/Grid.h"
#include "testing/MemoryFileTypes.h"
#include "unit/files/lister/ListerFixture.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileRowsTest : public ListerFixture {
protected:
    /// The window's first reading.
    static constexpr int kMany = 1001;

    static Message Warning(const Text& text) { return {text, MessageIcon::Exclamation}; }
    /// The user goes to another folder as soon as the reading allows it.
    void ExpectAnotherFolderTakesOver() {
        OpenOnly([this](frmGetFileFromTree& f) {
            t.screen.QueueMessage([&] { f.TreeView1.Select(At(u"Data")); });
            f.Activate();
            EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
            EXPECT_TRUE(f.ListView1.Visible);
            EXPECT_FALSE(f.cmdEscape.Visible);
            f.cmdCancel.Press();
        });
    }
};
KORVANE_IN_BOTH_STYLES(FileRowsTest);

TEST_P(FileRowsTest, HaveNameSizeAndDate) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx"));
        EXPECT_THAT(Column(f, 2), ElementsAre("1,234", "2"));
        EXPECT_THAT(Column(f, 3), ElementsAre("03/14/2026  15:09", "12/31/2025  08:05"));
        EXPECT_EQ(f.ListView1.KeyAt(1), u"K_ 1");
        EXPECT_EQ(f.ListView1.KeyAt(2), u"K_ 2");
    });
}

TEST_P(FileRowsTest, HaveThePictureOfTheirType) {
    t.fileTypes.SetType(u".txt", {u"Text", u"fileText"});
    Open([this](frmGetFileFromTree& f) {
        EXPECT_EQ(f.ListView1.IconAt(1), u"fileText");
        EXPECT_EQ(f.ListView1.IconAt(2), u"fileOther");
        EXPECT_EQ(t.fileTypes.Preparations(), 1);
        f.OfficeMenu1.Choose("mnuFile_Refresh");
        EXPECT_EQ(t.fileTypes.Preparations(), 2);
    });
}

TEST_P(FileRowsTest, ThereAreNoneWithoutPictures) {
    t.fileTypes.SetHasImages(false);
    Await(Warning(u"Cannot initialise image list!"), Answer::Ok);
    Open([](frmGetFileFromTree& f) { EXPECT_THAT(Names(f), IsEmpty()); });
}

TEST_P(FileRowsTest, AreThoseThatMatchThePatterns) {
    request.FileDialogFilter = u"*.tbx;*.xls";
    Open([](frmGetFileFromTree& f) { EXPECT_THAT(Names(f), ElementsAre("b.tbx")); });
}

TEST_P(FileRowsTest, TheFirstIsTheCurrentOneAndTheListHasTheKeyboard) {
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.ListView1.Current(), 1);
        EXPECT_THAT(Marked(f), ElementsAre("a.txt"));
        EXPECT_EQ(f.Focused(), &f.ListView1);
    });
}

TEST_P(FileRowsTest, TheRowThatTheListBeginsWithIsNoNameToSave) {
    request.FileDialogDefaultName = u"New.tbx";
    OpenToSave([](frmGetFileFromTree& f) { EXPECT_EQ(f.txtFileName.Text.Get(), u"New.tbx"); });
}

TEST_P(FileRowsTest, AnEmptyFolderHasNothingToSelect) {
    t.files.AddDir(At(u"Empty"));
    t.files.ChangeDir(At(u"Empty"));
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.ListView1.Count(), 0);
        EXPECT_EQ(f.ListView1.Current(), 0);
        EXPECT_FALSE(f.ProgressBar1.Visible);
        EXPECT_FALSE(f.cmdEscape.Visible);
    });
}

TEST_P(FileRowsTest, AFileThatHasGoneHasItsNameAlone) {
    t.files.AddLink(At(u"Data/c.lost"), At(u"nowhere"));
    Open([](frmGetFileFromTree& f) {
        EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx", "c.lost"));
        EXPECT_EQ(f.ListView1.TextAt(3, 2), u"");
        EXPECT_EQ(f.ListView1.TextAt(3, 3), u"");
        EXPECT_EQ(f.ListView1.IconAt(3), u"");
    });
}

TEST_P(FileRowsTest, APipeIsListedAndNotOpened) {
    t.files.AddPipe(At(u"Data/pipe"));
    Open([](frmGetFileFromTree& f) { EXPECT_THAT(Names(f), ElementsAre("a.txt", "b.tbx", "pipe")); });
}

// The reading of many files.

TEST_P(FileRowsTest, AThousandFilesAreReadAtOnce) {
    AddFiles(kMany - 1);
    t.screen.QueueMessage([] { ADD_FAILURE() << "messages ran during a short reading"; });
    Open([](frmGetFileFromTree& f) {
        EXPECT_EQ(f.ListView1.Count(), kMany - 1);
        EXPECT_FALSE(f.ProgressBar1.Visible);
    });
}

TEST_P(FileRowsTest, OneMoreIsAJobThatIsSeen) {
    AddFiles(kMany);
    OpenOnly([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([&f] {
            EXPECT_TRUE(f.ProgressBar1.Visible);
            EXPECT_EQ(f.ProgressBar1.Max.Get(), kMany - 1);
            EXPECT_TRUE(f.cmdEscape.Visible);
            EXPECT_EQ(f.Focused(), &f.cmdEscape);
            EXPECT_FALSE(f.ListView1.Visible);
        });
        f.Activate();
        EXPECT_EQ(f.ListView1.Count(), kMany);
        EXPECT_TRUE(f.ListView1.Visible);
        EXPECT_FALSE(f.ProgressBar1.Visible);
        EXPECT_FALSE(f.cmdEscape.Visible);
        EXPECT_EQ(f.ProgressBar1.Value.Get(), kMany - 1);
        EXPECT_EQ(f.Focused(), &f.ListView1);
        f.cmdCancel.Press();
    });
}

// Kept for compatibility: bar-skips-every-32nd.
TEST_P(FileRowsTest, TheBarStandsStillAtEveryThirtySecondFile) {
    AddFiles(kMany);
    std::vector<int> values;
    OpenOnly([&](frmGetFileFromTree& f) {
        for (int turn = 0; turn < 70; ++turn)
            t.screen.QueueMessage([&] { values.push_back(f.ProgressBar1.Value); });
        f.Activate();
        f.cmdCancel.Press();
    });
    // Each value is seen before the file of the next index is read.
    EXPECT_THAT(std::vector<int>(values.begin(), values.begin() + 4), ElementsAre(0, 0, 1, 2));
    EXPECT_THAT(std::vector<int>(values.begin() + 32, values.begin() + 35), ElementsAre(31, 31, 33));
    EXPECT_THAT(std::vector<int>(values.begin() + 64, values.begin() + 67), ElementsAre(63, 63, 65));
}

TEST_P(FileRowsTest, AfterTheLastFileTheBarIsAtItsEndAlsoWhereItStoodStill) {
    constexpr int kLastStandsStill = 1025;
    AddFiles(kLastStandsStill);
    Open([](frmGetFileFromTree& f) { EXPECT_EQ(f.ProgressBar1.Value.Get(), kLastStandsStill - 1); });
}

TEST_P(FileRowsTest, AStopKeepsWhatIsReadAndTellsHowMuch) {
    AddFiles(1500);
    constexpr int kButton = 0;
    for (const int key : {kButton, Key::Space, Key::Escape}) {
        Await(Warning(u"Only 3 of the 1,500 files in this directory were read."), Answer::Ok);
        OpenOnly([this, key](frmGetFileFromTree& f) {
            t.screen.QueueMessage([] {});
            t.screen.QueueMessage([] {});
            t.screen.QueueMessage([&f, key] {
                if (key == kButton) return f.cmdEscape.Press();
                EXPECT_TRUE(Press(f.cmdEscape, key));
            });
            f.Activate();
            EXPECT_THAT(Names(f), ElementsAre("10001.txt", "10002.txt", "10003.txt"));
            EXPECT_EQ(f.ListView1.Current(), 1);
            f.cmdCancel.Press();
        });
    }
}

TEST_P(FileRowsTest, TheReadingOfTheNamesIsSeenAndCanBeStoppedToo) {
    AddFiles(3500);
    Await(Warning(u"Only 1 of the 2,000 files in this directory were read."), Answer::Ok);
    OpenOnly([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([&f] {
            EXPECT_TRUE(f.ProgressBar1.Visible);
            EXPECT_FALSE(f.ListView1.Visible);
            EXPECT_EQ(f.Focused(), &f.cmdEscape);
            f.cmdEscape.Press();
        });
        f.Activate();
        EXPECT_THAT(Names(f), ElementsAre("10001.txt"));
        EXPECT_TRUE(f.ListView1.Visible);
        EXPECT_FALSE(f.cmdEscape.Visible);
        f.cmdCancel.Press();
    });
}

TEST_P(FileRowsTest, AWindowThatClosesEndsTheReadingOfTheNamesToo) {
    AddFiles(3500);
    OpenOnly([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([&f] { f.cmdCancel.Press(); });
        t.screen.QueueMessage([] { ADD_FAILURE() << "the reading went on"; });
        f.Activate();
        EXPECT_FALSE(f.Shown());
    });
}

TEST_P(FileRowsTest, AnotherFolderTakesOverTheReadingOfTheNames) {
    AddFiles(3500);
    ExpectAnotherFolderTakesOver();
}

TEST_P(FileRowsTest, AWindowThatClosesEndsTheReadingWithoutAWord) {
    AddFiles(kMany);
    OpenOnly([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([&f] { f.cmdCancel.Press(); });
        f.Activate();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default);
}

TEST_P(FileRowsTest, AnotherFolderTakesOverARunningReading) {
    AddFiles(kMany);
    ExpectAnotherFolderTakesOver();
}

TEST_P(FileRowsTest, ThePointerIsAnHourglassWhileTheyAreRead) {
    Open([this](frmGetFileFromTree&) { EXPECT_EQ(t.screen.CurrentPointer(), Pointer::Default); });
    EXPECT_THAT(t.screen.Pointers(), testing::Contains(Pointer::Hourglass));
}

// The order.

TEST_P(FileRowsTest, ASortBySizeComparesNumbers) {
    t.files.AddFile(At(u"Data/c"), std::string(999, 'c'));
    t.files.AddFile(At(u"Data/empty"));
    sort.ListSortColumn = ListSort::kSize;
    Open([](frmGetFileFromTree& f) {
        EXPECT_THAT(Names(f), ElementsAre("empty", "b.tbx", "c", "a.txt"));
        EXPECT_THAT(Column(f, 2), ElementsAre("", "2", "999", "1,234"));
        EXPECT_EQ(f.ListView1.Current(), 1);
    });
}

TEST_P(FileRowsTest, ASortByDateComparesYearsFirst) {
    sort.ListSortColumn = ListSort::kDate;
    Open([](frmGetFileFromTree& f) {
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "a.txt"));
        EXPECT_THAT(Column(f, 3), ElementsAre("12/31/2025  08:05", "03/14/2026  15:09"));
    });
}

TEST_P(FileRowsTest, TheOrderCanBeTurnedRound) {
    sort.ListSortOrder = 1;
    Open([](frmGetFileFromTree& f) {
        EXPECT_THAT(Names(f), ElementsAre("b.tbx", "a.txt"));
        EXPECT_EQ(f.ListView1.KeyAt(1), u"K_ 2");
    });
}

TEST_P(FileRowsTest, AStoppedReadingIsSortedToo) {
    AddFiles(kMany);
    sort.ListSortOrder = 1;
    Await(Answer::Ok);
    OpenOnly([this](frmGetFileFromTree& f) {
        t.screen.QueueMessage([] {});
        t.screen.QueueMessage([&f] { f.cmdEscape.Press(); });
        f.Activate();
        EXPECT_THAT(Names(f), ElementsAre("10002.txt", "10001.txt"));
        f.cmdCancel.Press();
    });
}

/// A disk with one folder of a million files.
class MillionFiles final : public FileSystem {
public:
    PathStyle Style() const override { return PathStyle::Posix; }
    bool FileExists(TextView) const override { return false; }
    bool DirExists(TextView path) const override { return path == u"/"; }
    Text CurrentDir() const override { return u"/"; }
    bool ChangeDir(TextView path) override { return DirExists(path); }
    Text FullPath(TextView path) const override { return Text(path); }
    std::optional<SharedBytes> ReadAll(TextView) override { return std::nullopt; }
    std::unique_ptr<FileWriter> OpenRaw(TextView) override { return nullptr; }
    bool Remove(TextView) override { return false; }
    std::vector<Text> FileNames(TextView, TextView) const override {
        std::vector<Text> names;
        for (int number = 1'000'000; number < 2'000'000; ++number)
            names.push_back(NumberText(number));
        return names;
    }
    std::optional<FileDetails> Details(TextView) const override {
        ++asked;
        if (told) told();
        return FileDetails{1, {}};
    }
    std::optional<std::int64_t> Size(TextView) const override { return std::nullopt; }
    std::optional<DateTime> Modified(TextView) const override { return std::nullopt; }
    Text LastErrorText() const override { return {}; }
    Text ProgramDir() const override { return u"/"; }

    mutable int asked = 0;
    /// The disk tells about a file.
    std::function<void()> told;
};

/// The lister on them.
struct FileRowsOfAMillion : testing::Test {
    /// Lists them until `stops`, which is asked at each turn of the messages, says that the user stops it.
    void StopWhen(std::function<bool()> stops, const Text& told, int listed) {
        app.Exchange<ListerRequest>().FileDialogFilter = u"*.*";
        t.user.On<frmGetFileFromTree>([&](frmGetFileFromTree& f) {
            t.user.Answer({told, MessageIcon::Exclamation}, Answer::Ok);
            AtEachTurn([&] {
                if (!stops()) return false;
                f.cmdEscape.Press();
                return true;
            });
            f.Activate();
            EXPECT_EQ(f.ListView1.Count(), listed);
            f.cmdCancel.Press();
        });
        frmGetFileFromTree(app).ShowModal();
    }
    void AtEachTurn(std::function<bool()> isDone) {
        t.screen.QueueMessage([this, isDone] {
            if (!isDone()) AtEachTurn(isDone);
        });
    }
    /// The same after so many turns of the messages.
    void StopAt(int turn, const Text& told, int listed) {
        StopWhen([turn]() mutable { return --turn == 0; }, told, listed);
        // The disk is asked about some files at a time.
        EXPECT_LE(files.asked, static_cast<int>(FileRows::kDetailsInStep));
    }

    TestApp t;
    MillionFiles files;
    App app{
        {files, t.user, t.clipboard, t.clock, t.screen, t.shell, t.instance, t.user, [] { return nullptr; }}};
};

TEST_F(FileRowsOfAMillion, AStopWhileTheNamesAreReadLeavesTheOthersUnread) {
    StopAt(2, u"Only 1 of the 3,000 files in this directory were read.", 1);
}

TEST_F(FileRowsOfAMillion, AStopLeavesTheOthersUntouched) {
    constexpr int kTurnsOfNames = 999;
    StopAt(kTurnsOfNames + 2, u"Only 2 of the 1,000,000 files in this directory were read.", 2);
}

TEST_F(FileRowsOfAMillion, OfASlowDiskAllIsListedThatItToldUntilTheStop) {
    files.told = [this] { t.clock.Pass(std::chrono::milliseconds(1)); };
    StopWhen([this] { return files.asked == 500; },
             u"Only 500 of the 1,000,000 files in this directory were read.", 500);
}

} // namespace
} // namespace korvane
