#include "safetensors/JsonParser.h"

#include "safetensors/JsonString.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

// Most arrays are shapes of tensors, with up to four dimensions.
constexpr std::size_t firstArrayCapacity = 4;

constexpr std::size_t exactIntegerDigits = 18;
constexpr std::int64_t exponentLimit = 65536;

enum CharacterClass : std::uint8_t { Space = 1, Terminator = 2, Digit = 4, HexDigit = 8, PlainText = 16 };

constexpr auto characterClasses = [] {
    std::array<std::uint8_t, 256> classes{};
    const auto mark = [&classes](std::string_view characters, std::uint8_t added) {
        for (const char character : characters)
            classes[static_cast<unsigned char>(character)] |= added;
    };
    // What a string contains unchanged; bytes from 0x80 on are checked as UTF-8.
    for (std::size_t byte = 0x20; byte < 0x80; ++byte)
        classes[byte] = byte == '"' || byte == '\\' ? 0 : PlainText;
    mark("\r\n \t", Space);
    // A tab is space but does not end a value, on purpose. The last byte is the NUL at the end of the input.
    mark(std::string_view(":,}]\r\n \0", 8), Terminator);
    mark("0123456789", Digit | HexDigit);
    mark("abcdefABCDEF", HexDigit);
    return classes;
}();

bool isOfClass(char character, CharacterClass characterClass) {
    return (characterClasses[static_cast<unsigned char>(character)] & characterClass) != 0;
}

const char* skipClass(const char* cursor, CharacterClass characterClass) {
    // Ends at the NUL byte at the latest, which is a terminator and nothing else.
    while (isOfClass(*cursor, characterClass))
        ++cursor;
    return cursor;
}

// Null unless digits follow.
const char* skipDigits(const char* cursor) {
    return isOfClass(*cursor, Digit) ? skipClass(cursor, Digit) : nullptr;
}

// The end of the number at `cursor`; null where a point or an exponent has no digits. Not quite JSON, on
// purpose: hexadecimal numbers and leading zeros pass, a capital E and a signed exponent do not.
const char* endOfNumber(const char* cursor) {
    if (*cursor == '-')
        ++cursor;
    if (cursor[0] == '0' && cursor[1] == 'x' && isOfClass(cursor[2], HexDigit))
        return skipClass(cursor + 2, HexDigit);
    cursor = skipClass(cursor, Digit);
    if (*cursor == '.')
        cursor = skipDigits(cursor + 1);
    if (cursor && *cursor == 'e')
        cursor = skipDigits(cursor + 1);
    return cursor;
}

// The closing quote of a string, or the NUL byte before it. `isPlain` is set if nothing needs decoding.
const char* closingQuote(const char* cursor, bool& isPlain) {
    cursor = skipClass(cursor, PlainText);
    isPlain = *cursor == '"';
    while (*cursor != '"' && *cursor != '\0') {
        // The byte after a backslash never closes the string.
        if (*cursor == '\\' && cursor[1] != '\0')
            ++cursor;
        ++cursor;
    }
    return cursor;
}

// --- numbers ---------------------------------------------------------------------------------------

struct DecimalText {
    std::string_view mantissa;
    std::string_view whole; // up to the last exponent digit that is used
    std::int64_t exponent = 0;
};

// Exponent digits are used until the exponent reaches the limit; the others are ignored.
DecimalText splitDecimalText(std::string_view text) {
    const std::size_t mark = std::min(text.find('e'), text.size());
    DecimalText decimal{text.substr(0, mark), text};
    for (std::size_t i = mark + 1; i < text.size() && isOfClass(text[i], Digit); ++i) {
        if (decimal.exponent >= exponentLimit) {
            decimal.whole = text.substr(0, i);
            break;
        }
        decimal.exponent = decimal.exponent * 10 + (text[i] - '0');
    }
    return decimal;
}

