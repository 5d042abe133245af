#include "files/tree/FolderTree.h"

#include "common/number/Number.h"
#include "controls/Timer.h"
#include "controls/lists/TreeView.h"
#include "support/HandlerFailure.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeWindow : public Form {
public:
    explicit TreeWindow(App& app) : Form(app.Forms(), "TreeWindow", u"") {}
    TreeView TreeView1{*this, "TreeView1"};
    Timer FolderTimer{*this, "FolderTimer", FolderTree::kBetween};
};

struct FolderTreeTest : testing::Test {
    explicit FolderTreeTest(const PathStyle& style = PathStyle::Windows) : t(style) {
        folders.FolderChanged = [this] { visited.push_back(folders.Folder()); };
    }

    std::vector<Text> TextsBelow(TextView parent) {
        std::vector<Text> texts;
        for (const TreeNode* node : window.TreeView1.Children(parent))
            texts.push_back(node->text);
        return texts;
    }

    TestApp t;
    TreeWindow window{t.app};
    TreeView& tree = window.TreeView1;
    Timer& timer = window.FolderTimer;
    FolderTree folders{t.files, tree, timer};
    std::vector<Text> visited;
};

/// Notes which nodes are brought into view.
struct SeenNodes final : TreeListener {
    explicit SeenNodes(TreeView& tree) : tree_(tree) { tree_.SetTreeListener(this); }
    ~SeenNodes() override { tree_.SetTreeListener(nullptr); }

    void TreeReset() override {}
    void NodeAdding(const TreeNode&) override {}
    void NodeAdded() override {}
    void NodeRemoving(const TreeNode&) override {}
    void NodeRemoved() override {}
    void NodeChanged(const TreeNode&) override {}
    void NodeExpanded(const TreeNode&) override {}
    void SelectionChanged() override {}
    void NodeWantedInView(const TreeNode& node) override { keys.push_back(node.key); }

    std::vector<Text> keys;

private:
    TreeView& tree_;
};

struct PosixFolderTreeTest : FolderTreeTest {
    PosixFolderTreeTest() : FolderTreeTest(PathStyle::Posix) {}
};

TEST_F(FolderTreeTest, ShowsTheDrivesWithNothingOfThemRead) {
    t.files.SetVolume(u"C:\\", {.type = DriveType::Fixed, .name = u"System"});
    t.files.AddDrive(u'D');
    folders.Fill();
    EXPECT_THAT(TextsBelow(u""), ElementsAre(u"C: [SYSTEM]", u"D:"));
    EXPECT_NE(tree.Node(u"C:\\"), nullptr);
    for (const TextView drive : {u"C:\\", u"D:\\"}) {
        EXPECT_THAT(TextsBelow(drive), IsEmpty());
        EXPECT_TRUE(tree.Node(drive)->expandable);
    }
    EXPECT_EQ(folders.Folder(), u"");
    EXPECT_THAT(visited, IsEmpty());
}

TEST_F(FolderTreeTest, AnOpenedNodeIsSeenWithAsManyOfItsFoldersAsFit) {
    for (const TextView name : {u"C:\\Data\\a", u"C:\\Data\\b", u"C:\\Data\\c", u"C:\\Empty"})
        t.files.AddDir(name);
    folders.Fill();
    tree.SetExpanded(u"C:\\", true);
    SeenNodes seen(tree);
    tree.SetExpanded(u"C:\\Data", true);
    EXPECT_THAT(seen.keys, ElementsAre(u"C:\\Data\\c", u"C:\\Data"));
    tree.SetExpanded(u"C:\\Empty", true);
    EXPECT_EQ(seen.keys.size(), 2u);
}

TEST_F(FolderTreeTest, AWayThatFailsBeforeItsEndLeavesTheTreeInUse) {
    t.files.AddDir(u"C:\\Data\\sub");
    folders.Fill();
    const auto expand = std::exchange(tree.Expand, [](TextView) { FailInHandler(); });
    EXPECT_THROW(folders.SetTreePath(u"C:\\Data\\sub"), HandlerFailure);
    tree.Expand = expand;
    tree.Select(u"C:\\");
    EXPECT_THAT(visited, ElementsAre(u"C:\\"));
}

