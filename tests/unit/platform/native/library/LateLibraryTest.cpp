#include "platform/native/library/LateLibrary.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(LateLibrary, FindsAFunctionOfALibraryOfTheSystem) {
    const LateLibrary library("libm.so.6");
    const auto root = reinterpret_cast<double (*)(double)>(library.Find("sqrt"));
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root(16), 4);
}

TEST(LateLibrary, FindsNothingInALibraryThatHasNoSuchFunction) {
    EXPECT_EQ(LateLibrary("libm.so.6").Find("korvane_has_no_such_function"), nullptr);
}

TEST(LateLibrary, FindsNothingInALibraryThatIsNotThere) {
    EXPECT_EQ(LateLibrary("libkorvane-is-not-there.so.1").Find("sqrt"), nullptr);
}

} // namespace
} // namespace korvane
