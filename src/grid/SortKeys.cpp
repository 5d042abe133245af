#include "grid/SortKeys.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

namespace korvane {

namespace {

bool IsBlank(TextView text) {
    return text.find_first_not_of(u" \t\r\n") == TextView::npos;
}

/// The value of a text that is a number and nothing else. The decimal mark may be a point or a comma.
std::optional<double> NumberIn(TextView text) {
    constexpr std::size_t kLongest = 64;
    text = Trim(text);
    if (text.starts_with(u'+')) text.remove_prefix(1);
    if (text.empty() || text.size() > kLongest) return std::nullopt;
    std::string digits;
    for (const char16_t character : text) {
        const bool known = (character >= u'0' && character <= u'9') || character == u'-' ||
                           character == u'.' || character == u',';
        if (!known) return std::nullopt;
        digits += character == u',' ? '.' : static_cast<char>(character);
    }
    double value = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, value, std::chars_format::fixed);
    return read.ec == std::errc() && read.ptr == end ? std::optional(value) : std::nullopt;
}

} // namespace

SortKeys::SortKeys(const std::vector<Text>& texts, const TextOrder& order)
    : keys_(texts.size()), blank_(texts.size()) {
    const std::vector<int> ranks = order.RanksOf(texts);
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const auto number = NumberIn(texts[at]);
        keys_[at] = {!number, number.value_or(0), ranks[at]};
        blank_[at] = IsBlank(texts[at]);
    }
}

bool SortKeys::ComesBefore(std::size_t a, std::size_t b, SortOrder order) const {
    if (blank_[a] || blank_[b]) return !blank_[a] && blank_[b];
    return order == SortOrder::Ascending ? keys_[a] < keys_[b] : keys_[b] < keys_[a];
}

} // namespace korvane
