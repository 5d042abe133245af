#include "controls/TreeView.h"

#include <algorithm>
#include <iterator>

namespace korvane {

std::vector<TreeNode>::iterator TreeView::Find(TextView key) {
    return std::find_if(nodes_.begin(), nodes_.end(),
                        [key](const TreeNode& node) { return node.key == key; });
}

const TreeNode* TreeView::Node(TextView key) const {
    const auto found =
        std::find_if(nodes_.begin(), nodes_.end(), [key](const TreeNode& node) { return node.key == key; });
    return found == nodes_.end() ? nullptr : &*found;
}

std::vector<TreeNode> TreeView::Children(TextView parent) const {
    std::vector<TreeNode> children;
    std::copy_if(nodes_.begin(), nodes_.end(), std::back_inserter(children),
                 [parent](const TreeNode& node) { return node.parent == parent; });
    return children;
}

bool TreeView::Add(TextView parent, TextView key, TextView text) {
    const bool parentStands = parent.empty() || Node(parent) != nullptr;
    if (!parentStands || key.empty() || Node(key) != nullptr) return false;
    nodes_.push_back({Text(key), Text(parent), Text(text), false});
    Notify(Aspect::Items);
    return true;
}

void TreeView::Remove(TextView key) {
    const auto node = Find(key);
    if (node == nodes_.end()) return;
    const Text own = node->key;
    nodes_.erase(node);
    for (const TreeNode& child : Children(own))
        Remove(child.key);
    if (selected_ == own) selected_.clear();
    Notify(Aspect::Items);
}

void TreeView::SetNodeText(TextView key, TextView text) {
    const auto node = Find(key);
    if (node == nodes_.end() || node->text == text) return;
    node->text = Text(text);
    Notify(Aspect::Items);
}

void TreeView::Clear() {
    nodes_.clear();
    selected_.clear();
    Notify(Aspect::Items);
}

void TreeView::Select(TextView key) {
    if (Node(key) == nullptr) return;
    selected_ = Text(key);
    Notify(Aspect::Selection);
    if (NodeClick) NodeClick();
}

void TreeView::SetExpanded(TextView key, bool expanded) {
    const auto node = Find(key);
    if (node == nodes_.end() || node->expanded == expanded) return;
    node->expanded = expanded;
    Notify(Aspect::Value);
    if (expanded && Expand) Expand(Text(key));
}

void TreeView::DoubleClick(TextView key) {
    Select(key);
    if (DblClick) DblClick();
}

} // namespace korvane
