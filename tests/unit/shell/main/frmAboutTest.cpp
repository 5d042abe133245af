#include "shell/commands/frmAbout.h"

#include "shell/main/frmMDIParent.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(AboutTest, TheMenuShowsTheNameOfTheProgram) {
    TestApp t;
    frmMDIParent main(t.app, u"");
    bool shown = false;
    t.user.On<frmAbout>([&shown](frmAbout& f) {
        shown = true;
        EXPECT_EQ(f.lblTitle.Caption.Get(), u"Korvane");
        EXPECT_TRUE(f.lblVersion.Caption.Get().starts_with(u"Version 0."));
        EXPECT_EQ(f.lblLicence.Caption.Get(), u"Free software under the MIT licence");
        EXPECT_EQ(f.txtState.Text.Get(), u"C:\\Korvane");
        EXPECT_TRUE(f.txtState.Locked);
        EXPECT_TRUE(f.cmdClose.Cancel);
        f.cmdClose.Press();
    });
    main.RunCommand("mnuMisc_About");
    EXPECT_TRUE(shown);
}

} // namespace
} // namespace korvane
