#pragma once

#include "controls/lists/TreeView.h"
#include "platform/qt/lists/RowIcons.h"

#include <QAbstractItemModel>

namespace korvane {

/// The nodes of a tree for the views of Qt. It keeps nothing of them: an index has the id of its node, so
/// that an index that outlives its node finds none.
class TreeViewModel : public QAbstractItemModel {
    Q_OBJECT

public:
    /// The tree outlives the model, or `Forget` is called before it goes.
    TreeViewModel(TreeView& tree, QObject* parent);

    // Tell the views what has become of the nodes, or what is about to.
    void ReadNodes();
    void TellAdding(const TreeNode& parent);
    void TellAdded() { endInsertRows(); }
    void TellRemoving(const TreeNode& node);
    void TellRemoved() { endRemoveRows(); }
    void TellChanged(const QModelIndex& node) { emit dataChanged(node, node); }
    void ReadImages();
    /// Lets go of the tree: there are no nodes any more.
    void Forget();

    /// nullptr when the node has gone; the root for an invalid index.
    const TreeNode* NodeOf(const QModelIndex& index) const;
    /// Invalid for the root.
    QModelIndex IndexOf(const TreeNode& node) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QIcon IconOf(const TreeNode& node) const;

    TreeView& tree_;
    bool attached_ = true;
    QIcon closed_;
    QIcon open_;
    mutable RowIcons icons_;
};

} // namespace korvane
