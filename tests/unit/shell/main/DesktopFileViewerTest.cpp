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

TEST_F(DesktopFileViewerTest, OpensNothingForAPageWithoutAnAddress) {
    viewer.View(u"");
    EXPECT_TRUE(p.shell.Opened().empty());
}

} // namespace
} // namespace korvane
