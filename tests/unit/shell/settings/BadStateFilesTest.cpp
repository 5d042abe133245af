// What a user, a disk or another program may have made of the two files in which the program keeps its state.

#include "common/text/Lines.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>

namespace korvane {
namespace {

const Text kIni = u"C:\\Korvane\\Korvane.ini";
const Text kRec = u"C:\\Korvane\\Korvane.rec";
const Text kTable = u"D:\\Data\\Books.tbx";
const std::string kRecordOfTable = "D:\\Data\\Books.tbx | 0*2026.11.21   10:30\r\n";

std::string Repeated(std::string_view part, int times) {
    std::string bytes;
    for (int i = 0; i < times; ++i)
        bytes += part;
    return bytes;
}

/// The part, repeated 2 to the power of `doublings` times.
std::string Doubled(std::string_view part, int doublings) {
    std::string bytes(part);
    bytes.reserve(part.size() << doublings);
    for (int i = 0; i < doublings; ++i)
        bytes += bytes;
    return bytes;
}

std::string EveryByte() {
    std::string bytes;
    for (int value = 0; value < 256; ++value)
        bytes += static_cast<char>(value);
    return bytes;
}

constexpr int kMegabyte = 1 << 20;

/// The bytes are made when the test runs, because some files are large.
struct BadFile {
    const char* name;
    std::string (*bytes)();
};

void PrintTo(const BadFile& file, std::ostream* out) {
    *out << file.name;
}

constexpr std::array kBadFiles{
    BadFile{"Empty", [] { return std::string(); }},
    BadFile{"OneLineEnd", [] { return std::string("\r\n"); }},
    BadFile{"HalfALineEnd", [] { return std::string("\r"); }},
    BadFile{"Short", [] { return std::string("C\r\nC:\\\r\n600\r\n45"); }},
    BadFile{"Nulls", [] { return std::string(10000, '\0'); }},
    BadFile{"EveryByteOnEveryLine", [] { return Repeated(EveryByte() + "\r\n", 300); }},
    BadFile{"WideText",
            [] {
                return std::string("\xFF\xFE"
                                   "6\0"
                                   "0\0"
                                   "0\0"
                                   "\r\0"
                                   "\n\0",
                                   12);
            }},
    BadFile{"NumbersPastAllFields", [] { return Repeated("-99999999999999999999\r\n", 215); }},
    BadFile{"ALineOfAMegabyte", [] { return std::string(kMegabyte, 'x'); }},
    BadFile{"LinesOfAMegabyte", [] { return Repeated(std::string(kMegabyte, '7') + "\r\n", 10); }},
    BadFile{"AMegabyteOfReturns", [] { return std::string(kMegabyte, '\r'); }},
    BadFile{"AMegabyteOfFeeds", [] { return std::string(kMegabyte, '\n'); }},
    BadFile{"HundredMegabytesOfLines", [] { return Doubled("\r\n", 26); }},
};

/// The program with a table, both state files and something else on its disk.
class BadState : public testing::Test {
protected:
    BadState() {
        p.files.AddDrive(u'D');
        p.AddTable(kTable, {"Walden"});
        p.AddSettings();
        p.files.AddFile(kRec, "D:\\Data\\Old.tbx | 0*2025.01.02   03:04\r\n");
        p.files.AddFile(u"C:\\Korvane\\Notes.txt", "notes");
    }
    void Start() {
        p.Start(kTable);
        EXPECT_TRUE(p.Main().Shown());
        EXPECT_EQ(p.Captions(), std::vector<Text>{u"Books.tbx"});
    }
    void Exit() {
        p.Choose("mnuFile_Exit");
        EXPECT_FALSE(p.Main().Shown());
        EXPECT_EQ(p.FileBytes(kTable), NameTable(kTable, {"Walden"}));
        EXPECT_EQ(p.FileBytes(u"C:\\Korvane\\Notes.txt"), "notes");
    }
    void ExpectCannotLoad(const Text& path) {
        p.user.Answer({u"Cannot load the following file:\r\n\r\n" + path + u"\r\n\r\nCurrent dir.: C:\\",
                       MessageIcon::Exclamation},
                      Answer::Ok);
    }
    void ExpectCannotSave(const Text& path, const Text& reason) {
        p.user.Answer({u"Cannot save this file :\r\n\r\n" + path +
                           u"\r\n\r\nThe error was probably triggered for the following reason : \r\n\r\n\"" +
                           reason + u"\"\r\n\r\n",
                       MessageIcon::Stop},
                      Answer::Ok);
    }
    std::size_t LinesOf(const Text& path) const {
        const std::string bytes = p.FileBytes(path);
        LineReader lines(bytes, LineEnds::CrLf);
        std::size_t count = 0;
        for (std::string_view line; lines.Next(line);)
            ++count;
        return count;
    }

