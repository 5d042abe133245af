#include "controls/lists/PlaceOrder.h"

#include <algorithm>
#include <utility>

namespace korvane {

namespace {

constexpr std::size_t kLongest = 2048;

} // namespace

bool PlaceOrder::Holds(std::size_t block, int at) const {
    if (block >= blocks_.size() || at < starts_[block]) return false;
    return static_cast<std::size_t>(at - starts_[block]) < blocks_[block].size();
}

std::size_t PlaceOrder::BlockOf(int at) const {
    if (Holds(recent_, at)) return recent_;
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), at);
    recent_ = static_cast<std::size_t>(after - starts_.begin()) - 1;
    return recent_;
}

std::uint32_t PlaceOrder::operator[](int at) const {
    const std::size_t block = BlockOf(at);
    return blocks_[block][static_cast<std::size_t>(at - starts_[block])];
}

void PlaceOrder::Insert(int at, std::uint32_t place) {
    if (blocks_.empty()) return Assign({place});
    const std::size_t block = BlockOf(at);
    Block& places = blocks_[block];
    places.insert(places.begin() + (at - starts_[block]), place);
    ++size_;
    SplitLongBlock(block);
    CountFrom(block);
}

std::uint32_t PlaceOrder::Take(int at) {
    const std::size_t block = BlockOf(at);
    Block& places = blocks_[block];
    const auto taken = places.begin() + (at - starts_[block]);
    const std::uint32_t place = *taken;
    places.erase(taken);
    --size_;
    if (places.empty()) {
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(block));
        starts_.pop_back();
    }
    CountFrom(block == 0 ? 0 : block - 1);
    return place;
}

void PlaceOrder::Assign(const std::vector<std::uint32_t>& places) {
    blocks_.clear();
    starts_.clear();
    size_ = static_cast<int>(places.size());
    for (std::size_t first = 0; first < places.size(); first += kLongest / 2) {
        const std::size_t last = std::min(first + kLongest / 2, places.size());
        blocks_.emplace_back(places.begin() + static_cast<std::ptrdiff_t>(first),
                             places.begin() + static_cast<std::ptrdiff_t>(last));
        starts_.push_back(static_cast<int>(first));
    }
}

void PlaceOrder::SplitLongBlock(std::size_t block) {
    if (blocks_[block].size() <= kLongest) return;
    const auto middle = static_cast<std::ptrdiff_t>(kLongest / 2);
    Block rest(blocks_[block].begin() + middle, blocks_[block].end());
    blocks_[block].resize(kLongest / 2);
    blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(block) + 1, std::move(rest));
    starts_.push_back(0);
}

void PlaceOrder::CountFrom(std::size_t block) {
    int start = block == 0 ? 0 : starts_[block];
    for (; block < blocks_.size(); ++block) {
        starts_[block] = start;
        start += static_cast<int>(blocks_[block].size());
    }
}

} // namespace korvane
