#include "files/lister/rows/SortForms.h"

#include "common/number/Number.h"
#include "context/exchange/ListSort.h"

#include <algorithm>

namespace korvane {

namespace {

/// Writes the digits of a number that ends before `end`.
void WriteDigits(Text& text, std::size_t end, int digits, int number) {
    for (int digit = 0; digit < digits; ++digit, number /= 10)
        text[--end] = static_cast<char16_t>(u'0' + number % 10);
}

} // namespace

Text SizeText(std::int64_t size, std::int16_t sortColumn) {
    // From a billion bytes on the order is wrong, because the text has ten digits then. Kept for
    // compatibility: sizes-sort-to-nine-digits.
    return sortColumn == ListSort::kSize ? FormatGroupedFilled(size) : FormatGrouped(size);
}

Text DateText(const DateTime& modified, std::int16_t sortColumn) {
    const bool sorts = sortColumn == ListSort::kDate;
    // The general way of formatting would take most of the time that a large folder needs.
    Text text = sorts ? u"yyyy/mm/dd  hh:mm" : u"mm/dd/yyyy  hh:mm";
    WriteDigits(text, sorts ? 4 : 10, 4, modified.year);
    WriteDigits(text, sorts ? 7 : 2, 2, modified.month);
    WriteDigits(text, sorts ? 10 : 5, 2, modified.day);
    WriteDigits(text, 14, 2, modified.hour);
    WriteDigits(text, 17, 2, modified.minute);
    return text;
}

Text ShownSize(TextView sorted) {
    // Nothing is left of a size of zero. Kept for compatibility: size-zero-is-empty.
    return Text(sorted.substr(std::min(sorted.find_first_not_of(u"0,"), sorted.size())));
}

Text ShownDate(TextView sorted) {
    // From "yyyy/mm/dd" on.
    const TextView year = Left(sorted, 4);
    const TextView monthAndDay = Mid(sorted, 6, 5);
    return Text(monthAndDay) + u"/" + Text(year) + Text(Mid(sorted, 11));
}

} // namespace korvane
