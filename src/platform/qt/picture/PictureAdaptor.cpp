#include "platform/qt/picture/PictureAdaptor.h"

#include "platform/qt/base/Convert.h"

#include <QEvent>

namespace korvane {

namespace {

QRect ToQRect(const Rect& place) {
    return {ToPixels(place.left), ToPixels(place.top), ToPixels(place.width), ToPixels(place.height)};
}

} // namespace

void PictureAdaptor::Write(Aspect aspect) {
    if (aspect == Aspect::Text) widget_.SetFile(ToQString(control_.File.Get()));
    if (aspect == Aspect::Value) widget_.SetPlace(ToQRect(control_.Place));
    AdaptorOf::Write(aspect);
}

bool PictureAdaptor::eventFilter(QObject* watched, QEvent* event) {
    if (Attached() && event->type() == QEvent::Resize && control_.Resized)
        control_.Resized(ToTwips(widget_.width()), ToTwips(widget_.height()));
    return AdaptorOf::eventFilter(watched, event);
}

} // namespace korvane
