#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Decodes one quoted JSON string to UTF-8, and reports why it cannot be decoded.
class JsonStringDecoder {
public:
    // The text starts at the opening quote; what follows the closing one is ignored. Bytes are appended to
    // `out`, whose content is unspecified after a failure.
    [[nodiscard]] bool decode(std::string_view quoted, std::string& out);

    // Set by a failure.
    [[nodiscard]] const std::string& error() const { return _error; }

private:
    [[nodiscard]] bool decodeEscape(std::string& out);
    [[nodiscard]] bool decodeUnicodeEscape(std::string& out);
    [[nodiscard]] bool readLowSurrogate(char32_t& codePoint);
    [[nodiscard]] bool readHexDigits(char32_t& value);
    [[nodiscard]] bool copySequence(std::string& out);
    [[nodiscard]] bool fail(std::string_view what);
    [[nodiscard]] unsigned char byteAt(std::size_t index) const;

    std::string_view _text;
    std::size_t _position = 0;
    std::string _error;
};
