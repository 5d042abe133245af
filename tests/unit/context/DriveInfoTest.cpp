#include "context/DriveInfo.h"

#include "context/exchange/DriveReport.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

class DriveInfo : public testing::Test {
protected:
    DriveInfo() { t.files.AddDrive(u'D'); }

    Text TypeTextOf(DriveType type) {
        t.files.SetVolume(u"D:\\", {.type = type});
        ReadDriveInfo(t.app, u"D:\\");
        return t.app.Exchange<DriveReport>().DriveTypeText;
    }
    Text LabelOf(const VolumeInfo& info) {
        t.files.SetVolume(u"D:\\", info);
        ReadDriveInfo(t.app, u"D:\\");
        return t.app.Exchange<DriveReport>().DriveLabel;
    }

    TestApp t;
};

TEST_F(DriveInfo, NamesEachType) {
    EXPECT_EQ(TypeTextOf(DriveType::Unknown), u"Unknown");
    EXPECT_EQ(TypeTextOf(DriveType::Removable), u"Removable");
    EXPECT_EQ(TypeTextOf(DriveType::Fixed), u"Fixed");
    EXPECT_EQ(TypeTextOf(DriveType::Network), u"Network");
    EXPECT_EQ(TypeTextOf(DriveType::CdRom), u"CD-ROM");
    EXPECT_EQ(TypeTextOf(DriveType::RamDisk), u"RAM disk");
}

TEST_F(DriveInfo, TakesAnyOtherTypeForFixed) {
    EXPECT_EQ(TypeTextOf(static_cast<DriveType>(6)), u"Fixed");
}

TEST_F(DriveInfo, TakesTheVolumesNameAsItIs) {
    EXPECT_EQ(LabelOf({.name = u"Long.name of a volume", .labelEntry = u"OTHER"}), u"Long.name of a volume");
}

TEST_F(DriveInfo, TakesTheNameInTheDirectoryForABlankOne) {
    EXPECT_EQ(LabelOf({.name = u"  ", .labelEntry = u"DATA"}), u"DATA");
}

TEST_F(DriveInfo, LeavesTheDotAfterTheEighthCharacterOut) {
    EXPECT_EQ(LabelOf({.labelEntry = u"DATABASE.DIS"}), u"DATABASEDIS");
    EXPECT_EQ(LabelOf({.labelEntry = u"DATABASEDIS"}), u"DATABASEDIS");
    EXPECT_EQ(LabelOf({.labelEntry = u"DATA.DIS"}), u"DATA.DIS");
    EXPECT_EQ(LabelOf({.labelEntry = u"DATABASE"}), u"DATABASE");
}

TEST_F(DriveInfo, SaysNotReadyOfACdDriveWithoutAMediumOnly) {
    EXPECT_EQ(LabelOf({.type = DriveType::CdRom, .ready = false}), u"not ready");
    EXPECT_EQ(LabelOf({.type = DriveType::CdRom}), u"no label");
    EXPECT_EQ(LabelOf({.type = DriveType::Removable, .ready = false}), u"no label");
    EXPECT_EQ(LabelOf({.type = DriveType::Fixed}), u"no label");
}

TEST_F(DriveInfo, TakesTheDriveByItsLetter) {
    t.files.SetVolume(u"D:\\", {.type = DriveType::Network, .name = u"Share"});
    for (const TextView drive : {u"D", u"D:", u"D:\\", u"d:\\Data\\x"}) {
        t.app.Exchange<DriveReport>().DriveLabel.clear();
        ReadDriveInfo(t.app, drive);
        EXPECT_EQ(t.app.Exchange<DriveReport>().DriveLabel, u"Share");
    }
}

TEST_F(DriveInfo, OfADriveThatIsNotThereIsThatOfTheLastOne) {
    t.files.SetVolume(u"D:\\", {.type = DriveType::CdRom, .name = u"Songs"});
    ReadDriveInfo(t.app, u"D:\\");
    ReadDriveInfo(t.app, u"Q:\\");
    EXPECT_EQ(t.app.Exchange<DriveReport>().DriveTypeText, u"CD-ROM");
    EXPECT_EQ(t.app.Exchange<DriveReport>().DriveLabel, u"Songs");
}

TEST_F(DriveInfo, OfADriveThatIsNotThereHasNoLabelAtFirst) {
    ReadDriveInfo(t.app, u"Q:\\");
    EXPECT_EQ(t.app.Exchange<DriveReport>().DriveTypeText, u"");
    EXPECT_EQ(t.app.Exchange<DriveReport>().DriveLabel, u"no label");
}

TEST(DriveInfoOnPosix, IsThatOfTheVolumeThatThePathIsOn) {
    TestApp t(PathStyle::Posix);
    t.files.SetVolume(u"/", {.type = DriveType::Fixed, .name = u"Disk"});
    ReadDriveInfo(t.app, u"/home/ann");
    EXPECT_EQ(t.app.Exchange<DriveReport>().DriveTypeText, u"Fixed");
    EXPECT_EQ(t.app.Exchange<DriveReport>().DriveLabel, u"Disk");
}

} // namespace
} // namespace korvane
