#pragma once

#include <string_view>

// The double nearest to a number that the reader's grammar has accepted: an optional minus, digits, point and
// exponent, any of them missing. Reading stops at the first character that belongs to no decimal number, so a
// hexadecimal one is zero. Infinite or zero out of range.
[[nodiscard]] double jsonNumberFromText(std::string_view text);
