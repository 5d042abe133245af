#include "shell/main/DesktopFileViewer.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class DesktopFileViewerTest : public testing::Test {
protected:
    TestApp p;
    DesktopFileViewer viewer{p.app};
};

TEST_F(DesktopFileViewerTest, OpensAFileInTheDesktopsOwnProgram) {
    viewer.View(u"C:\\data\\a b.txt");
    EXPECT_EQ(p.shell.Opened(), (std::vector<OpenRequest>{{.file = u"C:\\data\\a b.txt"}}));
}

TEST_F(DesktopFileViewerTest, OpensAFileInAProgramOfTheUsersChoice) {
    p.user.ChooseFile(u"C:\\tools\\edit.exe");
    viewer.OpenWith(u"C:\\data\\a b.txt");
    EXPECT_EQ(p.shell.Starts(),
              (std::vector<ProgramStart>{{u"C:\\tools\\edit.exe", {u"C:\\data\\a b.txt"}}}));
}

TEST_F(DesktopFileViewerTest, StartsNothingWhenNoProgramIsChosen) {
    p.user.CancelChooser();
    viewer.OpenWith(u"C:\\data\\a b.txt");
    EXPECT_TRUE(p.shell.Starts().empty());
}

} // namespace
} // namespace korvane
