#include "unit/tbx/TbxHarness.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::EndsWith;
using testing::StartsWith;

class Rewrite : public testing::Test {
protected:
    Rewrite() { run.files.AddFile(u"/data/in.tbx", TbxFile(RowLines(1, {"Anna", "x"}))); }

    void AddTooWideFile(TextView path) {
        std::string file = "!0\r\n!A\r\n!1\r\n!1\r\n";
        for (int i = 1; i <= 25; ++i)
            file += "!Name\r\n!80\r\n";
        run.files.AddFile(path, file);
    }

    TbxHarness run;
};

TEST_F(Rewrite, TheEndNamesTheNewFileByItsFullPath) {
    run.files.ChangeDir(u"/data");
    EXPECT_EQ(run.Run({"rewrite", "in.tbx", "out.tbx"}), ExitStatus::Success);
    EXPECT_THAT(*run.files.Contents(u"/data/out.tbx"),
                EndsWith("x\r\n;\r\n; End of File: /data/out.tbx\r\n;\r\n"));
    EXPECT_EQ(run.out + run.err, "");
}

TEST_F(Rewrite, AFileIsRewrittenInPlace) {
    EXPECT_EQ(run.Run({"rewrite", "/data/in.tbx", "/data/in.tbx"}), ExitStatus::Success);
    EXPECT_THAT(*run.files.Contents(u"/data/in.tbx"), EndsWith("; End of File: /data/in.tbx\r\n;\r\n"));
}

TEST_F(Rewrite, ADashWritesToTheStandardOutput) {
    EXPECT_EQ(run.Run({"rewrite", "/data/in.tbx", "-"}), ExitStatus::Success);
    EXPECT_THAT(run.out, StartsWith(";\r\n; Values for colour"));
    EXPECT_THAT(run.out, EndsWith("; End of File: -\r\n;\r\n"));
}

TEST_F(Rewrite, NoTimePassesAfterASave) {
    const DateTime before = run.clock.Now();
    run.Run({"rewrite", "/data/in.tbx", "/data/out.tbx"});
    EXPECT_EQ(run.clock.Now(), before);
    EXPECT_TRUE(run.clock.Waits().empty());
}

TEST_F(Rewrite, AFileThatCannotBeWrittenIsAnError) {
    run.files.AddFile(u"/data/locked.tbx", "old");
    run.files.SetFileReadOnly(u"/data/locked.tbx");
    EXPECT_EQ(run.Run({"rewrite", "/data/in.tbx", "/data/locked.tbx"}), ExitStatus::Error);
    EXPECT_THAT(run.err, StartsWith("tbx: cannot write \"/data/locked.tbx\": "));
    EXPECT_EQ(run.files.Contents(u"/data/locked.tbx"), "old");
}

TEST_F(Rewrite, AFullDiskIsAnError) {
    run.files.SetFreeBytes(100);
    EXPECT_EQ(run.Run({"rewrite", "/data/in.tbx", "/data/out.tbx"}), ExitStatus::Error);
    EXPECT_THAT(run.err, StartsWith("tbx: cannot write \"/data/out.tbx\": "));
}

TEST_F(Rewrite, AFullDiskLeavesAFileThatIsRewrittenInPlace) {
    const auto before = run.files.Contents(u"/data/in.tbx");
    run.files.SetFreeBytes(100);
    EXPECT_EQ(run.Run({"rewrite", "/data/in.tbx", "/data/in.tbx"}), ExitStatus::Error);
    EXPECT_EQ(run.files.Contents(u"/data/in.tbx"), before);
}

TEST_F(Rewrite, AStoppedLoadIsToldAndItsRemainderSaved) {
    AddTooWideFile(u"/data/wide.tbx");
    EXPECT_EQ(run.Run({"rewrite", "/data/wide.tbx", "/data/out.tbx"}), ExitStatus::Problem);
    EXPECT_EQ(run.err, "tbx: Numbers of columns in this table exceeds the maximum of  24\n");
    EXPECT_THAT(*run.files.Contents(u"/data/out.tbx"),
                EndsWith("; File data\r\n;\r\n;\r\n; End of File: /data/out.tbx\r\n;\r\n"));
}

TEST_F(Rewrite, AStoppedLoadIsNotSavedOverItsOwnFile) {
    AddTooWideFile(u"/data/wide.tbx");
    const auto before = run.files.Contents(u"/data/wide.tbx");
    EXPECT_EQ(run.Run({"rewrite", "/data/wide.tbx", "/data/wide.tbx"}), ExitStatus::Error);
    EXPECT_THAT(run.err, EndsWith("tbx: \"/data/wide.tbx\" is left as it was\n"));
    EXPECT_EQ(run.files.Contents(u"/data/wide.tbx"), before);
}

TEST_F(Rewrite, AStoppedLoadOfTheStandardInputIsNotSavedOverTheFileBehindIt) {
    AddTooWideFile(u"/data/wide.tbx");
    const auto before = run.files.Contents(u"/data/wide.tbx");
    run.input = before;
    run.inputFile = u"/data/wide.tbx";
    EXPECT_EQ(run.Run({"rewrite", "-", "/data/wide.tbx"}), ExitStatus::Error);
    EXPECT_EQ(run.files.Contents(u"/data/wide.tbx"), before);
    EXPECT_EQ(run.Run({"rewrite", "-", "/data/out.tbx"}), ExitStatus::Problem);
    EXPECT_EQ(run.Run({"rewrite", "-", "-"}), ExitStatus::Problem);
}

} // namespace
} // namespace korvane
