#include "platform/qt/lists/ListBoxModel.h"

#include "common/text/Shown.h"
#include "platform/qt/base/Convert.h"
#include "platform/qt/look/Contrast.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPixmap>

namespace korvane {

namespace {

constexpr QSize kSampleSize(30, 12);
constexpr int kSampleDetail = 2;

/// A small field with a letter in it, in the colours of the sample.
QVariant SamplePicture(const std::optional<ListBox::Sample>& sample) {
    if (!sample) return {};
    const QPalette palette = QApplication::palette();
    const QColor back = sample->back == kNoColour ? palette.color(QPalette::Base) : ToQColor(sample->back);
    const QColor text = sample->text == kNoColour ? palette.color(QPalette::Text) : ToQColor(sample->text);
    QPixmap picture(kSampleSize * kSampleDetail);
    picture.setDevicePixelRatio(kSampleDetail);
    picture.fill(back);
    QPainter painter(&picture);
    QFont font = QApplication::font();
    font.setPixelSize(kSampleSize.height() - 2);
    painter.setFont(font);
    painter.setPen(text);
    const QRect area(QPoint(), kSampleSize);
    painter.drawText(area, Qt::AlignCenter, QStringLiteral("Abc"));
    painter.setPen(Blend(back, BlackOrWhite(back), 0.4));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
    return picture;
}

} // namespace

ListBoxModel::ListBoxModel(ListBox& list, bool checkBoxes, QObject* parent)
    : RowsModel(parent), list_(list), checkBoxes_(checkBoxes) {}

/// A font is looked at when its row is drawn, and not before.
QVariant ListBoxModel::FaceOf(int row) const {
    if (!list_.NamesFonts) return {};
    const QString family = ToQString(list_.List(row));
    // Nobody can read its name in the pictures of such a font.
    if (QFontDatabase::writingSystems(family).contains(QFontDatabase::Symbol)) return baseFont_;
    QFont face(baseFont_);
    face.setFamilies({family});
    return face;
}

int ListBoxModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant ListBoxModel::data(const QModelIndex& index, int role) const {
    if (!Holds(index)) return {};
    if (role == Qt::DisplayRole) return ToLines(Shown(list_.List(index.row())));
    if (role == Qt::FontRole) return FaceOf(index.row());
    if (role == Qt::DecorationRole) return SamplePicture(list_.SampleAt(index.row()));
    if (role == Qt::SizeHintRole && rowHeight_ > 0) return QSize(0, rowHeight_);
    if (role == Qt::CheckStateRole && checkBoxes_) {
        return list_.Selected(index.row()) ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

Qt::ItemFlags ListBoxModel::flags(const QModelIndex& index) const {
    if (!Holds(index)) return Qt::NoItemFlags;
    const auto row = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return checkBoxes_ ? row | Qt::ItemIsUserCheckable : row;
}

bool ListBoxModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!Holds(index) || role != Qt::CheckStateRole) return false;
    list_.SetSelected(index.row(), value.toInt() == Qt::Checked);
    return true;
}

} // namespace korvane
