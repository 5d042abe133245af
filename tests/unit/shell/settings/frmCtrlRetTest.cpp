#include "shell/settings/frmCtrlRet.h"

#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class CtrlRetTest : public testing::Test {
protected:
    CtrlRetTest() {
        t.app.Settings.CtrlShiftReturnString = u"one";
        t.app.Settings.AltReturnString = u"two";
    }
    TestApp t;
};

TEST_F(CtrlRetTest, ShowsTheStringsAndTheButtonStoresThem) {
    t.user.On<frmCtrlRet>([](frmCtrlRet& f) {
        EXPECT_EQ(f.Caption.Get(), u"Strings for various key presses");
        EXPECT_EQ(f.cmdOK.Caption.Get(), u"&Close");
        EXPECT_EQ(f.txtText2.Text.Get(), u"one");
        EXPECT_EQ(f.txtText3.Text.Get(), u"two");
        f.txtText2.Text = u"1";
        f.txtText3.Text = u"2";
        f.cmdOK.Press();
    });
    frmCtrlRet(t.app).ShowModal();
    EXPECT_EQ(t.app.Settings.CtrlShiftReturnString, u"1");
    EXPECT_EQ(t.app.Settings.AltReturnString, u"2");
}

TEST_F(CtrlRetTest, ClosingItOtherwiseStoresNothing) {
    t.user.On<frmCtrlRet>([](frmCtrlRet& f) {
        f.txtText2.Text = u"1";
        f.Close();
    });
    frmCtrlRet(t.app).ShowModal();
    EXPECT_EQ(t.app.Settings.CtrlShiftReturnString, u"one");
}

} // namespace
} // namespace korvane
