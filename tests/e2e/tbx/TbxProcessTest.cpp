// Tests the command as a process: its exit statuses, its streams and its files, as a shell sees them.

#include "SourceTree.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace korvane {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

class TbxProcess : public testing::Test {
protected:
    TbxProcess() { fs::copy_file(kCases / "two-rows-of-the-usual-form/input.tbx", folder_ / "people.tbx"); }

    /// Runs a shell line in the test's folder and returns its exit status. In the line "tbx" means the
    /// command.
    int Shell(const std::string& line) {
        const std::string script = "cd '" + folder_.Path().string() +
                                   "' && tbx() { '" KORVANE_TBX "' \"$@\"; } && { " + line + "\n} >out 2>err";
        const int status = std::system(script.c_str());
        out = ReadBytes(folder_ / "out");
        err = ReadBytes(folder_ / "err");
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// Writes a table with a CSV that is far larger than what a pipe can hold.
    void WriteLargeTable() {
        std::string csv = "Number,Text\n";
        for (int row = 1; row <= 20000; ++row)
            csv += std::to_string(row) + ",a text of some length that fills the pipe\n";
        WriteBytes(folder_ / "large.csv", csv);
        ASSERT_EQ(Shell("tbx import large.csv large.tbx"), 0);
    }

    static inline const fs::path kCases = fs::path(KORVANE_SOURCE_DIR) / "tests/cases/tbx";

    TempDir folder_;
    std::string out;
    std::string err;
};

TEST_F(TbxProcess, ADoneCommandEndsWithZeroAndWritesBytesAsTheyAre) {
    EXPECT_EQ(Shell("tbx csv people.tbx"), 0);
    EXPECT_EQ(out, ReadBytes(kCases / "two-rows-of-the-usual-form/rows.csv"));
    EXPECT_EQ(err, "");
}

TEST_F(TbxProcess, OptionsMayStandBehindTheFile) {
    EXPECT_EQ(Shell("tbx csv people.tbx --delimiter ';'"), 0);
    EXPECT_THAT(out, StartsWith("Name;Note\r\n"));
}

TEST_F(TbxProcess, AFoundProblemEndsWithOne) {
    fs::copy_file(kCases / "marked-row/input.tbx", folder_ / "marked.tbx");
    EXPECT_EQ(Shell("tbx check marked.tbx"), 1);
    EXPECT_EQ(out, ReadBytes(kCases / "marked-row/check.txt"));
    EXPECT_EQ(Shell("tbx check people.tbx"), 0);
    EXPECT_EQ(Shell("tbx find people.tbx nobody"), 1);
    EXPECT_EQ(out + err, "");
}

TEST_F(TbxProcess, AFileErrorEndsWithTwoAndOneLine) {
    EXPECT_EQ(Shell("tbx dump none.tbx"), 2);
    EXPECT_EQ(err, "tbx: cannot read \"none.tbx\": No such file or directory\n");
    EXPECT_EQ(out, "");
    EXPECT_EQ(Shell("tbx dump ."), 2);
    EXPECT_EQ(err, "tbx: cannot read \".\": Is a directory\n");
    EXPECT_EQ(Shell("tbx rewrite people.tbx none/out.tbx"), 2);
    EXPECT_EQ(err, "tbx: cannot write \"none/out.tbx\": No such file or directory\n");
    EXPECT_EQ(Shell("tbx rewrite people.tbx ."), 2);
    EXPECT_EQ(err, "tbx: cannot write \".\": Is a directory\n");
}

TEST_F(TbxProcess, AUsageErrorEndsWithTwoAndOneLine) {
    EXPECT_EQ(Shell("tbx"), 2);
    EXPECT_EQ(err, "tbx: no command given; try tbx --help\n");
    EXPECT_EQ(Shell("tbx dump"), 2);
    EXPECT_EQ(err, "tbx: too few arguments; usage: tbx dump [-p NUMBER] FILE\n");
}

TEST_F(TbxProcess, HelpAndVersionGoToTheStandardOutput) {
    EXPECT_EQ(Shell("tbx --help"), 0);
    EXPECT_THAT(out, StartsWith("Usage: tbx "));
    EXPECT_EQ(Shell("tbx --version"), 0);
    EXPECT_THAT(out, StartsWith("tbx (Korvane) "));
}

TEST_F(TbxProcess, ADashStandsForTheStandardStreams) {
    EXPECT_EQ(Shell("tbx csv people.tbx | tbx import - - | tbx tsv -"), 0);
    EXPECT_EQ(out, ReadBytes(kCases / "two-rows-of-the-usual-form/rows.tsv"));
}

TEST_F(TbxProcess, AStandardInputThatCannotBeReadIsAnError) {
    for (const char* input : {"<.", "<&-"}) {
        EXPECT_EQ(Shell(std::string("tbx dump - ") + input), 2) << input;
        EXPECT_EQ(err, "tbx: cannot read the standard input\n");
    }
}

TEST_F(TbxProcess, ARewrittenFileNamesItsFullPath) {
    EXPECT_EQ(Shell("mkdir sub && tbx rewrite people.tbx sub/../out.tbx"), 0);
    const std::string path = (fs::canonical(folder_.Path()) / "out.tbx").string();
    EXPECT_THAT(ReadBytes(folder_ / "out.tbx"), HasSubstr("; End of File: " + path + "\r\n"));
}

TEST_F(TbxProcess, AStoppedLoadDestroysNoFileByWhateverNameItIsWritten) {
    std::string wide = "!0\r\n!A\r\n!1\r\n!1\r\n";
    for (int column = 1; column <= 25; ++column)
        wide += "!Name\r\n!80\r\n";
    WriteBytes(folder_ / "wide.tbx", wide);
    ASSERT_EQ(Shell("ln -s wide.tbx soft.tbx && ln wide.tbx hard.tbx && mkdir sub"), 0);
    for (const char* line :
         {"tbx rewrite wide.tbx soft.tbx", "tbx rewrite soft.tbx wide.tbx", "tbx rewrite wide.tbx hard.tbx",
          "tbx rewrite wide.tbx /proc/self/cwd/wide.tbx", "tbx rewrite wide.tbx sub/../wide.tbx",
          "tbx rewrite - wide.tbx <wide.tbx", "tbx rewrite - hard.tbx <soft.tbx",
          "tbx rewrite wide.tbx /dev/fd/3 3<>wide.tbx"}) {
        EXPECT_EQ(Shell(line), 2) << line;
        EXPECT_EQ(ReadBytes(folder_ / "wide.tbx"), wide) << line;
        EXPECT_TRUE(fs::is_symlink(folder_ / "soft.tbx")) << line;
        EXPECT_EQ(ReadBytes(folder_ / "hard.tbx"), wide) << line;
    }
}

TEST_F(TbxProcess, AnImportThatLosesSomethingLeavesItsOwnFile) {
    const std::string csv = "Name\nAnna\n\"@col_1\nlost\"\n";
    WriteBytes(folder_ / "people.csv", csv);
    EXPECT_EQ(Shell("tbx import people.csv people.csv"), 2);
    EXPECT_EQ(ReadBytes(folder_ / "people.csv"), csv);
    EXPECT_EQ(Shell("tbx import - people.csv <people.csv"), 2);
    EXPECT_EQ(ReadBytes(folder_ / "people.csv"), csv);
    EXPECT_EQ(Shell("tbx import people.csv imported.tbx"), 1);
}

TEST_F(TbxProcess, AFileIsWrittenUnderItsNameAlsoWhenThatIsNoUtf8) {
    const std::string name = "caf\xE9.tbx";
    EXPECT_EQ(Shell("tbx rewrite people.tbx \"$(printf 'caf\\351.tbx')\""), 0);
    EXPECT_TRUE(fs::exists(folder_ / fs::path(name)));
    EXPECT_EQ(Shell("tbx csv \"$(printf 'caf\\351.tbx')\""), 0);
    EXPECT_EQ(out, ReadBytes(kCases / "two-rows-of-the-usual-form/rows.csv"));
    EXPECT_EQ(Shell("tbx rewrite \"$(printf 'caf\\351.tbx')\" \"$(printf 'caf\\351.tbx')\""), 0);
    std::size_t tables = 0;
    for (const auto& entry : fs::directory_iterator(folder_.Path()))
        tables += entry.path().extension() == ".tbx" ? 1 : 0;
    EXPECT_EQ(tables, 2u);
}

TEST_F(TbxProcess, AReaderThatGoesAwayIsNoError) {
    WriteLargeTable();
    EXPECT_EQ(Shell("{ tbx csv large.tbx; echo $? >status; } | head -n 1"), 0);
    EXPECT_EQ(out, "Number,Text\r\n");
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadBytes(folder_ / "status"), "0\n");
}

TEST_F(TbxProcess, AnOutputThatTakesNothingIsAnError) {
    EXPECT_EQ(Shell("tbx csv people.tbx >&-"), 2);
    EXPECT_EQ(err, "tbx: cannot write to the standard output: Bad file descriptor\n");
}

#ifdef __linux__
TEST_F(TbxProcess, AFullDeviceIsAnError) {
    EXPECT_EQ(Shell("tbx csv people.tbx >/dev/full"), 2);
    EXPECT_EQ(err, "tbx: cannot write to the standard output: No space left on device\n");
}
#endif

TEST_F(TbxProcess, TheLocaleNamesTheCodePage) {
    WriteBytes(folder_ / "in.csv", "Name\nł\n");
    EXPECT_EQ(Shell("LC_ALL=pl_PL.UTF-8; export LC_ALL; tbx import in.csv out.tbx && tbx csv out.tbx"), 0);
    EXPECT_EQ(out, "Name\r\nł\r\n");
    EXPECT_EQ(Shell("LC_ALL=C; export LC_ALL; tbx csv out.tbx"), 0);
    EXPECT_EQ(out, "Name\r\n³\r\n");
}

} // namespace
} // namespace korvane
