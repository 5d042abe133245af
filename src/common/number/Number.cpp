#include "common/number/Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <type_traits>
#include <utility>

namespace korvane {

namespace {

constexpr char kGroupSign = ',';
constexpr std::size_t kGroupLength = 3;

/// This is long enough for every double in plain decimal: a sign, "0." and the digits of the smallest one.
constexpr std::size_t kLongestNumber = 400;

constexpr bool IsDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

/// Collects the leading number of a text in the form the standard library reads.
class NumberScanner {
public:
    /// Takes the next unit of the text; false when the number ends before it.
    bool Take(char16_t unit) {
        if (unit == u' ') return true;
        if (IsDigit(unit)) return Append(unit, Stage::kDigits);
        if (unit == u'.') return stage_ != Stage::kFraction && Append(unit, Stage::kFraction);
        const bool sign = unit == u'-' || unit == u'+';
        if (!sign || stage_ != Stage::kStart) return false;
        negative_ = unit == u'-';
        stage_ = Stage::kDigits;
        return true;
    }

    double Value() const {
        double value = 0;
        const char* const end = number_.data() + number_.size();
        const auto result = std::from_chars(number_.data(), end, value, std::chars_format::fixed);
        if (result.ec == std::errc::result_out_of_range && IsHuge()) value = HUGE_VAL;
        // A negative zero would be written with a sign.
        return negative_ && value != 0 ? -value : value;
    }

private:
    enum class Stage { kStart, kDigits, kFraction };

    bool Append(char16_t unit, Stage stage) {
        number_ += static_cast<char>(unit);
        stage_ = std::max(stage_, stage);
        return true;
    }

    /// A number out of the range of double is either too large or too small. The large one has a whole part.
    bool IsHuge() const { return number_.find_first_not_of('0') < number_.find('.'); }

    std::string number_;
    Stage stage_ = Stage::kStart;
    bool negative_ = false;
};

template <class View>
double LeadingNumber(View text) {
    NumberScanner scanner;
    for (const auto unit : text) {
        if (!scanner.Take(static_cast<char16_t>(static_cast<std::make_unsigned_t<decltype(unit)>>(unit))))
            break;
    }
    return scanner.Value();
}

/// The number in plain decimal.
std::string Decimal(double number) {
    std::string digits(kLongestNumber, '\0');
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
    digits.resize(static_cast<std::size_t>(result.ptr - digits.data()));
    return digits;
}

std::size_t FirstDigit(std::string_view decimal) {
    return decimal.starts_with('-') ? 1 : 0;
}

/// A whole number in decimal with its thousands grouped.
Text Grouped(std::string decimal) {
    const std::size_t first = FirstDigit(decimal);
    for (std::size_t at = decimal.size(); at > first + kGroupLength;) {
        at -= kGroupLength;
        decimal.insert(at, 1, kGroupSign);
    }
    return FromAscii(decimal);
}

/// Whether the text is a sign or none, then digits with at most one point among them or at either end.
bool IsWhollyNumber(TextView text) {
    if (text.starts_with(u'-') || text.starts_with(u'+')) text.remove_prefix(1);
    const auto digits = std::ranges::count_if(text, IsDigit);
    const auto points = std::ranges::count(text, u'.');
    return digits > 0 && points <= 1 && static_cast<std::size_t>(digits + points) == text.size();
}

} // namespace

double Val(TextView text) {
    return LeadingNumber(text);
}

double Val(std::string_view bytes) {
    return LeadingNumber(bytes);
}

double RoundHalfEven(double number) {
    return std::nearbyint(number);
}

Text NumberText(double number) {
    return number == 0 ? u"0" : FromAscii(Decimal(number));
}

Text FormatGroupedWhole(long long number) {
    return number == 0 ? Text() : Grouped(std::to_string(number));
}

Text FormatGrouped(double number) {
    const double rounded = std::round(number);
    return rounded == 0 ? Text() : Grouped(Decimal(rounded));
}

Text FormatGrouped(TextView text) {
    const double number = Val(text);
    const bool formats = IsWhollyNumber(Trim(text)) && std::isfinite(number);
    return formats ? FormatGrouped(number) : Text(text);
}

Text FormatGroupedFilled(long long number) {
    constexpr std::size_t kFilledLength = 9;
    std::string decimal = std::to_string(number);
    const std::size_t first = FirstDigit(decimal);
    const std::size_t length = decimal.size() - first;
    if (length < kFilledLength) decimal.insert(first, kFilledLength - length, '0');
    return Grouped(std::move(decimal));
}

} // namespace korvane
