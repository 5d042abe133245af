#pragma once

#include "support/TestApp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace korvane {

/// A program on a disk in memory, of either path style.
class InBothStyles : public testing::TestWithParam<PathStyle> {
protected:
    bool IsPosix() const { return !GetParam().HasDrives(); }
    /// A path of the disk's style for one that is written with "/" and without a root.
    Text At(TextView path) const {
        if (IsPosix()) return u"/" + Text(path);
        Text full = u"C:\\" + Text(path);
        std::ranges::replace(full, u'/', u'\\');
        return full;
    }
    std::string Contents(TextView path) const { return t.files.Contents(At(path)).value_or("(none)"); }

    TestApp t{GetParam()};
    App& app = t.app;
};

inline std::string NameOfStyle(const testing::TestParamInfo<PathStyle>& info) {
    return info.param.HasDrives() ? "Windows" : "Posix";
}

} // namespace korvane

/// Runs the tests of a class with both path styles.
#define KORVANE_IN_BOTH_STYLES(Suite)                                                                        \
    INSTANTIATE_TEST_SUITE_P(Styles, Suite, testing::Values(PathStyle::Windows, PathStyle::Posix),           \
                             NameOfStyle)
