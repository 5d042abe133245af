#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace korvane {

/// While it lives, a pop-up menu opens at a place of the widget that has the keyboard. Without one it opens
/// at the mouse.
class PopupPlace {
public:
    PopupPlace(QWidget& widget, const QPoint& onScreen);
    PopupPlace(const PopupPlace&) = delete;
    PopupPlace& operator=(const PopupPlace&) = delete;
    ~PopupPlace();

    static QPoint Wanted();

private:
    QPointer<QWidget> widget_;
};

} // namespace korvane
