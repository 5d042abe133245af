#include "files/lists/OpenWith.h"

#include "context/exchange/OpenWithRequest.h"
#include "files/lists/frmOpenFileWith.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OpenWithTest : public testing::Test {
protected:
    OpenWithTest() {
        t.files.AddFile(u"C:\\L\\p.lst", "a b.exe\nC:\\My Tools\\\nrundll32.exe\nx.dll,Show\n");
        t.files.AddFile(u"C:\\My Tools\\a b.exe");
        t.app.Settings.OpenWithListFile = u"C:\\L\\p.lst";
    }
    void OpenWithRow(int row, const Text& path) {
        t.user.On<frmOpenFileWith>([row](frmOpenFileWith& f) {
            f.ListView1.Select(row);
            f.cmdLoadFile.Press();
        });
        OpenWithUserProgram(t.app, path);
    }

    TestApp t;
};

TEST_F(OpenWithTest, StartsTheProgramWithTheFile) {
    OpenWithRow(1, u"C:\\Data\\a.txt");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\My Tools\\a b.exe", {u"C:\\Data\\a.txt"}}));
    EXPECT_EQ(t.app.Exchange<OpenWithRequest>().ViewWithFile, u"C:\\Data\\a.txt");
}

TEST_F(OpenWithTest, APathWithBlanksReachesAProgramAsOneWord) {
    OpenWithRow(1, u"C:\\My Data\\a b.txt");
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"C:\\My Tools\\a b.exe", {u"C:\\My Data\\a b.txt"}}));
}

TEST_F(OpenWithTest, ACommandIsStartedAsItStandsWithThePathBehindIt) {
    OpenWithRow(2, u"C:\\Data\\a.txt");
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"rundll32.exe", {u"x.dll,Show", u"C:\\Data\\a.txt"}}));
}

// Kept for compatibility: command-row-path-unquoted.
TEST_F(OpenWithTest, APathWithBlanksReachesACommandAsSeveralWords) {
    OpenWithRow(2, u"C:\\My Data\\a.txt");
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"rundll32.exe", {u"x.dll,Show", u"C:\\My", u"Data\\a.txt"}}));
}

TEST_F(OpenWithTest, ACancelStartsNothing) {
    t.app.Exchange<OpenWithRequest>().ViewWithProgram = u"C:\\old.exe";
    t.app.DialogResult = 1;
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) { f.cmdExit.Press(); });
    OpenWithUserProgram(t.app, u"C:\\Data\\a.txt");
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST_F(OpenWithTest, TheCurrentDirectoryStays) {
    t.files.ChangeDir(u"C:\\L");
    t.user.On<frmOpenFileWith>([this](frmOpenFileWith& f) {
        t.files.ChangeDir(u"C:\\My Tools");
        f.cmdExit.Press();
    });
    OpenWithUserProgram(t.app, u"C:\\Data\\a.txt");
    EXPECT_EQ(t.files.CurrentDir(), u"C:\\L");
}

} // namespace
} // namespace korvane
