#pragma once

#include "common/text/Text.h"

#include <functional>
#include <unordered_set>

namespace korvane {

/// Tells at once whether a word is in a list, however long the list is. Capital and small letters differ.
class WordIndex {
public:
    bool Holds(TextView word) const { return words_.contains(word); }
    void Add(TextView word) { words_.emplace(word); }
    /// Takes it away once.
    void Remove(TextView word);
    void Clear() { words_.clear(); }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(TextView word) const { return std::hash<TextView>()(word); }
    };

    // A list can have a word several times.
    std::unordered_multiset<Text, Hash, std::equal_to<>> words_;
};

} // namespace korvane
