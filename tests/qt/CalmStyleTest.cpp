#include "platform/qt/binder/CalmStyle.h"

#include "QtSupport.h"
#include "platform/qt/base/Palettes.h"
#include "platform/qt/grid/CellLook.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QStyleOptionButton>

namespace korvane {
namespace {

class CalmStyleTest : public testing::Test {
protected:
    /// The contrast between the pixel at `place`, on the edge of the widget's hollow, and the window.
    double EdgeOf(QWidget& widget, const QPoint& place) {
        widget.setStyle(&style);
        widget.resize(120, 24);
        const QImage picture = widget.grab().toImage();
        return Contrast(QColor(picture.pixel(place)), QApplication::palette().color(QPalette::Window));
    }

    CalmStyle style;
};

TEST_F(CalmStyleTest, HollowsHaveAnEdgeOnADarkWindow) {
    const test::UnderPalette under(DarkPalette());
    QCheckBox box;
    QStyleOptionButton option;
    option.initFrom(&box);
    option.rect = QRect(0, 0, 120, 24);
    const QRect hollow = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    EXPECT_GT(EdgeOf(box, {hollow.center().x(), hollow.top()}), 2);
    QLineEdit line;
    EXPECT_GT(EdgeOf(line, {60, 0}), 2);
}

TEST_F(CalmStyleTest, EachKindOfMessageHasAnIconOfTheProgramsOwn) {
    QList<QImage> pictures;
    for (const auto kind : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxQuestion,
                            QStyle::SP_MessageBoxWarning, QStyle::SP_MessageBoxCritical}) {
        const QImage picture = style.standardIcon(kind, nullptr, nullptr).pixmap(48, 48).toImage();
        EXPECT_FALSE(picture.isNull());
        EXPECT_FALSE(pictures.contains(picture));
        pictures << picture;
    }
    EXPECT_FALSE(style.standardIcon(QStyle::SP_DirIcon, nullptr, nullptr).isNull());
}

TEST_F(CalmStyleTest, TheArrowToMoreToolsGoesWithThePalette) {
    const test::UnderPalette under(DarkPalette());
    const QImage arrow = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr)
                             .pixmap(24, 24)
                             .toImage();
    EXPECT_EQ(QColor(arrow.pixelColor(11, 12).rgb()), DarkPalette().color(QPalette::ButtonText));
}

} // namespace
} // namespace korvane
