#include "platform/DesktopTarget.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

using Kind = DesktopTarget::Kind;

TEST(DesktopTarget, OfTheFileManagerAloneIsTheHomeFolder) {
    EXPECT_EQ(TargetOf({u"Open", u"explorer.exe", u"", u"0"}), (DesktopTarget{Kind::Home, u""}));
    EXPECT_EQ(TargetOf({u"Open", u"Explorer.EXE", u"", u"0"}), (DesktopTarget{Kind::Home, u""}));
}

TEST(DesktopTarget, OfTheFileManagerOnTheRecycleStoreIsThat) {
    EXPECT_EQ(TargetOf({u"Open", u"explorer.exe", Text(kRecycleStoreParameters), u"0"}),
              (DesktopTarget{Kind::RecycleStore, u""}));
}

TEST(DesktopTarget, OfTheFileManagerWithAPathIsThePath) {
    EXPECT_EQ(TargetOf({u"Open", u"explorer.exe", u"/data/page.url", u""}),
              (DesktopTarget{Kind::Path, u"/data/page.url"}));
}

TEST(DesktopTarget, OfAnythingElseIsItsFile) {
    EXPECT_EQ(TargetOf({u"explore", u"/data", u"", u"/data"}), (DesktopTarget{Kind::Path, u"/data"}));
    EXPECT_EQ(TargetOf({u"Open", u"/data/explorer.exe", u"", u""}),
              (DesktopTarget{Kind::Path, u"/data/explorer.exe"}));
    EXPECT_EQ(TargetOf({u"Open", u"trash:///", u"", u""}), (DesktopTarget{Kind::Path, u"trash:///"}));
}

} // namespace
} // namespace korvane
