#include "QtSupport.h"
#include "dbops/frmChooseRange.h"
#include "dbops/frmDelimiterType.h"
#include "dbops/frmFindReplace.h"
#include "dialogs/frmMyInputBox.h"
#include "dialogs/frmMyMsgBox.h"
#include "dialogs/frmTxtInfo.h"
#include "platform/qt/FormBinder.h"
#include "platform/qt/FormEntry.h"
#include "shell/TabStates.h"
#include "shell/frmAbout.h"
#include "shell/frmCtrlRet.h"
#include "shell/frmFileList.h"
#include "shell/frmLoadList.h"
#include "shell/frmMDIChild.h"
#include "shell/frmMDIParent.h"
#include "shell/frmProgramLocations.h"
#include "shell/frmSetYourProg.h"
#include "shell/frmSettings.h"
#include "shell/frmWindowSize.h"
#include "support/TestApp.h"
#include "table/frmTxtDbInfo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

namespace korvane {
namespace {

/// What windows are made from.
struct Surroundings {
    TestApp program;
    TabStates states;
    frmMDIChild child{program.app, states};
    TabContext tab = child.Context();
    CopyRequest copy;
    FileFacts facts;
    frmMDIParent main{program.app, Text()};
};

struct Window {
    std::string_view name;
    std::unique_ptr<Form> (*make)(Surroundings&);
};

template <class FormT>
std::unique_ptr<Form> FromApp(Surroundings& all) {
    return std::make_unique<FormT>(all.program.app);
}

// Every window of the program.
constexpr Window kWindows[] = {
    {"frmAbout", FromApp<frmAbout>},
    {"frmChooseRange", FromApp<frmChooseRange>},
    {"frmCtrlRet", FromApp<frmCtrlRet>},
    {"frmDelimiterType",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmDelimiterType>(all.tab, all.copy);
     }},
    {"frmFileList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFileList>(all.program.app, all.main.Recents(), all.main);
     }},
    {"frmFindReplace",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmFindReplace>(all.tab, FindMode::Replace);
     }},
    {"frmLoadList",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmLoadList>(all.program.app, all.main.TheTabs(), all.main);
     }},
    {"frmMDIChild",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmMDIChild>(all.program.app, all.states);
     }},
    {"frmMDIParent",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmMDIParent>(all.program.app, Text());
     }},
    {"frmMyInputBox", FromApp<frmMyInputBox>},
    {"frmMyMsgBox", FromApp<frmMyMsgBox>},
    {"frmProgramLocations", FromApp<frmProgramLocations>},
    {"frmSetYourProg", FromApp<frmSetYourProg>},
    {"frmSettings",
     [](Surroundings& all) -> std::unique_ptr<Form> { return std::make_unique<frmSettings>(all.main); }},
    {"frmTxtDbInfo",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmTxtDbInfo>(all.tab, true);
     }},
    {"frmTxtInfo",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmTxtInfo>(all.program.app, all.facts);
     }},
    {"frmWindowSize",
     [](Surroundings& all) -> std::unique_ptr<Form> {
         return std::make_unique<frmWindowSize>(all.program.app, all.main.WindowSize);
     }},
};

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

    Surroundings all;
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

INSTANTIATE_TEST_SUITE_P(Windows, WindowWalkTest, testing::ValuesIn(kWindows),
                         [](const auto& window) { return std::string(window.param.name); });

TEST(WindowWalk, GoesToEveryWindowThatHasALook) {
    std::set<std::string_view> looks;
    std::set<std::string_view> windows;
    for (const FormEntry& look : KorvaneForms())
        looks.insert(look.name);
    for (const Window& window : kWindows)
        windows.insert(window.name);
    EXPECT_EQ(looks, windows);
}

} // namespace
} // namespace korvane
