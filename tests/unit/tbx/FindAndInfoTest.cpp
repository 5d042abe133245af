#include "unit/tbx/TbxHarness.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class FindAndInfo : public testing::Test {
protected:
    FindAndInfo() {
        std::vector<std::string> lines = RowLines(1, {"Anna Berg", "Bergstr. 5\r\n1010 Wien"});
        for (const std::string& line : RowLines(2, {"Bert", "D:\\berg"}))
            lines.push_back(line);
        for (const std::string& line : RowLines(3, {"Zo\xEB", "Berg"}))
            lines.push_back(line);
        run.files.AddFile(u"/data/people.tbx", TbxFile(lines));
    }

    TbxHarness run;
};

TEST_F(FindAndInfo, FindWritesEveryCellThatHoldsTheTextOnOneLineEach) {
    EXPECT_EQ(run.Run({"find", "/data/people.tbx", "Berg"}), ExitStatus::Success);
    EXPECT_EQ(run.out, "1:1: Anna Berg\n1:2: Bergstr. 5\\r\\n1010 Wien\n3:2: Berg\n");
}

TEST_F(FindAndInfo, FindTakesSmallAndCapitalLettersAsDifferent) {
    run.Run({"find", "/data/people.tbx", "berg"});
    EXPECT_EQ(run.out, "2:2: D:\\berg\n");
}

TEST_F(FindAndInfo, FindReadsAndWritesUtf8) {
    run.Run({"find", "/data/people.tbx", "ë"});
    EXPECT_EQ(run.out, "3:1: Zoë\n");
}

TEST_F(FindAndInfo, FindFindsTextAcrossALineBreak) {
    run.Run({"find", "/data/people.tbx", "5\r\n1"});
    EXPECT_EQ(run.out, "1:2: Bergstr. 5\\r\\n1010 Wien\n");
}

TEST_F(FindAndInfo, FindFailsWhereNothingIsFound) {
    for (const char* text : {"berG", "Анна"}) {
        EXPECT_EQ(run.Run({"find", "/data/people.tbx", text}), ExitStatus::Problem);
        EXPECT_EQ(run.out + run.err, "");
    }
}

TEST_F(FindAndInfo, FindRefusesAnEmptyText) {
    EXPECT_EQ(run.Run({"find", "/data/people.tbx", ""}), ExitStatus::Error);
    EXPECT_EQ(run.err, "tbx: the text to find is empty\n");
}

TEST_F(FindAndInfo, FindTakesATextThatLooksLikeAnOptionAfterTwoDashes) {
    run.files.AddFile(u"/data/people.tbx", TbxFile(RowLines(1, {"-p", "x"})));
    EXPECT_EQ(run.Run({"find", "--", "/data/people.tbx", "-p"}), ExitStatus::Success);
    EXPECT_EQ(run.out, "1:1: -p\n");
}

TEST_F(FindAndInfo, InfoWritesWhatTheFileInformationShows) {
    std::string file = TbxFile(RowLines(1, {"Anna", "x"}));
    file.resize(2000, ' ');
    run.files.AddFile(u"/data/people.tbx", file);
    run.files.SetModified(u"/data/people.tbx", {2026, 3, 1, 9, 5, 0});
    run.files.ChangeDir(u"/data");
    EXPECT_EQ(run.Run({"info", "people.tbx"}), ExitStatus::Success);
    EXPECT_EQ(run.out, "File name: people.tbx\nFile path: /data\nNo. of rows: 1\nNo. of cols.: 2\n"
                       "File size: 2,000 bytes\nArchived: 2026-03-01 09:05:00\n");
}

TEST_F(FindAndInfo, InfoShowsNoDigitForAnEmptyFile) {
    run.files.AddFile(u"/data/empty.tbx", "");
    EXPECT_EQ(run.Run({"info", "/data/empty.tbx"}), ExitStatus::Success);
    EXPECT_EQ(run.out.substr(0, run.out.find("Archived")),
              "File name: empty.tbx\nFile path: /data\nNo. of rows: 0\nNo. of cols.: 0\nFile size:  bytes\n");
}

TEST_F(FindAndInfo, InfoNeedsAFile) {
    EXPECT_EQ(run.Run({"info", "-"}), ExitStatus::Error);
    EXPECT_EQ(run.err, "tbx: info needs a file: the standard input has no name, size or date\n");
}

} // namespace
} // namespace korvane