// Whether a value that is out of the range of doubles is too large; otherwise it is too small.
bool isAboveOne(const DecimalText& decimal) {
    const auto position = [](std::size_t index) { return static_cast<std::int64_t>(index); };
    const std::size_t point = std::min(decimal.mantissa.find('.'), decimal.mantissa.size());
    const std::size_t first = decimal.mantissa.find_first_of("123456789");
    // The distance of the first digit from the point, shifted by the exponent.
    return first != std::string_view::npos && position(point) - position(first) + decimal.exponent > 0;
}

double magnitudeFromText(std::string_view text) {
    // The fast way for short integers, as in shapes and offsets.
    std::uint64_t integer = 0;
    std::size_t length = 0;
    while (length < std::min(text.size(), exactIntegerDigits) && isOfClass(text[length], Digit))
        integer = integer * 10 + static_cast<std::uint64_t>(text[length++] - '0');
    if (length == text.size())
        return static_cast<double>(integer);

    const DecimalText decimal = splitDecimalText(text);
    const char* const begin = decimal.whole.data();
    double value = 0;
    const auto result = std::from_chars(begin, begin + decimal.whole.size(), value);
    // from_chars does not set the value here, and reports overflow and underflow alike.
    if (result.ec == std::errc::result_out_of_range)
        return isAboveOne(decimal) ? std::numeric_limits<double>::infinity() : 0.0;
    // No digit comes before the exponent, as in "-e5".
    return result.ec == std::errc() ? value : 0.0;
}

// The double nearest to a number that endOfNumber() has accepted: minus, digits, point and exponent, any of
// which may be missing. Reading stops at the first character that belongs to no decimal number, so a
// hexadecimal one is zero. Infinite or zero out of range.
double jsonNumberFromText(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    const double magnitude = magnitudeFromText(text.substr(isNegative ? 1 : 0));
    return isNegative ? -magnitude : magnitude;
}

// --- the grammar -----------------------------------------------------------------------------------

class JsonParser {
public:
    explicit JsonParser(const char*& cursor) : _cursor(cursor) {}

    JsonError parseValue(JsonValue& out);

private:
    JsonError parseLiteral(std::string_view word, JsonValue value, JsonValue& out);
    JsonError parseNested(JsonError (JsonParser::*parse)(JsonValue&), JsonValue& out);
    JsonError parseArray(JsonValue& out);
    JsonError parseObject(JsonValue& out);
    JsonError parseMember(JsonObject& object);
    JsonError parseNumber(JsonValue& out);
    JsonError parseString(std::string& out);

    // Corrupted at the end of input.
    JsonError skipSpace() {
        _cursor = skipClass(_cursor, Space);
        return *_cursor == '\0' ? JsonError::Corrupted : JsonError::NoError;
    }
    // After an element: past the closing bracket, or past a comma to the next element.
    JsonError skipSeparator(char closing, bool& isDone);

    const char*& _cursor;
    int _depth = 0;
};

JsonError JsonParser::parseValue(JsonValue& out) {
    _cursor = skipClass(_cursor, Space);
    switch (*_cursor) {
    case '{':
        return parseNested(&JsonParser::parseObject, out);
    case '[':
        return parseNested(&JsonParser::parseArray, out);
    case '"': {
        std::string text;
        const JsonError error = parseString(text);
        out = JsonValue(std::move(text));
        return error;
    }
    case 't':
        return parseLiteral("true", JsonValue(true), out);
    case 'f':
        return parseLiteral("false", JsonValue(false), out);
    case 'n':
        return parseLiteral("null", JsonValue(nullptr), out);
    default:
        return *_cursor == '-' || isOfClass(*_cursor, Digit) ? parseNumber(out) : JsonError::InvalidToken;
    }
}

JsonError JsonParser::parseLiteral(std::string_view word, JsonValue value, JsonValue& out) {
    std::size_t length = 0;
    while (length < word.size() && _cursor[length] == word[length])
        ++length;
    if (length < word.size() || !isOfClass(_cursor[length], Terminator))
        return JsonError::Undefined;
    _cursor += length;
    out = std::move(value);
    return JsonError::NoError;
}

