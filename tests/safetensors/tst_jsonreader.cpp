#include "safetensors/JsonParser.h"
#include "safetensors/JsonString.h"

#include <QTest>

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>

using namespace std::string_literals;

namespace {

// What a value is, in a compact form that keeps key order and the difference between kinds.
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

} // namespace

class JsonReaderTest : public QObject {
    Q_OBJECT

private slots:
    void text_data();
    void text();
    void number_data();
    void number();
    void stringError_data();
    void stringError();
    void nestingIsLimited();
    void textsOfCodes();
    void orderedDictKeepsFirstPlaces();
};

void JsonReaderTest::text_data() {
    QTest::addColumn<std::string>("json");
    QTest::addColumn<std::string>("expected");
    struct Row {
        const char* name;
        std::string json;
        std::string expected;
    };
    const Row rows[] = {
        {"nothing", "", invalid},
        {"only space", " \t\r\n", invalid},
        {"a byte order mark", "\xEF\xBB\xBF{}", invalid},
        {"empty object", "{}", "{}"},
        {"empty object with blanks", "{ \t}", "{}"},
        {"empty array", "[]", "[]"},
        {"empty array with line ends", " [\r\n]", "[]"},
        {"what follows is left", "{\"a\":1}   xyz", "{a:1} |    xyz"},
        {"what follows a nested end is no matter", "[[1]x", invalid},
        {"text after NUL does not exist", "[1\0,2]"s, corrupted},
        {"all kinds", R"([true,false,null,-1,"s",[],{}])", R"([true,false,null,-1,"s",[],{}])"},
        {"blank before a comma", "[1 ,2]", "[1,2]"},
        {"tab before a comma", "[1\t,2]", invalid},
        {"tab after a comma", "[1,\t2]", "[1,2]"},
        {"tab after a string", "[\"a\"\t]", invalid},
        {"tab after a literal", "[true\t]", undefined},
        {"tab after an array", "[[]\t,{}\t]", "[[],{}]"},
        {"tab after a key", "{\"a\"\t:1}", invalid},
        {"line end after a number", "[1\r\n]", "[1]"},
        {"trailing comma in an array", "[1,2,]", invalid},
        {"trailing comma in an object", "{\"a\":1,}", invalid},
        {"only a comma", "[,]", invalid},
        {"no comma", "[1 2]", invalid},
        {"colon in an array", "[1:2]", invalid},
        {"array closed as object", "[1}", invalid},
        {"object closed as array", "{\"a\":1]", invalid},
        {"closing bracket alone", "]", invalid},
        {"array ends after bracket", "[ ", corrupted},
        {"array ends after item", "[1 ", corrupted},
        {"array ends after comma", "[1, ", corrupted},
        {"object ends after brace", "{ ", corrupted},
        {"object ends in a key", "{\"a", invalid},
        {"object ends after key", "{\"a\" ", corrupted},
        {"object ends after colon", "{\"a\":", invalid},
        {"object ends after member", "{\"a\":1", corrupted},
        {"object ends after comma", "{\"a\":1,", corrupted},
        {"key without quotes", "{a:1}", invalid},
        {"number as key", "{1:1}", invalid},
        {"key without colon", "{\"a\" 1}", invalid},
        {"blank around the colon", "{\"a\" : 1 }", "{a:1}"},
        {"key order is kept", R"({"b":1,"a":2})", "{b:1,a:2}"},
        {"duplicated key", R"({"a":1,"a":2})", "duplicated key found"},
        {"duplicated key by escape", R"({"a":1,"\u0061":2})", "duplicated key found"},
        {"duplicated key among many", R"({"h":1,"g":1,"f":1,"e":1,"d":1,"c":1,"b":1,"a":1,"z":1,"h":1})",
         "duplicated key found"},
        {"duplicated key among many in order",
         R"({"a":1,"b":1,"c":1,"d":1,"e":1,"f":1,"g":1,"h":1,"i":1,"d":1})", "duplicated key found"},
        {"error in the second value goes first", R"({"a":1,"a":tru})", undefined},
        {"duplicate goes before a later error", R"({"a":1,"a":2 x)", "duplicated key found"},
        {"same key on two levels", R"({"a":{"a":1}})", "{a:{a:1}}"},
        {"empty key", R"({"":1})", "{:1}"},
        {"true", "true", "true"},
        {"false before a comma", "false,", "false | ,"},
        {"null", "null", "null"},
        {"literal cut short", "tru", undefined},
        {"literal too long", "truex", undefined},
        {"literal of another case", "True", invalid},
        {"literal with a wrong letter", "nulL", undefined},
        {"literal before a brace", "true{", undefined},
        {"infinity", "Infinity", invalid},
        {"not a number", "nan", undefined},
        {"plus sign", "+1", invalid},
        {"point first", ".5", invalid},
        {"point last", "1.", invalid},
        {"point before exponent", "1.e5", invalid},
        {"exponent without digits", "1e", invalid},
        {"exponent with plus", "1e+5", invalid},
        {"exponent with minus", "1e-5", invalid},
        {"upper-case exponent", "1E5", invalid},
        {"fraction in the exponent", "1e5.5", invalid},
        {"two points", "1.2.3", invalid},
        {"two minus signs", "--1", invalid},
        {"hexadecimal without digits", "0x", invalid},
        {"hexadecimal in upper case", "0X10", invalid},
        {"hexadecimal after two zeros", "00x10", invalid},
        {"hexadecimal with a fraction", "0x1.5", invalid},
        {"hexadecimal with a wrong digit", "0x1G", invalid},
        {"number before a bracket", "1[", invalid},
        {"number before a quote", "1\"", invalid},
        {"string", "\"abc\"", "\"abc\""},
        {"empty string", "\"\"", "\"\""},
        {"string in single quotes", "'a'", invalid},
        {"string without end", "\"abc", invalid},
        {"string that ends in a backslash", "\"abc\\", invalid},
        {"string that ends in an escaped quote", "\"abc\\\"", invalid},
        {"string before a letter", "\"abc\"d", invalid},
        {"string with NUL", "\"a\0b\""s, invalid},
        {"backslash before NUL", "\"a\\\0\""s, invalid},
        {"raw line feed", "\"a\nb\"", invalid},
        {"escaped line feed", R"("a\nb")", "\"a\nb\""},
        {"DEL", "\"\x7F\"", "\"\x7F\""},
        {"all short escapes", R"("\"\\\/\b\f\n\r\t")", "\"\"\\/\b\f\n\r\t\""},
        {"unknown escape", R"("\a")", invalid},
        {"upper-case unicode escape", R"("\U0041")", invalid},
        {"escaped NUL", R"("a\u0000b")", "\"a\0b\""s},
        {"escapes of one to three bytes", R"("\u0041\u00e9\u20AC")", "\"A\xC3\xA9\xE2\x82\xAC\""},
        {"first code points of each length", R"("\u0080\u0800\u0801\uD800\uDC05")",
         "\"\xC2\x80\xE0\xA0\x80\xE0\xA0\x81\xF0\x90\x80\x85\""},
        {"blanks beside escapes", R"(" \n ~")", "\" \n ~\""},
        {"surrogate pair", R"("\uD83D\uDE00")", "\"\xF0\x9F\x98\x80\""},
        {"last code point", R"("\uDBFF\uDFFF")", "\"\xF4\x8F\xBF\xBF\""},
        {"raw sequences at the edges",
         "\"\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\"",
         "\"\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\""},
    };
    for (const Row& row : rows)
        QTest::newRow(row.name) << row.json << row.expected;
}

