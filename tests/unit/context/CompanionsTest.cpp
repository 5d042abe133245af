#include "context/Companions.h"

#include "context/exchange/SystemDirs.h"
#include "support/TestApp.h"

#include <gmock/gmock.h>

namespace korvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Companions : public testing::TestWithParam<PathStyle> {
protected:
    bool OnWindows() const { return GetParam().HasDrives(); }
    Text InFolder(TextView name) const {
        return OnWindows() ? u"C:\\Data\\" + Text(name) : u"/data/" + Text(name);
    }
    void StartNothing() {
        t.shell.SetStartable([](TextView) { return false; });
    }

    TestApp t{GetParam()};
};

class CompanionsOnWindows : public testing::Test {
protected:
    /// The place where a companion is looked for first.
    Text PlaceOf(Companion companion) {
        TestApp t;
        t.shell.SetStartable([&t](TextView program) { return t.files.FileExists(program); });
        for (const Text& path : kPlaces)
            t.files.AddFile(path);
        LaunchCompanion(t.app, companion);
        return t.shell.Starts().back().program;
    }

    const std::vector<Text> kPlaces{
        u"C:\\Drive_G\\Sandrel\\Abrill\\Abrill.exe",
        u"C:\\Drive_G\\Sandrel\\Dunmark\\Dunmark.exe",
        u"C:\\Drive_G\\Sandrel\\Hadrell\\Nimbrel\\Nimbrel.exe",
        u"C:\\Drive_G\\Sandrel\\Hadrell\\Tessaly\\Tessaly.exe",
        u"C:\\Drive_G\\Sandrel\\Hadrell\\Lorrit\\Lorrit.exe",
        u"C:\\Drive_G\\Sandrel\\Wexley\\Wexley.exe",
        u"C:\\Drive_G\\TolmereSet\\TolmereSet\\TolmereSet.exe",
        u"C:\\Drive_G\\TolmereSet\\Ostrel\\Ostrel.exe",
        u"C:\\Drive_G\\TolmereSet\\Veldan\\Veldan.exe",
    };
};

TEST_F(CompanionsOnWindows, EachHasItsPlace) {
    const std::vector<Text> places{
        PlaceOf(Companion::Abrill),     PlaceOf(Companion::Dunmark), PlaceOf(Companion::Nimbrel),
        PlaceOf(Companion::Tessaly),    PlaceOf(Companion::Lorrit),  PlaceOf(Companion::Wexley),
        PlaceOf(Companion::TolmereSet), PlaceOf(Companion::Ostrel),  PlaceOf(Companion::Veldan)};
    EXPECT_EQ(places, kPlaces);
}

TEST_P(Companions, OneThatStartsNeedsNoStandIn) {
    LaunchLorrit(t.app, InFolder(u""));
    LaunchDunmark(t.app, InFolder(u"x.rtf"));
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(testing::Field(&ProgramStart::arguments, ElementsAre(InFolder(u""))),
                            testing::Field(&ProgramStart::arguments, ElementsAre(InFolder(u"x.rtf")))));
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
    EXPECT_THAT(t.shell.Calls(), IsEmpty());
}

TEST_P(Companions, TheDesktopOpensTextsSoundsAndPicturesInTheirPlace) {
    StartNothing();
    LaunchDunmark(t.app, InFolder(u"a file.rtf"));
    LaunchCompanion(t.app, Companion::Nimbrel, InFolder(u"b.mp3"));
    LaunchCompanion(t.app, Companion::Tessaly, InFolder(u"c.png"));
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.file = InFolder(u"a file.rtf")},
                                              OpenRequest{.file = InFolder(u"b.mp3")},
                                              OpenRequest{.file = InFolder(u"c.png")}));
}

TEST_P(Companions, TheDesktopGetsAFullPathWhateverTheName) {
    StartNothing();
    t.files.AddDir(InFolder(u""));
    t.files.ChangeDir(InFolder(u""));
    LaunchDunmark(t.app, u"-x.rtf");
    LaunchDunmark(t.app, u"\"in quotes.rtf\"");
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.file = InFolder(u"-x.rtf")},
                                              OpenRequest{.file = InFolder(u"in quotes.rtf")}));
}

TEST_P(Companions, AnArgumentInQuotesIsOpenedWithoutThem) {
    StartNothing();
    LaunchDunmark(t.app, u"\"" + InFolder(u"a file.rtf") + u"\"");
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.file = InFolder(u"a file.rtf")}));
}

