#include "platform/qt/lists/ListAdaptors.h"

#include "platform/qt/base/BackColour.h"
#include "platform/qt/base/Contrast.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/base/Icons.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

namespace korvane {

namespace {

constexpr int kKeyRole = Qt::UserRole;

/// Draws a line below and at the right of each cell.
class LinedDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        painter->setPen(option.palette.color(QPalette::Window));
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    }
};

Qt::CheckState ToCheckState(bool checked) {
    return checked ? Qt::Checked : Qt::Unchecked;
}

} // namespace

// ---- A list -------------------------------------------------------------------------------------------

ListBoxAdaptor::ListBoxAdaptor(ListBox& list, QListWidget& widget)
    : ItemsAdaptor(list, widget), checkable_(widget.property("checkBoxes").toBool()) {
    widget.setUniformItemSizes(true);
    connect(&widget, &QListWidget::currentRowChanged, this, [this](int row) {
        if (ByUser()) control_.Select(row);
    });
    connect(&widget, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
        if (ByUser()) control_.DoubleClick(widget_.row(item));
    });
    connect(&widget, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) { ReadCheck(*item); });
    connect(&widget, &QListWidget::itemSelectionChanged, this, [this] { ReadPicks(); });
}

bool ListBoxAdaptor::TakesSeveral() const {
    return widget_.selectionMode() == QAbstractItemView::MultiSelection ||
           widget_.selectionMode() == QAbstractItemView::ExtendedSelection;
}

void ListBoxAdaptor::WriteItems() {
    while (widget_.count() > control_.ListCount())
        delete widget_.takeItem(widget_.count() - 1);
    for (int row = 0; row < control_.ListCount(); ++row) {
        const QString text = ToLines(control_.List(row));
        if (row >= widget_.count()) widget_.addItem(QString());
        if (widget_.item(row)->text() != text) widget_.item(row)->setText(text);
    }
}

void ListBoxAdaptor::WriteSelection() {
    widget_.setCurrentRow(control_.ListIndex(), TakesSeveral() ? QItemSelectionModel::NoUpdate
                                                               : QItemSelectionModel::ClearAndSelect);
}

void ListBoxAdaptor::WriteMarks() {
    for (int row = 0; row < widget_.count(); ++row) {
        const bool selected = control_.Selected(row);
        if (checkable_) widget_.item(row)->setCheckState(ToCheckState(selected));
        if (TakesSeveral()) widget_.item(row)->setSelected(selected);
    }
}

void ListBoxAdaptor::ReadCheck(const QListWidgetItem& item) {
    if (ByUser() && checkable_) control_.SetSelected(widget_.row(&item), item.checkState() == Qt::Checked);
}

void ListBoxAdaptor::ReadPicks() {
    if (!TakesSeveral()) return;
    ReadFromUser([this] {
        for (int row = 0; row < widget_.count() && ByUser(); ++row) {
            control_.SetSelected(row, widget_.item(row)->isSelected());
        }
    });
}

// ---- A list that drops down ---------------------------------------------------------------------------

ComboBoxAdaptor::ComboBoxAdaptor(ComboBox& list, QComboBox& widget) : ItemsAdaptor(list, widget) {
    connect(&widget, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (ByUser()) control_.Select(index);
    });
}

void ComboBoxAdaptor::WriteItems() {
    widget_.clear();
    for (int index = 0; index < control_.ListCount(); ++index)
        widget_.addItem(ToLines(control_.List(index)));
}

void ComboBoxAdaptor::WriteSelection() {
    widget_.setCurrentIndex(control_.ListIndex());
}

// ---- A list with columns ------------------------------------------------------------------------------

ListViewAdaptor::ListViewAdaptor(ListView& list, QTreeWidget& widget) : ItemsAdaptor(list, widget) {
    widget.setRootIsDecorated(false);
    widget.setUniformRowHeights(true);
    widget.setAllColumnsShowFocus(true);
    widget.header()->setSectionsClickable(true);
    connect(&widget, &QTreeWidget::currentItemChanged, this, [this] { ReadCurrent(); });
    connect(&widget, &QTreeWidget::itemSelectionChanged, this, [this] { ReadPicks(); });
    connect(&widget, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (ByUser()) control_.DoubleClick(IndexOf(item));
    });
    connect(&widget, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
        if (ByUser() && control_.CheckBoxes) {
            control_.SetChecked(IndexOf(item), item->checkState(0) == Qt::Checked);
        }
    });
    connect(widget.header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (Attached()) control_.ClickColumn(section + 1);
    });
}

int ListViewAdaptor::IndexOf(const QTreeWidgetItem* item) const {
    return widget_.indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(item)) + 1; // NOLINT: asks only
}

void ListViewAdaptor::WriteShape() {
    const auto& columns = control_.Columns.Get();
    widget_.setColumnCount(static_cast<int>(columns.size()));
    for (int column = 0; column < widget_.columnCount(); ++column) {
        const ListColumn& shape = columns[static_cast<std::size_t>(column)];
        widget_.headerItem()->setText(column, ToQString(shape.header));
        widget_.setColumnWidth(column, ToPixels(shape.width));
    }
    widget_.setSelectionMode(control_.MultiSelect ? QAbstractItemView::ExtendedSelection
                                                  : QAbstractItemView::SingleSelection);
    const bool lined = dynamic_cast<const LinedDelegate*>(widget_.itemDelegate()) != nullptr;
    if (control_.GridLines && !lined) widget_.setItemDelegate(new LinedDelegate(&widget_));
}

