#include "files/viewing/StartIvrand.h"

#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Text kFolder = u"C:\\My Data";

TEST(StartIvrandTest, StartsItBesideTheProgramMinimised) {
    TestApp t;
    t.files.AddFile(u"C:\\Ivrand\\Ivrand.exe");
    t.files.AddFile(u"C:\\Korvane\\Ivrand.exe");
    StartIvrand(t.app, kFolder);
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"C:\\Ivrand\\Ivrand.exe", {kFolder}, WindowState::Minimised}));
}

TEST(StartIvrandTest, ElseInTheProgramFolder) {
    TestApp t;
    t.files.AddFile(u"C:\\Korvane\\Ivrand.exe");
    StartIvrand(t.app, kFolder);
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"C:\\Korvane\\Ivrand.exe", {kFolder}, WindowState::Minimised}));
}

TEST(StartIvrandTest, ABoxTellsThatItIsNowhere) {
    TestApp t;
    t.user.Answer({u"Cannot locate the following program/file:\r\n\r\nC:\\Korvane\\Ivrand.exe\r\n\r\n"
                   u"Check the path before the name and see whether\r\n"
                   u"the program/file exists on your hard disk.",
                   MessageIcon::Stop},
                  Answer::Ok);
    StartIvrand(t.app, kFolder);
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
}

TEST(StartIvrandTest, WithoutDrivesItNeedsNoExtension) {
    TestApp t(PathStyle::Posix);
    t.files.AddFile(u"/opt/Ivrand/Ivrand");
    StartIvrand(t.app, u"/data");
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"/opt/Ivrand/Ivrand", {u"/data"}, WindowState::Minimised}));
}

TEST(StartIvrandTest, WithoutDrivesTheFileManagerStandsIn) {
    TestApp t(PathStyle::Posix);
    t.files.AddDir(u"/data");
    StartIvrand(t.app, u"/data");
    EXPECT_THAT(t.shell.Starts(), IsEmpty());
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, u"/data"}));
}

} // namespace
} // namespace korvane
