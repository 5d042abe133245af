#include "app/StartArguments.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(StartArguments, NothingIsAnEmptyPath) {
    const StartArguments start = ReadStartArguments({});
    EXPECT_EQ(start.path, u"");
    EXPECT_TRUE(start.picture.isEmpty());
}

TEST(StartArguments, AllArgumentsAreOnePathBlanksAndAll) {
    EXPECT_EQ(ReadStartArguments({"/home/my", "own", "notes.tbx"}).path, u"/home/my own notes.tbx");
    EXPECT_EQ(ReadStartArguments({"\"/a", "b.tbx\""}).path, u"\"/a b.tbx\"");
}

TEST(StartArguments, WhatLooksLikeAnOptionIsAPath) {
    EXPECT_EQ(ReadStartArguments({"-style", "notes.tbx"}).path, u"-style notes.tbx");
    EXPECT_EQ(ReadStartArguments({"--render"}).path, u"--render");
}

TEST(StartArguments, APictureIsAskedForInFront) {
    const StartArguments start = ReadStartArguments({"--render", "out.png", "notes.tbx"});
    EXPECT_EQ(start.picture, QString("out.png"));
    EXPECT_EQ(start.path, u"notes.tbx");
    EXPECT_FALSE(start.dark);
    EXPECT_EQ(ReadStartArguments({"notes.tbx", "--render", "out.png"}).picture, QString());
}

TEST(StartArguments, ADarkPictureIsAskedForBehindIt) {
    const StartArguments start = ReadStartArguments({"--render", "out.png", "--dark", "notes.tbx"});
    EXPECT_TRUE(start.dark);
    EXPECT_EQ(start.path, u"notes.tbx");
    EXPECT_EQ(ReadStartArguments({"--dark"}).path, u"--dark");
}

// On Windows they are read from the command line of the running program.
#ifndef _WIN32
TEST(StartArguments, TheProgramsOwnNameIsNoArgument) {
    char program[] = "korvane";
    char file[] = "notes.tbx";
    char* argv[] = {program, file, nullptr};
    EXPECT_EQ(Arguments(2, argv), QStringList{"notes.tbx"});
    EXPECT_TRUE(Arguments(1, argv).isEmpty());
}
#endif

} // namespace
} // namespace korvane
