#include "kept/KeptVersions.h"
#include "kept/UnsavedWork.h"
#include "unit/tbx/TbxHarness.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

constexpr DateTime kDay{2026, 11, 21, 0, 0, 0};

struct KeptCommand : testing::Test {
    KeptCommand() {
        run.keptFolder = kRoot;
        run.files.AddFile(u"/data/people.tbx", Table({"Ann", "Bob"}));
        run.files.SetModified(u"/data/people.tbx", {2026, 11, 20, 8, 0, 0});
        Replace({"Ann", "Bob", "Cid"});
    }

    static std::string Table(const std::vector<std::string>& names) {
        std::vector<std::string> lines;
        for (std::size_t i = 0; i < names.size(); ++i)
            for (const std::string& line : RowLines(static_cast<int>(i + 1), {names[i], "x"}))
                lines.push_back(line);
        return TbxFile(lines);
    }
    void Replace(const std::vector<std::string>& names) {
        KeptVersions(run.files, kRoot).Keep(u"/data/people.tbx", kDay);
        run.files.Remove(u"/data/people.tbx");
        run.files.AddFile(u"/data/people.tbx", Table(names));
    }
    void AddDraft(const Text& name, const std::vector<std::string>& names) {
        TableFolder folder(run.files, kRoot, kRoot + u"/runs/1/1");
        ASSERT_TRUE(folder.Prepare(name));
        const auto write = [&](FileWriter& file) { return file.Write(Table(names)); };
        ASSERT_TRUE(folder.WriteDraft(1, kDay, write));
    }

    const Text kRoot = u"/state/kept";
    TbxHarness run;
};

TEST_F(KeptCommand, ListsTheVersionsOfAFile) {
    Replace({"Zoe"});
    EXPECT_EQ(run.Run({"kept", "/data/people.tbx"}), ExitStatus::Success);
    const std::string size1 = std::to_string(Table({"Ann", "Bob"}).size());
    const std::string size2 = std::to_string(Table({"Ann", "Bob", "Cid"}).size());
    EXPECT_EQ(run.out, "1  2026-11-20 08:00:00  " + size1 + " bytes  2 rows\n" + "2  2026-11-21 10:30:00  " +
                           size2 + " bytes  3 rows\n");
}

TEST_F(KeptCommand, ListsWhatIsNotSaved) {
    AddDraft(u"/data/people.tbx", {"Ann", "Bob", "Cid", "Dan"});
    EXPECT_EQ(run.Run({"kept", "/data/people.tbx"}), ExitStatus::Success);
    EXPECT_THAT(run.out, testing::HasSubstr("\nunsaved  2026-11-21 10:30:00  "));
    EXPECT_THAT(run.out, testing::HasSubstr(" 4 rows\n"));
}

TEST_F(KeptCommand, WithoutAFileItListsAllTables) {
    AddDraft(u"Untitled_1.tbx", {"Dan"});
    EXPECT_EQ(run.Run({"kept"}), ExitStatus::Success);
    EXPECT_THAT(run.out, testing::StartsWith("/data/people.tbx\n  1  2026-11-20 08:00:00  "));
    EXPECT_THAT(run.out, testing::HasSubstr("\nUntitled_1.tbx\n  unsaved  "));
}

TEST_F(KeptCommand, TellsByItsStatusThatNothingIsKept) {
    EXPECT_EQ(run.Run({"kept", "/data/other.tbx"}), ExitStatus::Problem);
    EXPECT_EQ(run.out, "");
    run.keptFolder = u"/nowhere";
    EXPECT_EQ(run.Run({"kept"}), ExitStatus::Problem);
}

TEST_F(KeptCommand, RestoresAVersionToAnotherFile) {
    EXPECT_EQ(run.Run({"kept", "/data/people.tbx", "--restore", "1", "/data/old.tbx"}), ExitStatus::Success);
    EXPECT_EQ(run.files.Contents(u"/data/old.tbx"), Table({"Ann", "Bob"}));
    AddDraft(u"/data/people.tbx", {"Dan"});
    EXPECT_EQ(run.Run({"kept", "/data/people.tbx", "--restore", "unsaved", "-"}), ExitStatus::Success);
    EXPECT_EQ(run.out, Table({"Dan"}));
}

TEST_F(KeptCommand, ShowsTheRowsThatDiffer) {
    Replace({"Bob", "Bob", "Dan"});
    EXPECT_EQ(run.Run({"kept", "/data/people.tbx", "--diff", "2"}), ExitStatus::Success);
    EXPECT_EQ(run.out, "-\tAnn\tx\n-\tCid\tx\n+\tBob\tx\n+\tDan\tx\n");
    Replace({"Bob", "Bob", "Dan"});
    EXPECT_EQ(run.Run({"kept", "/data/people.tbx", "--diff", "3"}), ExitStatus::Problem);
    EXPECT_EQ(run.out, "");
}

TEST_F(KeptCommand, RefusesWhatMakesNoSense) {
    const auto refuses = [this](const std::vector<std::string>& arguments, const std::string& reason) {
        EXPECT_EQ(run.Run(arguments), ExitStatus::Error);
        EXPECT_EQ(run.err, "tbx: " + reason + "\n");
    };
    refuses({"kept", "/data/people.tbx", "-r", "9", "/data/old.tbx"},
            "nothing is kept of \"/data/people.tbx\" as \"9\"");
    refuses({"kept", "/data/people.tbx", "-r", "1"}, "--restore needs FILE and OUT");
    refuses({"kept", "/data/people.tbx", "/data/old.tbx"}, "OUT is only for --restore");
    refuses({"kept", "-D", "1"}, "--diff needs FILE");
    EXPECT_EQ(run.files.Contents(u"/data/old.tbx"), std::nullopt);
}

} // namespace
} // namespace korvane
