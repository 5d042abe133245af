#include "platform/windows/FileIcons.h"

#include "support/UnderWine.h"
#include "unit/platform/windows/Probe.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace korvane {
namespace {

/// Whether something of it can be seen, and something of what is below it.
bool IsPicture(const IconPixels& icon) {
    const auto opaque = [](std::uint32_t pixel) { return pixel >> 24 == 0xFF; };
    return icon.argb.size() == static_cast<std::size_t>(icon.width * icon.height) &&
           std::ranges::any_of(icon.argb, opaque) && !std::ranges::all_of(icon.argb, opaque);
}

/// A program of the system that carries a picture.
Text ProgramWithIcon() {
    std::array<wchar_t, MAX_PATH> folder{};
    GetWindowsDirectoryW(folder.data(), MAX_PATH);
    return FromWide(folder.data()) + u"\\notepad.exe";
}

TEST(FileIconsTest, EachTypeHasOneInTwoSizes) {
    for (const TextView extension : {u"txt", u"exe", u"kvqx", u""}) {
        const auto icons = FileIcon(TypeIconName(extension));
        ASSERT_EQ(icons.size(), 2U);
        EXPECT_LT(icons[0].width, icons[1].width);
        EXPECT_TRUE(std::ranges::all_of(icons, IsPicture));
    }
    // Wine has the same one for most types.
    if (!UnderWine()) {
        EXPECT_NE(FileIcon(TypeIconName(u"exe"))[0].argb, FileIcon(TypeIconName(u"txt"))[0].argb);
    }
}

TEST(FileIconsTest, AProgramHasItsOwn) {
    const auto icons = FileIcon(OwnIconName(ProgramWithIcon()));
    ASSERT_EQ(icons.size(), 2U);
    EXPECT_TRUE(std::ranges::all_of(icons, IsPicture));
    EXPECT_NE(icons[0].argb, FileIcon(TypeIconName(u"exe"))[0].argb);
}

TEST(FileIconsTest, AProgramWithoutOneHasNone) {
    EXPECT_EQ(OwnIconName(Probe::Program()), u"");
    EXPECT_EQ(OwnIconName(u"C:\\missing.exe"), u"");
}

TEST(FileIconsTest, OtherNamesAreNotTheSystems) {
    EXPECT_TRUE(FileIcon(u"").empty());
    EXPECT_TRUE(FileIcon(u"fileText").empty());
    EXPECT_TRUE(FileIcon(ProgramWithIcon()).empty());
    EXPECT_TRUE(FileIcon(u"file:C:\\missing.exe").empty());
}

} // namespace
} // namespace korvane
