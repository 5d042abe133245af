#include "platform/qt/lists/ListViewModel.h"

#include "common/text/Shown.h"
#include "platform/native/FileAddress.h"
#include "platform/qt/base/Convert.h"

#include <QIcon>
#include <QMimeData>
#include <QUrl>
#include <array>
#include <memory>

namespace korvane {

namespace {

constexpr std::array kAlignments{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

QVariant ToAlignment(ColumnAlign align) {
    return QVariant::fromValue(kAlignments.at(static_cast<std::size_t>(align)) | Qt::AlignVCenter);
}

} // namespace

ListViewModel::ListViewModel(ListView& list, QObject* parent) : RowsModel(parent), list_(list) {}

void ListViewModel::ReadShape() {
    rowFlags_ = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    rowFlags_.setFlag(Qt::ItemIsUserCheckable, list_.CheckBoxes);
    rowFlags_.setFlag(Qt::ItemIsDragEnabled, list_.FilesToDrag != nullptr);
    editColumn_ = list_.EditColumn - 1;
    const auto columns = static_cast<int>(list_.Columns.Get().size());
    if (columns != columns_) {
        beginResetModel();
        columns_ = columns;
        endResetModel();
    } else if (columns > 0) {
        emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
    }
}

int ListViewModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns_;
}

QVariant ListViewModel::data(const QModelIndex& index, int role) const {
    if (!Holds(index)) return {};
    const int row = index.row() + 1;
    const int column = index.column();
    if (role == Qt::DisplayRole) return ToOneLine(Shown(list_.TextAt(row, column + 1)));
    if (role == Qt::EditRole) return ToQString(list_.TextAt(row, column + 1));
    if (role == Qt::TextAlignmentRole) {
        return ToAlignment(list_.Columns.Get()[static_cast<std::size_t>(column)].align);
    }
    return column == 0 ? FirstColumnData(row, role) : QVariant();
}

QVariant ListViewModel::FirstColumnData(int row, int role) const {
    if (role == Qt::DecorationRole) {
        const TextView name = list_.IconAt(row);
        return name.empty() ? QVariant() : icons_.Icon(name);
    }
    if (role == Qt::CheckStateRole && list_.CheckBoxes) {
        return list_.Checked(row) ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

QVariant ListViewModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!Attached() || orientation != Qt::Horizontal || section < 0 || section >= columns_) return {};
    const ListColumn& column = list_.Columns.Get()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return ToQString(column.header);
    if (role == Qt::TextAlignmentRole) return ToAlignment(column.align);
    return {};
}

Qt::ItemFlags ListViewModel::flags(const QModelIndex& index) const {
    if (!Attached() || !index.isValid()) return Qt::NoItemFlags;
    return index.column() == editColumn_ ? rowFlags_ | Qt::ItemIsEditable : rowFlags_;
}

bool ListViewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!Holds(index) || role != Qt::CheckStateRole) return false;
    list_.SetChecked(index.row() + 1, value.toInt() == Qt::Checked);
    return true;
}

QModelIndexList ListViewModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                     Qt::MatchFlags flags) const {
    return RowsModel::match(start.siblingAtColumn(0), role, value, hits, flags);
}

QStringList ListViewModel::mimeTypes() const {
    return {QStringLiteral("text/uri-list")};
}

QMimeData* ListViewModel::mimeData(const QModelIndexList&) const {
    if (!Attached() || !list_.FilesToDrag) return nullptr;
    QList<QUrl> urls;
    for (const Text& path : list_.FilesToDrag())
        urls += QUrl::fromEncoded(QByteArray::fromStdString(FileAddress(path)));
    if (urls.isEmpty()) return nullptr;
    auto data = std::make_unique<QMimeData>();
    data->setUrls(urls);
    return data.release();
}

} // namespace korvane
