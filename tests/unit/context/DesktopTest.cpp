#include "context/Desktop.h"

#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;

TEST(Desktop, ShowDesktopTogglesIt) {
    TestApp t;
    ShowDesktop(t.app);
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::ToggleDesktop, {}}));
}

TEST(Desktop, ExploreFolderShowsAFolderThatIsThere) {
    TestApp t;
    t.files.AddDir(u"C:\\Data");
    ExploreFolder(t.app, u"C:\\Data");
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, u"C:\\Data"}));
}

TEST(Desktop, ExploreFolderShowsTheCurrentDirectoryOtherwise) {
    TestApp t(PathStyle::Posix);
    t.files.AddDir(u"/home/ann");
    t.files.AddFile(u"/home/ann/x");
    t.files.ChangeDir(u"/home/ann");
    ExploreFolder(t.app, u"");
    ExploreFolder(t.app, u"/lost");
    ExploreFolder(t.app, u"/home/ann/x");
    const ShellCall current{ShellCall::Kind::Explore, u"/home/ann"};
    EXPECT_THAT(t.shell.Calls(), ElementsAre(current, current, current));
}

TEST(Desktop, ExploreFolderLetsPendingMessagesRunFirst) {
    TestApp t;
    t.screen.QueueMessage([&t] { t.files.AddDir(u"C:\\Late"); });
    ExploreFolder(t.app, u"C:\\Late");
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, u"C:\\Late"}));
}

TEST(Desktop, RunExplorerOpensItWithoutParameters) {
    TestApp t;
    RunExplorer(t.app);
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{u"Open", u"explorer.exe", u"", u"0"}));
}

TEST(Desktop, ShowRecycleBinOpensTheExplorerOnIt) {
    TestApp t;
    ShowRecycleBin(t.app);
    EXPECT_THAT(t.shell.Opened(),
                ElementsAre(OpenRequest{u"Open", u"explorer.exe",
                                        u"/root,::{645FF040-5081-101B-9F08-00AA002F954E}", u"0"}));
}

} // namespace
} // namespace korvane
