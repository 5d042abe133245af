// Goes through all windows as those use them who listen, or have the keyboard alone.

#include "BoundWindow.h"
#include "Pixels.h"
#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/grid/GridView.h"
#include "platform/qt/look/Palettes.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QHeaderView>
#include <QLabel>
#include <QToolButton>

namespace korvane {
namespace {

/// The widgets to which the Tab key comes.
QList<QWidget*> TabStops(QWidget& window) {
    QList<QWidget*> stops;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool stops_ = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->focusProxy() == nullptr;
        if (stops_ && widget->isVisible() && widget->isEnabled()) stops << widget;
    }
    return stops;
}

std::string Name(const QWidget& widget) {
    return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
}

class WindowAccessTest : public testing::TestWithParam<Window> {
protected:
    /// Calls `look` for the window in the style of the program, with light and with dark colours.
    template <class Look>
    void InBothColours(Look look) {
        QApplication::setStyle(new CalmStyle);
        QPalette light = QApplication::style()->standardPalette();
        QApplication::style()->polish(light);
        for (const QPalette& palette : {light, DarkPalette()}) {
            const test::UnderPalette colours(palette);
            test::BoundWindow bound(GetParam());
            bound.Show();
            look(bound.Look());
        }
        QApplication::setStyle("Fusion");
    }
};

TEST_P(WindowAccessTest, EverythingThatTakesTheKeyboardHasARoleAndAName) {
    test::BoundWindow bound(GetParam());
    bound.Show();
    for (QWidget* stop : TabStops(bound.Look())) {
        QAccessibleInterface* access = QAccessible::queryAccessibleInterface(stop);
        ASSERT_NE(access, nullptr) << Name(*stop);
        EXPECT_NE(access->role(), QAccessible::NoRole) << Name(*stop);
        EXPECT_NE(access->role(), QAccessible::Client) << Name(*stop);
        const bool named = !access->text(QAccessible::Name).isEmpty();
        // The buttons of the empty window get their captions when there is something to open.
        EXPECT_TRUE(named || stop->objectName().startsWith("cmdStart") || stop->objectName() == "cmdSample")
            << Name(*stop);
    }
}

TEST_P(WindowAccessTest, WhatHasTheKeyboardHasARingThatCanBeSeen) {
    InBothColours([](QWidget& window) {
        for (QWidget* stop : TabStops(window)) {
            if (QWidget* before = window.focusWidget()) before->clearFocus();
            test::Settle();
            const QImage without = window.grab().toImage();
            stop->setFocus(Qt::TabFocusReason);
            test::Settle();
            // An empty tree hands the keyboard on.
            if (!stop->hasFocus()) continue;
            const QRect place(stop->mapTo(&window, QPoint()), stop->size());
            const int seen = test::SeenChanges(without, window.grab().toImage(), place, kReadable);
            EXPECT_GE(seen, std::min(place.width(), place.height()))
                << Name(*stop) << (IsDark(window.palette()) ? " in the dark" : "");
        }
    });
}

TEST_P(WindowAccessTest, TextsCanBeRead) {
    InBothColours([](QWidget& window) {
        if (QWidget* before = window.focusWidget()) before->clearFocus();
        const QImage picture = window.grab().toImage();
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<QLabel*>(widget);
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const QString text = label != nullptr    ? label->text()
                                 : button != nullptr ? button->text()
                                                     : QString();
            const bool shows = !text.trimmed().isEmpty() && widget->isEnabled() &&
                               widget->isVisibleTo(&window) && !widget->visibleRegion().isEmpty();
            if (!shows || widget->height() < 8) continue;
            const QRect place(widget->mapTo(&window, QPoint()), widget->size());
            EXPECT_GE(test::ContrastWithin(picture, place), kEasyToRead)
                << Name(*widget) << (IsDark(window.palette()) ? " in the dark" : "");
        }
    });
}

/// What a text needs that a widget shows on one line. Empty where it shows none, or breaks its lines.
QSize NeededBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->wordWrap() || label->text().isEmpty() ? QSize() : label->sizeHint();
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const auto* tool = qobject_cast<const QToolButton*>(&widget);
    const bool iconOnly = tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
    return button == nullptr || iconOnly || button->text().isEmpty() ? QSize() : button->sizeHint();
}

void ExpectWholeCaptions(const QHeaderView& header) {
    if (header.orientation() == Qt::Vertical) return;
    const std::string list = Name(*header.parentWidget());
    EXPECT_GE(header.height(), header.fontMetrics().height()) << list;
    for (int section = 0; section < header.count(); ++section) {
        if (header.isSectionHidden(section)) continue;
        const QString caption = header.model()->headerData(section, Qt::Horizontal).toString();
        EXPECT_GE(header.sectionSize(section), header.fontMetrics().horizontalAdvance(caption))
            << caption.toStdString() << " in " << list;
    }
}

TEST_P(WindowAccessTest, ALargeSystemFontCutsNothing) {
    const test::UnderFont large(16);
    test::BoundWindow bound(GetParam());
    bound.Show();
    for (QWidget* widget : bound.Look().findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        const QSize needed = NeededBy(*widget);
        EXPECT_GE(widget->width(), needed.width()) << Name(*widget);
        EXPECT_GE(widget->height(), needed.height()) << Name(*widget);
        if (const auto* header = qobject_cast<QHeaderView*>(widget)) ExpectWholeCaptions(*header);
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowAccessTest,
                         testing::ValuesIn(AllWindows().begin(), AllWindows().end()),
                         [](const auto& window) { return std::string(window.param.name); });

} // namespace
} // namespace korvane
