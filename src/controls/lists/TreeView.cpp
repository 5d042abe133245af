#include "controls/lists/TreeView.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

void AppendAll(const TreeNode& parent, std::vector<const TreeNode*>& nodes) {
    for (const auto& child : parent.children) {
        nodes.push_back(child.get());
        AppendAll(*child, nodes);
    }
}

} // namespace

TreeView::TreeView(Form& owner, std::string_view name) : Control(owner, name) {
    Clear();
}

// ---- Nodes --------------------------------------------------------------------------------------------

TreeNode* TreeView::Find(TextView key) const {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : found->second;
}

TreeNode* TreeView::FindParent(TextView key) const {
    return key.empty() ? root_.get() : Find(key);
}

const TreeNode* TreeView::Node(TextView key) const {
    return Find(key);
}

const TreeNode* TreeView::NodeOfId(std::uint32_t id) const {
    return id < byId_.size() ? byId_[id] : nullptr;
}

std::vector<const TreeNode*> TreeView::Nodes() const {
    std::vector<const TreeNode*> nodes;
    AppendAll(*root_, nodes);
    return nodes;
}

std::vector<const TreeNode*> TreeView::Children(TextView parent) const {
    std::vector<const TreeNode*> children;
    const TreeNode* const above = FindParent(parent);
    if (above == nullptr) return children;
    for (const auto& child : above->children)
        children.push_back(child.get());
    return children;
}

bool TreeView::Add(TextView parent, TextView key, TextView text) {
    TreeNode* const above = FindParent(parent);
    if (above == nullptr || key.empty() || Find(key) != nullptr) return false;
    auto node = std::make_unique<TreeNode>();
    node->key = key;
    node->text = text;
    node->parent = above;
    node->row = static_cast<int>(above->children.size());
    Register(*node);
    TreeListener* const listener = Hearing();
    if (listener != nullptr) listener->NodeAdding(*above);
    above->children.push_back(std::move(node));
    if (listener != nullptr) listener->NodeAdded();
    return true;
}

void TreeView::Register(TreeNode& node) {
    byKey_.emplace(node.key, &node);
    if (freeIds_.empty()) {
        node.id = static_cast<std::uint32_t>(byId_.size());
        byId_.push_back(&node);
    } else {
        node.id = freeIds_.back();
        freeIds_.pop_back();
        byId_[node.id] = &node;
    }
}

void TreeView::Unregister(const TreeNode& node) {
    for (const auto& child : node.children)
        Unregister(*child);
    if (selected_ == node.key) selected_.clear();
    byKey_.erase(node.key);
    byId_[node.id] = nullptr;
    freeIds_.push_back(node.id);
}

void TreeView::Remove(TextView key) {
    const TreeNode* const node = Find(key);
    if (node == nullptr) return;
    TreeListener* const listener = Hearing();
    if (listener != nullptr) listener->NodeRemoving(*node);
    auto& siblings = FindParent(node->parent->key)->children;
    Unregister(*node);
    const auto next = siblings.erase(siblings.begin() + node->row);
    for (auto sibling = next; sibling != siblings.end(); ++sibling)
        --(*sibling)->row;
    if (listener != nullptr) listener->NodeRemoved();
}

void TreeView::SetNodeText(TextView key, TextView text) {
    TreeNode* const node = Find(key);
    if (node == nullptr || node->text == text) return;
    node->text = text;
    if (TreeListener* const listener = Hearing()) listener->NodeChanged(*node);
}

void TreeView::SetNodeIcon(TextView key, TextView icon) {
    TreeNode* const node = Find(key);
    if (node == nullptr || IconOf(*node) == icon) return;
    node->icon = icons_.NumberOf(icon);
    if (TreeListener* const listener = Hearing()) listener->NodeChanged(*node);
}

void TreeView::SetExpandable(TextView key, bool expandable) {
    TreeNode* const node = Find(key);
    if (node == nullptr || node->expandable == expandable) return;
    node->expandable = expandable;
    if (TreeListener* const listener = Hearing()) listener->NodeChanged(*node);
}

void TreeView::Clear() {
    byKey_.clear();
    freeIds_.clear();
    icons_.Clear();
    selected_.clear();
    root_ = std::make_unique<TreeNode>();
    byId_.assign(1, root_.get());
    if (TreeListener* const listener = Hearing()) listener->TreeReset();
}

// ---- Telling the view ---------------------------------------------------------------------------------

TreeListener* TreeView::Hearing() {
    keptBack_ = keptBack_ || depth_ > 0;
    return depth_ > 0 ? nullptr : listener_;
}

void TreeView::EndUpdate() {
    if (depth_ == 0 || --depth_ > 0 || listener_ == nullptr) return;
    if (std::exchange(keptBack_, false)) listener_->TreeReset();
    if (std::exchange(keptSelection_, false)) listener_->SelectionChanged();
    if (const TreeNode* wanted = Find(std::exchange(keptWanted_, Text()))) {
        listener_->NodeWantedInView(*wanted);
    }
}

// ---- What is selected and open ------------------------------------------------------------------------

void TreeView::Select(TextView key) {
    const TreeNode* const node = OpenAbove(Text(key));
    if (node == nullptr) return;
    selected_ = node->key;
    keptSelection_ = depth_ > 0;
    if (TreeListener* const listener = Hearing()) listener->SelectionChanged();
    if (NodeClick) NodeClick();
}

const TreeNode* TreeView::OpenAbove(const Text& key) {
    const TreeNode* const node = Find(key);
    if (node == nullptr) return nullptr;
    std::vector<Text> above;
    for (const TreeNode* each = node->parent; each != root_.get(); each = each->parent)
        above.push_back(each->key);
    std::for_each(above.rbegin(), above.rend(), [this](const Text& each) { SetExpanded(each, true); });
    return Find(key);
}

void TreeView::SetExpanded(TextView key, bool expanded) {
    TreeNode* const node = Find(key);
    if (node == nullptr || node->expanded == expanded) return;
    node->expanded = expanded;
    if (TreeListener* const listener = Hearing()) listener->NodeExpanded(*node);
    if (expanded && Expand) Expand(Text(key));
}

void TreeView::EnsureVisible(TextView key) {
    const TreeNode* const node = OpenAbove(Text(key));
    if (node == nullptr) return;
    if (depth_ > 0) {
        keptWanted_ = node->key;
    } else if (listener_ != nullptr) {
        listener_->NodeWantedInView(*node);
    }
}

void TreeView::DoubleClick(TextView key) {
    const Text own(key);
    Select(own);
    if (DblClick) DblClick();
}

} // namespace korvane