// Kept for compatibility: drive-b-without-label.
TEST_F(FolderTreeTest, DriveAIsLabelledAsAFloppyAndDriveBIsNot) {
    t.files.AddDrive(u'A');
    t.files.AddDrive(u'B');
    t.files.SetVolume(u"A:\\", {.type = DriveType::Removable, .name = u"Disk 1"});
    folders.Fill();
    EXPECT_THAT(TextsBelow(u""), ElementsAre(u"A:[ Floppy Disk ]", u"B:", u"C:"));
}

TEST_F(FolderTreeTest, ANodeIsReadWhenItIsOpened) {
    t.files.AddDir(u"C:\\Data\\sub\\deep");
    t.files.AddDir(u"C:\\Alone");
    t.files.AddFile(u"C:\\Data\\a.txt");
    folders.Fill();
    tree.SetExpanded(u"C:\\", true);
    EXPECT_THAT(TextsBelow(u"C:\\"), ElementsAre(u"Alone", u"Data", u"Korvane"));
    timer.Elapse();
    EXPECT_FALSE(tree.Node(u"C:\\Alone")->expandable);
    EXPECT_TRUE(tree.Node(u"C:\\Data")->expandable);
    EXPECT_THAT(TextsBelow(u"C:\\Data"), IsEmpty());
    tree.SetExpanded(u"C:\\Data", true);
    EXPECT_THAT(TextsBelow(u"C:\\Data"), ElementsAre(u"sub"));
    EXPECT_NE(tree.Node(u"C:\\Data\\sub"), nullptr);
    EXPECT_THAT(visited, ElementsAre(u"C:\\", u"C:\\Data"));
}

TEST_F(FolderTreeTest, WhetherFoldersCanBeOpenedIsAskedLaterAFewAtATime) {
    for (std::size_t number = 0; number < FolderTree::kAskedAtOnce; ++number)
        t.files.AddDir(u"C:\\D" + NumberText(1000 + number) + u"\\sub");
    const auto expandable = [&] {
        return std::ranges::count_if(tree.Children(u"C:\\"),
                                     [](const auto* node) { return node->expandable; });
    };
    folders.Fill();
    EXPECT_FALSE(timer.Enabled);
    tree.SetExpanded(u"C:\\", true);
    EXPECT_TRUE(timer.Enabled);
    EXPECT_EQ(expandable(), 0);
    timer.Elapse();
    EXPECT_EQ(expandable(), static_cast<int>(FolderTree::kAskedAtOnce));
    EXPECT_TRUE(timer.Enabled);
    timer.Elapse();
    EXPECT_FALSE(timer.Enabled);
}

TEST_F(FolderTreeTest, AFolderThatWasOpenedOrHasGoneMeanwhileIsNotAskedAbout) {
    t.files.AddDir(u"C:\\Data\\sub");
    t.files.AddDir(u"C:\\Gone\\sub");
    folders.Fill();
    tree.SetExpanded(u"C:\\", true);
    tree.SetExpanded(u"C:\\Data", true);
    folders.Remove(u"C:\\Gone");
    timer.Elapse();
    EXPECT_FALSE(tree.Node(u"C:\\Data")->expandable);
    EXPECT_EQ(tree.Node(u"C:\\Gone"), nullptr);
    folders.Fill();
    EXPECT_TRUE(tree.Node(u"C:\\")->expandable);
    timer.Elapse();
    EXPECT_THAT(TextsBelow(u"C:\\"), IsEmpty());
}

TEST_F(FolderTreeTest, ANodeOpenedAgainIsAsItWas) {
    t.files.AddDir(u"C:\\Data");
    folders.Fill();
    tree.SetExpanded(u"C:\\", true);
    tree.SetExpanded(u"C:\\", false);
    t.files.AddDir(u"C:\\New");
    tree.SetExpanded(u"C:\\", true);
    EXPECT_THAT(TextsBelow(u"C:\\"), ElementsAre(u"Data", u"Korvane"));
}

