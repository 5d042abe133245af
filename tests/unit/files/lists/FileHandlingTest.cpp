#include "files/lists/FileHandling.h"

#include "files/lists/frmOpenFileWith.h"
#include "support/FakeViewers.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;

TEST(FileHandlingTest, ViewsAFileByItsType) {
    TestApp t;
    FakeTextFileViewer texts(t.app);
    FakePageViewer pages(t.app);
    FileHandling handling(t.app);
    handling.View(u"C:\\Data\\a.tbx");
    handling.View(u"C:\\Data\\a.htm");
    EXPECT_THAT(texts.viewed, ElementsAre(u"C:\\Data\\a.tbx"));
    EXPECT_THAT(pages.viewed, ElementsAre(u"C:\\Data\\a.htm"));
}

TEST(FileHandlingTest, OpensAFileWithAProgramOfTheUsers) {
    TestApp t;
    t.files.AddFile(u"C:\\p.lst", "a.exe\nC:\\A\\\n");
    t.files.AddFile(u"C:\\A\\a.exe");
    t.app.Settings.OpenWithListFile = u"C:\\p.lst";
    t.user.On<frmOpenFileWith>([](frmOpenFileWith& f) { f.cmdLoadFile.Press(); });
    FileHandling(t.app).OpenWith(u"C:\\Data\\a.tbx");
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\A\\a.exe", {u"C:\\Data\\a.tbx"}}));
}

} // namespace
} // namespace korvane
