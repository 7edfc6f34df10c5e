#include "safetensors/JsonNumber.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>

namespace {

constexpr std::size_t exactIntegerDigits = 18;
constexpr std::int64_t exponentLimit = 65536;

bool isNumberDigit(char character) {
    return character >= '0' && character <= '9';
}

struct DecimalText {
    std::string_view mantissa;
    std::string_view whole; // cut behind the last exponent digit that counts
    std::int64_t exponent = 0;
};

// Exponent digits count only until the exponent reaches the limit; the rest is passed over.
DecimalText splitDecimalText(std::string_view text) {
    const std::size_t mark = std::min(text.find('e'), text.size());
    DecimalText decimal{text.substr(0, mark), text};
    for (std::size_t i = mark + 1; i < text.size() && isNumberDigit(text[i]); ++i) {
        if (decimal.exponent >= exponentLimit) {
            decimal.whole = text.substr(0, i);
            break;
        }
        decimal.exponent = decimal.exponent * 10 + (text[i] - '0');
    }
    return decimal;
}

// For values far from one on either side: whether they are above it.
bool isAboveOne(const DecimalText& decimal) {
    const auto position = [](std::size_t index) { return static_cast<std::int64_t>(index); };
    const std::size_t point = std::min(decimal.mantissa.find('.'), decimal.mantissa.size());
    const std::size_t first = decimal.mantissa.find_first_of("123456789");
    return first != std::string_view::npos && position(point) - position(first) + decimal.exponent > 0;
}

double magnitudeFromText(std::string_view text) {
    std::uint64_t integer = 0;
    std::size_t length = 0;
    while (length < std::min(text.size(), exactIntegerDigits) && isNumberDigit(text[length]))
        integer = integer * 10 + static_cast<std::uint64_t>(text[length++] - '0');
    if (length == text.size())
        return static_cast<double>(integer);

    const DecimalText decimal = splitDecimalText(text);
    const char* const begin = decimal.whole.data();
    double value = 0;
    const auto result = std::from_chars(begin, begin + decimal.whole.size(), value);
    // from_chars leaves the value alone here, and does not tell the two ends of the range apart.
    if (result.ec == std::errc::result_out_of_range)
        return isAboveOne(decimal) ? std::numeric_limits<double>::infinity() : 0.0;
    return result.ec == std::errc() ? value : 0.0;
}

} // namespace

double jsonNumberFromText(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    const double magnitude = magnitudeFromText(text.substr(isNegative ? 1 : 0));
    return isNegative ? -magnitude : magnitude;
}
