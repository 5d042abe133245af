#include "dbops/rules/TextBlock.h"

#include "common/text/LineEnds.h"

#include <algorithm>
#include <optional>

namespace korvane {

namespace {

constexpr char16_t kQuote = u'"';

bool EndsCell(char16_t character) {
    return character == u'\t' || character == u'\r' || character == u'\n';
}

std::size_t LineEndLength(TextView rest) {
    if (rest.starts_with(kCrLf)) return 2;
    return rest.starts_with(u'\r') || rest.starts_with(u'\n') ? 1 : 0;
}

/// Where the quote is that closes the one at the beginning; nothing when none does.
std::optional<std::size_t> ClosingQuote(TextView rest) {
    std::size_t at = rest.find(kQuote, 1);
    while (at != TextView::npos && rest.substr(at + 1).starts_with(kQuote))
        at = rest.find(kQuote, at + 2);
    return at == TextView::npos ? std::nullopt : std::optional(at);
}

/// What is between the quotes around the cell at the beginning; nothing when it has none. Quotes around
/// anything else than several lines or cells are part of the text.
std::optional<TextView> QuotedCell(TextView rest) {
    if (!rest.starts_with(kQuote)) return std::nullopt;
    const auto closing = ClosingQuote(rest);
    if (!closing) return std::nullopt;
    const TextView inside = rest.substr(1, *closing - 1);
    const TextView after = rest.substr(*closing + 1);
    const bool whole = after.empty() || EndsCell(after.front());
    return whole && std::ranges::any_of(inside, EndsCell) ? std::optional(inside) : std::nullopt;
}

Text WithSingleQuotes(TextView text) {
    Text single;
    for (std::size_t at = 0; at < text.size(); ++at) {
        single += text[at];
        if (text[at] == kQuote) ++at;
    }
    return single;
}

Text TakeCell(TextView& rest) {
    if (const auto quoted = QuotedCell(rest)) {
        rest.remove_prefix(quoted->size() + 2);
        return WithCrLf(WithSingleQuotes(*quoted));
    }
    const auto* const end = std::ranges::find_if(rest, EndsCell);
    const Text cell(rest.begin(), end);
    rest.remove_prefix(cell.size());
    return cell;
}

std::vector<Text> TakeRow(TextView& rest) {
    std::vector<Text> cells{TakeCell(rest)};
    while (rest.starts_with(u'\t')) {
        rest.remove_prefix(1);
        cells.push_back(TakeCell(rest));
    }
    rest.remove_prefix(LineEndLength(rest));
    return cells;
}

} // namespace

TextRows RowsOfTextBlock(TextView text) {
    TextRows rows;
    while (!text.empty())
        rows.push_back(TakeRow(text));
    return rows;
}

} // namespace korvane
