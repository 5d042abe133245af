#include "platform/native/FileAddress.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

TEST(FileAddress, HasThePathWithItsOddCharactersAsNumbers) {
    EXPECT_EQ(FileAddress(u"/data/a file-1.txt"), "file:///data/a%20file-1.txt");
    EXPECT_EQ(FileAddress(u"/d/a%20b#c?d"), "file:///d/a%2520b%23c%3Fd");
    EXPECT_EQ(FileAddress(u"/d/\u00E4\n"), "file:///d/%C3%A4%0A");
}

#ifdef _WIN32
TEST(FileAddress, BeginsWithTheDriveOrTheOtherMachine) {
    EXPECT_EQ(FileAddress(u"C:\\a\\b.txt"), "file:///C:/a/b.txt");
    EXPECT_EQ(FileAddress(u"\\\\pc\\share\\b.txt"), "file://pc/share/b.txt");
}
#else
TEST(FileAddress, KeepsTheBytesOfANameThatIsNoText) {
    EXPECT_EQ(FileAddress(u"/d/not \xDCFF text"), "file:///d/not%20%FF%20text");
}

TEST(FileAddress, ABackslashIsAnOrdinaryCharacter) {
    EXPECT_EQ(FileAddress(u"/d/a\\b"), "file:///d/a%5Cb");
}
#endif

} // namespace
} // namespace korvane
