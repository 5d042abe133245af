#include "text/ClipboardWindow.h"

#include "context/exchange/TextWindowState.h"
#include "context/ports/ClipboardView.h"
#include "support/HandlerFailure.h"
#include "support/TestApp.h"
#include "text/frmViewAndPaste.h"
#include "unit/text/FakeTextPorts.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class ClipboardWindowTest : public testing::Test {
protected:
    ClipboardWindowTest() { t.clipboard.SetText(u"some text"); }
    void UserRetrieves() {
        t.user.On<frmViewAndPaste>([](frmViewAndPaste& f) {
            f.Activate();
            f.OfficeMenu1.Choose("mnuRetrieve");
        });
    }
    void UserCloses() {
        t.user.On<frmViewAndPaste>([](frmViewAndPaste& f) {
            f.Activate();
            f.Close();
        });
    }

    TestApp t;
    FakeOpenText textWindow{t.app};
    ClipboardWindow window{t.app};
};

TEST_F(ClipboardWindowTest, AnswersTheProgram) {
    EXPECT_EQ(t.app.Port<ClipboardView>(), &window);
    { const ClipboardWindow other(t.app); }
    EXPECT_EQ(t.app.Port<ClipboardView>(), nullptr);
}

TEST_F(ClipboardWindowTest, ShowTellsByTheResultWhetherTheContentsWereRetrieved) {
    UserRetrieves();
    window.Show();
    EXPECT_EQ(t.app.DialogResult, 1);
    UserCloses();
    window.Show();
    EXPECT_EQ(t.app.DialogResult, 0);
}

TEST_F(ClipboardWindowTest, ShowWritesToTheTextWindowThatStandsOpen) {
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    UserRetrieves();
    window.Show();
    EXPECT_EQ(textWindow.All(), u"some text");
}

TEST_F(ClipboardWindowTest, AChoiceLeavesTheContentsToTheCallerAlsoWithATextWindowOpen) {
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    std::int16_t during = -1;
    t.user.On<frmViewAndPaste>([&](frmViewAndPaste& f) {
        during = t.app.Exchange<TextWindowState>().TextWindowOpen;
        f.Activate();
        f.OfficeMenu1.Choose("mnuRetrieve");
    });
    EXPECT_TRUE(window.Choose());
    EXPECT_EQ(during, 0);
    EXPECT_EQ(t.app.Exchange<TextWindowState>().TextWindowOpen, 1);
    EXPECT_EQ(textWindow.All(), u"");
}

TEST_F(ClipboardWindowTest, AClosedChoiceIsNone) {
    UserCloses();
    EXPECT_FALSE(window.Choose());
}

TEST_F(ClipboardWindowTest, AChoiceClosedBeforeItWasSeenIsNone) {
    t.app.DialogResult = 1;
    t.user.On<frmViewAndPaste>([](frmViewAndPaste& f) { f.Close(); });
    EXPECT_FALSE(window.Choose());
}

TEST_F(ClipboardWindowTest, AChoiceThatFailsLeavesTheTextWindowOpen) {
    t.app.Exchange<TextWindowState>().TextWindowOpen = 1;
    t.user.On<frmViewAndPaste>([](frmViewAndPaste&) { FailInHandler(); });
    EXPECT_THROW(window.Choose(), HandlerFailure);
    EXPECT_EQ(t.app.Exchange<TextWindowState>().TextWindowOpen, 1);
}

} // namespace
} // namespace korvane
