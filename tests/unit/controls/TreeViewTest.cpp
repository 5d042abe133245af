#include "controls/TreeView.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace korvane {
namespace {

class TreeViewTest : public testing::Test {
protected:
    TreeViewTest() {
        tree.Add({}, u"root", u"Root");
        tree.Add(u"root", u"a", u"A");
        tree.Add(u"root", u"b", u"B");
        tree.Add(u"a", u"a1", u"A1");
        tree.NodeClick = [this] { log += "click "; };
        tree.DblClick = [this] { log += "double "; };
        tree.Expand = [this](TextView key) { log += "expand:" + std::string(key.begin(), key.end()) + " "; };
    }

    std::vector<Text> KeysBelow(TextView parent) const {
        std::vector<Text> keys;
        for (const auto& node : tree.Children(parent))
            keys.push_back(node.key);
        return keys;
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    TreeView tree{window, "FileTree"};
    std::string log;
};

TEST_F(TreeViewTest, HoldsTheNodesOfAParentInTheOrderInWhichTheyCame) {
    EXPECT_EQ(KeysBelow({}), std::vector<Text>{u"root"});
    EXPECT_EQ(KeysBelow(u"root"), (std::vector<Text>{u"a", u"b"}));
    EXPECT_EQ(KeysBelow(u"a"), std::vector<Text>{u"a1"});
    EXPECT_EQ(KeysBelow(u"b"), std::vector<Text>());
    EXPECT_EQ(tree.Node(u"a1")->text, u"A1");
}

TEST_F(TreeViewTest, TakesNoNodeTwiceAndNoneWithoutAKeyOrParent) {
    EXPECT_FALSE(tree.Add(u"root", u"a", u"again"));
    EXPECT_FALSE(tree.Add(u"none", u"x", u"X"));
    EXPECT_FALSE(tree.Add(u"root", {}, u"X"));
    EXPECT_TRUE(tree.Add(u"b", u"x", u"X"));
    EXPECT_EQ(KeysBelow(u"root"), (std::vector<Text>{u"a", u"b"}));
    EXPECT_EQ(tree.Node(u"a")->text, u"A");
    EXPECT_EQ(tree.Node(u"none"), nullptr);
}

TEST_F(TreeViewTest, ANodeGoesWithAllThatHangsBelowIt) {
    tree.Remove(u"a");
    EXPECT_EQ(tree.Node(u"a"), nullptr);
    EXPECT_EQ(tree.Node(u"a1"), nullptr);
    EXPECT_EQ(KeysBelow(u"root"), std::vector<Text>{u"b"});
    EXPECT_TRUE(tree.Add(u"root", u"a1", u"A1"));
}

TEST_F(TreeViewTest, ANodeThatIsNotThereCannotBeRemoved) {
    tree.Remove(u"none");
    EXPECT_EQ(KeysBelow(u"root"), (std::vector<Text>{u"a", u"b"}));
}

TEST_F(TreeViewTest, TellsOfTheSelectedNode) {
    tree.Select(u"a");
    EXPECT_EQ(tree.Selected(), u"a");
    tree.Select(u"a");
    EXPECT_EQ(log, "click click ");
    tree.Select(u"none");
    EXPECT_EQ(tree.Selected(), u"a");
    EXPECT_EQ(log, "click click ");
}

TEST_F(TreeViewTest, TheSelectionGoesWithItsNode) {
    tree.Select(u"a");
    tree.Remove(u"b");
    EXPECT_EQ(tree.Selected(), u"a");
    tree.Remove(u"a");
    EXPECT_EQ(tree.Selected(), u"");
}

TEST_F(TreeViewTest, TheSelectionGoesWithTheBranchItHangsOn) {
    tree.Select(u"a1");
    tree.Remove(u"a");
    EXPECT_EQ(tree.Selected(), u"");
}

TEST_F(TreeViewTest, TellsOfANodeThatOpensButNotOfOneThatCloses) {
    tree.SetExpanded(u"root", true);
    tree.SetExpanded(u"root", true);
    EXPECT_TRUE(tree.Node(u"root")->expanded);
    tree.SetExpanded(u"root", false);
    tree.SetExpanded(u"none", true);
    EXPECT_FALSE(tree.Node(u"root")->expanded);
    EXPECT_EQ(log, "expand:root ");
}

TEST_F(TreeViewTest, ANodeCanBeFilledWhileItOpens) {
    tree.Expand = [this](TextView key) {
        tree.Remove(u"a1");
        tree.Add(key, u"a2", u"A2");
        tree.Add(key, u"a3", u"A3");
    };
    tree.SetExpanded(u"a", true);
    EXPECT_EQ(KeysBelow(u"a"), (std::vector<Text>{u"a2", u"a3"}));
    EXPECT_TRUE(tree.Node(u"a")->expanded);
}

TEST_F(TreeViewTest, ANodesTextCanBeWrittenAnew) {
    tree.SetNodeText(u"a", u"Other");
    tree.SetNodeText(u"none", u"Other");
    EXPECT_EQ(tree.Node(u"a")->text, u"Other");
    EXPECT_EQ(tree.Node(u"b")->text, u"B");
}

TEST_F(TreeViewTest, ClearedItHoldsNothing) {
    tree.Select(u"a");
    tree.Clear();
    EXPECT_EQ(KeysBelow({}), std::vector<Text>());
    EXPECT_EQ(tree.Node(u"a"), nullptr);
    EXPECT_EQ(tree.Selected(), u"");
    EXPECT_TRUE(tree.Add({}, u"root", u"Root"));
}

TEST_F(TreeViewTest, ADoubleClickGoesToItsNodeFirst) {
    tree.DoubleClick(u"b");
    EXPECT_EQ(tree.Selected(), u"b");
    EXPECT_EQ(log, "click double ");
}

} // namespace
} // namespace korvane