void JsonReaderTest::text() {
    QFETCH(std::string, json);
    QTEST(parsed(json), "expected");
}

void JsonReaderTest::number_data() {
    QTest::addColumn<std::string>("json");
    QTest::addColumn<double>("expected");
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double denormal = std::numeric_limits<double>::denorm_min();
    const std::string halfway = "9007199254740993"; // between two doubles, the lower one is even
    char halfDenormal[1100];                        // between zero and the smallest double, in 751 digits
    std::snprintf(halfDenormal, sizeof halfDenormal, "%.1075Lf", std::ldexp(1.0L, -1075));
    struct Row {
        const char* name;
        std::string json;
        double expected;
    };
    const Row rows[] = {
        {"zero", "0", 0},
        {"negative zero", "-0", -0.0},
        {"minus alone", "-", -0.0},
        {"minus and exponent", "-e5", -0.0},
        {"minus and fraction", "-.5", -0.5},
        {"leading zeros", "007", 7},
        {"many leading zeros", std::string(900, '0') + "1.5", 1.5},
        {"hexadecimal", "0x1F", 0},
        {"negative hexadecimal", "-0x1F", -0.0},
        {"exponent", "1e5", 100000},
        {"leading zeros in the exponent", "1e000005", 100000},
        {"fraction and exponent", "12.5e2", 1250},
        {"largest exact integer", "9007199254740992", 9007199254740992.0},
        {"tie goes to even", halfway, 9007199254740992.0},
        {"tie and zeros stay a tie", halfway + "." + std::string(900, '0'), 9007199254740992.0},
        {"tie and a digit past the kept ones", halfway + "." + std::string(900, '0') + "1",
         9007199254740994.0},
        {"nineteen nines", "9999999999999999999", 1e19},
        {"past unsigned 64 bits", "18446744073709551616", 18446744073709551616.0},
        {"800 digits", std::string(800, '3') + "e0", infinity},
        {"800 digits behind the point", "0." + std::string(800, '3'), 1.0 / 3},
        {"largest double", "1.7976931348623157e308", std::numeric_limits<double>::max()},
        {"half a step above the largest", "1.7976931348623159e308", infinity},
        {"too large", "1e400", infinity},
        {"too large and negative", "-1e400", -infinity},
        {"too large by digits", std::string(400, '9'), infinity},
        {"too small", "0." + std::string(400, '0') + "1", 0},
        {"too small and negative", "-0." + std::string(400, '0') + "1", -0.0},
        {"smallest denormal", "0." + std::string(323, '0') + "5", denormal},
        {"half the smallest denormal", halfDenormal, 0},
        {"a little more than that", halfDenormal + std::string(900, '0') + "1", denormal},
        {"zero with a huge exponent", "0e99999999999", 0},
        {"huge exponent", "1e99999999999999999999", infinity},
        {"exponent of 65536 meets its zeros", "0." + std::string(65535, '0') + "1e65536", 1},
        {"exponent digits past the limit", "0." + std::string(65535, '0') + "1e655361", 1},
        {"one digit more below the limit", "0." + std::string(65535, '0') + "1e655350", infinity},
        {"passed over exponent digit", "0." + std::string(100000, '0') + "1e1000017", 1},
    };
    for (const Row& row : rows)
        QTest::newRow(row.name) << row.json << row.expected;
}

