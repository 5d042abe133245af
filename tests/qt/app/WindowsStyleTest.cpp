// Tests the look of controls where Windows draws them. It needs a screen and a theme.

#include "platform/qt/binder/CalmStyle.h"
#include "platform/qt/look/NativeStyle.h"
#include "platform/qt/look/Palettes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <memory>

namespace korvane {
namespace {

constexpr QRect kArea(0, 0, 80, 24);

void Prepare(QStyleOption& option, const QPalette& palette) {
    option.rect = kArea;
    option.palette = palette;
    option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Raised;
}

template <class Draw>
QImage DrawnOn(const QPalette& palette, const Draw& draw) {
    QImage picture(kArea.size(), QImage::Format_RGB32);
    picture.fill(palette.color(QPalette::Window));
    QPainter painter(&picture);
    draw(painter);
    return picture;
}

QImage Button(const QStyle& style, const QPalette& palette) {
    QStyleOptionButton option;
    Prepare(option, palette);
    return DrawnOn(palette, [&](QPainter& painter) {
        style.drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, nullptr);
    });
}

QImage Combo(const QStyle& style, const QPalette& palette) {
    QStyleOptionComboBox option;
    Prepare(option, palette);
    option.subControls = QStyle::SC_All;
    return DrawnOn(palette, [&](QPainter& painter) {
        style.drawComplexControl(QStyle::CC_ComboBox, &option, &painter, nullptr);
    });
}

QImage Line(const QStyle& style, const QPalette& palette) {
    QStyleOptionViewItem option;
    Prepare(option, palette);
    option.state |= QStyle::State_Selected;
    option.showDecorationSelected = true;
    return DrawnOn(palette, [&](QPainter& painter) {
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &painter, nullptr);
    });
}

class WindowsStyleTest : public testing::Test {
protected:
    WindowsStyleTest() { calm.polish(light); }

    CalmStyle calm;
    const std::unique_ptr<QStyle> native = NewNativeStyle();
    const std::unique_ptr<QStyle> fusion{QStyleFactory::create("Fusion")};
    QPalette light = QApplication::palette();
    const QPalette dark = DarkPalette();
};

TEST_F(WindowsStyleTest, ButtonsAndBoxesLookAsWindowsDrawsThem) {
    ASSERT_NE(native, nullptr);
    EXPECT_EQ(native->name(), "windowsvista");
    EXPECT_EQ(Button(calm, light), Button(*native, light));
    EXPECT_EQ(Combo(calm, light), Combo(*native, light));
    EXPECT_NE(Button(calm, light), Button(*fusion, light));
    EXPECT_NE(Combo(calm, light), Combo(*fusion, light));
}

TEST_F(WindowsStyleTest, ADarkWindowHasNoneOfThose) {
    EXPECT_EQ(Button(calm, dark), Button(*fusion, dark));
    EXPECT_EQ(Combo(calm, dark), Combo(*fusion, dark));
}

TEST_F(WindowsStyleTest, TheLinesOfListsAreTheProgramsOwn) {
    ASSERT_NE(native, nullptr);
    EXPECT_EQ(Line(calm, light), Line(*fusion, light));
    EXPECT_NE(Line(calm, light), Line(*native, light));
}

} // namespace
} // namespace korvane

int main(int argc, char** argv) {
    // Windows draws nothing off screen.
    qputenv("QT_QPA_PLATFORM", "windows");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
