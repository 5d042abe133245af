#include "platform/qt/base/PopupPlace.h"

#include <QApplication>
#include <QCursor>

namespace korvane {

namespace {

constexpr auto kPlace = "popupPlace";

} // namespace

PopupPlace::PopupPlace(QWidget& widget, const QPoint& onScreen) : widget_(&widget) {
    widget.setProperty(kPlace, onScreen);
}

PopupPlace::~PopupPlace() {
    if (!widget_.isNull()) widget_->setProperty(kPlace, QVariant());
}

QPoint PopupPlace::Wanted() {
    const QWidget* widget = QApplication::focusWidget();
    const QVariant place = widget == nullptr ? QVariant() : widget->property(kPlace);
    return place.isValid() ? place.toPoint() : QCursor::pos();
}

} // namespace korvane
