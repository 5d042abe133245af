#include "QtSupport.h"
#include "Windows.h"
#include "platform/qt/binder/FormBinder.h"
#include "platform/qt/binder/FormEntry.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <QToolButton>
#include <algorithm>
#include <memory>
#include <set>

namespace korvane {
namespace {

class NoPages : public PageSource {
    QWidget* PageOf(Form&) override { return nullptr; }
    void Release(Form&) override {}
};

class WindowWalkTest : public testing::TestWithParam<Window> {
protected:
    static const FormEntry* LookOf(std::string_view name) {
        const auto looks = KorvaneForms();
        const auto found = std::find_if(looks.begin(), looks.end(),
                                        [name](const FormEntry& look) { return look.name == name; });
        return found == looks.end() ? nullptr : &*found;
    }

    TestApp program;
    Surroundings all{program.app};
    NoPages pages;
};

TEST_P(WindowWalkTest, EveryControlHasAWidgetAndEveryWidgetAName) {
    const FormEntry* entry = LookOf(GetParam().name);
    ASSERT_NE(entry, nullptr) << "the window has no look";
    const auto form = GetParam().make(all);
    ASSERT_EQ(form->Name(), GetParam().name);
    const auto look = entry->make();
    const FormBinder binder(*form, *look, pages);
    EXPECT_EQ(FormProblems(*form, *look), std::vector<std::string>());
}

TEST_P(WindowWalkTest, EveryWidgetCanBeSeenAtItsSmallestSize) {
    const auto form = GetParam().make(all);
    const auto look = LookOf(GetParam().name)->make();
    const FormBinder binder(*form, *look, pages);
    const QSize least = look->minimumSizeHint();
    const QRect screen(0, 0, 1024, 700);
    EXPECT_TRUE(screen.contains(QRect(QPoint(), least))) << least.width() << " x " << least.height();
}

TEST_P(WindowWalkTest, EveryToolButtonShowsAPictureOrAText) {
    const auto form = GetParam().make(all);
    const auto look = LookOf(GetParam().name)->make();
    const FormBinder binder(*form, *look, pages);
    for (const QToolButton* button : look->findChildren<QToolButton*>()) {
        // Buttons that belong to Qt's own widgets have arrows.
        if (form->Find(button->objectName().toStdString()) == nullptr) continue;
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
