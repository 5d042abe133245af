#include "kept/FileSum.h"

#include "testing/MemoryClock.h"
#include "testing/MemoryFileSystem.h"

#include <gtest/gtest.h>

#include <string>

namespace korvane {
namespace {

std::string Bytes(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<char>('a' + i * 7 % 26);
    return bytes;
}

TEST(FileSumTest, IsTheSameHoweverTheBytesAreCut) {
    const std::string bytes = Bytes(1000);
    const FileSum whole = SumOf(bytes);
    EXPECT_EQ(whole.size, 1000);
    for (const std::size_t piece : {1u, 7u, 63u, 64u, 65u, 200u, 999u}) {
        RunningSum sum;
        for (std::size_t at = 0; at < bytes.size(); at += piece)
            sum.Add(std::string_view(bytes).substr(at, piece));
        EXPECT_EQ(sum.Get(), whole) << piece;
    }
}

TEST(FileSumTest, EveryByteCounts) {
    const std::string bytes = Bytes(300);
    const FileSum whole = SumOf(bytes);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string other = bytes;
        other[i] ^= 1;
        EXPECT_NE(SumOf(other), whole) << i;
    }
}

TEST(FileSumTest, ThePlaceOfTheBytesCounts) {
    std::string bytes(256, 'a');
    bytes.replace(0, 64, 64, 'b');
    std::string other(256, 'a');
    other.replace(64, 64, 64, 'b');
    EXPECT_NE(SumOf(bytes), SumOf(other));
}

TEST(FileSumTest, ZerosAtTheEndCount) {
    EXPECT_NE(SumOf("text"), SumOf(std::string("text\0", 5)));
    EXPECT_NE(SumOf(""), SumOf(std::string(64, '\0')));
}

TEST(FileSumTest, OfAFileIsThatOfItsBytes) {
    MemoryClock clock;
    MemoryFileSystem files(PathStyle::Posix, clock);
    files.AddFile(u"/a", "bytes");
    EXPECT_EQ(SumOfFile(files, u"/a"), SumOf("bytes"));
    EXPECT_EQ(SumOfFile(files, u"/gone"), std::nullopt);
}

} // namespace
} // namespace korvane
