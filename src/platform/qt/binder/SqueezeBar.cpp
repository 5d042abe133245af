#include "platform/qt/binder/SqueezeBar.h"

#include <QEvent>
#include <QLayout>
#include <QToolButton>

namespace korvane {

void SqueezeBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Fit();
}

void SqueezeBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) Fit();
}

void SqueezeBar::Fit() {
    if (layout() == nullptr) return;
    ShowTexts(true);
    for (const QString& name : givesWay_) {
        if (auto* part = findChild<QWidget*>(name)) part->show();
    }
    if (Fits()) return;
    ShowTexts(false);
    for (const QString& name : givesWay_) {
        if (Fits()) return;
        if (auto* part = findChild<QWidget*>(name)) part->hide();
    }
}

bool SqueezeBar::Fits() const {
    layout()->invalidate();
    return layout()->minimumSize().width() <= width();
}

void SqueezeBar::ShowTexts(bool shown) {
    for (auto* button : findChildren<QToolButton*>()) {
        // A button that has only a picture stays as it is.
        if (button->text().isEmpty()) continue;
        button->setToolButtonStyle(shown ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    }
}

} // namespace korvane
