// Saves to real disks: full ones, one that can't be written, and a folder that has vanished.

#include "platform/native/NativeFileSystem.h"
#include "platform/native/NativePath.h"
#include "support/SmallDisk.h"
#include "support/TempDir.h"
#include "unit/kept/KeptRun.h"

#include <sys/mount.h>

namespace korvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::int64_t kDiskSize = 1 << 20;

struct RealDisks : testing::Test {
    /// Runs the test on a disk of one megabyte, on which a table is saved.
    void On(const std::function<void(const fs::path&)>& test) {
        const auto prepared = [&](const fs::path& disk) {
            Begin(disk / "books", disk / "state");
            test(disk);
        };
        if (!RunOnSmallDisk(kDiskSize, prepared)) GTEST_SKIP() << "nobody may mount a disk here";
    }
    void Begin(const fs::path& folder, const fs::path& state) {
        fs::create_directories(folder);
        root = FromNativePath(state / "kept");
        path = folder / "books.tbx";
        run = std::make_unique<KeptRun>(app, files, t.clock, root);
        tab = run->NewTable(FromNativePath(path), Text(300'000, u'a'));
        tab->Save();
        run->background.DoAll();
        ASSERT_EQ(tab->model.TableAltered, 0);
        first = ReadBytes(path);
        ASSERT_GT(first.size(), 300'000u);
    }

    std::vector<std::string> Versions() {
        std::vector<std::string> bytes;
        for (const KeptFile& version : KeptVersions(files, root).Of(FromNativePath(path)))
            bytes.push_back(ReadBytes(ToNativePath(version.path)));
        return bytes;
    }

    TestApp t{PathStyle::Posix};
    NativeFileSystem files{u""};
    App app{{files, t.user, t.clipboard, t.clock, t.screen, t.shell, t.instance, t.user, nullptr}};
    Text root;
    fs::path path;
    std::unique_ptr<KeptRun> run;
    std::unique_ptr<KeptTab> tab;
    std::string first;
};

TEST_F(RealDisks, WhatDoesNotFitLeavesTheOldVersionWholeAndTheTableAltered) {
    On([this](const fs::path&) {
        tab->Type(Text(3'000'000, u'b'));
        tab->Save();
        run->background.DoAll();
        EXPECT_EQ(tab->model.TableAltered, 1);
        EXPECT_TRUE(t.user.Messages().empty());
        EXPECT_THAT(Versions(), ElementsAre(first));
        EXPECT_LT(fs::file_size(path), 1'000'000u);
    });
}

TEST_F(RealDisks, WhatFitsOnlyInThePlaceOfTheOldFileIsSavedThere) {
    On([this](const fs::path&) {
        tab->Type(Text(900'000, u'b'));
        tab->Save();
        run->background.DoAll();
        EXPECT_EQ(tab->model.TableAltered, 0);
        EXPECT_EQ(fs::file_size(path), first.size() + 600'000);
    });
}

TEST_F(RealDisks, OnAFullDiskTheNextSaveThatFitsIsWholeAgain) {
    On([this](const fs::path& disk) {
        WriteBytes(disk / "other", std::string(600'000, 'x'));
        tab->Type(Text(700'000, u'b'));
        tab->Save();
        run->background.DoAll();
        ASSERT_EQ(tab->model.TableAltered, 1);
        EXPECT_THAT(Versions(), ElementsAre(first));
        fs::remove(disk / "other");
        tab->Type(u"short");
        tab->Save();
        run->background.DoAll();
        EXPECT_EQ(tab->model.TableAltered, 0);
        EXPECT_THAT(ReadBytes(path), HasSubstr("short"));
    });
}

TEST_F(RealDisks, WhatCannotBeWrittenStaysAsItIs) {
    On([this](const fs::path&) {
        const fs::path folder = path.parent_path();
        ASSERT_EQ(mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr), 0);
        ASSERT_EQ(mount(nullptr, folder.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr), 0);
        tab->Type(u"second");
        t.user.Answer(Answer::Ok);
        tab->Save();
        run->background.DoAll();
        EXPECT_EQ(tab->model.TableAltered, 1);
        EXPECT_EQ(ReadBytes(path), first);
    });
}

TEST_F(RealDisks, AFolderThatHasVanishedTakesNoTextWithIt) {
    const TempDir place;
    Begin(place / "books", place / "state");
    fs::remove_all(place / "books");
    tab->Type(u"second");
    t.user.Answer(Answer::Ok);
    tab->Save();
    run->background.Pass(std::chrono::seconds(10));
    EXPECT_EQ(tab->model.TableAltered, 1);
    EXPECT_FALSE(fs::exists(path));
    run.reset();
    tab.reset();
    run = std::make_unique<KeptRun>(app, files, t.clock, root);
    ASSERT_EQ(run->keeper->Unsaved().size(), 1u);
    EXPECT_EQ(run->OpenUnsaved(run->keeper->Unsaved().front())->Cell(), u"second");
}

} // namespace
} // namespace korvane