void ListViewAdaptor::WriteItems() {
    widget_.setUpdatesEnabled(false);
    widget_.clear();
    QList<QTreeWidgetItem*> items;
    for (int index = 1; index <= control_.Count(); ++index) {
        QStringList texts;
        for (const Text& text : control_.RowAt(index).texts)
            texts << ToQString(text);
        auto* item = new QTreeWidgetItem(texts);
        item->setIcon(0, ImageOf(control_.RowAt(index)));
        items << item;
    }
    widget_.addTopLevelItems(items);
    widget_.setUpdatesEnabled(true);
}

QIcon ListViewAdaptor::ImageOf(const ListRow& row) const {
    return TintedIcon(widget_.property("rowImages").toStringList().value(row.image - 1));
}

void ListViewAdaptor::WriteColours() {
    const Colour back = ChosenBack(control_.BackColor, QApplication::palette());
    WriteBackColour(widget_, back, kFieldSurface);
}

void ListViewAdaptor::WriteMarks() {
    if (!control_.CheckBoxes) return;
    for (int index = 1; index <= control_.Count(); ++index) {
        widget_.topLevelItem(index - 1)->setCheckState(0, ToCheckState(control_.RowAt(index).checked));
    }
}

void ListViewAdaptor::WriteSelection() {
    QTreeWidgetItem* current = widget_.topLevelItem(control_.Current() - 1);
    widget_.setCurrentItem(current, 0, QItemSelectionModel::NoUpdate);
    for (int index = 1; index <= control_.Count(); ++index) {
        widget_.topLevelItem(index - 1)->setSelected(control_.RowAt(index).selected);
    }
    if (current != nullptr) widget_.scrollToItem(current);
}

void ListViewAdaptor::ReadCurrent() {
    if (widget_.currentItem() == nullptr) return;
    ReadFromUser([this] {
        control_.Select(IndexOf(widget_.currentItem()));
        TakePicks();
    });
}

void ListViewAdaptor::ReadPicks() {
    ReadFromUser([this] { TakePicks(); });
}

void ListViewAdaptor::TakePicks() {
    for (int index = 1; ByUser() && index <= control_.Count(); ++index) {
        const QTreeWidgetItem* item = widget_.topLevelItem(index - 1);
        if (item != nullptr) control_.SetSelected(index, item->isSelected());
    }
}

// ---- A tree -------------------------------------------------------------------------------------------

TreeViewAdaptor::TreeViewAdaptor(TreeView& tree, QTreeWidget& widget) : ItemsAdaptor(tree, widget) {
    widget.setColumnCount(1);
    widget.setHeaderHidden(true);
    // A long line is scrolled to its end, not cut.
    widget.header()->setStretchLastSection(false);
    widget.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(&widget, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (ByUser() && item != nullptr) control_.Select(KeyOf(*item));
        if (ByUser()) ShowImages();
    });
    connect(&widget, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (ByUser()) control_.DoubleClick(KeyOf(*item));
    });
    const auto expand = [this](const QTreeWidgetItem* item) {
        if (ByUser()) control_.SetExpanded(KeyOf(*item), item->isExpanded());
        if (ByUser()) ShowImages();
    };
    connect(&widget, &QTreeWidget::itemExpanded, this, expand);
    connect(&widget, &QTreeWidget::itemCollapsed, this, expand);
}

Text TreeViewAdaptor::KeyOf(const QTreeWidgetItem& item) {
    return ToText(item.data(0, kKeyRole).toString());
}

void TreeViewAdaptor::AddChildren(const Text& parent, QTreeWidgetItem& item) {
    for (const TreeNode& node : control_.Children(parent)) {
        auto* child = new QTreeWidgetItem(&item, {ToQString(node.text)});
        child->setData(0, kKeyRole, ToQString(node.key));
        items_[node.key] = child;
        AddChildren(node.key, *child);
    }
}

void TreeViewAdaptor::WriteItems() {
    const TreeImages& images = control_.Images;
    closed_ = IconFromFile(ToQString(images.closed), QStringLiteral("folderClosed"));
    open_ = IconFromFile(ToQString(images.open), QStringLiteral("cmdOpen"));
    widget_.clear();
    items_.clear();
    AddChildren({}, *widget_.invisibleRootItem());
}

void TreeViewAdaptor::WriteMarks() {
    for (const TreeNode& node : control_.Nodes())
        items_.at(node.key)->setExpanded(node.expanded);
    ShowImages();
}

void TreeViewAdaptor::WriteSelection() {
    const auto selected = items_.find(control_.Selected());
    widget_.setCurrentItem(selected == items_.end() ? nullptr : selected->second);
    ShowImages();
}

void TreeViewAdaptor::ShowImages() {
    for (const auto& [key, item] : items_) {
        const bool open = item == widget_.currentItem() || (item->isExpanded() && item->childCount() > 0);
        item->setIcon(0, open ? open_ : closed_);
    }
}

} // namespace korvane
