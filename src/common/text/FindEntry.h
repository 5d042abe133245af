#pragma once

#include <algorithm>
#include <iterator>
#include <memory>

namespace korvane {

/// The first entry of a table whose `member` is `wanted`; nullptr when there is none. The table outlives the
/// result.
template <class Table, class Wanted, class Member>
constexpr auto FindEntry(const Table& table, const Wanted& wanted, Member member)
    -> decltype(std::to_address(std::begin(table))) {
    const auto found = std::ranges::find(table, wanted, member);
    return found == std::end(table) ? nullptr : std::to_address(found);
}

} // namespace korvane
