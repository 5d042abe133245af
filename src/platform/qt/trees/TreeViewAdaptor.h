#pragma once

#include "controls/lists/TreeView.h"
#include "platform/qt/lists/ItemsAdaptor.h"
#include "platform/qt/trees/TreeViewModel.h"

#include <QPersistentModelIndex>
#include <QTreeView>
#include <vector>

namespace korvane {

class TreeViewAdaptor : public ItemsAdaptor, private TreeListener {
public:
    TreeViewAdaptor(TreeView& tree, QTreeView& widget);
    ~TreeViewAdaptor() override;

protected:
    void Write(Aspect aspect) override;
    void Deafen() override;
    void LetGo() override { tree_.SetTreeListener(nullptr); }
    void WriteHeldBack() override;
    void ScrollToWanted() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void TreeReset() override;
    void NodeAdding(const TreeNode& parent) override;
    void NodeAdded() override;
    void NodeRemoving(const TreeNode& node) override;
    void NodeRemoved() override;
    void NodeChanged(const TreeNode& node) override;
    void NodeExpanded(const TreeNode& node) override;
    void SelectionChanged() override;
    void NodeWantedInView(const TreeNode& node) override;

    QModelIndex SelectedIndex() const;
    void WriteExpanded();
    void WriteChanged();
    void WriteSelection();
    void ReadCurrent(const QModelIndex& index);
    void ReadExpanded(const QModelIndex& index, bool expanded);

    TreeView& tree_;
    QTreeView& widget_;
    TreeViewModel& model_;
    /// The nodes that were opened or closed, and those of which the text or picture changed. The view hasn't
    /// heard of them yet.
    std::vector<QPersistentModelIndex> expanded_;
    std::vector<QPersistentModelIndex> changed_;
    QPersistentModelIndex wanted_;
};

} // namespace korvane
