#include "platform/qt/binder/CalmStyle.h"

#include "Pixels.h"
#include "QtSupport.h"
#include "platform/qt/grid/CellLook.h"
#include "platform/qt/look/Palettes.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <memory>

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

    /// The contrast of an entry of the menu bar whose menu is open.
    double OpenMenuOfBar(const QPalette& palette) {
        QMenuBar bar;
        QStyleOptionMenuItem option;
        option.initFrom(&bar);
        option.palette = palette;
        option.rect = QRect(0, 0, 80, 24);
        option.menuRect = option.rect;
        option.text = "Chosen";
        option.state |= QStyle::State_Selected | QStyle::State_Sunken | QStyle::State_Enabled;
        QImage picture(option.rect.size(), QImage::Format_RGB32);
        picture.fill(palette.color(QPalette::Window));
        QPainter painter(&picture);
        style.drawControl(QStyle::CE_MenuBarItem, &option, &painter, &bar);
        painter.end();
        return test::ContrastWithin(picture, option.rect.adjusted(1, 1, -1, -1));
    }

    CalmStyle style;
};

/// A tool bar of a main window, drawn by the style.
QImage ToolBarBy(QStyle& style, const QPalette& palette, Qt::ToolBarArea area) {
    QMainWindow window;
    QToolBar bar;
    window.addToolBar(&bar);
    QStyleOptionToolBar option;
    option.initFrom(&bar);
    option.palette = palette;
    option.rect = QRect(3, 2, 300, 40);
    option.state = QStyle::State_Horizontal;
    option.toolBarArea = area;
    option.positionOfLine = QStyleOptionToolBar::OnlyOne;
    QImage picture(320, 60, QImage::Format_ARGB32_Premultiplied);
    picture.fill(palette.color(QPalette::Window));
    QPainter painter(&picture);
    style.drawControl(QStyle::CE_ToolBar, &option, &painter, &bar);
    return picture;
}

TEST_F(CalmStyleTest, AToolBarLooksAsFusionDrawsIt) {
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    for (const QPalette& palette : {QApplication::palette(), DarkPalette()}) {
        for (const auto area : {Qt::TopToolBarArea, Qt::BottomToolBarArea})
            EXPECT_EQ(ToolBarBy(style, palette, area), ToolBarBy(*fusion, palette, area));
    }
}

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

TEST_F(CalmStyleTest, TheHandleOfAScrollBarCanBeSeenAndTellsThatItIsHeld) {
    for (const QPalette& palette : {style.standardPalette(), DarkPalette()}) {
        for (const auto way : {Qt::Vertical, Qt::Horizontal}) {
            const test::UnderPalette under(palette);
            QScrollBar bar(way);
            bar.setStyle(&style);
            bar.setRange(0, 100);
            bar.setPageStep(100);
            bar.resize(way == Qt::Vertical ? QSize(16, 200) : QSize(200, 16));
            QStyleOptionSlider option;
            option.initFrom(&bar);
            option.orientation = way;
            option.maximum = 100;
            option.pageStep = 100;
            const QRect groove =
                style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarGroove, &bar);
            const QImage picture = bar.grab().toImage();
            EXPECT_GE(test::ContrastWithin(picture, groove), kReadable);
            const QRect handle =
                style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
            QTest::mousePress(&bar, Qt::LeftButton, {}, handle.center());
            EXPECT_NE(bar.grab().toImage(), picture);
            bar.setRange(0, 0);
            EXPECT_LT(test::ContrastWithin(bar.grab().toImage(), groove), kReadable);
        }
    }
}

TEST_F(CalmStyleTest, AFieldHasAnEdgeOnALightWindowToo) {
    QLineEdit line;
    EXPECT_GT(EdgeOf(line, {60, 0}), 1.3);
    EXPECT_GT(EdgeOf(line, {0, 12}), 1.3);
}

TEST_F(CalmStyleTest, AListHasAFrameOnAllSides) {
    for (const QPalette& palette : {style.standardPalette(), DarkPalette()}) {
        const test::UnderPalette under(palette);
        QListWidget list;
        list.setStyle(&style);
        list.resize(120, 60);
        const QImage picture = list.grab().toImage();
        const QColor frame = picture.pixelColor(60, 0);
        for (const QPoint& place : {QPoint(60, 59), QPoint(0, 30), QPoint(119, 30), QPoint(0, 0)})
            EXPECT_EQ(picture.pixelColor(place).name(), frame.name());
        EXPECT_EQ(QColor(picture.pixel(1, 1)).name(), palette.color(QPalette::Base).name());
        if (!IsDark(palette))
            EXPECT_EQ(frame.name(), palette.color(QPalette::Window).darker(140).lighter(108).name());
    }
}

