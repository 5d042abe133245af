#include "files/lists/ListFile.h"

#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

const Text kPath = u"C:\\Data\\a.lst";

class ListFileTest : public testing::Test {
protected:
    ListFileTest() { t.files.AddDir(u"C:\\Data"); }

    std::optional<std::vector<Text>> Read(std::string_view bytes) {
        t.files.AddFile(kPath, bytes);
        return ReadListFile(t.app, kPath);
    }
    std::string Written() const { return t.files.Contents(kPath).value_or("(no such file)"); }
    static Message CannotSave(const Text& path, const Text& reason) {
        return {u"Cannot save this file :\r\n\r\n" + path +
                    u"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n\"" +
                    reason + u"\"\r\n\r\n",
                MessageIcon::Stop};
    }

    TestApp t;
};

TEST_F(ListFileTest, LinesEndInAnyWay) {
    EXPECT_THAT(Read("a\r\nb\rc\nd"), Optional(ElementsAre(u"a", u"b", u"c", u"d")));
}

TEST_F(ListFileTest, EmptyLinesAndCommentsAreLinesToo) {
    EXPECT_THAT(Read("\r\n;x\r\n\r\nb\r\n"), Optional(ElementsAre(u"", u";x", u"", u"b")));
}

TEST_F(ListFileTest, AnEmptyFileHasNoLines) {
    EXPECT_THAT(Read(""), Optional(IsEmpty()));
}

TEST_F(ListFileTest, TheBytesAreOfTheSystemsCodePage) {
    EXPECT_THAT(Read("\x97 \xE4\x81\r\n"), Optional(ElementsAre(u"\u2014 \u00E4\u0081")));
}

TEST_F(ListFileTest, NothingIsReadOfAFileThatIsNotThere) {
    EXPECT_EQ(ReadListFile(t.app, kPath), std::nullopt);
    EXPECT_EQ(ReadListFile(t.app, u""), std::nullopt);
    EXPECT_EQ(ReadListFile(t.app, u"C:\\Korvane"), std::nullopt);
}

TEST_F(ListFileTest, AFileThatCannotBeReadIsNoList) {
    t.files.AddFile(kPath, "a");
    t.files.Faults().FailNth(FileStep::OpenToRead, 1);
    EXPECT_EQ(ReadListFile(t.app, kPath), std::nullopt);
}

TEST_F(ListFileTest, AFileWithAZeroByteIsNoList) {
    EXPECT_EQ(Read(std::string("a\r\n\0b", 5)), std::nullopt);
}

TEST_F(ListFileTest, AHugeFileIsNoList) {
    EXPECT_NE(Read(std::string(1'000'000, 'x')), std::nullopt);
    EXPECT_EQ(Read(std::string(1'000'001, 'x')), std::nullopt);
    EXPECT_NE(ReadListFile(t.app, kPath, 1'000'001), std::nullopt);
}

TEST_F(ListFileTest, WritesALineForEachEntry) {
    EXPECT_TRUE(WriteListFile(t.app, kPath, {u"C:\\a", u"", u"\u2014 \u00E4", u"\u4E00"}));
    EXPECT_EQ(Written(), "C:\\a\r\n\r\n\x97 \xE4\r\n?\r\n");
}

TEST_F(ListFileTest, ReplacesALongerFile) {
    t.files.AddFile(kPath, "much longer\r\n");
    EXPECT_TRUE(WriteListFile(t.app, kPath, {u"a"}));
    EXPECT_EQ(Written(), "a\r\n");
}

TEST_F(ListFileTest, TellsWhenTheFileCannotBeWrittenAndLeavesIt) {
    t.files.AddFile(kPath, "old\r\n");
    t.files.SetFileReadOnly(kPath);
    t.user.Answer(CannotSave(kPath, u"Permission denied"), Answer::Ok);
    EXPECT_FALSE(WriteListFile(t.app, kPath, {u"new"}));
    EXPECT_EQ(Written(), "old\r\n");
}

TEST_F(ListFileTest, AFailureAtTheEndOfTheWritingKeepsTheOldList) {
    for (const FileStep step : {FileStep::OpenToWrite, FileStep::Write, FileStep::Close}) {
        t.files.AddFile(kPath, "old\r\n");
        t.files.Faults().FailNth(step, 1, u"Input/output error");
        t.user.Answer(CannotSave(kPath, u"Input/output error"), Answer::Ok);
        EXPECT_FALSE(WriteListFile(t.app, kPath, {u"new"}));
        EXPECT_EQ(Written(), "old\r\n");
    }
}

TEST_F(ListFileTest, TellsOfAFolderThatIsNotThere) {
    t.user.Answer(Answer::Ok);
    EXPECT_FALSE(WriteListFile(t.app, u"C:\\Gone\\a.lst", {u"a"}));
}

} // namespace
} // namespace korvane
