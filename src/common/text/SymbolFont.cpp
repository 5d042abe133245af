#include "common/text/SymbolFont.h"

#include <algorithm>
#include <iterator>

namespace korvane {

namespace {

struct Picture {
    char16_t code;
    char16_t like;
};

constexpr Picture kPictures[] = {
    // Three faces. The one that looks neither happy nor sad has no character of a single unit, but a circle
    // with two eyes comes near.
    {74, u'\u263A'},
    {75, u'\u2687'},
    {76, u'\u2639'},
    // Arrows: down and then right, left and then up.
    {196, u'\u21B3'},
    {199, u'\u2B11'},
    // Left, right, up, down, and to the corners.
    {223, u'\u2190'},
    {224, u'\u2192'},
    {225, u'\u2191'},
    {226, u'\u2193'},
    {227, u'\u2196'},
    {228, u'\u2197'},
    {229, u'\u2199'},
    {230, u'\u2198'},
    // The same with an outline.
    {239, u'\u21E6'},
    {240, u'\u21E8'},
    {241, u'\u21E7'},
    {242, u'\u21E9'},
    {252, u'\u2714'},
};

/// Some programs write a character of a font of pictures as the code on this page of its own.
constexpr char16_t kPrivatePage = 0xF000;

} // namespace

std::optional<char16_t> WingdingsLike(char16_t code) {
    const char16_t plain = (code & 0xFF00) == kPrivatePage ? static_cast<char16_t>(code & 0xFF) : code;
    const auto* const found = std::ranges::find(kPictures, plain, &Picture::code);
    if (found == std::end(kPictures)) return std::nullopt;
    return found->like;
}

} // namespace korvane
