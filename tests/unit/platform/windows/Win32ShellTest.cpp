#include "platform/windows/Win32Shell.h"

#include "support/UnderWine.h"
#include "unit/platform/windows/Probe.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

struct Win32ShellTest : testing::Test {
    Probe probe;
    Win32Shell shell;
};

TEST_F(Win32ShellTest, AStartedProgramFindsEachArgumentAsItStands) {
    const std::vector<Text> arguments{u"arguments",
                                      probe.File(),
                                      probe.Event(),
                                      u"a b",
                                      u"",
                                      u"say \"so\"",
                                      u"C:\\Data\\",
                                      u"C:\\my data\\",
                                      u"%PATH% & calc.exe",
                                      u"K\u00E4se",
                                      u"\u4E2D\U0001F9C0"};
    EXPECT_NE(shell.Run(Probe::Program(), arguments, WindowState::Normal), 0);
    ASSERT_TRUE(probe.Ready());
    EXPECT_EQ(probe.Told(),
              "normal\n<a b>\n<>\n<say \"so\">\n<C:\\Data\\>\n<C:\\my data\\>\n<%PATH% & calc.exe>\n"
              "<K\xC3\xA4se>\n<\xE4\xB8\xAD\xF0\x9F\xA7\x80>\n");
}

TEST_F(Win32ShellTest, AProgramCanBeStartedMinimised) {
    EXPECT_NE(
        shell.Run(Probe::Program(), {u"arguments", probe.File(), probe.Event()}, WindowState::Minimised), 0);
    ASSERT_TRUE(probe.Ready());
    EXPECT_EQ(probe.Told(), "minimised\n");
}

TEST_F(Win32ShellTest, TheTaskNumberIsThatOfTheProcess) {
    const int task = shell.Run(u"cmd.exe", {u"/c", u"exit", u"7"}, WindowState::Minimised);
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(task));
    // A process that has ended can't be opened any more.
    if (process != nullptr) {
        EXPECT_EQ(WaitForSingleObject(process, 60'000), WAIT_OBJECT_0);
        CloseHandle(process);
    }
    EXPECT_GT(task, 0);
}

TEST_F(Win32ShellTest, WhatIsNoProgramDoesNotStart) {
    EXPECT_EQ(shell.Run(u"", {u"calc.exe"}, WindowState::Normal), 0);
    EXPECT_EQ(shell.Run(u"C:\\no\\such.exe", {}, WindowState::Normal), 0);
    WriteBytes(probe.Dir() / "a.tbx", "a");
    EXPECT_EQ(shell.Run(FromWide((probe.Dir() / "a.tbx").wstring()), {}, WindowState::Normal), 0);
}

TEST_F(Win32ShellTest, ABatchFileFindsEachArgumentAsItStandsAndStartsNothingElse) {
    const std::filesystem::path batch = probe.Dir() / "a & b.bat";
    WriteBytes(batch, "@\"" + ToUtf8(Probe::Program()) + "\" arguments \"" + ToUtf8(probe.File()) + "\" " +
                          ToUtf8(probe.Event()) + " %1 %2 %3\r\n");
    const std::vector<Text> arguments{u"b & echo more > more.txt", u"^(c)!PATH!|", u"C:\\my data\\"};
    EXPECT_NE(shell.Run(FromWide(batch.wstring()), arguments, WindowState::Normal), 0);
    ASSERT_TRUE(probe.Ready());
    EXPECT_EQ(probe.Told(), "normal\n<b & echo more > more.txt>\n<^(c)!PATH!|>\n<C:\\my data\\>\n");
}

TEST_F(Win32ShellTest, ABatchFileFindsTheNameOfAVariableAndNotItsValue) {
    if (UnderWine())
        GTEST_SKIP() << "Wine's interpreter looks for variables in the arguments that it has put in";
    const std::filesystem::path batch = probe.Dir() / "a.bat";
    WriteBytes(batch, "@\"" + ToUtf8(Probe::Program()) + "\" arguments \"" + ToUtf8(probe.File()) + "\" " +
                          ToUtf8(probe.Event()) + " %1\r\n");
    EXPECT_NE(shell.Run(FromWide(batch.wstring()), {u"%PATH%"}, WindowState::Normal), 0);
    ASSERT_TRUE(probe.Ready());
    EXPECT_EQ(probe.Told(), "normal\n<%PATH%>\n");
}

TEST_F(Win32ShellTest, ABatchFileIsNotStartedWithWhatNoQuotesHold) {
    WriteBytes(probe.Dir() / "a.bat", "echo started> %~dp0told.txt\r\n");
    const Text batch = FromWide((probe.Dir() / "a.bat").wstring());
    EXPECT_EQ(shell.Run(batch, {u"b\" & echo more"}, WindowState::Normal), 0);
    EXPECT_EQ(shell.Run(batch, {u"b\r\necho more"}, WindowState::Normal), 0);
    EXPECT_EQ(probe.Told(), "");
}

TEST_F(Win32ShellTest, OpeningAProgramRunsIt) {
    shell.Open({.file = Probe::Program(),
                .parameters = u"arguments \"" + probe.File() + u"\" " + probe.Event() + u" \"a b\""});
    ASSERT_TRUE(probe.Ready());
    EXPECT_EQ(probe.Told(), "normal\n<a b>\n");
}

TEST_F(Win32ShellTest, AProgramOpensInAFolderThatIsNotThereAllTheSame) {
    shell.Open({.file = Probe::Program(),
                .parameters = u"arguments \"" + probe.File() + u"\" " + probe.Event(),
                .directory = u"0"});
    EXPECT_TRUE(probe.Ready());
}

TEST_F(Win32ShellTest, WhatCannotBeOpenedIsPassedOver) {
    shell.Open({.file = u""});
    shell.Open({.file = u"C:\\no\\such.tbx"});
    shell.Open({.verb = u"no such verb",
                .file = Probe::Program(),
                .parameters = u"arguments " + probe.File() + u" e"});
    EXPECT_EQ(probe.Told(), "");
}

} // namespace
} // namespace korvane
