#pragma once

#include "controls/Control.h"

#include <vector>

namespace korvane {

/// One node of a tree. Keys are unique in the tree; the root nodes have an empty parent.
struct TreeNode {
    Text key;
    Text parent;
    Text text;
    bool expanded = false;
};

/// Picture files for the nodes of a tree. Where one can't be read, the view draws its own.
struct TreeImages {
    Text closed;
    /// The picture of a node that is expanded or selected.
    Text open;
    bool operator==(const TreeImages&) const = default;
};

/// A tree of named nodes, siblings in the order in which they were added.
class TreeView : public Control {
public:
    using Control::Control;

    Property<TreeImages> Images{*this, Aspect::Items};

    const std::vector<TreeNode>& Nodes() const { return nodes_; }
    /// nullptr when there is no such node.
    const TreeNode* Node(TextView key) const;
    std::vector<TreeNode> Children(TextView parent) const;
    /// False when the key is taken or the parent isn't there.
    bool Add(TextView parent, TextView key, TextView text);
    /// Removes the node with everything below it.
    void Remove(TextView key);
    void SetNodeText(TextView key, TextView text);
    void Clear();

    /// The key of the selected node; empty when none is. Setting it fires `NodeClick`.
    const Text& Selected() const { return selected_; }
    void Select(TextView key);
    void SetExpanded(TextView key, bool expanded);

    std::function<void()> NodeClick;
    std::function<void()> DblClick;
    std::function<void(TextView key)> Expand;

    void DoubleClick(TextView key);

private:
    std::vector<TreeNode>::iterator Find(TextView key);

    std::vector<TreeNode> nodes_;
    Text selected_;
};

} // namespace korvane
