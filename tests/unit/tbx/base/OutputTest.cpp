#include "tbx/base/Output.h"

#include "SourceTree.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <vector>

namespace korvane {
namespace {

class RecordingOutput final : public Output {
public:
    std::vector<std::string> pieces;
    bool refuses = false;

private:
    bool Take(std::string_view piece) override {
        pieces.emplace_back(piece);
        return !refuses;
    }
};

TEST(Output, CollectsSmallWritesIntoLargePieces) {
    RecordingOutput output;
    for (int i = 0; i < 100000; ++i)
        output.Write("ab");
    EXPECT_TRUE(output.Flush());
    EXPECT_EQ(output.pieces.size(), 4u) << "200,000 bytes in pieces of 64 KiB";
    std::size_t total = 0;
    for (const std::string& piece : output.pieces)
        total += piece.size();
    EXPECT_EQ(total, 200000u);
}

TEST(Output, NothingIsPassedOnAfterAFailure) {
    RecordingOutput output;
    output.refuses = true;
    output.Write("a");
    EXPECT_TRUE(output.Works());
    EXPECT_FALSE(output.Flush());
    output.Write("b");
    EXPECT_FALSE(output.Flush());
    EXPECT_FALSE(output.Works());
    EXPECT_EQ(output.pieces, std::vector<std::string>{"a"});
}

TEST(Output, AnEmptyFlushHandsOnNothing) {
    RecordingOutput output;
    EXPECT_TRUE(output.Flush());
    EXPECT_TRUE(output.pieces.empty());
}

TEST(StreamOutput, WritesTheBytesToTheStream) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::tmpfile(), std::fclose);
    ASSERT_TRUE(file);
    StreamOutput output(file.get());
    output.Write("a\r\nb");
    EXPECT_TRUE(output.Flush());
    std::rewind(file.get());
    char bytes[8] = {};
    EXPECT_EQ(std::fread(bytes, 1, sizeof bytes, file.get()), 4u);
    EXPECT_STREQ(bytes, "a\r\nb");
}

TEST(StreamOutput, TellsWhyAWriteFailed) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(
        std::fopen(KORVANE_SOURCE_DIR "/CMakeLists.txt", "rb"), std::fclose);
    ASSERT_TRUE(file);
    StreamOutput output(file.get());
    output.Write("a");
    EXPECT_FALSE(output.Flush());
    EXPECT_EQ(output.Error(), EBADF);
}

} // namespace
} // namespace korvane
