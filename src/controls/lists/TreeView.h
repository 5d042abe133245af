#pragma once

#include "controls/Control.h"
#include "controls/lists/NameNumbers.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace korvane {

/// One node of a tree. Keys are unique in the tree.
struct TreeNode {
    Text key;
    Text text;
    /// What it hangs on, and where among what hangs there, from 0. A node at the top hangs on the root, which
    /// isn't shown and has no key.
    const TreeNode* parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<TreeNode>> children;
    bool expanded = false;
    /// It can be opened though nothing hangs on it yet: it is filled when it opens.
    bool expandable = false;
    /// A number of `TreeView::IconOf`.
    std::uint32_t icon = 0;
    /// By which a view finds it again, or finds that it has gone.
    std::uint32_t id = 0;
};

/// Picture files for the nodes of a tree. Where one can't be read, the view draws its own.
struct TreeImages {
    Text closed;
    /// The picture of a node that is expanded or selected.
    Text open;
    bool operator==(const TreeImages&) const = default;
};

/// What the view of a tree hears.
class TreeListener {
public:
    virtual ~TreeListener() = default;

    /// Everything may have changed, so the view reads it again.
    virtual void TreeReset() = 0;
    /// Around the adding of a node to those of the parent, at the end.
    virtual void NodeAdding(const TreeNode& parent) = 0;
    virtual void NodeAdded() = 0;
    /// Around the removal of a node with all that hangs on it.
    virtual void NodeRemoving(const TreeNode& node) = 0;
    virtual void NodeRemoved() = 0;
    /// Its text or picture, or whether it can be opened.
    virtual void NodeChanged(const TreeNode& node) = 0;
    virtual void NodeExpanded(const TreeNode& node) = 0;
    /// The program selected a node, which the user wants to see then.
    virtual void SelectionChanged() = 0;
    virtual void NodeWantedInView(const TreeNode& node) = 0;
};

/// A tree of named nodes, siblings in the order in which they were added. Of what changes during an update
/// the view hears once, at the end.
class TreeView : public Control {
public:
    TreeView(Form& owner, std::string_view name);

    Property<TreeImages> Images{*this, Aspect::Items};

    /// What the nodes at the top hang on.
    const TreeNode& Root() const { return *root_; }
    /// nullptr when there is no such node.
    const TreeNode* Node(TextView key) const;
    const TreeNode* NodeOfId(std::uint32_t id) const;
    /// All nodes, each before those that hang on it.
    std::vector<const TreeNode*> Nodes() const;
    /// Those that hang on the node; at the top for an empty key.
    std::vector<const TreeNode*> Children(TextView parent) const;

    /// False when the key is taken or the parent isn't there.
    bool Add(TextView parent, TextView key, TextView text);
    /// Removes the node with everything below it.
    void Remove(TextView key);
    void SetNodeText(TextView key, TextView text);
    /// The name of a picture of its own; empty for that of the tree.
    void SetNodeIcon(TextView key, TextView icon);
    const Text& IconOf(const TreeNode& node) const { return icons_.Name(node.icon); }
    void SetExpandable(TextView key, bool expandable);
    void Clear();

    /// Updates nest. `UpdateScope` ends them whatever happens.
    void BeginUpdate() { ++depth_; }
    void EndUpdate();

    /// The key of the selected node; empty when none is. Setting it opens what the node hangs on and fires
    /// `NodeClick`.
    const Text& Selected() const { return selected_; }
    void Select(TextView key);
    void SetExpanded(TextView key, bool expanded);
    /// Opens what it hangs on and scrolls as far as it has to.
    void EnsureVisible(TextView key);

    std::function<void()> NodeClick;
    std::function<void()> DblClick;
    std::function<void(TextView key)> Expand;

    void DoubleClick(TextView key);
    /// Whether the user works with the keyboard. The view writes it before it tells what the user does.
    bool ByKeys = false;

    /// At most one; nullptr takes it away. The caller owns it.
    void SetTreeListener(TreeListener* listener) { listener_ = listener; }

private:
    TreeNode* Find(TextView key) const;
    /// The root for an empty key.
    TreeNode* FindParent(TextView key) const;
    void Register(TreeNode& node);
    /// Opens the nodes above this one. Returns the node, or nullptr when there is none, also because a
    /// handler removed it.
    const TreeNode* OpenAbove(const Text& key);
    /// Forgets the node and all that hangs on it.
    void Unregister(const TreeNode& node);
    /// The listener, if it is told now; during an update it is noted that something was kept back.
    TreeListener* Hearing();

    std::unique_ptr<TreeNode> root_;
    /// The keys are those of the nodes.
    std::unordered_map<TextView, TreeNode*> byKey_;
    /// By id; nullptr where the node has gone.
    std::vector<const TreeNode*> byId_;
    std::vector<std::uint32_t> freeIds_;
    NameNumbers icons_;
    Text selected_;
    TreeListener* listener_ = nullptr;
    int depth_ = 0;
    bool keptBack_ = false;
    bool keptSelection_ = false;
    Text keptWanted_;
};

} // namespace korvane
