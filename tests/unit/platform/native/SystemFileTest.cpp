// Replaces the system's calls, so that a test can interrupt a call at any time as a signal would.

#include "platform/native/SystemFile.h"

#include "platform/native/ReadFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <deque>
#include <string>
#include <string_view>

namespace korvane {
namespace {

/// The result of one call: a number of bytes, or a failure with this reason.
struct Step {
    std::ptrdiff_t bytes = -1;
    int reason = 0;
};

constexpr Step kInterrupted{-1, EINTR};
constexpr Step kBroken{-1, EIO};

std::deque<Step> steps;
std::string written;
/// The size that a file tells.
std::size_t told = 0;

/// The next step. It never has more bytes than were asked for.
std::ptrdiff_t Take(std::size_t size) {
    if (steps.empty()) return 0;
    const Step step = steps.front();
    steps.pop_front();
    errno = step.reason;
    return std::min(step.bytes, static_cast<std::ptrdiff_t>(size));
}

} // namespace

namespace system_calls {

int OpenToRead(const std::filesystem::path&) {
    return 7;
}

int OpenPlainToRead(const std::filesystem::path&) {
    return 7;
}

int CreateNew(const std::filesystem::path&, const std::optional<FileRights>&) {
    return 7;
}

int OpenToWrite(const std::filesystem::path&, const std::optional<FileRights>&) {
    return 7;
}

std::ptrdiff_t ReadSome(int, char* buffer, std::size_t size) {
    const std::ptrdiff_t count = Take(size);
    if (count > 0) std::memset(buffer, 'r', static_cast<std::size_t>(count));
    return count;
}

std::ptrdiff_t WriteSome(int, const char* bytes, std::size_t size) {
    const std::ptrdiff_t count = Take(size);
    if (count > 0) written.append(bytes, static_cast<std::size_t>(count));
    return count;
}

bool Close(int) {
    return Take(0) >= 0;
}

std::size_t SizeOf(int) {
    return told;
}

void PreferLargePages(void*, std::size_t) {}

} // namespace system_calls

namespace {

class SystemFileTest : public testing::Test {
protected:
    SystemFileTest() {
        steps.clear();
        written.clear();
        told = 0;
    }
    std::string Read(std::size_t size) {
        std::string buffer(size, '.');
        buffer.resize(file.Read(buffer.data(), size, error));
        return buffer;
    }

    std::error_code error;
    SystemFile file = SystemFile::OpenToRead("any", error);
};

TEST_F(SystemFileTest, AnInterruptedReadGoesOn) {
    steps = {kInterrupted, {2}, kInterrupted, kInterrupted, {3}};
    EXPECT_EQ(Read(5), "rrrrr");
    EXPECT_FALSE(error);
}

TEST_F(SystemFileTest, AReadEndsAtTheEndOfTheFileAndAtAFailure) {
    steps = {{2}, {0}, {3}};
    EXPECT_EQ(Read(5), "rr");
    EXPECT_FALSE(error);
    steps = {{2}, kBroken, {3}};
    EXPECT_EQ(Read(5), "rr");
    EXPECT_EQ(error, std::errc::io_error);
}

TEST_F(SystemFileTest, AFileThatGrowsOrShrinksWhileItIsReadIsReadToItsEnd) {
    const auto size = [this] {
        const auto bytes = ReadFile("any", error);
        return bytes ? bytes->View().size() : std::size_t{0};
    };
    told = 10;
    steps = {{10}, {0}};
    EXPECT_EQ(size(), 10U);
    steps = {{10}, {1}, {500}, {3}, {0}};
    EXPECT_EQ(size(), 22U + 3);
    told = 1000;
    steps = {{4}, {0}};
    EXPECT_EQ(size(), 4U);
    EXPECT_FALSE(error);
    steps = {{4}, kBroken};
    EXPECT_EQ(size(), 0U);
    EXPECT_EQ(error, std::errc::io_error);
}

TEST_F(SystemFileTest, AnInterruptedWriteGoesOnWhereItWas) {
    steps = {kInterrupted, {2}, kInterrupted, {9}};
    file.Write("abcde", error);
    EXPECT_EQ(written, "abcde");
    EXPECT_FALSE(error);
}

TEST_F(SystemFileTest, AWriteEndsAtAFailure) {
    steps = {{2}, kBroken, {3}};
    file.Write("abcde", error);
    EXPECT_EQ(written, "ab");
    EXPECT_EQ(error, std::errc::io_error);
}

TEST_F(SystemFileTest, AnInterruptedCloseIsOne) {
    steps = {kInterrupted};
    file.Close(error);
    EXPECT_FALSE(error);
    EXPECT_FALSE(file.IsOpen());
    SystemFile other = SystemFile::OpenToRead("any", error);
    steps = {kBroken};
    other.Close(error);
    EXPECT_EQ(error, std::errc::io_error);
    EXPECT_FALSE(other.IsOpen());
}

} // namespace
} // namespace korvane
