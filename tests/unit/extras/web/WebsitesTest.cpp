#include "extras/web/Websites.h"

#include "extras/web/frmWebList.h"
#include "support/FakeMainWindow.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

class WebsitesTest : public testing::Test {
protected:
    TestApp t;
    FakeMainWindow main{t.app};
};

TEST_F(WebsitesTest, AnswerTheirPortUntilTheyGo) {
    {
        Websites websites(t.app);
        EXPECT_EQ(t.app.Port<WebsiteList>(), &websites);
    }
    EXPECT_EQ(t.app.Port<WebsiteList>(), static_cast<WebsiteList*>(nullptr));
}

TEST_F(WebsitesTest, ShowOneWindowThatIsNotModal) {
    Websites websites(t.app);
    t.user.On<frmWebList>([](frmWebList&) {});
    websites.Show();
    ASSERT_EQ(t.user.Shown().size(), 1U);
    websites.Show();
    EXPECT_EQ(t.user.Raised(), (std::vector<std::string>{"frmWebList"}));
    t.user.Shown().front()->Close();
    t.user.On<frmWebList>([](frmWebList& again) { EXPECT_EQ(again.ListDirty, 0); });
    websites.Show();
    EXPECT_EQ(t.user.Shown().size(), 1U);
}

} // namespace
} // namespace korvane
