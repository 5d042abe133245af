#include "platform/windows/FileTypeName.h"

#include "common/text/CaseFold.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(FileTypeNameTest, EveryExtensionHasAName) {
    EXPECT_FALSE(FileTypeName(u"exe").empty());
    EXPECT_NE(FileTypeName(u"exe"), FileTypeName(u"txt"));
    EXPECT_TRUE(EqualIgnoringCase(FileTypeName(u"TXT"), FileTypeName(u"txt")));
}

TEST(FileTypeNameTest, AnUnknownOneIsInTheNameOfItsType) {
    EXPECT_TRUE(ContainsIgnoringCase(FileTypeName(u"kvqx"), u"kvqx"));
}

} // namespace
} // namespace korvane
