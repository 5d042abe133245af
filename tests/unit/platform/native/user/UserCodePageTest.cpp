#include "platform/native/user/UserCodePage.h"

#include <gtest/gtest.h>

#include <map>

namespace korvane {
namespace {

std::string LocaleIn(std::map<std::string, std::string> environment) {
    return TextLocale([&](const char* name) { return environment[name]; });
}

TEST(UserCodePage, TheFirstVariableThatIsSetNamesTheLocale) {
    EXPECT_EQ(LocaleIn({{"LC_ALL", "pl_PL"}, {"LC_CTYPE", "ru_RU"}, {"LANG", "de_DE"}}), "pl_PL");
    EXPECT_EQ(LocaleIn({{"LC_ALL", ""}, {"LC_CTYPE", "ru_RU"}, {"LANG", "de_DE"}}), "ru_RU");
    EXPECT_EQ(LocaleIn({{"LANG", "de_DE"}}), "de_DE");
    EXPECT_EQ(LocaleIn({}), "");
}

} // namespace
} // namespace korvane
