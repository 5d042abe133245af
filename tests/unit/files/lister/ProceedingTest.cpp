#include "files/lister/Proceeding.h"

#include "ListerFixture.h"
#include "context/exchange/FileOperation.h"

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProceedingTest : public ListerFixture {
protected:
    static void Type(frmGetFileFromTree& f, const Text& name) { f.txtFileName.Type(name); }
    std::vector<std::string> Chosen() const {
        std::vector<std::string> files;
        for (int number = 1; number <= request.ChosenFileCount; ++number)
            files.push_back(ToUtf8(request.ChosenFiles.at(static_cast<std::size_t>(number))));
        return files;
    }
    std::string Utf8At(TextView path) const { return ToUtf8(At(path)); }
};
KORVANE_IN_BOTH_STYLES(ProceedingTest);

// Loading.

TEST_P(ProceedingTest, ADoubleClickLoadsTheFile) {
    Open([](frmGetFileFromTree& f) {
        f.ListView1.DoubleClick(2);
        EXPECT_EQ(f.txtFileName.Text.Get(), u"b.tbx");
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/b.tbx"));
    EXPECT_THAT(Chosen(), ElementsAre(Utf8At(u"Data/b.tbx")));
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_P(ProceedingTest, ReturnInTheListDoesSoToo) {
    Open([](frmGetFileFromTree& f) { EXPECT_TRUE(Press(f.ListView1, Key::Return)); });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/a.txt"));
}

TEST_P(ProceedingTest, AllMarkedFilesReachTheCallerInTheirOrder) {
    Open([](frmGetFileFromTree& f) {
        Mark(f, u"b.tbx", u"a.txt");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/b.tbx"));
    EXPECT_THAT(Chosen(), ElementsAre(Utf8At(u"Data/a.txt"), Utf8At(u"Data/b.tbx")));
    EXPECT_EQ(request.ChosenFileFull, At(u"Data/b.tbx"));
    EXPECT_EQ(request.ChosenFileName, u"b.tbx");
    EXPECT_EQ(request.ChosenFileFolder, At(u"Data/"));
}

TEST_P(ProceedingTest, ATypedNameAndTheMarkedRowsBothReachTheCaller) {
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"a.txt");
        Type(f, u"new.tbx");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/new.tbx"));
    EXPECT_THAT(Chosen(), ElementsAre(Utf8At(u"Data/a.txt")));
}

TEST_P(ProceedingTest, MarksThatSurviveASortReachTheCallerInTheNewOrder) {
    t.files.AddFile(At(u"Data/c.rtf"), "123");
    Open([](frmGetFileFromTree& f) {
        Mark(f, u"b.tbx", u"c.rtf");
        f.ListView1.ClickColumn(2);
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/b.tbx"));
    EXPECT_THAT(Chosen(), ElementsAre(Utf8At(u"Data/c.rtf"), Utf8At(u"Data/b.tbx")));
}

TEST_P(ProceedingTest, ASortDoesNotMarkTheRowThatTheListBeganWith) {
    Open([](frmGetFileFromTree& f) {
        f.ListView1.ClickColumn(2);
        Type(f, u"new.tbx");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFiles.at(1), u"");
}

TEST_P(ProceedingTest, TheRowThatTheListBeganWithIsNotMarkedByTheUser) {
    Open([](frmGetFileFromTree& f) {
        Type(f, u"new.tbx");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/new.tbx"));
    EXPECT_EQ(request.ChosenFileCount, 1);
    EXPECT_EQ(request.ChosenFiles.at(1), u"");
}

TEST_P(ProceedingTest, ATypedPathIsTakenAsItStands) {
    const Text path = At(u"Else where/x.tbx");
    Open([&path](frmGetFileFromTree& f) {
        Type(f, path);
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFilePath, path);
}

TEST_P(ProceedingTest, ABlankNameIsRefused) {
    for (const TextView blank : {u"", u"   "}) {
        Await({u"No file specified yet.", MessageIcon::Exclamation}, Answer::Ok);
        Open([&](frmGetFileFromTree& f) {
            Type(f, Text(blank));
            f.cmdOk.Press();
            EXPECT_TRUE(f.Shown());
        });
    }
    EXPECT_EQ(request.ChosenFilePath, u"");
    EXPECT_EQ(app.DialogResult, 0);
}

// Kept for compatibility: picked-picture-is-viewed.
TEST_P(ProceedingTest, APictureIsViewedAndNothingIsLoaded) {
    t.files.AddFile(At(u"Data/c.jpg"), "picture");
    Open([](frmGetFileFromTree& f) {
        Mark(f, u"b.tbx", u"c.jpg");
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFileCount, 0);
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/b.tbx"));
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(app.Exchange<FileOperation>().FileOpFolder, At(u"Data"));
    EXPECT_EQ(app.Exchange<FileOperation>().FileOpName, At(u"Data/c.jpg"));
    ASSERT_EQ(t.shell.Starts().size(), 1U);
    EXPECT_THAT(t.shell.Starts().front().arguments, ElementsAre(At(u"Data/c.jpg")));
}

TEST_P(ProceedingTest, AWorkbookThatNothingTakesIsNeitherLoadedNorShown) {
    t.files.AddFile(At(u"Data/c.xlsx"), "workbook");
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"c.xlsx");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFileCount, 0);
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_P(ProceedingTest, AShortcutIsOpenedAndTheWindowStays) {
    t.files.AddFile(At(u"Data/go.URL"), "link");
    Open([](frmGetFileFromTree& f) {
        Pick(f, u"go.URL");
        f.cmdOk.Press();
        EXPECT_TRUE(f.Shown());
    });
    ASSERT_EQ(t.shell.Opened().size(), 1U);
    EXPECT_EQ(t.shell.Opened().front().file, kFileManager);
    EXPECT_EQ(t.shell.Opened().front().parameters, At(u"Data/go.URL"));
}

TEST_P(ProceedingTest, RowsOfTheFolderBeforeAreNotTaken) {
    Open([this](frmGetFileFromTree& f) {
        Pick(f, u"a.txt");
        f.TreeView1.ByKeys = true;
        f.TreeView1.Select(At(u"Data/sub"));
        Type(f, u"c.txt");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/sub/c.txt"));
    EXPECT_EQ(request.ChosenFiles.at(1), u"");
}

/// A folder of more files than the caller's count can tell.
class TooManyFiles : public ListerFixture {};
INSTANTIATE_TEST_SUITE_P(Posix, TooManyFiles, testing::Values(PathStyle::Posix));

TEST_P(TooManyFiles, AsManyAreTakenAsCanBeCounted) {
    AddFiles(32'768);
    Open([](frmGetFileFromTree& f) {
        f.ListView1.Select(1);
        Press(f.ListView1, 'A', Mask::Ctrl);
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFileCount, 32'767);
    EXPECT_EQ(request.ChosenFiles.size(), 32'768U);
}

// Saving.

TEST_P(ProceedingTest, ASaveTakesANewName) {
    OpenToSave([](frmGetFileFromTree& f) {
        Type(f, u"new.tbx");
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/new.tbx"));
    EXPECT_EQ(app.DialogResult, 1);
    EXPECT_EQ(request.ChosenFileCount, 1);
}

// Kept for compatibility: save-takes-bare-name.
TEST_P(ProceedingTest, ASaveRefusesATypedPath) {
    Await(Answer::Ok);
    OpenToSave([this](frmGetFileFromTree& f) {
        Type(f, At(u"Data/new.tbx"));
        f.cmdOk.Press();
        EXPECT_TRUE(f.Shown());
    });
    EXPECT_THAT(ToUtf8(t.user.Messages().at(0).text),
                testing::StartsWith("File name contains this forbidden character:"));
    EXPECT_EQ(request.ChosenFilePath, u"");
}

TEST_P(ProceedingTest, EachForbiddenCharacterIsRefused) {
    for (const char16_t sign : TextView(u"\\/?:*\"><|")) {
        Await(Answer::Ok);
        OpenToSave([sign](frmGetFileFromTree& f) {
            Type(f, Text(u"a") + sign + u".tbx");
            f.cmdOk.Press();
            EXPECT_TRUE(f.Shown());
        });
    }
}

TEST_P(ProceedingTest, ASaveAsksBeforeItOverwrites) {
    const Message question{u"Overwrite disk version of this file ?\r\n\r\n\"" + At(u"Data/b.tbx") + u"\"",
                           MessageIcon::Question, MessageButtons::YesNo};
    Await(question, Answer::No);
    Await(question, Answer::Yes);
    OpenToSave([this](frmGetFileFromTree& f) {
        Type(f, u"b.tbx");
        f.cmdOk.Press();
        EXPECT_TRUE(f.Shown());
        EXPECT_EQ(request.ChosenFilePath, u"");
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data/b.tbx"));
}

TEST_P(ProceedingTest, ADoubleClickInASaveOnlyTakesTheName) {
    OpenToSave([](frmGetFileFromTree& f) {
        f.ListView1.DoubleClick(2);
        EXPECT_EQ(f.txtFileName.Text.Get(), u"b.tbx");
        EXPECT_TRUE(f.Shown());
    });
}

TEST_P(ProceedingTest, ASaveDoesNotCollectMarkedFiles) {
    t.files.AddFile(At(u"Data/c.jpg"), "picture");
    OpenToSave([](frmGetFileFromTree& f) {
        Pick(f, u"c.jpg");
        Type(f, u"new.tbx");
        f.cmdOk.Press();
    });
    EXPECT_EQ(request.ChosenFileCount, 1);
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_P(ProceedingTest, AShortcutIsOpenedInASaveToo) {
    OpenToSave([](frmGetFileFromTree& f) {
        Type(f, u"go.lnk");
        f.cmdOk.Press();
        EXPECT_TRUE(f.Shown());
    });
    ASSERT_EQ(t.shell.Opened().size(), 1U);
    EXPECT_EQ(t.shell.Opened().front().parameters, At(u"Data/go.lnk"));
    EXPECT_EQ(request.ChosenFilePath, u"");
}

TEST_P(ProceedingTest, InARootNoResultHasASecondSeparator) {
    app.Settings.TreeFormLastPath = At(u"");
    const auto proceed = [this](std::int16_t mode) {
        request.ListerMode = mode;
        Open([](frmGetFileFromTree& f) {
            Type(f, u"new.txt");
            f.cmdOk.Press();
        });
    };
    for (const std::int16_t mode : {std::int16_t{0}, std::int16_t{1}}) {
        proceed(mode);
        EXPECT_EQ(request.ChosenFilePath, At(u"new.txt"));
    }
    proceed(2);
    EXPECT_EQ(app.Exchange<FileOperation>().FileOpName, At(u"new.txt"));
    proceed(77);
    EXPECT_EQ(request.ChosenFilePath, At(u""));
}

// The modes that nobody sets. Kept for compatibility: lister-sleeping-modes.

TEST_P(ProceedingTest, AFolderCanBePicked) {
    request.ListerMode = 77;
    Open([](frmGetFileFromTree& f) { f.cmdOk.Press(); });
    EXPECT_EQ(request.ChosenFilePath, At(u"Data"));
    EXPECT_EQ(app.DialogResult, 1);
}

TEST_P(ProceedingTest, AFileToAppendToCanBePicked) {
    request.ListerMode = 2;
    Await({u"You must choose a file to append data to.\r\n\r\nCheck input line on bottom of screen.",
           MessageIcon::Exclamation},
          Answer::Ok);
    Open([](frmGetFileFromTree& f) {
        f.cmdOk.Press();
        EXPECT_TRUE(f.Shown());
        Type(f, u"log.txt");
        f.cmdOk.Press();
        EXPECT_FALSE(f.Shown());
    });
    EXPECT_EQ(app.Exchange<FileOperation>().FileOpName, At(u"Data/log.txt"));
    EXPECT_EQ(app.DialogResult, 1);
}

} // namespace
} // namespace korvane
