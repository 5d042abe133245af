#include "platform/qt/trees/TreeViewModel.h"

#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Icons.h"

namespace korvane {

TreeViewModel::TreeViewModel(TreeView& tree, QObject* parent) : QAbstractItemModel(parent), tree_(tree) {}

// ---- What becomes of the nodes ------------------------------------------------------------------------

void TreeViewModel::ReadNodes() {
    beginResetModel();
    endResetModel();
}

void TreeViewModel::TellAdding(const TreeNode& parent) {
    const auto row = static_cast<int>(parent.children.size());
    beginInsertRows(IndexOf(parent), row, row);
}

void TreeViewModel::TellRemoving(const TreeNode& node) {
    beginRemoveRows(IndexOf(*node.parent), node.row, node.row);
}

void TreeViewModel::ReadImages() {
    const TreeImages& images = tree_.Images;
    closed_ = IconFromFile(ToQString(images.closed), QStringLiteral("folderClosed"));
    open_ = IconFromFile(ToQString(images.open), QStringLiteral("cmdOpen"));
}

void TreeViewModel::Forget() {
    beginResetModel();
    attached_ = false;
    endResetModel();
}

// ---- What the views ask -------------------------------------------------------------------------------

const TreeNode* TreeViewModel::NodeOf(const QModelIndex& index) const {
    if (!attached_) return nullptr;
    if (!index.isValid()) return &tree_.Root();
    return tree_.NodeOfId(static_cast<std::uint32_t>(index.internalId()));
}

QModelIndex TreeViewModel::IndexOf(const TreeNode& node) const {
    return node.parent == nullptr ? QModelIndex() : createIndex(node.row, 0, quintptr{node.id});
}

QModelIndex TreeViewModel::index(int row, int column, const QModelIndex& parent) const {
    const TreeNode* above = NodeOf(parent);
    if (above == nullptr || column != 0 || row < 0 || row >= static_cast<int>(above->children.size())) {
        return {};
    }
    return IndexOf(*above->children[static_cast<std::size_t>(row)]);
}

QModelIndex TreeViewModel::parent(const QModelIndex& index) const {
    const TreeNode* node = NodeOf(index);
    return node == nullptr || node->parent == nullptr ? QModelIndex() : IndexOf(*node->parent);
}

int TreeViewModel::rowCount(const QModelIndex& parent) const {
    const TreeNode* above = NodeOf(parent);
    return above == nullptr ? 0 : static_cast<int>(above->children.size());
}

int TreeViewModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool TreeViewModel::hasChildren(const QModelIndex& parent) const {
    const TreeNode* above = NodeOf(parent);
    return above != nullptr && (above->expandable || !above->children.empty());
}

QVariant TreeViewModel::data(const QModelIndex& index, int role) const {
    const TreeNode* node = NodeOf(index);
    if (!index.isValid() || node == nullptr) return {};
    if (role == Qt::DisplayRole) return ToOneLine(node->text);
    if (role == Qt::DecorationRole) return IconOf(*node);
    return {};
}

QIcon TreeViewModel::IconOf(const TreeNode& node) const {
    const Text& own = tree_.IconOf(node);
    if (!own.empty()) return icons_.Icon(own);
    const bool open = node.key == tree_.Selected() || (node.expanded && !node.children.empty());
    return open ? open_ : closed_;
}

} // namespace korvane
