#include "safetensors/JsonParser.h"
#include "support/Rows.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>

using namespace std::string_literals;

namespace {

// A value in a compact form that keeps the order of keys and distinguishes the kinds.
std::string described(const JsonValue& value) {
    const auto list = [](const auto& items, char open, char close, const auto& describe) {
        std::string text(1, open);
        for (std::size_t i = 0; i < items.size(); ++i)
            text += (i ? "," : "") + describe(i);
        return text + close;
    };
    if (const auto* flag = value.boolean())
        return *flag ? "true" : "false";
    if (const auto* number = value.number())
        return QByteArray::number(*number, 'g', 17).toStdString();
    if (const auto* text = value.string())
        return '"' + *text + '"';
    if (const auto* array = value.array())
        return list(*array, '[', ']', [&](std::size_t i) { return described((*array)[i]); });
    if (const auto* object = value.object())
        return list(*object, '{', '}',
                    [&](std::size_t i) { return object->keys()[i] + ':' + described(*object->at(i)); });
    return std::string(jsonTypeName(value));
}

// The value and what is left of the text, or the error.
std::string parsed(const std::string& text) {
    const char* cursor = text.c_str();
    JsonValue value;
    const JsonError error = jsonParse(cursor, value);
    if (error != JsonError::NoError)
        return std::string(jsonErrorText(error));
    const JsonValue copy = value;
    value = JsonValue();
    const std::string rest = cursor;
    return described(copy) + (rest.empty() ? "" : " | " + rest);
}

std::string repeated(const std::string& text, int times) {
    return QByteArray::fromStdString(text).repeated(times).toStdString();
}

const std::string invalid = "invalid token";
const std::string corrupted = "input is corrupted";
const std::string undefined = "undefined";
const std::string duplicated = "duplicated key found";

} // namespace

class TestJsonReader : public QObject {
    Q_OBJECT

private slots:
    void values_data() {
        addRows<std::string, std::string>({
            {"nothing", "", invalid},
            {"a byte order mark", "\xEF\xBB\xBF{}", invalid},
            {"what follows is left", "{\"a\":1}   xyz", "{a:1} |    xyz"},
            {"text after NUL does not exist", "[1\0,2]"s, corrupted},
            // Space and terminators.
            {"empty object with blanks", "{ \t}", "{}"},
            {"tab before a comma", "[1\t,2]", invalid},
            {"trailing comma in an array", "[1,2,]", invalid},
            {"array ends after bracket", "[ ", corrupted},
            {"key without quotes", "{a:1}", invalid},
            {"key order is kept", R"({"b":1,"a":2})", "{b:1,a:2}"},
            {"duplicated key by escape", R"({"a":1,"\u0061":2})", duplicated},
            {"duplicate goes before a later error", R"({"a":1,"a":2 x)", duplicated},
            // Literals and numbers.
            {"literal at the end", "true\0x"s, "true"},
            {"plus sign", "+1", invalid},
            {"point last", "1.", invalid},
            {"exponent without digits", "1e", invalid},
            {"hexadecimal with a wrong digit", "0x1G", invalid},
            // Strings.
            {"string without end", "\"abc", invalid},
            {"string that ends in an escaped quote", "\"abc\\\"", invalid},
            {"string with NUL", "\"a\0b\""s, invalid},
            {"raw line feed", "\"a\nb\"", invalid},
            {"all short escapes", "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"", "\"\"\\/\b\f\n\r\t\""},
            {"escaped NUL", R"("a\u0000b")", "\"a\0b\""s},
            {"escapes of two, three and four bytes", R"("\u00e9\u4e2d\ud83d\ude01\udbff\udfff")",
             "\"é中😁\xF4\x8F\xBF\xBF\""},
            {"two, three and four bytes as they are", "\"é中😀\"", "\"é中😀\""},
            {"unknown escape", R"("\x")", invalid},
            {"three digits", R"("\u123")", invalid},
            {"no hex digit", R"("\u00g0")", invalid},
            {"low half alone", R"("\uDC00")", invalid},
            {"high half before a letter", R"("\uD800a")", invalid},
            {"high half before a code above both", R"("\uD800\uE000")", invalid},
        });
    }
    void values() {
        const auto& [json, expected] = row<std::string, std::string>();
        QCOMPARE(parsed(json), expected);
    }

    void numbers_data() {
        constexpr double denormal = std::numeric_limits<double>::denorm_min();
        const std::string zeros(900, '0');
        const std::string halfway = "9007199254740993"; // between two doubles, the lower one is even
        char halfDenormal[1100];                        // between zero and the smallest double, in 751 digits
        std::snprintf(halfDenormal, sizeof halfDenormal, "%.1075Lf", std::ldexp(1.0L, -1075));
        addRows<std::string, double>({
            {"negative zero", "-0", -0.0},
            {"leading zeros", "007", 7},
            {"hexadecimal", "-0xF", -0.0},
            {"tie goes to even", halfway, 9007199254740992.0},
            {"tie and a digit past the kept ones", halfway + "." + zeros + "1", 9007199254740994.0},
            {"800 digits behind the point", "0." + std::string(800, '3'), 1.0 / 3},
            {"largest double", "1.7976931348623157e308", std::numeric_limits<double>::max()},
            {"half the smallest denormal", halfDenormal, 0},
            {"a little more than that", halfDenormal + zeros + "1", denormal},
            {"zero with a huge exponent", "0e99999999999", 0},
            {"exponent of 65536 against its zeros", "0." + std::string(65535, '0') + "1e65536", 1},
        });
    }
    void numbers() {
        const auto& [json, expected] = row<std::string, double>();
        const char* cursor = json.c_str();
        JsonValue value;
        QCOMPARE(jsonParse(cursor, value), JsonError::NoError);
        QVERIFY(value.number());
        QCOMPARE(std::bit_cast<quint64>(*value.number()), std::bit_cast<quint64>(expected));
    }

    // Every first and second byte, followed by zero to two plain bytes.
    void sequencesAreChecked() {
        for (int bytes = 0x8000; bytes <= 0xFFFF; ++bytes) {
            std::string text{static_cast<char>(bytes >> 8), static_cast<char>(bytes)};
            if (const char second = text[1]; second >= 0 && (second < ' ' || second == '"' || second == '\\'))
                continue;
            for (int length = 2; length <= 4; ++length, text += '\x80')
                QCOMPARE(parsed('"' + text + '"') != invalid, QByteArrayView(text).isValidUtf8());
        }
    }

    void nestingIsLimited() {
        const auto nested = [](int depth) { return repeated("[", depth) + repeated("]", depth); };
        QCOMPARE(parsed(nested(512)), nested(512));
        QCOMPARE(parsed(nested(513)), corrupted);
        QCOMPARE(parsed(repeated("[[],", 600)), corrupted);
        QCOMPARE(parsed(repeated("{\"a\":", 10'000'000)), corrupted);
        QCOMPARE(parsed("[" + repeated("[],", 600) + "0]").size(), 1U + 600 * 3 + 2);
    }
};

QTEST_APPLESS_MAIN(TestJsonReader)
#include "tst_jsonreader.moc"