void JsonReaderTest::number() {
    QFETCH(std::string, json);
    QFETCH(double, expected);
    const char* cursor = json.c_str();
    JsonValue value;
    QCOMPARE(jsonParse(cursor, value), JsonError::NoError);
    QVERIFY(value.number());
    QCOMPARE(std::bit_cast<quint64>(*value.number()), std::bit_cast<quint64>(expected));
}

void JsonReaderTest::stringError_data() {
    QTest::addColumn<std::string>("quoted");
    QTest::addColumn<std::string>("expected");
    const auto row = [](const char* name, const std::string& quoted, const std::string& expected) {
        QTest::newRow(name) << quoted << expected;
    };
    const std::string control = "invalid string: control character ";
    row("nothing wrong", "\"a\"", "");
    row("no quote", "a\"", "first character must be '\"'");
    row("empty", "", "first character must be '\"'");
    row("no closing quote", "\"a", "invalid string: missing closing quote");
    row("NUL", "\"\0\""s, control + "U+0000 (NUL) must be escaped to \\u0000");
    row("bell", "\"\a\"", control + "U+0007 (BEL) must be escaped to \\u0007");
    row("backspace", "\"\b\"", control + "U+0008 (BS) must be escaped to \\u0008 or \\b");
    row("tab", "\"\t\"", control + "U+0009 (HT) must be escaped to \\u0009 or \\t");
    row("line feed", "\"\n\"", control + "U+000A (LF) must be escaped to \\u000A or \\n");
    row("vertical tab", "\"\v\"", control + "U+000B (VT) must be escaped to \\u000B");
    row("form feed", "\"\f\"", control + "U+000C (FF) must be escaped to \\u000C or \\f");
    row("carriage return", "\"\r\"", control + "U+000D (CR) must be escaped to \\u000D or \\r");
    row("shift out", "\"\x0E\"", control + "U+000E (SO) must be escaped to \\u000E");
    row("unit separator", "\"\x1F\"", control + "U+001F (US) must be escaped to \\u001F");
    row("unknown escape", R"("\x")", "invalid string: forbidden character after backslash");
    const std::string digits = "invalid string: '\\u' must be followed by 4 hex digits";
    row("three digits", R"("\u123")", digits);
    row("no hex digit", R"("\u00g0")", digits);
    row("three digits of the second half", R"("\uD83D\uDE0")", digits);
    row("low half alone", R"("\uDC00")",
        "invalid string: surrogate U+DC00..U+DFFF must follow U+D800..U+DBFF");
    const std::string low = "invalid string: surrogate U+D800..U+DBFF must be followed by U+DC00..U+DFFF";
    row("high half alone", R"("\uD800")", low);
    row("high half before a letter", R"("\uD800a")", low);
    row("high half before another escape", R"("\uDBFF\n")", low);
    row("two high halves", R"("\uD800\uD800")", low);
    row("high half before a plain code", R"("\uD800\u0041")", low);
    for (const char* bytes :
         {"\x80", "\xC1\x80", "\xC2\x7F", "\xC2\xC0", "\xE0\x9F\x80", "\xE1\x80", "\xED\xA0\x80",
          "\xEF\x80\xC0", "\xF0\x8F\x80\x80", "\xF1\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80", "\xFF"}) {
        const std::string name = "bytes " + QByteArray(bytes).toHex().toStdString();
        row(name.c_str(), '"' + std::string(bytes) + '"', "invalid string: ill-formed UTF-8 byte");
    }
}

