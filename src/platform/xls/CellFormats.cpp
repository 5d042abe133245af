#include "platform/xls/CellFormats.h"

#include "platform/xls/BiffRecords.h"

#include <algorithm>
#include <iterator>

namespace korvane::xls {

namespace {

// [MS-XLS] 2.4.353 and 2.5.282.
constexpr U16 kStyleFlags = 0xFFF5;
constexpr U16 kCellFlags = 0x0001;
constexpr U8 kAlignBottom = 0x20;
constexpr U8 kWrap = 0x08;
constexpr U8 kOwnAlignment = 0x10;
constexpr U8 kOwnPattern = 0x40;
constexpr U8 kAllButNumberOwn = 0xF4;
constexpr U32 kSolidPattern = U32{1} << 26;
constexpr U16 kDefaultForeground = 0x40;
constexpr U16 kDefaultBackground = 0x41;
/// Numbers of colours in a file start with eight fixed ones. Colour 1 of the palette comes after them.
constexpr U16 kBeforePalette = 7;

struct Xf {
    U16 flags = kCellFlags;
    U8 alignment = kAlignBottom;
    U8 own = 0;
    U32 pattern = 0;
    U16 foreground = kDefaultForeground;
};

void Append(std::string& bytes, const Xf& xf) {
    constexpr U16 kFont = 0;
    constexpr U16 kGeneralNumbers = 0;
    constexpr U8 kRotation = 0;
    constexpr U8 kIndent = 0;
    constexpr U32 kNoBorders = 0;
    AppendRecord(bytes, RecordType::Xf, kFont, kGeneralNumbers, xf.flags, xf.alignment, kRotation, kIndent,
                 xf.own, kNoBorders, xf.pattern, static_cast<U16>(xf.foreground | (kDefaultBackground << 7)));
}

Xf XfOf(const CellFormat& format) {
    Xf xf;
    if (format.wraps) {
        xf.alignment |= kWrap;
        xf.own |= kOwnAlignment;
    }
    if (format.fill != 0) {
        xf.pattern = kSolidPattern;
        xf.foreground = static_cast<U16>(format.fill + kBeforePalette);
        xf.own |= kOwnPattern;
    }
    return xf;
}

} // namespace

U16 CellFormats::NumberOf(const CellFormat& format) {
    const auto found = std::ranges::find(formats_, format);
    const auto index = std::distance(formats_.begin(), found);
    if (found == formats_.end()) formats_.push_back(format);
    return static_cast<U16>(kFirst + index);
}

void CellFormats::AppendRecords(std::string& bytes) const {
    for (U16 style = 0; style < kFirst; ++style)
        Append(bytes, {.flags = kStyleFlags, .own = style == 0 ? U8{0} : kAllButNumberOwn});
    for (const CellFormat& format : formats_)
        Append(bytes, XfOf(format));
}

} // namespace korvane::xls
