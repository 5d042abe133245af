#include "grid/Grid.h"
#include "platform/qt/binder/FormEntry.h"
#include "platform/qt/binder/QtFormHost.h"
#include "shell/tabs/TabStates.h"
#include "shell/tabs/frmMDIChild.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

namespace korvane {
namespace {

/// 120 twips are 8 pixels at 96 dpi.
constexpr int kMargin = 8;

class TabLayoutTest : public testing::Test {
protected:
    TabLayoutTest() {
        host.Show(tab);
        window = host.WidgetOf(tab);
        window->show();
        Resize(1000);
    }
    void Resize(int width) {
        window->resize(width, 700);
        // Each level of nested parts needs one more round to be laid out.
        for (int depth = 0; depth < 4; ++depth)
            QApplication::processEvents();
    }
    /// The place of a part, relative to the tab.
    QRect Place(const char* name) const {
        const auto* part = window->findChild<QWidget*>(name);
        return part == nullptr ? QRect() : QRect(part->mapTo(window, QPoint(0, 0)), part->size());
    }

    TestApp program;
    TabStates states;
    frmMDIChild tab{program.app, states};
    QtFormHost host{KorvaneForms()};
    QWidget* window = nullptr;
};

TEST_F(TabLayoutTest, TheFrameTakesTheWidthAndAllBelowTheStrip) {
    EXPECT_EQ(Place("Picture1").width(), 1000);
    EXPECT_EQ(Place("Frame1"), QRect(0, Place("Picture1").height(), 1000, 700 - Place("Picture1").height()));
}

TEST_F(TabLayoutTest, TheGridFillsTheFrameUpToAMarginAtTheRightAndBelow) {
    const QRect frame = Place("Frame1");
    EXPECT_EQ(Place("iGrid1"), frame.adjusted(0, 0, -kMargin, -kMargin));
}

TEST_F(TabLayoutTest, TheFindBoxStretchesToTheMargin) {
    EXPECT_EQ(Place("txtFindString").right() + 1, 1000 - kMargin);
    const int before = Place("txtFindString").width();
    Resize(1200);
    EXPECT_EQ(Place("txtFindString").width(), before + 200);
    EXPECT_EQ(Place("txtFindString").right() + 1, 1200 - kMargin);
}

} // namespace
} // namespace korvane