JsonError JsonParser::parseNested(JsonError (JsonParser::*parse)(JsonValue&), JsonValue& out) {
    // Parsing is recursive; without a limit a text of brackets would exhaust the stack.
    if (_depth == jsonDepthLimit)
        return JsonError::Corrupted;
    ++_depth;
    const JsonError error = (this->*parse)(out);
    --_depth;
    return error;
}

JsonError JsonParser::skipSeparator(char closing, bool& isDone) {
    if (const JsonError error = skipSpace(); error != JsonError::NoError)
        return error;
    isDone = *_cursor == closing;
    if (!isDone && *_cursor != ',')
        return JsonError::InvalidToken;
    ++_cursor;
    return isDone ? JsonError::NoError : skipSpace();
}

JsonError JsonParser::parseArray(JsonValue& out) {
    JsonArray items;
    ++_cursor;
    JsonError error = skipSpace();
    // Only here may the array be empty: behind a comma a value must follow.
    bool isDone = *_cursor == ']';
    if (isDone)
        ++_cursor;
    else
        items.reserve(firstArrayCapacity);
    while (error == JsonError::NoError && !isDone) {
        error = parseValue(items.emplace_back());
        if (error == JsonError::NoError)
            error = skipSeparator(']', isDone);
    }
    out = JsonValue(std::move(items));
    return error;
}

JsonError JsonParser::parseObject(JsonValue& out) {
    JsonObject members;
    ++_cursor;
    JsonError error = skipSpace();
    bool isDone = *_cursor == '}';
    if (isDone)
        ++_cursor;
    while (error == JsonError::NoError && !isDone) {
        error = parseMember(members);
        if (error == JsonError::NoError)
            error = skipSeparator('}', isDone);
    }
    out = JsonValue(std::move(members));
    return error;
}

JsonError JsonParser::parseMember(JsonObject& object) {
    std::string key;
    JsonError error = parseString(key);
    if (error == JsonError::NoError)
        error = skipSpace();
    if (error != JsonError::NoError)
        return error;
    if (*_cursor != ':')
        return JsonError::InvalidToken;
    ++_cursor;
    JsonValue value;
    error = parseValue(value);
    if (error != JsonError::NoError)
        return error;
    // Only here, so that a fault inside the value is reported before the repeated key.
    return object.insertNew(std::move(key), std::move(value)) ? JsonError::NoError : JsonError::DuplicatedKey;
}

JsonError JsonParser::parseNumber(JsonValue& out) {
    const char* const end = endOfNumber(_cursor);
    if (!end || !isOfClass(*end, Terminator))
        return JsonError::InvalidToken;
    out = JsonValue(jsonNumberFromText(std::string_view(_cursor, end)));
    _cursor = end;
    return JsonError::NoError;
}

JsonError JsonParser::parseString(std::string& out) {
    if (*_cursor != '"')
        return JsonError::InvalidToken;
    const char* const opening = _cursor++;
    bool isPlain = false;
    const char* const closing = closingQuote(_cursor, isPlain);
    // A string that is followed by anything else is rejected here, not where the next token is read.
    if (*closing == '\0' || !isOfClass(closing[1], Terminator))
        return JsonError::InvalidToken;
    if (isPlain)
        out.assign(_cursor, closing);
    else if (!JsonStringDecoder().decode(std::string_view(opening, closing + 1), out))
        return JsonError::InvalidToken;
    _cursor = closing + 1;
    return JsonError::NoError;
}

} // namespace

JsonError jsonParse(const char*& cursor, JsonValue& out) {
    try {
        return JsonParser(cursor).parseValue(out);
    } catch (const std::bad_alloc&) {
        // A header of 100 MiB may become a tree of several times that size.
        return JsonError::MemoryAllocation;
    }
}
