// Runs the real program where other users, or other starts of it, have been before.

#include "e2e/DeskTest.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>

namespace korvane::e2e {
namespace {

namespace fs = std::filesystem;

/// A file below the folder whose name ends like this.
std::optional<fs::path> FileNamed(const fs::path& folder, const std::string& end) {
    const fs::recursive_directory_iterator entries(folder);
    const auto found = std::find_if(begin(entries), fs::end(entries), [&](const fs::directory_entry& entry) {
        return entry.path().filename().string().ends_with(end);
    });
    return found == fs::end(entries) ? std::nullopt : std::optional(found->path());
}

/// The line of Korvane.ini with the width of the main window, and a width that is no other window's.
constexpr int kMainWidth = 5;
constexpr auto kPlantedTwips = "16665";
constexpr auto kPlantedPixels = "1111x";

/// The program of a user without rights, in a folder where everybody may put files and nobody may take away
/// those of others.
class SharedFolderTest : public DeskTest {
protected:
    void SetUp() override {
        if (geteuid() != 0) GTEST_SKIP() << "only the administrator can make files of other users";
        ASSERT_NO_FATAL_FAILURE(DeskTest::SetUp());
        ASSERT_TRUE(desk.GiveRightsAway()) << "there is no user without rights";
        const fs::path folder = file.parent_path();
        ASSERT_EQ(chown(folder.c_str(), 0, 0), 0);
        ASSERT_EQ(chmod(folder.c_str(), S_ISVTX | ACCESSPERMS), 0);
        Set(kMainWidth, kPlantedTwips);
    }
    /// Gives the settings to another user than the administrator, who lets everybody write them.
    void Plant() {
        constexpr uid_t kDaemon = 1;
        ASSERT_EQ(chown(ini.c_str(), kDaemon, kDaemon), 0);
        ASSERT_EQ(chmod(ini.c_str(), DEFFILEMODE), 0);
    }
    std::string Size(const std::string& window) const {
        return Output({"xdotool", "getwindowgeometry", window}, desk.Environment()).value_or("");
    }

    const fs::path ini = desk.Path("Korvane.ini");
};

TEST_F(SharedFolderTest, TheUsersOwnSettingsCount) {
    const auto program = desk.Start({file.string()});
    const std::string main = desk.GoTo(kMain);
    ASSERT_NE(main, "");
    EXPECT_NE(Size(main).find(kPlantedPixels), std::string::npos) << Size(main);
    Exit();
    EXPECT_EQ(program->ExitStatus(), 0);
}

TEST_F(SharedFolderTest, SettingsOfAnotherUserAreToldAndNeitherReadNorWritten) {
    ASSERT_NO_FATAL_FAILURE(Plant());
    const std::string planted = ReadBytes(ini);
    const auto program = desk.Start({file.string()});
    const std::string box = desk.GoTo(kMain);
    ASSERT_NE(box, "");
    desk.Press({"Return"});
    const std::string main = desk.GoTo(kMain, box);
    ASSERT_NE(main, "");
    EXPECT_EQ(Size(main).find(kPlantedPixels), std::string::npos) << Size(main);
    Exit();
    ASSERT_NE(desk.GoTo(kMain, main), "");
    desk.Press({"Return"});
    EXPECT_EQ(program->ExitStatus(), 0);
    EXPECT_EQ(ReadBytes(ini), planted);
}

using HeldStartTest = DeskTest;

TEST_F(HeldStartTest, AStartThatIsHeldUpForLongHasAWindowOfItsOwn) {
    const auto first = desk.Start({});
    ASSERT_NE(desk.GoTo(kMain), "");
    Exit();
    EXPECT_EQ(first->ExitStatus(), 0);
    const std::optional<fs::path> lock = FileNamed(desk.Path("run"), ".lock");
    ASSERT_TRUE(lock);
    const int held = open(lock->c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(held, LOCK_EX), 0);
    const auto second = desk.Start({file.string()});
    EXPECT_NE(desk.GoTo(kMain), "");
    Edit(" and new");
    EXPECT_TRUE(SavedAs(file, "old and new"));
    Exit();
    EXPECT_EQ(second->ExitStatus(), 0);
    close(held);
}

} // namespace
} // namespace korvane::e2e
