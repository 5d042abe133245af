#include "common/number/RoundedNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

namespace korvane {

namespace {

/// A number other than 0, without its sign, as "0.digits" times a power of ten.
struct DigitsAndPower {
    std::string digits;
    int power;

    std::string Decimal() const {
        const auto count = static_cast<int>(digits.size());
        std::string decimal = std::string(static_cast<std::size_t>(std::max(-power, 0)), '0') + digits;
        decimal.append(static_cast<std::size_t>(std::max(power - count, 0)), '0');
        if (power <= 0)
            decimal.insert(0, "0.");
        else if (power < count)
            decimal.insert(static_cast<std::size_t>(power), 1, '.');
        return decimal;
    }
};

std::string Scientific(double number, int significantDigits) {
    std::string text(static_cast<std::size_t>(significantDigits) + 10, '\0');
    const auto result = std::to_chars(text.data(), text.data() + text.size(), number,
                                      std::chars_format::scientific, significantDigits - 1);
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
    return text;
}

/// Splits a number that is written as "d.ddde+dd".
DigitsAndPower Split(const std::string& scientific) {
    const std::size_t exponent = scientific.find('e');
    std::string digits = scientific.substr(0, exponent);
    std::erase(digits, '.');
    digits.resize(digits.find_last_not_of('0') + 1);
    return {std::move(digits), std::stoi(scientific.substr(exponent + 1)) + 1};
}

} // namespace

Text RoundedNumberText(double number, int significantDigits) {
    if (number == 0) return u"0";
    const std::string decimal = Split(Scientific(std::abs(number), significantDigits)).Decimal();
    return FromAscii(number < 0 ? '-' + decimal : decimal);
}

} // namespace korvane
