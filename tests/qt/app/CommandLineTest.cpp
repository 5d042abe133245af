#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(CommandLine, NothingIsAnEmptyPath) {
    const CommandLine line = ReadCommandLine({});
    EXPECT_EQ(line.path, u"");
    EXPECT_TRUE(line.picture.isEmpty());
}

TEST(CommandLine, AllArgumentsAreOnePathBlanksAndAll) {
    EXPECT_EQ(ReadCommandLine({"/home/my", "own", "notes.tbx"}).path, u"/home/my own notes.tbx");
    EXPECT_EQ(ReadCommandLine({"\"/a", "b.tbx\""}).path, u"\"/a b.tbx\"");
}

TEST(CommandLine, WhatLooksLikeAnOptionIsAPath) {
    EXPECT_EQ(ReadCommandLine({"-style", "notes.tbx"}).path, u"-style notes.tbx");
    EXPECT_EQ(ReadCommandLine({"--render"}).path, u"--render");
}

TEST(CommandLine, APictureIsAskedForInFront) {
    const CommandLine line = ReadCommandLine({"--render", "out.png", "notes.tbx"});
    EXPECT_EQ(line.picture, QString("out.png"));
    EXPECT_EQ(line.path, u"notes.tbx");
    EXPECT_FALSE(line.dark);
    EXPECT_EQ(ReadCommandLine({"notes.tbx", "--render", "out.png"}).picture, QString());
}

TEST(CommandLine, ADarkPictureIsAskedForBehindIt) {
    const CommandLine line = ReadCommandLine({"--render", "out.png", "--dark", "notes.tbx"});
    EXPECT_TRUE(line.dark);
    EXPECT_EQ(line.path, u"notes.tbx");
    EXPECT_EQ(ReadCommandLine({"--dark"}).path, u"--dark");
}

TEST(CommandLine, TheProgramsOwnNameIsNoArgument) {
    char program[] = "korvane";
    char file[] = "notes.tbx";
    char* argv[] = {program, file, nullptr};
    EXPECT_EQ(Arguments(2, argv), QStringList{"notes.tbx"});
    EXPECT_TRUE(Arguments(1, argv).isEmpty());
}

} // namespace
} // namespace korvane
