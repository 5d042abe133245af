// The plain texts of the windows are in their Designer files.

#include "shell/settings/frmCtrlRet.h"
#include "shell/settings/frmProgramLocations.h"
#include "shell/settings/frmSetYourProg.h"
#include "shell/settings/frmSettings.h"
#include "shell/settings/frmWindowSize.h"
#include "support/DesignerFile.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class ShellLooks : public testing::Test {
protected:
    TestProgram p;
};

TEST_F(ShellLooks, Settings) {
    p.StartWith({});
    ExpectLook(
        frmSettings(p.app, p.AllTabs(), p.Main().OfficeMenu1, p.Main().iGridListBar), "shell/settings",
        {"Your custom browser", "Your program for viewing PDF files", "Wallpaper file:", "Return password"});
}

TEST_F(ShellLooks, ProgramLocations) {
    ExpectLook(frmProgramLocations(p.app), "shell/settings", {});
}

TEST_F(ShellLooks, SetYourProgram) {
    ExpectLook(frmSetYourProg(p.app), "shell/settings", {"Program to load"});
}

TEST_F(ShellLooks, StringsForKeys) {
    ExpectLook(frmCtrlRet(p.app), "shell/settings", {"Ctrl-Shift+Return", "Alt+Return"});
}

TEST_F(ShellLooks, WindowSize) {
    WindowSizeChoice choice;
    ExpectLook(frmWindowSize(p.app, choice), "shell/settings", {"Choose size or percent of screen"});
}

} // namespace
} // namespace korvane