TEST_P(Companions, NothingToOpenIsNotOpened) {
    StartNothing();
    LaunchDunmark(t.app, u" ");
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
}

TEST_P(Companions, TheDesktopExploresAFolderInLorritsPlace) {
    StartNothing();
    t.files.AddDir(InFolder(u"sub"));
    t.files.ChangeDir(InFolder(u""));
    LaunchLorrit(t.app, InFolder(u"sub"));
    LaunchLorrit(t.app, u"");
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, InFolder(u"sub")},
                                             ShellCall{ShellCall::Kind::Explore, t.files.CurrentDir()}));
}

TEST_P(Companions, TheOthersFailWithoutAWord) {
    StartNothing();
    for (const Companion companion :
         {Companion::Wexley, Companion::TolmereSet, Companion::Ostrel, Companion::Veldan})
        LaunchCompanion(t.app, companion);
    EXPECT_THAT(t.shell.Starts(), testing::SizeIs(4));
    EXPECT_THAT(t.shell.Opened(), IsEmpty());
    EXPECT_THAT(t.shell.Calls(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Styles, Companions, testing::Values(PathStyle::Windows, PathStyle::Posix),
                         [](const auto& style) { return style.param.HasDrives() ? "Windows" : "Posix"; });

TEST(CompanionsOnPosix, AFileWithAQuoteInItsNameIsOpenedAsItIs) {
    TestApp t(PathStyle::Posix);
    t.shell.SetStartable([](TextView) { return false; });
    t.files.AddFile(u"/data/5\" disk ");
    t.files.AddDir(u"/data/5\" disks");
    LaunchDunmark(t.app, u"/data/5\" disk ");
    LaunchLorrit(t.app, u"/data/5\" disks");
    EXPECT_THAT(t.shell.Opened(), ElementsAre(OpenRequest{.file = u"/data/5\" disk "}));
    EXPECT_THAT(t.shell.Calls(), ElementsAre(ShellCall{ShellCall::Kind::Explore, u"/data/5\" disks"}));
}

TEST(CompanionsOnPosix, AHostileFileNameStartsNothingAndIsOpenedAsAFile) {
    TestApp t(PathStyle::Posix);
    t.shell.SetStartable([](TextView) { return false; });
    for (const TextView name :
         {u"/d/$(reboot);`id`|x&y>z\n'q'*", u"/d/http:x", u"/d/--exec=evil", u"/d/explorer.exe"}) {
        t.files.AddFile(name);
        LaunchCompanion(t.app, Companion::Tessaly, name);
        EXPECT_EQ(t.shell.Starts().back().program, u"/opt/korvane/Tessaly");
        EXPECT_EQ(t.shell.Opened().back(), OpenRequest{.file = Text(name)});
    }
}

TEST(CalculatorStandIn, IsTheFirstThatTheDesktopHas) {
    TestApp t(PathStyle::Posix);
    t.shell.SetStartable([](TextView program) { return program == u"mate-calc" || program == u"xcalc"; });
    LaunchCompanion(t.app, Companion::Abrill);
    EXPECT_THAT(t.shell.Starts(),
                ElementsAre(ProgramStart{u"/opt/korvane/Abrill"}, ProgramStart{u"gnome-calculator"},
                            ProgramStart{u"kcalc"}, ProgramStart{u"mate-calc"}));
}

TEST(CalculatorStandIn, IsTheSystemsOwnWhereThereAreDrives) {
    TestApp t;
    t.app.Exchange<SystemDirs>().SystemDir = u"C:\\Windows\\System32\\";
    t.shell.SetStartable([](TextView program) { return program == u"C:\\Windows\\System32\\calc.exe"; });
    LaunchCompanion(t.app, Companion::Abrill);
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\Korvane\\Abrill.exe"},
                                              ProgramStart{u"C:\\Windows\\System32\\calc.exe"}));
}

TEST(CalculatorStandIn, IsNotLookedForByABareNameWhereTheCurrentDirectoryWouldAnswer) {
    TestApp t;
    t.shell.SetStartable([](TextView) { return false; });
    LaunchCompanion(t.app, Companion::Abrill);
    EXPECT_THAT(t.shell.Starts(), ElementsAre(ProgramStart{u"C:\\Korvane\\Abrill.exe"}));
}

} // namespace
} // namespace korvane
