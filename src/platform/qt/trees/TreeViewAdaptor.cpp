#include "platform/qt/trees/TreeViewAdaptor.h"

#include "platform/qt/trees/LineDelegate.h"

#include <QEvent>
#include <QHeaderView>
#include <utility>

namespace korvane {

namespace {

constexpr std::size_t kMany = 20;

} // namespace

TreeViewAdaptor::TreeViewAdaptor(TreeView& tree, QTreeView& widget)
    : ItemsAdaptor(tree, widget), tree_(tree), widget_(widget), model_(*new TreeViewModel(tree, &widget)) {
    widget.setUniformRowHeights(true);
    widget.setItemDelegate(new LineDelegate(&widget));
    widget.setHeaderHidden(true);
    widget.setModel(&model_);
    // A long line is scrolled to its end, not cut.
    widget.header()->setStretchLastSection(false);
    widget.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    tree.SetTreeListener(this);
    connect(widget.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) { ReadCurrent(index); });
    connect(&widget, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        const TreeNode* node = model_.NodeOf(index);
        if (ByUser() && node != nullptr) tree_.DoubleClick(node->key);
    });
    connect(&widget, &QTreeView::expanded, this,
            [this](const QModelIndex& index) { ReadExpanded(index, true); });
    connect(&widget, &QTreeView::collapsed, this,
            [this](const QModelIndex& index) { ReadExpanded(index, false); });
}

TreeViewAdaptor::~TreeViewAdaptor() {
    if (Attached()) tree_.SetTreeListener(nullptr);
}

void TreeViewAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Items) {
        model_.ReadImages();
        TreeReset();
    }
    if (aspect == Aspect::Selection) SelectionChanged();
    ItemsAdaptor::Write(aspect);
}

void TreeViewAdaptor::Deafen() {
    widget_.selectionModel()->disconnect(this);
    ItemsAdaptor::Deafen();
    model_.Forget();
}

// ---- What the control tells ---------------------------------------------------------------------------

void TreeViewAdaptor::TreeReset() {
    const auto guard = Writing();
    Overtake();
    model_.ReadNodes();
    expanded_.clear();
    changed_.clear();
    for (const TreeNode* node : tree_.Nodes()) {
        if (node->expanded) NodeExpanded(*node);
    }
    HoldBack();
}

void TreeViewAdaptor::NodeAdding(const TreeNode& parent) {
    const auto guard = Writing();
    model_.TellAdding(parent);
}

void TreeViewAdaptor::NodeAdded() {
    const auto guard = Writing();
    model_.TellAdded();
}

void TreeViewAdaptor::NodeRemoving(const TreeNode& node) {
    const auto guard = Writing();
    WithoutScrolling([&] { model_.TellRemoving(node); });
}

void TreeViewAdaptor::NodeRemoved() {
    const auto guard = Writing();
    model_.TellRemoved();
    HoldBack();
}

void TreeViewAdaptor::NodeChanged(const TreeNode& node) {
    changed_.emplace_back(model_.IndexOf(node));
    HoldBack();
}

void TreeViewAdaptor::NodeExpanded(const TreeNode& node) {
    expanded_.emplace_back(model_.IndexOf(node));
    HoldBack();
}

void TreeViewAdaptor::SelectionChanged() {
    HoldBack();
    const TreeNode* node = tree_.Node(tree_.Selected());
    // Where it is the user who goes, the view has scrolled as users expect.
    const bool isThere = Reading() && SelectedIndex() == widget_.currentIndex();
    if (node != nullptr && !isThere) NodeWantedInView(*node);
}

void TreeViewAdaptor::NodeWantedInView(const TreeNode& node) {
    wanted_ = model_.IndexOf(node);
    HoldScroll();
    HoldBack();
}

QModelIndex TreeViewAdaptor::SelectedIndex() const {
    const TreeNode* node = tree_.Node(tree_.Selected());
    return node == nullptr ? QModelIndex() : model_.IndexOf(*node);
}

// ---- Bringing it to the view --------------------------------------------------------------------------

void TreeViewAdaptor::WriteHeldBack() {
    WriteExpanded();
    WriteChanged();
    WriteSelection();
}

void TreeViewAdaptor::ScrollToWanted() {
    if (wanted_.isValid()) widget_.scrollTo(wanted_);
    wanted_ = QModelIndex();
}

void TreeViewAdaptor::WriteExpanded() {
    // After a reset the view lays out its nodes once, and otherwise after each node that opens.
    if (expanded_.size() > kMany) TreeReset();
    for (const QPersistentModelIndex& index : std::exchange(expanded_, {})) {
        const TreeNode* node = index.isValid() ? model_.NodeOf(index) : nullptr;
        if (node != nullptr) widget_.setExpanded(index, node->expanded);
    }
}

void TreeViewAdaptor::WriteChanged() {
    // The view looks for the line of each node that it is told of.
    const bool many = changed_.size() > kMany;
    for (const QPersistentModelIndex& index : std::exchange(changed_, {})) {
        if (!many && index.isValid()) model_.TellChanged(index);
    }
    if (many) widget_.doItemsLayout();
}

void TreeViewAdaptor::WriteSelection() {
    const QModelIndex selected = SelectedIndex();
    if (selected == widget_.currentIndex()) return;
    widget_.selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
}

// ---- What the user does -------------------------------------------------------------------------------

bool TreeViewAdaptor::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (Attached() && (type == QEvent::KeyPress || type == QEvent::MouseButtonPress))
        tree_.ByKeys = type == QEvent::KeyPress;
    return ItemsAdaptor::eventFilter(watched, event);
}

void TreeViewAdaptor::ReadCurrent(const QModelIndex& index) {
    const TreeNode* node = index.isValid() ? model_.NodeOf(index) : nullptr;
    if (!ByUser() || node == nullptr) return;
    const auto guard = ReadingUser();
    tree_.Select(node->key);
}

void TreeViewAdaptor::ReadExpanded(const QModelIndex& index, bool expanded) {
    const TreeNode* node = model_.NodeOf(index);
    if (ByUser() && node != nullptr) tree_.SetExpanded(node->key, expanded);
}

} // namespace korvane
