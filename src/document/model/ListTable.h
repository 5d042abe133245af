#pragma once

#include "document/model/Document.h"

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace korvane::doc {

/// The lists of a document, as files define them: each with a number and the looks of its levels. Paragraphs
/// that have one number in the document but don't agree on a level's look get lists of their own.
class ListTable {
public:
    static constexpr std::size_t kLevels = 9;
    using Levels = std::array<std::optional<ListMark>, kLevels>;

    explicit ListTable(const Document& document);

    /// The lists by their numbers, which count from 1.
    const std::map<std::uint32_t, Levels>& Lists() const { return lists_; }
    /// The number of the list to which the mark belongs.
    std::uint32_t NumberOf(const ListMark& mark) const;

private:
    void Enter(const ListMark& mark);
    std::uint32_t FreeNumber() const;

    std::map<std::uint32_t, Levels> lists_;
    std::map<std::uint32_t, std::vector<std::uint32_t>> numbers_;
};

} // namespace korvane::doc
