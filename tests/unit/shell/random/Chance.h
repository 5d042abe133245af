#pragma once

#include "common/text/Text.h"

#include <cstddef>
#include <random>

namespace korvane {

/// Chooses by chance, but always the same for the same seed.
class Chance {
public:
    explicit Chance(unsigned seed) : random_(seed) {}

    /// 0 to `bound` - 1.
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }
    bool OneIn(int times) { return Below(times) == 0; }
    template <class Items>
    auto& Pick(Items&& items) {
        return items[static_cast<std::size_t>(Below(static_cast<int>(std::size(items))))];
    }
    /// Most texts are short and made of few letters, so that they often match each other.
    Text SomeText() {
        static const Text kTexts[] = {u"",     u"a",      u"b",    u"ab",     u"abab",
                                      u"---",  u"7",      u"12.5", u"a\r\nb", u"\t",
                                      u"@row", u"Bücher", u"Я",    u"a\nb\r", u"NEW"};
        return Pick(kTexts);
    }

private:
    std::mt19937 random_;
};

} // namespace korvane
