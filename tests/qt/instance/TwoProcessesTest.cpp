#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <memory>
#include <vector>

namespace korvane {
namespace {

/// A start of the program as its own process.
class Start {
public:
    Start(const TempDir& dir, const QStringList& arguments) {
        const QStringList place{QString::fromStdString(dir / "socket"), QString::fromStdString(dir / "lock")};
        process_.start(START_PROBE, place + arguments);
    }
    ~Start() {
        process_.closeWriteChannel();
        process_.waitForFinished(-1);
    }

    /// The next line that it prints, or an empty text when it has ended.
    std::string Line() {
        while (!process_.canReadLine() && process_.waitForReadyRead(-1)) {
        }
        return process_.readLine().trimmed().toStdString();
    }
    void Free() {
        process_.write("free\n");
        process_.waitForBytesWritten(-1);
    }
    void Kill() {
        process_.kill();
        process_.waitForFinished(-1);
    }

private:
    QProcess process_;
};

struct TwoProcesses : testing::Test {
    std::unique_ptr<Start> Begin(const QStringList& arguments = {}) {
        return std::make_unique<Start>(dir, arguments);
    }
    std::unique_ptr<Start> BeginFirst(const QStringList& arguments = {}) {
        auto start = Begin(arguments);
        EXPECT_EQ(start->Line(), "first");
        EXPECT_EQ(start->Line(), "listening");
        return start;
    }

    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    QCoreApplication app{argc, argv};
    TempDir dir;
};

TEST_F(TwoProcesses, TheSecondStartHandsItsPathToTheFirstAndEnds) {
    const auto first = BeginFirst();
    const auto second = Begin({"/home/ann/Käse\n100%.tbx"});
    EXPECT_EQ(second->Line(), "second");
    EXPECT_EQ(second->Line(), "found");
    EXPECT_EQ(second->Line(), "empty");
    EXPECT_EQ(second->Line(), "taken");
    EXPECT_EQ(second->Line(), "end");
    EXPECT_EQ(second->Line(), "");
    EXPECT_EQ(first->Line(), "asked");
    EXPECT_EQ(first->Line(), "received /home/ann/Käse");
    EXPECT_EQ(first->Line(), "100%.tbx");
    EXPECT_EQ(first->Line(), "activated");
}

TEST_F(TwoProcesses, ASecondStartWithoutAPathOnlyBringsTheFirstToTheFront) {
    const auto first = BeginFirst();
    const auto second = Begin();
    EXPECT_EQ(second->Line(), "second");
    EXPECT_EQ(second->Line(), "end");
    EXPECT_EQ(first->Line(), "asked");
    EXPECT_EQ(first->Line(), "activated");
}

TEST_F(TwoProcesses, TheSecondStartWaitsUntilTheSlotIsEmpty) {
    const auto first = BeginFirst({"--busy"});
    const auto second = Begin({"/a.tbx"});
    EXPECT_EQ(first->Line(), "asked");
    first->Free();
    EXPECT_EQ(first->Line(), "received /a.tbx");
    EXPECT_EQ(second->Line(), "second");
    EXPECT_EQ(second->Line(), "found");
    EXPECT_EQ(second->Line(), "empty");
    EXPECT_EQ(second->Line(), "taken");
}

TEST_F(TwoProcesses, TheSecondStartNoticesThatTheFirstDiesWhileItWaits) {
    const auto first = BeginFirst({"--busy"});
    const auto second = Begin({"/a.tbx"});
    EXPECT_EQ(first->Line(), "asked");
    first->Kill();
    EXPECT_EQ(second->Line(), "second");
    EXPECT_EQ(second->Line(), "found");
    EXPECT_EQ(second->Line(), "died");
    EXPECT_EQ(second->Line(), "refused");
    EXPECT_EQ(second->Line(), "end");
}

TEST_F(TwoProcesses, WhatACrashLeftBehindDoesNotKeepTheNextStartFromBeingFirst) {
    BeginFirst()->Kill();
    ASSERT_TRUE(std::filesystem::exists(dir / "socket"));
    const auto next = BeginFirst();
    const auto second = Begin({"/a.tbx"});
    EXPECT_EQ(second->Line(), "second");
    EXPECT_EQ(next->Line(), "asked");
    EXPECT_EQ(next->Line(), "received /a.tbx");
}

TEST_F(TwoProcesses, TheEndOfTheFirstMakesRoomForAnother) {
    BeginFirst();
    EXPECT_FALSE(std::filesystem::exists(dir / "socket"));
    BeginFirst();
}

TEST_F(TwoProcesses, OfStartsThatRaceOneIsTheFirstAndGetsThePathsOfAllOthers) {
    constexpr int kStarts = 12;
    WriteBytes(dir / "socket", "something in the way");
    std::vector<std::unique_ptr<Start>> others;
    for (int i = 0; i < kStarts; ++i)
        others.push_back(Begin({QString("/%1.tbx").arg(i)}));
    std::vector<std::unique_ptr<Start>> firsts;
    for (auto& start : others) {
        if (start->Line() == "first") firsts.push_back(std::move(start));
    }
    ASSERT_EQ(firsts.size(), 1u);
    int taken = 0;
    for (auto& start : others) {
        for (std::string line; start && !(line = start->Line()).empty();)
            taken += line == "taken";
    }
    EXPECT_EQ(taken, kStarts - 1);
}

} // namespace
} // namespace korvane