    TestProgram p;
};

class BadStateFile : public BadState, public testing::WithParamInterface<BadFile> {};

TEST_P(BadStateFile, AsSettingsIsReadAsFarAsItGoesAndWrittenWhole) {
    p.files.AddFile(kIni, GetParam().bytes());
    Start();
    Exit();
    p.EndProcess();
    EXPECT_EQ(p.FileBytes(kRec), kRecordOfTable + "D:\\Data\\Old.tbx | 0*2025.01.02   03:04\r\n");
    // What is written comes back, line by line.
    const Settings written = p.app.Settings;
    TestProgram next;
    next.files.AddFile(kIni, p.FileBytes(kIni));
    next.Start();
    EXPECT_EQ(next.app.Settings.ReturnPassword, written.ReturnPassword);
    EXPECT_EQ(next.app.Settings.ImportDelimiterType, written.ImportDelimiterType);
}

TEST_P(BadStateFile, AsRecordIsReadAsFarAsItGoesAndTheLoadComesFirst) {
    p.files.AddFile(kRec, GetParam().bytes());
    Start();
    Exit();
    EXPECT_TRUE(p.FileBytes(kRec).starts_with(kRecordOfTable));
    EXPECT_EQ(LinesOf(kIni), kSettingLines);
}

INSTANTIATE_TEST_SUITE_P(All, BadStateFile, testing::ValuesIn(kBadFiles),
                         [](const auto& file) { return file.param.name; });

TEST_F(BadState, UnreadableSettingsArePassedOverInSilenceAndReplaced) {
    p.files.Faults().FailNth(FileStep::OpenToRead, 1, u"Permission denied");
    Start();
    Exit();
    EXPECT_EQ(LinesOf(kIni), kSettingLines);
}

TEST_F(BadState, AnUnreadableRecordIsPassedOverInSilenceAndReplaced) {
    p.files.Faults().FailNth(FileStep::OpenToRead, 2, u"Permission denied");
    Start();
    Exit();
    EXPECT_EQ(p.FileBytes(kRec), kRecordOfTable);
}

TEST_F(BadState, AFolderInThePlaceOfTheSettingsIsToldAtBothEndsAndStays) {
    p.files.Erase(kIni);
    p.files.AddDir(kIni);
    ExpectCannotLoad(kIni);
    Start();
    ExpectCannotSave(kIni, u"Is a directory");
    Exit();
    EXPECT_TRUE(p.files.DirExists(kIni));
    EXPECT_TRUE(p.FileBytes(kRec).starts_with(kRecordOfTable));
}

TEST_F(BadState, AFolderInThePlaceOfTheRecordIsToldAtTheEndAndStays) {
    p.files.Erase(kRec);
    p.files.AddDir(kRec);
    Start();
    ExpectCannotSave(kRec, u"Is a directory");
    Exit();
    EXPECT_TRUE(p.files.DirExists(kRec));
    EXPECT_EQ(LinesOf(kIni), kSettingLines);
}

TEST_F(BadState, OnAReadOnlyDiskTheEndTellsOfBothFilesAndTheOldOnesStay) {
    p.files.SetDiskReadOnly();
    const std::string before = p.FileBytes(kIni);
    Start();
    ExpectCannotSave(kIni, u"Read-only file system");
    ExpectCannotSave(kRec, u"Read-only file system");
    Exit();
    EXPECT_EQ(p.FileBytes(kIni), before);
    EXPECT_EQ(p.FileBytes(kRec), "D:\\Data\\Old.tbx | 0*2025.01.02   03:04\r\n");
}

TEST_F(BadState, ReadOnlyFilesAreToldAndStay) {
    p.files.SetFileReadOnly(kIni);
    p.files.SetFileReadOnly(kRec);
    Start();
    ExpectCannotSave(kIni, u"Permission denied");
    ExpectCannotSave(kRec, u"Permission denied");
    Exit();
    EXPECT_EQ(p.FileBytes(kRec), "D:\\Data\\Old.tbx | 0*2025.01.02   03:04\r\n");
}

TEST_F(BadState, OnAFullDiskTheEndTellsOfBothFilesAndTheOldOnesStay) {
    const std::string before = p.FileBytes(kIni);
    p.files.SetFreeBytes(20);
    Start();
    ExpectCannotSave(kIni, u"No space left on device");
    ExpectCannotSave(kRec, u"No space left on device");
    Exit();
    EXPECT_EQ(p.FileBytes(kIni), before);
    EXPECT_EQ(p.FileBytes(kRec), "D:\\Data\\Old.tbx | 0*2025.01.02   03:04\r\n");
}

class FailingStep : public BadState, public testing::WithParamInterface<FileStep> {};

TEST_P(FailingStep, IsToldAndLeavesTheOldSettings) {
    const std::string before = p.FileBytes(kIni);
    Start();
    p.files.Faults().FailNth(GetParam(), 1, u"Input/output error");
    ExpectCannotSave(kIni, u"Input/output error");
    Exit();
    EXPECT_EQ(p.FileBytes(kIni), before);
    EXPECT_TRUE(p.FileBytes(kRec).starts_with(kRecordOfTable));
}

INSTANTIATE_TEST_SUITE_P(OfAWrite, FailingStep,
                         testing::Values(FileStep::OpenToWrite, FileStep::Write, FileStep::Close,
                                         FileStep::Rename),
                         [](const auto& step) { return std::to_string(static_cast<int>(step.param)); });

TEST_F(BadState, ARecordOfAnotherUserIsNeitherReadNorWritten) {
    p.files.SetForeign(kRec);
    Start();
    EXPECT_EQ(p.Main().Parts().recents.RecentNext, 2);
    p.user.Answer(Answer::Ok);
    Exit();
    EXPECT_TRUE(p.user.Messages().back().text.starts_with(u"Cannot save this file :\r\n\r\n" + kRec));
    EXPECT_EQ(p.FileBytes(kRec), "D:\\Data\\Old.tbx | 0*2025.01.02   03:04\r\n");
}

} // namespace
} // namespace korvane