void JsonReaderTest::stringError() {
    QFETCH(std::string, quoted);
    QFETCH(std::string, expected);
    JsonStringDecoder decoder;
    std::string out;
    QCOMPARE(decoder.decode(quoted, out), expected.empty());
    QCOMPARE(decoder.error(), expected);
    if (!expected.empty())
        QCOMPARE(parsed(quoted), invalid);
}

void JsonReaderTest::nestingIsLimited() {
    const auto nested = [](int depth) { return repeated("[", depth) + repeated("]", depth); };
    QCOMPARE(parsed(nested(512)), nested(512));
    QCOMPARE(parsed(nested(513)), corrupted);
    QCOMPARE(parsed(repeated("[[],", 600)), corrupted);
    QCOMPARE(parsed(repeated("{\"a\":", 10'000'000)), corrupted);
    QCOMPARE(parsed("[" + repeated("[],", 600) + "0]").size(), 1U + 600 * 3 + 2);
}

void JsonReaderTest::textsOfCodes() {
    QCOMPARE(jsonTypeName(JsonValue()), "[[invalid]]");
    QCOMPARE(jsonTypeName(static_cast<JsonKind>(7)), "[[invalid]]");
    const char* const errors[] = {"no error",
                                  "undefined",
                                  "invalid token",
                                  "unknown type",
                                  "memory allocation error",
                                  "input is corrupted",
                                  "duplicated key found",
                                  "unknown error"};
    for (int code = 0; code < 8; ++code)
        QCOMPARE(jsonErrorText(static_cast<JsonError>(code)), errors[code]);
}

void JsonReaderTest::orderedDictKeepsFirstPlaces() {
    OrderedDict<int> dict;
    std::vector<std::string> keys;
    for (int i = 0; i < 100; ++i) {
        keys.push_back(std::to_string(i * 37 % 100)); // sorted at first, then not
        dict.insert(keys.back(), i);
    }
    dict.insert("37", -1);
    QVERIFY(!dict.insertNew("0", 5));
    const OrderedDict<int> copy = dict;
    QCOMPARE(copy.size(), 100U);
    QCOMPARE(copy.keys(), keys);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        int value = 0;
        QVERIFY(copy.at(i, value) && copy.count(keys[i]));
        QCOMPARE(value, i == 1 ? -1 : int(i));
        QCOMPARE(*copy.find(keys[i]), value);
    }
    int untouched = 7;
    QVERIFY(!copy.at(100, untouched) && !copy.count("100"));
    QCOMPARE(untouched, 7);
}

QTEST_APPLESS_MAIN(JsonReaderTest)
#include "tst_jsonreader.moc"
