#include "platform/native/MountTable.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace korvane {
namespace {

constexpr std::string_view kMounts = "/dev/sda1 / ext4 rw,relatime 0 0\n"
                                     "tmpfs /tmp tmpfs rw 0 0\n"
                                     "/dev/sdb1 /media/ann/My\\040Stick vfat rw 0 0\n"
                                     "/dev/sr0 /run/media/ann/Music iso9660 ro 0 0\n"
                                     "server:/home /home/shared nfs4 rw 0 0\n"
                                     "/dev/sdc1 /home/shared/local ext4 rw 0 0\n";

std::string PointOf(std::string_view path) {
    return MountOf(kMounts, path).value().point;
}

DriveType TypeAt(std::string_view path) {
    return TypeOf(MountOf(kMounts, path).value());
}

TEST(MountTable, APathIsOnTheDeepestMountAboveIt) {
    EXPECT_EQ(PointOf("/"), "/");
    EXPECT_EQ(PointOf("/etc/x"), "/");
    EXPECT_EQ(PointOf("/home/shared"), "/home/shared");
    EXPECT_EQ(PointOf("/home/shared/x"), "/home/shared");
    EXPECT_EQ(PointOf("/home/shared/local/x"), "/home/shared/local");
    EXPECT_EQ(PointOf("/home/shared2/x"), "/");
    EXPECT_EQ(PointOf("/media/ann/My Stick/x"), "/media/ann/My Stick");
}

TEST(MountTable, ALaterMountInTheSameFolderHidesTheOther) {
    EXPECT_EQ(MountOf("a / ext4 rw 0 0\nb / overlay rw 0 0\n", "/x"), (Mount{"/", "overlay"}));
}

TEST(MountTable, WithoutAMountThereIsNone) {
    EXPECT_EQ(MountOf("", "/x"), std::nullopt);
    EXPECT_EQ(MountOf("a /b ext4 rw 0 0\n", "/x"), std::nullopt);
    EXPECT_EQ(MountOf("nonsense\n\n \n", "/x"), std::nullopt);
}

TEST(MountTable, OnlyWholeEscapesAreRead) {
    EXPECT_EQ(MountOf("a /b\\04 ext4\n", "/b\\04").value().point, "/b\\04");
    EXPECT_EQ(MountOf("a /b\\089 ext4\n", "/b\\089").value().point, "/b\\089");
    EXPECT_EQ(MountOf("a /b\\134c ext4\n", "/b\\c").value().point, "/b\\c");
}

TEST(MountTable, TheKindAndThePlaceTellTheType) {
    EXPECT_EQ(TypeAt("/etc"), DriveType::Fixed);
    EXPECT_EQ(TypeAt("/tmp"), DriveType::RamDisk);
    EXPECT_EQ(TypeAt("/media/ann/My Stick"), DriveType::Removable);
    EXPECT_EQ(TypeAt("/run/media/ann/Music"), DriveType::CdRom);
    EXPECT_EQ(TypeAt("/home/shared"), DriveType::Network);
    EXPECT_EQ(TypeAt("/home/shared/local"), DriveType::Fixed);
}

TEST(MountTable, OnlyAMediumHasAName) {
    EXPECT_EQ(NameOf(MountOf(kMounts, "/media/ann/My Stick").value()), "My Stick");
    EXPECT_EQ(NameOf(MountOf(kMounts, "/home/shared").value()), "");
    EXPECT_EQ(NameOf(MountOf(kMounts, "/").value()), "");
}

} // namespace
} // namespace korvane
