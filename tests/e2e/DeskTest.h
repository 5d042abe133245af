#pragma once

#include "e2e/Desk.h"

#include <gtest/gtest.h>

namespace korvane::e2e {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
#elif defined(__has_feature)
inline constexpr bool kSanitized = __has_feature(address_sanitizer);
#else
inline constexpr bool kSanitized = false;
#endif

// These are regular expressions for the titles of windows.
inline constexpr auto kMain = "^Korvane$";
inline constexpr auto kFileInfo = "^File information$";

// These are lines of Korvane.ini.
inline constexpr int kSymbolListFile = 63;
inline constexpr int kWallpaperFile = 126;
inline constexpr int kReturnPassword = 128;

/// The bytes of a table of two columns and two rows as the program writes it to `path`.
std::string Table(const std::filesystem::path& path, const std::string& changedCell);

/// Provides a desk with one table file.
class DeskTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(desk.Stands()) << "Xvfb didn't start";
        WriteBytes(file, Table(file, "old"));
    }

    /// Types at the end of the second cell of the second row.
    void Edit(const std::string& typed);
    /// Saves, and waits until the file contains the table with this cell.
    bool SavedAs(const std::filesystem::path& saved, const std::string& cell);
    /// Writes a setting into its line of Korvane.ini. The program mustn't run.
    void Set(int number, const std::string& value);
    void Exit() { desk.Press({"alt+f", "x"}); }

    Desk desk;
    std::filesystem::path file = desk.Path("table of people.tbx");
};

} // namespace korvane::e2e
