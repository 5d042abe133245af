#include "controls/lists/TreeView.h"

#include "controls/Form.h"
#include "controls/UpdateScope.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace korvane {
namespace {

class Recorder : public TreeListener {
public:
    void TreeReset() override { log += "reset "; }
    void NodeAdding(const TreeNode& parent) override { Note("adding", parent); }
    void NodeAdded() override { log += "added "; }
    void NodeRemoving(const TreeNode& node) override { Note("removing", node); }
    void NodeRemoved() override { log += "removed "; }
    void NodeChanged(const TreeNode& node) override { Note("changed", node); }
    void NodeExpanded(const TreeNode& node) override { Note("expanded", node); }
    void SelectionChanged() override { log += "selection "; }
    void NodeWantedInView(const TreeNode& node) override { Note("wanted", node); }

    /// What was heard since it was asked last.
    std::string Heard() { return std::exchange(log, {}); }

private:
    void Note(const char* what, const TreeNode& node) {
        log += std::string(what) + ":" + std::string(node.key.begin(), node.key.end()) + " ";
    }

    std::string log;
};

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
        for (const TreeNode* node : tree.Children(parent))
            keys.push_back(node->key);
        return keys;
    }

    ScriptedUser user;
    Form window{user, "Window", u""};
    TreeView tree{window, "FileTree"};
    std::string log;
    Recorder heard;
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
    tree.SetExpanded(u"root", true);
    log.clear();
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

TEST_F(TreeViewTest, ASelectedNodeCanBeSeen) {
    tree.Select(u"a1");
    EXPECT_TRUE(tree.Node(u"root")->expanded);
    EXPECT_TRUE(tree.Node(u"a")->expanded);
    EXPECT_FALSE(tree.Node(u"a1")->expanded);
    EXPECT_EQ(log, "expand:root expand:a click ");
}

TEST_F(TreeViewTest, ANodeThatGoesWhileWhatItHangsOnOpensIsNotSelected) {
    tree.Expand = [this](TextView) { tree.Remove(u"a1"); };
    tree.Select(u"a1");
    EXPECT_EQ(tree.Selected(), u"");
    EXPECT_EQ(log, "");
}

TEST_F(TreeViewTest, NamesAllNodesEachBeforeWhatHangsOnIt) {
    std::vector<Text> keys;
    for (const TreeNode* node : tree.Nodes())
        keys.push_back(node->key);
    EXPECT_EQ(keys, (std::vector<Text>{u"root", u"a", u"a1", u"b"}));
}

TEST_F(TreeViewTest, ANodeKnowsItsPlace) {
    EXPECT_EQ(tree.Node(u"b")->parent, tree.Node(u"root"));
    EXPECT_EQ(tree.Node(u"b")->row, 1);
    EXPECT_EQ(tree.Node(u"root")->parent, &tree.Root());
    tree.Remove(u"a");
    EXPECT_EQ(tree.Node(u"b")->row, 0);
}

TEST_F(TreeViewTest, ANodeThatHasGoneIsNotFoundByItsId) {
    const std::uint32_t id = tree.Node(u"a1")->id;
    EXPECT_EQ(tree.NodeOfId(id), tree.Node(u"a1"));
    tree.Remove(u"a");
    EXPECT_EQ(tree.NodeOfId(id), nullptr);
    tree.Clear();
    EXPECT_EQ(tree.NodeOfId(id), nullptr);
    EXPECT_EQ(tree.NodeOfId(tree.Root().id), &tree.Root());
}

TEST_F(TreeViewTest, ANodeCanHaveAPictureOfItsOwn) {
    tree.SetNodeIcon(u"a", u"drive");
    tree.SetNodeIcon(u"none", u"drive");
    EXPECT_EQ(tree.IconOf(*tree.Node(u"a")), u"drive");
    EXPECT_EQ(tree.IconOf(*tree.Node(u"b")), u"");
    tree.SetNodeIcon(u"a", {});
    EXPECT_EQ(tree.IconOf(*tree.Node(u"a")), u"");
}

