#pragma once

#include "e2e/Desk.h"

#include <gtest/gtest.h>

namespace korvane::e2e {

// The titles of windows, as expressions.
inline constexpr auto kMain = "^Korvane$";
inline constexpr auto kFileInfo = "^File information$";

/// A table of two columns and two rows as the program writes it to `path`.
std::string Table(const std::filesystem::path& path, const std::string& changedCell);

/// A desk with a table on it.
class DeskTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(desk.Stands()) << "Xvfb didn't start";
        WriteBytes(file, Table(file, "old"));
    }

    /// Edits the second cell of the second row behind its text.
    void Edit(const std::string& typed);
    /// Saves, and waits until the file holds the table with this cell.
    bool SavedAs(const std::filesystem::path& saved, const std::string& cell);
    void Exit() { desk.Press({"alt+f", "x"}); }

    Desk desk;
    std::filesystem::path file = desk.Path("table of people.tbx");
};

} // namespace korvane::e2e