TEST_F(CalmStyleTest, TheFrameOfATreeCanBeSeenOnADarkWindow) {
    const test::UnderPalette under(DarkPalette());
    QTreeView tree;
    EXPECT_GE(EdgeOf(tree, {60, 0}), kReadable);
    EXPECT_GE(Contrast(tree.grab().toImage().pixelColor(60, 0), DarkPalette().color(QPalette::Base)),
              kReadable);
}

TEST_F(CalmStyleTest, OfALineWhatIsToBeSeenIsDrawn) {
    QTreeView tree;
    QStyleOptionViewItem line;
    line.initFrom(&tree);
    line.rect = QRect(0, 0, 40, 20);
    const auto draws = [&](QStyle::PrimitiveElement element, const QStyleOptionViewItem& item) {
        QImage picture(line.rect.size(), QImage::Format_RGB32);
        picture.fill(Qt::magenta);
        const QImage empty = picture;
        QPainter painter(&picture);
        style.drawPrimitive(element, &item, &painter, &tree);
        painter.end();
        return picture != empty;
    };
    for (const auto element :
         {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow, QStyle::PE_IndicatorBranch})
        EXPECT_FALSE(draws(element, line));
    QStyleOptionViewItem coloured = line;
    coloured.backgroundBrush = Qt::green;
    EXPECT_TRUE(draws(QStyle::PE_PanelItemViewItem, coloured));
    QStyleOptionViewItem other = line;
    other.features |= QStyleOptionViewItem::Alternate;
    EXPECT_TRUE(draws(QStyle::PE_PanelItemViewRow, other));
    QStyleOptionViewItem chosen = line;
    chosen.state |= QStyle::State_Selected;
    chosen.showDecorationSelected = true;
    EXPECT_TRUE(draws(QStyle::PE_PanelItemViewItem, chosen));
    EXPECT_TRUE(draws(QStyle::PE_PanelItemViewRow, chosen));
    QStyleOptionViewItem parent = line;
    parent.state |= QStyle::State_Children;
    EXPECT_TRUE(draws(QStyle::PE_IndicatorBranch, parent));
}

TEST_F(CalmStyleTest, ChosenLinesOfListsAndMenusAreEasyToRead) {
    QPalette light = style.standardPalette();
    style.polish(light);
    for (const QPalette& palette : {light, DarkPalette()}) {
        const test::UnderPalette under(palette);
        QListWidget list;
        list.setStyle(&style);
        list.addItem("A chosen line");
        list.setCurrentRow(0);
        list.show();
        const QRect line = list.visualItemRect(list.item(0));
        EXPECT_GE(test::ContrastWithin(list.viewport()->grab().toImage(), line), kEasyToRead);
        QMenu menu;
        menu.setStyle(&style);
        menu.setActiveAction(menu.addAction("A chosen entry"));
        const QRect entry = menu.actionGeometry(menu.activeAction());
        EXPECT_GE(test::ContrastWithin(menu.grab().toImage(), entry.adjusted(2, 2, -2, -2)), kEasyToRead);
        EXPECT_GE(OpenMenuOfBar(palette), kEasyToRead);
    }
}

TEST_F(CalmStyleTest, APaletteOfTheDesktopsIsMadeReadable) {
    QPalette palette;
    palette.setColor(QPalette::Highlight, QColor(150, 200, 255));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    style.polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        EXPECT_EQ(palette.color(group, QPalette::HighlightedText), Qt::white);
        EXPECT_GE(Contrast(palette.color(group, QPalette::HighlightedText),
                           palette.color(group, QPalette::Highlight)),
                  kEasyToRead);
    }
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

TEST_F(CalmStyleTest, TheTextOfACellBeginsBelowThatOfItsHeader) {
    const QTreeView list;
    const int ofCell = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
    EXPECT_EQ(ofCell, style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, &list));
}

} // namespace
} // namespace korvane