TEST_F(TreeViewTest, TellsWhereNodesComeAndGo) {
    tree.SetTreeListener(&heard);
    tree.Add(u"b", u"b1", u"B1");
    EXPECT_EQ(heard.Heard(), "adding:b added ");
    tree.Add({}, u"top", u"Top");
    EXPECT_EQ(heard.Heard(), "adding: added ");
    tree.Add({}, u"top", u"Top");
    EXPECT_EQ(heard.Heard(), "");
    tree.Remove(u"a");
    EXPECT_EQ(heard.Heard(), "removing:a removed ");
    tree.Clear();
    EXPECT_EQ(heard.Heard(), "reset ");
}

TEST_F(TreeViewTest, TellsWhatChangesInANode) {
    tree.SetTreeListener(&heard);
    tree.SetNodeText(u"a", u"Other");
    EXPECT_EQ(heard.Heard(), "changed:a ");
    tree.SetNodeText(u"a", u"Other");
    EXPECT_EQ(heard.Heard(), "");
    tree.SetNodeIcon(u"a", u"drive");
    tree.SetNodeIcon(u"a", u"drive");
    EXPECT_EQ(heard.Heard(), "changed:a ");
    tree.SetExpandable(u"b", true);
    tree.SetExpandable(u"b", true);
    tree.SetExpandable(u"none", true);
    EXPECT_EQ(heard.Heard(), "changed:b ");
    EXPECT_TRUE(tree.Node(u"b")->expandable);
}

TEST_F(TreeViewTest, TellsWhatIsOpenSelectedOrWanted) {
    tree.SetTreeListener(&heard);
    tree.SetExpanded(u"a", true);
    EXPECT_EQ(heard.Heard(), "expanded:a ");
    tree.Select(u"a1");
    EXPECT_EQ(heard.Heard(), "expanded:root selection ");
    tree.SetExpanded(u"root", false);
    EXPECT_EQ(heard.Heard(), "expanded:root ");
    tree.EnsureVisible(u"b");
    EXPECT_EQ(heard.Heard(), "expanded:root wanted:b ");
    tree.EnsureVisible(u"none");
    EXPECT_EQ(heard.Heard(), "");
    EXPECT_EQ(log, "expand:a expand:root click expand:root ");
}

TEST_F(TreeViewTest, WhatChangesInAnUpdateIsToldOnceAtItsEnd) {
    tree.SetTreeListener(&heard);
    {
        const UpdateScope outer(tree);
        {
            const UpdateScope inner(tree);
            tree.Remove(u"b");
            tree.Add(u"a", u"a2", u"A2");
        }
        tree.SetNodeText(u"a", u"Other");
        tree.Select(u"a2");
        tree.EnsureVisible(u"a1");
        EXPECT_EQ(heard.Heard(), "");
    }
    EXPECT_EQ(heard.Heard(), "reset selection wanted:a1 ");
    tree.EndUpdate();
    tree.SetNodeText(u"a", u"A");
    EXPECT_EQ(heard.Heard(), "changed:a ");
}

TEST_F(TreeViewTest, AnUpdateWithoutAChangeTellsNothing) {
    tree.SetTreeListener(&heard);
    { const UpdateScope update(tree); }
    EXPECT_EQ(heard.Heard(), "");
}

TEST_F(TreeViewTest, ADoubleClickGoesToItsNodeFirst) {
    tree.DoubleClick(u"root");
    EXPECT_EQ(tree.Selected(), u"root");
    EXPECT_EQ(log, "click double ");
}

TEST_F(TreeViewTest, WithoutAListenerNodesAreChosenAndOpenedAllTheSame) {
    tree.NodeClick = nullptr;
    tree.DblClick = nullptr;
    tree.Expand = nullptr;
    tree.DoubleClick(u"a1");
    EXPECT_EQ(tree.Selected(), u"a1");
    tree.SetExpanded(u"b", true);
    EXPECT_TRUE(KeysBelow(u"none").empty());
    tree.EndUpdate();
    EXPECT_EQ(log, "");
}

} // namespace
} // namespace korvane
