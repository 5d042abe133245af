#include "files/jobs/frmFolderOpNotify.h"

#include "support/DesignerFile.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;

struct FolderOpNotifyTest : testing::Test {
    TestApp t;
    frmFolderOpNotify form{t.app};
};

TEST_F(FolderOpNotifyTest, HasItsTexts) {
    EXPECT_EQ(form.Caption.Get(), u"Folder operation");
    EXPECT_EQ(form.Label1.Caption.Get(), u"Source");
    EXPECT_EQ(form.Label2.Caption.Get(), u"Target");
    EXPECT_EQ(form.cmdRecycle.Caption.Get(), u"&Recycle Bin");
    EXPECT_EQ(form.cmdExplorer.Caption.Get(), u"&Explorer");
    EXPECT_EQ(form.cmdExit.Caption.Get(), u"E&xit");
    EXPECT_TRUE(form.cmdExit.Cancel);
    ExpectLook(form, "files/jobs", {});
}

TEST_F(FolderOpNotifyTest, TellsOfADeletionInThePlaceOfTheTarget) {
    form.TellOfDeletion(u"C:\\Data\\Old");
    EXPECT_EQ(form.lblSource.Caption.Get(), u"C:\\Data\\Old");
    EXPECT_FALSE(form.Label2.Visible);
    EXPECT_TRUE(form.lblTarget.Visible);
    EXPECT_EQ(form.lblTarget.Caption.Get(), u">  DELETE  <");
}

TEST_F(FolderOpNotifyTest, OpensTheRecycleStore) {
    form.cmdRecycle.Press();
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.verb = u"Open",
                                                          .file = u"explorer.exe",
                                                          .parameters = Text(kRecycleStoreParameters),
                                                          .directory = u"0"}));
}

TEST_F(FolderOpNotifyTest, ExploresTheFolderOrTheOneThatItWasIn) {
    t.files.AddDir(u"C:\\Data\\There");
    form.lblSource.Caption = u"C:\\Data\\There";
    form.cmdExplorer.Press();
    form.lblSource.Caption = u"C:\\Data\\Gone";
    form.cmdExplorer.Press();
    form.lblSource.Caption = u"C:\\Gone";
    form.cmdExplorer.Press();
    const auto explore = [](TextView folder) {
        return OpenRequest{.verb = u"explore", .file = Text(folder), .directory = Text(folder)};
    };
    EXPECT_THAT(t.shell.Opened(),
                ElementsAre(explore(u"C:\\Data\\There"), explore(u"C:\\Data"), explore(u"C:\\")));
}

TEST_F(FolderOpNotifyTest, ExitCloses) {
    t.user.On<frmFolderOpNotify>([](frmFolderOpNotify& f) {
        f.cmdExit.Press();
        EXPECT_FALSE(f.Shown());
    });
    form.ShowModal();
}

} // namespace
} // namespace korvane
