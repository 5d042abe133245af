#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvane {

/// Numbers in an order of one's own, as a vector of them, but in blocks: in a long order, one that comes or
/// goes moves only the others of its block. Places count from 0.
class PlaceOrder {
public:
    int Size() const { return size_; }
    std::uint32_t operator[](int at) const;
    /// `at` may be one past the last.
    void Insert(int at, std::uint32_t place);
    /// Takes the number out and returns it.
    std::uint32_t Take(int at);
    void Assign(const std::vector<std::uint32_t>& places);

private:
    using Block = std::vector<std::uint32_t>;

    std::size_t BlockOf(int at) const;
    bool Holds(std::size_t block, int at) const;
    void SplitLongBlock(std::size_t block);
    /// Updates the starts of the blocks after this one.
    void CountFrom(std::size_t block);

    /// None of them is empty.
    std::vector<Block> blocks_;
    /// Where each block begins.
    std::vector<int> starts_;
    int size_ = 0;
    /// The block that was asked for last. Most often the next question is about the same.
    mutable std::size_t recent_ = 0;
};

} // namespace korvane
