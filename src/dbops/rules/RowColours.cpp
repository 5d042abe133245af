#include "dbops/rules/RowColours.h"

#include <array>

namespace korvane {

namespace {

constexpr Colour kOfTable = kNoColour;
constexpr Colour kBlack{0};
constexpr Colour kWhite{0xFFFFFF};
constexpr Colour kBlue{0xC00000};

constexpr RowColourChoice Same(TextView listText, TextView keyText, Colour back, Colour text) {
    return {listText, keyText, back, back, text};
}

// The texts of the keys name Alt alone, a bracket of the green one is turned, and yellow is another colour by
// key than by the dialog. Kept for compatibility: row-colour-texts, two-yellows.
constexpr std::array kChoices{
    Same(u" De[f]ault", u" Alt-1,Ctrl-Alt-F", kOfTable, kBlack),
    Same(u" G[h]osted", u" Alt-2,Ctrl-Alt-H", kOfTable, Colour{0xE0E0E0}),
    RowColourChoice{u" [Y]ellow", u" Alt-3,Ctrl-Alt-Y", Colour{0x80FFFF}, Colour{0x00FFFF}, kBlack},
    Same(u" [R]ed", u" Alt-4,Ctrl-Alt-R", Colour{0x0000FF}, kWhite),
    Same(u" Dar[k] blue", u" Alt-5,Ctrl-Alt-K", Colour{0xFF0000}, kWhite),
    Same(u" [L]ight blue", u" Alt-6,Ctrl-Alt-L", Colour{0xFFFFC0}, kBlue),
    Same(u" [G[reen", u" Alt-7,Ctrl-Alt-G", Colour{0xC0FFC0}, kBlue),
    Same(u" Gr[a]y", u" Alt-8,Ctrl-Alt-A", Colour{0xC0C0C0}, kWhite),
    Same(u" [O]range", u" Alt-9,Ctrl-Alt-O", Colour{0x80C0FF}, kBlue),
};

} // namespace

std::span<const RowColourChoice> RowColourChoices() {
    return kChoices;
}

const RowColourChoice* RowColourChoiceAt(int index) {
    const bool held = index >= 0 && index < static_cast<int>(kChoices.size());
    return held ? &kChoices[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace korvane
