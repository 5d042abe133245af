#pragma once

#include <compare>
#include <cstdint>

namespace korvane {

/// A whole number of one kind (rows, columns, twips, ...): mixing two kinds doesn't compile.
template <class Kind>
class Count {
public:
    constexpr Count() = default;
    constexpr explicit Count(int number) : number_(number) {}

    constexpr int Number() const { return number_; }

    constexpr auto operator<=>(const Count&) const = default;
    constexpr Count& operator++() {
        ++number_;
        return *this;
    }
    constexpr Count& operator--() {
        --number_;
        return *this;
    }
    constexpr Count& operator+=(int step) {
        number_ += step;
        return *this;
    }
    constexpr Count& operator-=(int step) {
        number_ -= step;
        return *this;
    }
    friend constexpr Count operator+(Count count, int step) { return Count(count.number_ + step); }
    friend constexpr Count operator-(Count count, int step) { return Count(count.number_ - step); }
    friend constexpr int operator-(Count a, Count b) { return a.number_ - b.number_; }

private:
    int number_ = 0;
};

/// A row of a table, or a number of rows. Data rows are 1 to 32,767; 0 is no row.
using Row = Count<struct RowKind>;
/// A column of a table, or a number of columns. Columns count from 1; 0 is no column.
using Col = Count<struct ColKind>;
/// A length on the screen, 1440 to the inch: 15 to a pixel at 96 dpi.
using Twips = Count<struct TwipsKind>;

inline constexpr int kTwipsPerInch = 1440;
/// At 96 dpi.
inline constexpr int kTwipsPerPixel = 15;

inline constexpr Row kMaxRows{32767};
/// What a `.tbx` file and the design dialog can hold; a grid itself can be wider.
inline constexpr Col MaxColumns{24};

/// A colour with red in the low byte (0x00BBGGRR). Files hold the number in decimal. -1 is "none set".
struct Colour {
    std::int32_t value = -1;
    constexpr auto operator<=>(const Colour&) const = default;
};

inline constexpr Colour kNoColour{-1};

} // namespace korvane