TEST_F(FolderTreeTest, ASelectedNodeIsTheFolder) {
    t.files.AddDir(u"C:\\Data");
    folders.Fill();
    tree.SetExpanded(u"C:\\", true);
    visited.clear();
    tree.Select(u"C:\\Data");
    EXPECT_EQ(folders.Folder(), u"C:\\Data");
    EXPECT_THAT(visited, ElementsAre(u"C:\\Data"));
}

TEST_F(FolderTreeTest, ADrivesPictureTellsItsKind) {
    const std::pair<DriveType, TextView> kinds[] = {
        {DriveType::Fixed, u"driveFixed"},   {DriveType::Removable, u"driveRemovable"},
        {DriveType::Unknown, u"driveFixed"}, {DriveType::Network, u"driveOther"},
        {DriveType::CdRom, u"driveOther"},   {DriveType::RamDisk, u"driveOther"},
    };
    for (const auto& [type, icon] : kinds) {
        t.files.SetVolume(u"C:\\", {.type = type});
        folders.Fill();
        EXPECT_EQ(tree.IconOf(*tree.Node(u"C:\\")), icon);
    }
}

TEST_F(FolderTreeTest, APathOpensTheTreeDownToIt) {
    t.files.AddDir(u"C:\\Data\\sub\\deep\\below");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(u"C:\\Data\\sub\\deep"));
    EXPECT_EQ(tree.Selected(), u"C:\\Data\\sub\\deep");
    EXPECT_EQ(folders.Folder(), u"C:\\Data\\sub\\deep");
    for (const TextView node : {u"C:\\", u"C:\\Data", u"C:\\Data\\sub", u"C:\\Data\\sub\\deep"})
        EXPECT_TRUE(tree.Node(node)->expanded);
    EXPECT_THAT(TextsBelow(u"C:\\Data\\sub\\deep"), ElementsAre(u"below"));
    EXPECT_THAT(visited, ElementsAre(u"C:\\Data\\sub\\deep"));
}

TEST_F(FolderTreeTest, APathMayBeWrittenInOtherWays) {
    t.files.AddDir(u"C:\\Data\\sub");
    folders.Fill();
    for (const TextView path : {u"c:\\data\\SUB", u"C:\\Data\\sub\\", u"C:\\Data\\..\\Data\\.\\sub"}) {
        EXPECT_TRUE(folders.SetTreePath(path));
        EXPECT_EQ(folders.Folder(), u"C:\\Data\\sub");
    }
    EXPECT_TRUE(folders.SetTreePath(u"c:\\"));
    EXPECT_EQ(folders.Folder(), u"C:\\");
    EXPECT_EQ(TextsBelow(u"C:\\").size(), 2u);
}

TEST_F(FolderTreeTest, APathThatIsNotThereChangesNothing) {
    t.files.AddFile(u"C:\\Data\\a.txt");
    folders.Fill();
    folders.SetTreePath(u"C:\\Data");
    visited.clear();
    for (const TextView path : {u"C:\\Gone\\sub", u"Q:\\", u"C:\\Data\\a.txt", u""})
        EXPECT_FALSE(folders.SetTreePath(path));
    EXPECT_EQ(folders.Folder(), u"C:\\Data");
    EXPECT_THAT(visited, IsEmpty());
}

// Kept for compatibility: tree-of-21-levels.
TEST_F(FolderTreeTest, TwentyOneLevelsAreTheMost) {
    Text path = u"C:";
    for (int level = 2; level <= 21; ++level)
        path += u"\\d";
    t.files.AddDir(path + u"\\d");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(path));
    EXPECT_EQ(folders.Folder(), path);
    EXPECT_FALSE(folders.SetTreePath(path + u"\\d"));
    EXPECT_EQ(folders.Folder(), path);
}

