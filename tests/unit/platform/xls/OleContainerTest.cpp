#include "platform/xls/OleContainer.h"

#include "support/PlainXlsReader.h"

#include <gtest/gtest.h>

namespace korvane::xls {
namespace {

using namespace std::string_view_literals;

constexpr auto kClass = "\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0A\x0B\x0C\x0D\x0E\x0F\x10"sv;

std::string File(const std::string& stream) {
    const OleContainer container(kClass, u"Workbook", stream.size());
    return container.Front() + stream + container.Back();
}

/// A stream of this size. All its sectors are different.
std::string Stream(std::size_t size) {
    std::string stream;
    for (U32 i = 0; stream.size() < size; ++i)
        AppendLittle(stream, i);
    stream.resize(size);
    return stream;
}

TEST(OleContainer, GivesTheStreamBack) {
    for (const std::size_t size : {4096u, 4097u, 4608u, 5000u, 100'000u}) {
        const std::string stream = Stream(size);
        EXPECT_EQ(ReadOleStream(File(stream), u"Workbook"), stream) << size;
    }
}

TEST(OleContainer, ASmallStreamIsFilledUp) {
    for (const std::size_t size : {0u, 1u, 511u, 512u, 4095u}) {
        std::string expected = Stream(size);
        expected.resize(4096);
        EXPECT_EQ(ReadOleStream(File(Stream(size)), u"Workbook"), expected) << size;
    }
}

TEST(OleContainer, TheTableOfSectorsHoldsItsOwnSectorsAtEverySize) {
    // At one of these sizes the table begins to need a second sector.
    for (std::size_t sectors = 120; sectors <= 136; ++sectors) {
        const std::string stream = Stream(sectors * 512);
        EXPECT_EQ(ReadOleStream(File(stream), u"Workbook"), stream) << sectors;
    }
}

TEST(OleContainer, AFilePastSevenMegabytesListsItsTableInSectorsOfTheirOwn) {
    // The first sector has room for 109 sectors of the table, which can list 109 * 128 sectors in all.
    for (const std::size_t sectors : {109u * 128 - 112, 109u * 128 - 111, 109u * 128 - 109, 109u * 128}) {
        const std::string stream = Stream(sectors * 512);
        EXPECT_EQ(ReadOleStream(File(stream), u"Workbook"), stream) << sectors;
    }
}

TEST(OleContainer, AFileOfManyMegabytesListsItsTableInSeveralSectors) {
    const std::string stream = Stream(30'000'000);
    const std::string file = File(stream);
    EXPECT_EQ(file[72], 3) << "sectors that list the table";
    EXPECT_EQ(ReadOleStream(file, u"Workbook"), stream);
}

TEST(OleContainer, BeginsAsItIsWritten) {
    const std::string front = OleContainer(kClass, u"Workbook", 4096).Front();
    ASSERT_EQ(front.size(), 512u);
    EXPECT_EQ(front.substr(0, 8), "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv);
    EXPECT_EQ(front.substr(8, 16), std::string(16, '\0'));
    EXPECT_EQ(front.substr(24, 20), "\x3E\0\x03\0\xFE\xFF\x09\0\x06\0\0\0\0\0\0\0\0\0\0\0"sv);
    EXPECT_EQ(front.substr(44, 8), "\x01\0\0\0\x08\0\0\0"sv)
        << "one table sector, the directory in the ninth";
    EXPECT_EQ(front.substr(56, 12), "\0\x10\0\0\xFE\xFF\xFF\xFF\0\0\0\0"sv) << "no stream for small ones";
    EXPECT_EQ(front.substr(68, 8), "\xFE\xFF\xFF\xFF\0\0\0\0"sv) << "no further list";
    EXPECT_EQ(front.substr(76, 8), "\x09\0\0\0\xFF\xFF\xFF\xFF"sv);
}

TEST(OleContainer, TheRootTellsTheKindOfDocument) {
    const std::string back = OleContainer(kClass, u"Workbook", 4096).Back();
    EXPECT_EQ(back[66], 5);
    EXPECT_EQ(back.substr(76, 4), "\x01\0\0\0"sv) << "its only stream is the second entry";
    EXPECT_EQ(back.substr(80, 16), kClass);
    EXPECT_EQ(back[128 + 66], 2);
    EXPECT_EQ(back.substr(128 + 64, 2), "\x12\0"sv) << "eight letters and a zero";
}

} // namespace
} // namespace korvane::xls
