#include "safetensors/JsonString.h"

#include <array>
#include <cstdint>

namespace {

struct ByteRange {
    unsigned char first;
    unsigned char last;
};

struct SequenceRule {
    ByteRange lead;
    std::size_t length; // of the following bytes
    ByteRange second;   // those after it are 0x80 to 0xBF
};

constexpr std::array<SequenceRule, 8> sequenceRules{{
    {{0xC2, 0xDF}, 1, {0x80, 0xBF}},
    {{0xE0, 0xE0}, 2, {0xA0, 0xBF}},
    {{0xE1, 0xEC}, 2, {0x80, 0xBF}},
    {{0xED, 0xED}, 2, {0x80, 0x9F}},
    {{0xEE, 0xEF}, 2, {0x80, 0xBF}},
    {{0xF0, 0xF0}, 3, {0x90, 0xBF}},
    {{0xF1, 0xF3}, 3, {0x80, 0xBF}},
    {{0xF4, 0xF4}, 3, {0x80, 0x8F}},
}};

constexpr std::array<std::string_view, 32> controlNames{
    "NUL", "SOH", "STX", "ETX", "EOT", "ENQ", "ACK", "BEL", "BS",  "HT",  "LF",
    "VT",  "FF",  "CR",  "SO",  "SI",  "DLE", "DC1", "DC2", "DC3", "DC4", "NAK",
    "SYN", "ETB", "CAN", "EM",  "SUB", "ESC", "FS",  "GS",  "RS",  "US"};

constexpr char32_t firstHighSurrogate = 0xD800;
constexpr char32_t firstLowSurrogate = 0xDC00;
constexpr char32_t lastLowSurrogate = 0xDFFF;
constexpr char32_t lastCodePoint = 0x10FFFF;

constexpr std::string_view lowSurrogateMissing =
    "surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF";

bool isInRange(unsigned char byte, ByteRange range) {
    return byte >= range.first && byte <= range.last;
}

int hexDigitValue(unsigned char byte) {
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    const int letter = (byte | 0x20) - 'a';
    return letter >= 0 && letter < 6 ? letter + 10 : -1;
}

// The byte of a one-letter escape; 0 for any other letter.
char escapedByte(unsigned char letter) {
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view bytes = "\"\\/\b\f\n\r\t";
    const std::size_t index = letters.find(static_cast<char>(letter));
    return letter != 0 && index != std::string_view::npos ? bytes[index] : '\0';
}

std::string controlCharacterError(unsigned char byte) {
    constexpr std::string_view hex = "0123456789ABCDEF";
    const std::string code{'0', '0', hex[byte >> 4], hex[byte & 0xF]};
    std::string what = "control character U+" + code + " (";
    what.append(controlNames[byte]).append(") must be escaped to \\u").append(code);
    constexpr std::string_view shortEscapes("btn\0fr", 6); // from 0x08 on; 0x0B has none
    if (const std::size_t index = byte - 0x08U; index < shortEscapes.size() && shortEscapes[index])
        what.append(" or \\").push_back(shortEscapes[index]);
    return what;
}

bool appendCodePoint(char32_t codePoint, std::string& out) {
    const auto append = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    // The first byte gives the length of a sequence, each further one has six bits.
    const auto appendTail = [&](int shift) { append(0x80 | ((codePoint >> shift) & 0x3F)); };
    // No pair of surrogates is that large; the check guards the shifts below.
    if (codePoint > lastCodePoint)
        return false;
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | (codePoint >> 6));
        appendTail(0);
    } else if (codePoint < 0x10000) {
        append(0xE0 | (codePoint >> 12));
        appendTail(6);
        appendTail(0);
    } else {
        append(0xF0 | (codePoint >> 18));
        appendTail(12);
        appendTail(6);
        appendTail(0);
    }
    return true;
}

} // namespace

bool JsonStringDecoder::decode(std::string_view quoted, std::string& out) {
    _text = quoted;
    _position = 1;
    _error.clear();
    if (!quoted.starts_with('"')) {
        _error = "first character must be '\"'";
        return false;
    }
    while (_position < _text.size()) {
        const unsigned char byte = byteAt(_position);
        if (byte == '"')
            return true;
        if (byte < 0x20)
            return fail(controlCharacterError(byte));
        if (byte == '\\') {
            if (!decodeEscape(out))
                return false;
        } else if (byte < 0x80) {
            out.push_back(_text[_position++]);
        } else if (!copySequence(out)) {
            return fail("ill-formed UTF-8 byte");
        }
    }
    return fail("missing closing quote");
}

bool JsonStringDecoder::decodeEscape(std::string& out) {
    // 0 at the end of the text, which is no escape.
    const unsigned char letter = byteAt(_position + 1);
    _position += 2;
    if (letter == 'u')
        return decodeUnicodeEscape(out);
    const char byte = escapedByte(letter);
    if (byte == 0)
        return fail("forbidden character after backslash");
    out.push_back(byte);
    return true;
}

bool JsonStringDecoder::decodeUnicodeEscape(std::string& out) {
    char32_t codePoint = 0;
    if (!readHexDigits(codePoint))
        return false;
    if (codePoint >= firstLowSurrogate && codePoint <= lastLowSurrogate)
        return fail("surrogate U+DC00..U+DFFF must follow U+D800..U+DBFF");
    if (codePoint >= firstHighSurrogate && codePoint < firstLowSurrogate && !readLowSurrogate(codePoint))
        return false;
    return appendCodePoint(codePoint, out) || fail("invalid codepoint");
}

// Joins the high surrogate in `codePoint` with the escape that must follow it.
bool JsonStringDecoder::readLowSurrogate(char32_t& codePoint) {
    if (byteAt(_position) != '\\' || byteAt(_position + 1) != 'u')
        return fail(lowSurrogateMissing);
    _position += 2;
    char32_t low = 0;
    if (!readHexDigits(low))
        return false;
    if (low < firstLowSurrogate || low > lastLowSurrogate)
        return fail(lowSurrogateMissing);
    codePoint = 0x10000 + ((codePoint - firstHighSurrogate) << 10) + (low - firstLowSurrogate);
    return true;
}

bool JsonStringDecoder::readHexDigits(char32_t& value) {
    for (int i = 0; i < 4; ++i) {
        const int digit = hexDigitValue(byteAt(_position));
        if (digit < 0)
            return fail("'\\u' must be followed by 4 hex digits");
        value = (value << 4) | static_cast<char32_t>(digit);
        ++_position;
    }
    return true;
}

bool JsonStringDecoder::copySequence(std::string& out) {
    constexpr ByteRange tail{0x80, 0xBF};
    for (const SequenceRule& rule : sequenceRules) {
        if (!isInRange(byteAt(_position), rule.lead))
            continue;
        // A lead byte belongs to one rule only, so a wrong byte after it ends the search.
        for (std::size_t i = 1; i <= rule.length; ++i) {
            if (!isInRange(byteAt(_position + i), i == 1 ? rule.second : tail))
                return false;
        }
        out.append(_text.substr(_position, rule.length + 1));
        _position += rule.length + 1;
        return true;
    }
    return false;
}

bool JsonStringDecoder::fail(std::string_view what) {
    _error.assign("invalid string: ").append(what);
    return false;
}

// Zero past the end, which no rule accepts as part of a sequence.
unsigned char JsonStringDecoder::byteAt(std::size_t index) const {
    return index < _text.size() ? static_cast<unsigned char>(_text[index]) : 0;
}
