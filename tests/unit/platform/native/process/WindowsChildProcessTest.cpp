#include "platform/native/process/ChildProcess.h"
#include "support/TempDir.h"
#include "support/UnderWine.h"
#include "unit/platform/native/process/ChildProbe.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

namespace fs = std::filesystem;

bool Always() {
    return true;
}

class WindowsChildProcessTest : public testing::Test {
protected:
    ChildTask Orders(std::vector<std::string> orders) {
        ChildTask task;
        task.program = ChildProbe();
        task.arguments = std::move(orders);
        task.folder = dir.Path();
        task.output = dir / "output";
        return task;
    }
    std::string Output() const { return ReadBytes(dir / "output"); }

    TempDir dir;
};

TEST_F(WindowsChildProcessTest, TheExitStatusTellsWhetherItSucceeded) {
    EXPECT_EQ(RunChild(Orders({"exit:0"}), Always), ChildEnd::Succeeded);
    EXPECT_EQ(RunChild(Orders({"exit:3"}), Always), ChildEnd::Failed);
}

TEST_F(WindowsChildProcessTest, AProgramThatIsNotThereFails) {
    ChildTask task = Orders({});
    task.program = dir / "missing.exe";
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
    task = Orders({});
    task.folder = dir / "missing";
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
    task = Orders({});
    task.output = dir / "missing" / "output";
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
}

TEST_F(WindowsChildProcessTest, EachArgumentArrivesUnchanged) {
    EXPECT_EQ(RunChild(Orders({"arguments", "a b", "%PATH%", "\"'\\", "", "\xC3\xA9"}), Always),
              ChildEnd::Succeeded);
    EXPECT_EQ(Output(), "arguments|a b|%PATH%|\"'\\||\xC3\xA9|");
}

TEST_F(WindowsChildProcessTest, ItRunsInItsFolderWithAnEnvironmentOfItsOwn) {
    _wputenv(L"KORVANE_TEST_SECRET=1");
    EXPECT_EQ(RunChild(Orders({"folder", "environment"}), Always), ChildEnd::Succeeded);
    _wputenv(L"KORVANE_TEST_SECRET=");
    const std::string output = Output();
    const std::string folder = dir.Path().string();
    EXPECT_TRUE(output.starts_with(folder)) << output;
    for (const char* name : {"TEMP", "TMP", "USERPROFILE", "APPDATA", "LOCALAPPDATA"})
        EXPECT_NE(output.find(std::string("\n") + name + "=" + folder), std::string::npos) << output;
    EXPECT_NE(output.find("\nSystemRoot=C:\\"), std::string::npos) << output;
    EXPECT_EQ(output.find("KORVANE_TEST_SECRET"), std::string::npos);
}

TEST_F(WindowsChildProcessTest, ItHasNoInput) {
    EXPECT_EQ(RunChild(Orders({"input", "arguments"}), Always), ChildEnd::Succeeded);
    EXPECT_EQ(Output(), "input|arguments|");
}

TEST_F(WindowsChildProcessTest, OneThatTakesTooLongIsEnded) {
    ChildTask task = Orders({"wait"});
    task.time = std::chrono::milliseconds(0);
    EXPECT_EQ(RunChild(task, Always), ChildEnd::TimedOut);
}

TEST_F(WindowsChildProcessTest, TheCallerCanEndIt) {
    int asked = 0;
    EXPECT_EQ(RunChild(Orders({"wait"}), [&asked] { return ++asked < 3; }), ChildEnd::Cancelled);
    EXPECT_EQ(asked, 3);
}

TEST_F(WindowsChildProcessTest, WhatItStartedEndsToo) {
    EXPECT_EQ(RunChild(Orders({"hold:kept"}), Always), ChildEnd::Succeeded);
    ASSERT_TRUE(fs::exists(dir / "kept"));
    // A file that somebody has open can't be deleted.
    std::error_code error;
    EXPECT_TRUE(fs::remove(dir / "kept", error)) << error.message();
}

TEST_F(WindowsChildProcessTest, AFileThatGrowsTooLargeEndsIt) {
    ChildTask task = Orders({"fill:large:200000", "wait"});
    task.fileSize = 100'000;
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
    task = Orders({"fill:larger:200000"});
    task.fileSize = 100'000;
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
}

TEST_F(WindowsChildProcessTest, ItGetsNoMoreMemoryThanItMayHave) {
    if (UnderWine()) GTEST_SKIP() << "Wine keeps no limit of memory";
    ChildTask task = Orders({"take:1000000000"});
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Succeeded);
    task.memory = 500'000'000;
    EXPECT_EQ(RunChild(task, Always), ChildEnd::Failed);
}

/// Has an environment variable another value for a while.
class Variable {
public:
    Variable(std::wstring name, const std::wstring& value) : name_(std::move(name)) {
        const wchar_t* const old = _wgetenv(name_.c_str());
        if (old != nullptr) old_ = old;
        _wputenv_s(name_.c_str(), value.c_str());
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { _wputenv_s(name_.c_str(), old_.c_str()); }

private:
    std::wstring name_;
    std::wstring old_;
};

TEST_F(WindowsChildProcessTest, ProgramsAreFoundWhereTheyAreUsuallyInstalled) {
    EXPECT_TRUE(FindProgram("korvane-has-no-such-program").empty());
    fs::create_directories(dir / "LibreOffice" / "program");
    WriteBytes(dir / "LibreOffice" / "program" / "soffice.exe", "");
    const Variable programs(L"ProgramFiles", dir.Path().wstring());
    EXPECT_EQ(FindProgram("soffice"), dir / "LibreOffice" / "program" / "soffice.exe");
}

TEST_F(WindowsChildProcessTest, ProgramsAreFoundInTheFoldersOfThePath) {
    WriteBytes(dir / "pdftohtml.exe", "");
    const Variable path(L"PATH", L"C:\\missing;" + dir.Path().wstring() + L";relative");
    EXPECT_EQ(FindProgram("pdftohtml"), dir / "pdftohtml.exe");
}

TEST_F(WindowsChildProcessTest, NoProgramIsFoundInTheCurrentFolder) {
    WriteBytes(dir / "pdftohtml.exe", "");
    const fs::path before = fs::current_path();
    fs::current_path(dir.Path());
    const Variable path(L"PATH", L".;;C:");
    EXPECT_EQ(FindProgram("pdftohtml"), "");
    fs::current_path(before);
}

TEST_F(WindowsChildProcessTest, AProgramBesideThisOneIsFound) {
    EXPECT_EQ(FindProgram("child_probe"), ChildProbe());
}

} // namespace
} // namespace korvane
