#include "kept/FileSum.h"

#include "platform/FileSystem.h"

#include <algorithm>
#include <cstring>

namespace korvane {

/// The second sum makes the place of each number count. The lanes don't depend on each other, so that the
/// processor adds several at once.
void RunningSum::Lanes::Add(const char* block, std::size_t blocks) {
    Lanes now = *this;
    for (; blocks > 0; --blocks, block += kBlock) {
        // With a copy of the whole block, the compiler would write it to memory each time.
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            std::uint64_t number;
            std::memcpy(&number, block + lane * sizeof number, sizeof number);
            now.sums[lane] += number;
        }
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            now.sumsOfSums[lane] += now.sums[lane];
    }
    *this = now;
}

void RunningSum::Add(std::string_view bytes) {
    size_ += static_cast<std::int64_t>(bytes.size());
    if (restSize_ > 0) {
        const std::size_t taken = bytes.copy(rest_.data() + restSize_, kBlock - restSize_);
        restSize_ += taken;
        bytes.remove_prefix(taken);
        if (restSize_ < kBlock) return;
        lanes_.Add(rest_.data(), 1);
        restSize_ = 0;
    }
    const std::size_t blocks = bytes.size() / kBlock;
    lanes_.Add(bytes.data(), blocks);
    restSize_ = bytes.copy(rest_.data(), kBlock, blocks * kBlock);
}

FileSum RunningSum::Get() const {
    Lanes all = lanes_;
    std::array<char, kBlock> last{};
    std::copy_n(rest_.begin(), restSize_, last.begin());
    all.Add(last.data(), 1);
    constexpr std::uint64_t kOddNumber = 0x9E3779B97F4A7C15;
    auto sum = static_cast<std::uint64_t>(size_);
    for (const auto& numbers : {all.sums, all.sumsOfSums})
        for (const std::uint64_t number : numbers)
            sum = (sum ^ number ^ (sum >> 29)) * kOddNumber;
    return {size_, sum};
}

FileSum SumOf(std::string_view bytes) {
    RunningSum sum;
    sum.Add(bytes);
    return sum.Get();
}

std::optional<FileSum> SumOfFile(FileSystem& files, TextView path) {
    RunningSum sum;
    const bool read = files.ReadInPieces(path, [&sum](std::string_view piece) { sum.Add(piece); });
    return read ? std::optional(sum.Get()) : std::nullopt;
}

} // namespace korvane
