#include "platform/qt/net/LoadedWebEngines.h"

#include "controls/Form.h"
#include "support/ScriptedUser.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class LoadedWebEnginesTest : public testing::Test {
protected:
    static QWidget* NoPlace(const WebView&) { return nullptr; }

    ScriptedUser user;
    Form form{user, "frmBrowser", u""};
    WebView view{form, "WebBrowser1"};
};

TEST_F(LoadedWebEnginesTest, WithoutTheLibraryThereIsNone) {
    LoadedWebEngines engines(NoPlace, true, "/no/such/library");
    EXPECT_EQ(engines.EngineFor(view), nullptr);
    EXPECT_EQ(engines.EngineFor(view), nullptr);
}

} // namespace
} // namespace korvane