TEST_F(FolderTreeTest, AFolderMadeMeanwhileIsAdded) {
    folders.Fill();
    folders.SetTreePath(u"C:\\");
    t.files.AddDir(u"C:\\New\\sub");
    EXPECT_TRUE(folders.SetTreePath(u"C:\\New"));
    EXPECT_EQ(tree.Selected(), u"C:\\New");
    EXPECT_THAT(TextsBelow(u"C:\\New"), ElementsAre(u"sub"));
}

TEST_F(FolderTreeTest, AFolderThatIsGoneIsTakenOut) {
    t.files.AddDir(u"C:\\Data\\sub");
    folders.Fill();
    folders.SetTreePath(u"C:\\Data\\sub");
    folders.Remove(u"C:\\Data\\sub");
    EXPECT_EQ(tree.Node(u"C:\\Data\\sub"), nullptr);
    folders.Remove(u"C:\\Gone");
}

TEST_F(FolderTreeTest, FillingAgainForgetsWhatWasRead) {
    t.files.AddDir(u"C:\\Data");
    folders.Fill();
    folders.SetTreePath(u"C:\\Data");
    t.files.AddDir(u"C:\\New");
    folders.Fill();
    EXPECT_THAT(TextsBelow(u"C:\\"), IsEmpty());
    EXPECT_TRUE(folders.SetTreePath(u"C:\\Data"));
    EXPECT_THAT(TextsBelow(u"C:\\"), ElementsAre(u"Data", u"Korvane", u"New"));
}

TEST_F(PosixFolderTreeTest, HasOneRootAsItStands) {
    t.files.AddDir(u"/home/me");
    folders.Fill();
    EXPECT_THAT(TextsBelow(u""), ElementsAre(u"/"));
    EXPECT_TRUE(folders.SetTreePath(u"/home/me/"));
    EXPECT_EQ(folders.Folder(), u"/home/me");
    EXPECT_TRUE(folders.SetTreePath(u"/"));
    EXPECT_EQ(folders.Folder(), u"/");
}

// Kept for compatibility: tree-of-21-levels.
TEST_F(PosixFolderTreeTest, TwentyOneLevelsAreTheMostWithTheRootAsOne) {
    Text path;
    for (int level = 2; level <= 21; ++level)
        path += u"/d";
    t.files.AddDir(path + u"/d");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(path));
    EXPECT_EQ(folders.Folder(), path);
    EXPECT_FALSE(folders.SetTreePath(path + u"/d"));
    EXPECT_EQ(folders.Folder(), path);
}

TEST_F(PosixFolderTreeTest, WhereCaseCountsTwoFoldersMayDifferByIt) {
    t.files.AddDir(u"/a");
    t.files.AddDir(u"/A");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(u"/A"));
    EXPECT_EQ(folders.Folder(), u"/A");
    EXPECT_TRUE(folders.SetTreePath(u"/a"));
    EXPECT_EQ(folders.Folder(), u"/a");
}

TEST_F(PosixFolderTreeTest, AHiddenFolderIsShownWhenItIsAskedFor) {
    t.files.AddDir(u"/home/.config/korvane");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(u"/home/.config/korvane"));
    EXPECT_EQ(folders.Folder(), u"/home/.config/korvane");
}

TEST_F(PosixFolderTreeTest, LinksInACircleAreOpenedOneByOne) {
    t.files.AddDir(u"/home");
    t.files.AddLink(u"/home/circle", u".");
    t.files.AddLink(u"/home/gone", u"nowhere");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(u"/home/circle/circle"));
    EXPECT_EQ(folders.Folder(), u"/home/circle/circle");
    EXPECT_THAT(TextsBelow(u"/home"), ElementsAre(u"circle"));
    EXPECT_THAT(TextsBelow(u"/home/circle/circle"), ElementsAre(u"circle"));
}

TEST_F(PosixFolderTreeTest, NamesWithLineBreaksAreFolders) {
    t.files.AddDir(u"/two\nlines");
    folders.Fill();
    EXPECT_TRUE(folders.SetTreePath(u"/two\nlines"));
    EXPECT_EQ(folders.Folder(), u"/two\nlines");
}

} // namespace
} // namespace korvane
