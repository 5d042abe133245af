#include "BoundWindow.h"

#include <gtest/gtest.h>

#include <QToolButton>
#include <set>

namespace korvane {
namespace {

class WindowWalkTest : public testing::TestWithParam<Window> {
protected:
    test::BoundWindow window{GetParam()};
};

TEST_P(WindowWalkTest, EveryControlHasAWidgetAndEveryWidgetAName) {
    EXPECT_EQ(window.Shown().Name(), GetParam().name);
    EXPECT_EQ(FormProblems(window.Shown(), window.Look()), std::vector<std::string>());
}

TEST_P(WindowWalkTest, EveryWidgetCanBeSeenAtItsSmallestSize) {
    const QSize least = window.Look().minimumSizeHint();
    const QRect screen(0, 0, 1024, 700);
    EXPECT_TRUE(screen.contains(QRect(QPoint(), least))) << least.width() << " x " << least.height();
}

TEST_P(WindowWalkTest, EveryToolButtonShowsAPictureOrAText) {
    for (const QToolButton* button : window.Look().findChildren<QToolButton*>()) {
        // Buttons that belong to Qt's own widgets have arrows.
        if (window.Shown().Find(button->objectName().toStdString()) == nullptr) continue;
        EXPECT_FALSE(button->icon().isNull() && button->text().isEmpty())
            << button->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, WindowWalkTest, testing::ValuesIn(AllWindows().begin(), AllWindows().end()),
                         [](const auto& window) { return std::string(window.param.name); });

TEST(WindowWalk, GoesToEveryWindowThatHasALook) {
    std::set<std::string_view> looks;
    std::set<std::string_view> windows;
    for (const FormEntry& look : KorvaneForms())
        looks.insert(look.name);
    for (const Window& window : AllWindows())
        windows.insert(window.name);
    EXPECT_EQ(looks, windows);
}

} // namespace
} // namespace korvane
