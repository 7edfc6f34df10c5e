#include "safetensors/SafetensorInspector.h"
#include "safetensors/SafetensorsFile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <fstream>

using Bytes = std::vector<std::uint8_t>;

namespace {

std::string sizeField(std::uint64_t size) {
    std::string field;
    for (int shift = 0; shift < 64; shift += 8)
        field += static_cast<char>(size >> shift);
    return field;
}

// Tensors and metadata in a line each, or the error.
std::string described(bool isSound, const SafetensorsData& data, const std::string& err) {
    if (!isSound)
        return err;
    std::string text;
    for (std::size_t i = 0; i < data.tensors.size(); ++i) {
        const TensorInfo& tensor = *data.tensors.at(i);
        text += data.tensors.keys()[i] + " " + tensorSummary(tensor) + " " +
                std::to_string(tensor.dataOffsets.begin) + ".." + std::to_string(tensor.dataOffsets.end) +
                "\n";
    }
    for (std::size_t i = 0; i < data.metadata.size(); ++i)
        text += data.metadata.keys()[i] + "=" + *data.metadata.at(i) + "\n";
    return text;
}

std::string readByWholeFile(const std::string& path) {
    SafetensorsData data;
    Bytes bytes;
    std::string warn;
    std::string err;
    bool isSound = readWholeFile(path, bytes, err);
    if (isSound && bytes.size() < safetensorsSmallestFile) {
        err += "Size is too short.\n";
        isSound = false;
    }
    isSound = isSound && parseSafetensorsHeader(bytes.data(), bytes.size(), data, warn, err);
    if (isSound)
        data.storage.assign(bytes.begin() + 8 + static_cast<qsizetype>(data.headerSize), bytes.end());
    isSound = isSound && validateDataOffsets(data, err);
    return warn + described(isSound, data, err);
}

std::string readByHeader(const std::string& path) {
    SafetensorsData data;
    std::uint64_t dataSize = 0;
    std::string warn;
    std::string err;
    const bool isSound =
        readSafetensorsHeader(path, data, dataSize, warn, err) && validateDataOffsets(data, dataSize, err);
    return warn + described(isSound, data, err);
}

} // namespace

class SafetensorsFileTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(_dir.isValid()); }
    void header_data();
    void header();
    void file_data();
    void file();
    void unreadablePath_data();
    void unreadablePath();
    void everyDType();
    void largestHeader();
    void sparseFileIsReadByItsHeader();
    void failureLeavesOutputs();
    void inspectorLists();
    void inspectorTellsFailures();

private:
    std::string write(const std::string& bytes) {
        const std::string path = _dir.filePath("модель 模型.safetensors").toStdString();
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    std::string writeModel(const std::string& header, std::size_t dataSize) {
        return write(sizeField(header.size()) + header + std::string(dataSize, '\0'));
    }

    QTemporaryDir _dir;
};

void SafetensorsFileTest::header_data() {
    QTest::addColumn<std::string>("text");
    QTest::addColumn<int>("dataSize");
    QTest::addColumn<std::string>("expected");
    struct Row {
        const char* name;
        std::string text;
        int dataSize;
        std::string expected;
    };
    // A tensor "t" of the given members.
    const auto t = [](const std::string& members) { return R"({"t":{)" + members + "}}"; };
    const auto shape = [&](const std::string& items) {
        return t(R"("dtype":"U8","shape":[)" + items + R"(],"data_offsets":[0,4])");
    };
    const auto offsets = [&](const std::string& value) {
        return t(R"("dtype":"U8","shape":[4],"data_offsets":)" + value);
    };
    const std::string empty =
        "`t` is empty tensors(tensors with 1 dimension being 0), and no data in databuffer, "
        "but `data_offsets` item is provided.\n";
    const std::string shapeItem = "Array item in `shape` must be number type, but got ";
    const std::string offsetItem = "Array item in `data_offsets` must be number type, but got ";
    const std::string mismatch = "Data size mismatch. The size in Tensor `t` is ";
    const std::string given = ", but the size from data_offsets is ";
    const std::string huge = "18446744073709551615";
    const Row rows[] = {
        {"no tensors", "{}      ", 0, ""},
        {"no tensors but data", "{}      ", 9, ""},
        {"only metadata", R"({"__metadata__":{"b":"2","a":""}})", 0, "b=2\na=\n"},
        {"metadata last", R"({"t":{"dtype":"U8","shape":[4],"data_offsets":[0,4]},"__metadata__":{"a":"1"}})",
         4, "t U8 [4] 0..4\na=1\n"},
        {"metadata named as a tensor", R"({"__metadata__":{"t":"x"},"t":{"dtype":"U8","shape":[0]}})", 0,
         "t U8 [0] 0..0\nt=x\n"},
        {"header padded with blanks", shape("4") + "     ", 4, "t U8 [4] 0..4\n"},
        {"header followed by a second value", shape("4") + " {}", 4, "t U8 [4] 0..4\n"},
        {"header that ends in NUL bytes", shape("4") + std::string(5, '\0'), 4, "t U8 [4] 0..4\n"},
        {"blank header", "        ", 0, "JSON parse error: invalid token\n"},
        {"header cut short", R"({"t":{"dtype":"U8")", 0, "JSON parse error: input is corrupted\n"},
        {"broken literal", R"({"t":tru}   )", 0, "JSON parse error: undefined\n"},
        {"tensor twice", R"({"t":null,"t":null})", 0, "JSON parse error: duplicated key found\n"},
        {"metadata twice", R"({"__metadata__":{},"__metadata__":{}})", 0,
         "JSON parse error: duplicated key found\n"},
        {"nested too deep", std::string(600, '['), 0, "JSON parse error: input is corrupted\n"},
        {"array as root", "[1,2,3,4]", 0, "JSON root elements must be object(dict)\n"},
        {"string as root", R"("tensors")", 0, "JSON root elements must be object(dict)\n"},
        {"metadata is a string", R"({"__metadata__":"x"})", 0, "`__metadata__` value must be JSON object.\n"},
        {"metadata is null", R"({"__metadata__":null})", 0, "`__metadata__` value must be JSON object.\n"},
        {"metadata with a number", R"({"__metadata__":{"a":"1","b":2}})", 0, "`b` must be string value.\n"},
        {"metadata with an object", R"({"__metadata__":{"a":{}}})", 0, "`a` must be string value.\n"},
        {"tensor is an array", R"({"t":[1,2]})", 0, "`t` value must be JSON object.\n"},
        {"tensor is null", R"({"t":null,"u":1})", 0, "`t` value must be JSON object.\n"},
        {"empty tensor name", R"({"":1,"u":1})", 0, "`` value must be JSON object.\n"},
        {"tensor without members", R"({"t":{}     })", 0, "`t` does not have `dtype` item.\n"},
        {"no dtype", t(R"("shape":[4],"data_offsets":[0,4])"), 4, "`t` does not have `dtype` item.\n"},
        {"dtype in other case is no member", t(R"("DType":"U8","shape":[])"), 0,
         "`t` does not have `dtype` item.\n"},
        {"no shape", t(R"("dtype":"U8","data_offsets":[0,4])"), 4, "`t` does not have `shape` item.\n"},
        {"no offsets", t(R"("dtype":"U8","shape":[4])"), 4, "`t` does not have `data_offsets` item.\n"},
        {"no offsets for a scalar", t(R"("dtype":"U8","shape":[])"), 1,
         "`t` does not have `data_offsets` item.\n"},
        {"other members are ignored", t(R"("x":[{}],"dtype":"U8","shape":[4],"data_offsets":[0,4])"), 4,
         "t U8 [4] 0..4\n"},
        {"members in another order", t(R"("data_offsets":[0,4],"shape":[4],"dtype":"U8")"), 4,
         "t U8 [4] 0..4\n"},
        {"first bad member in order", t(R"("shape":1,"dtype":1)"), 0,
         "`shape` value must be JSON array, but got number.\n"},
        {"bad member before a missing one", t(R"("data_offsets":[])"), 0,
         "`data_offsets` length must be 2.\n"},
        {"dtype is a number", t(R"("dtype":4)"), 0, "`dtype` item should be string type but got number.\n"},
        {"dtype is null", t(R"("dtype":null)"), 0, "`dtype` item should be string type but got null.\n"},
        {"dtype is an object", t(R"("dtype":{})"), 0, "`dtype` item should be string type but got object.\n"},
        {"unknown dtype", t(R"("dtype":"F8_E4M3")"), 0, "Unknown `dtype` string: F8_E4M3.\n"},
        {"dtype in lower case", t(R"("dtype":"f16")"), 0, "Unknown `dtype` string: f16.\n"},
        {"empty dtype", t(R"("dtype":"")"), 0, "Unknown `dtype` string: .\n"},
        {"shape is a string", t(R"("shape":"4")"), 0, "`shape` value must be JSON array, but got string.\n"},
        {"shape is a flag", t(R"("shape":true)"), 0, "`shape` value must be JSON array, but got boolean.\n"},
        {"dimension is a string", shape(R"(4,"4")"), 4, shapeItem + "string.\n"},
        {"dimension is an array", shape("[4]"), 4, shapeItem + "array.\n"},
        {"dimension is null", shape("null"), 4, shapeItem + "null.\n"},
        {"scalar", t(R"("dtype":"F32","shape":[],"data_offsets":[0,4])"), 4, "t F32 [] 0..4\n"},
        {"seven dimensions", shape("1,2,1,1,2,1,1"), 4, "t U8 [1, 2, 1, 1, 2, 1, 1] 0..4\n"},
        {"eight dimensions are not checked", shape("9,9,9,9,9,9,9,9"), 4,
         "t U8 [9, 9, 9, 9, 9, 9, 9, 9] 0..4\n"},
        {"eight dimensions with begin above end",
         t(R"("dtype":"U8","shape":[1,1,1,1,1,1,1,1],"data_offsets":[9,4])"), 4,
         "t.data_offsets.BEGIN 9 must be less than or equal to data_offsets.END 4\n"},
        {"nine dimensions", shape("1,1,1,1,1,1,1,1,1"), 4, "`shape` length must be less than 8 but got 8.\n"},
        {"twenty dimensions", shape("1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1"), 4,
         "`shape` length must be less than 8 but got 8.\n"},
        {"ninth dimension of a wrong type", shape("1,1,1,1,1,1,1,1,{}"), 4, shapeItem + "object.\n"},
        {"wrong type after the ninth", shape("1,1,1,1,1,1,1,1,1,{}"), 4,
         "`shape` length must be less than 8 but got 8.\n"},
        {"empty tensor", t(R"("dtype":"U8","shape":[0,3])"), 0, "t U8 [0, 3] 0..0\n"},
        {"empty tensor and data", t(R"("dtype":"U8","shape":[0,3])"), 7, "t U8 [0, 3] 0..0\n"},
        {"empty tensor with offsets", t(R"("dtype":"U8","shape":[0,3],"data_offsets":[0,0])"), 0, empty},
        {"dimension that is truncated to zero", shape("0.9"), 4, empty},
        {"dimension that is a little negative", shape("-0.9"), 4, empty},
        {"hexadecimal dimension", shape("0x4"), 4, empty},
        {"minus alone as dimension", shape("-"), 4, empty},
        {"fractional dimension", shape("4.9"), 4, "t U8 [4] 0..4\n"},
        {"dimension with an exponent", shape("4e0"), 4, "t U8 [4] 0..4\n"},
        {"offsets are an object", offsets("{}"), 4,
         "`data_offsets` value must be JSON array, but got object.\n"},
        {"offsets are null", offsets("null"), 4, "`data_offsets` value must be JSON array, but got null.\n"},
        {"no offset", offsets("[]"), 4, "`data_offsets` length must be 2.\n"},
        {"one offset", offsets("[0]"), 4, "`data_offsets` length must be 2.\n"},
        {"three offsets", offsets("[0,4,8]"), 4, "`data_offsets` length must be 2.\n"},
        {"offset is a string", offsets(R"([0,"4"])"), 4, offsetItem + "string.\n"},
        {"third offset is a flag", offsets("[0,4,false]"), 4, offsetItem + "boolean.\n"},
        {"fourth offset is a string", offsets(R"([0,4,8,"x"])"), 4, "`data_offsets` length must be 2.\n"},
        {"lone offset is null", offsets("[null]"), 4, offsetItem + "null.\n"},
        {"fractional offsets", offsets("[0.5,4.5]"), 4, "t U8 [4] 0..4\n"},
        {"first fault of two tensors", R"({"a":1,"b":2,"c":3})", 0, "`a` value must be JSON object.\n"},
        {"begin above end", offsets("[4,0]"), 4,
         "t.data_offsets.BEGIN 4 must be less than or equal to data_offsets.END 0\n" + mismatch + "4" +
             given +
             "18446744073709551612\nThe last tensor's data_offset.END(0) must be equal to databufer size "
             "4.\n"},
        {"begin and end past the data", offsets("[5,9]"), 4,
         "Tensor `t`.data_offset.BEGIN 5 exceeds databuffer size 4.\n"
         "Tensor `t`.data_offset.END 9 exceeds databuffer size 4.\n"
         "The last tensor's data_offset.END(9) must be equal to databufer size 4.\n"},
        {"end past the data", offsets("[0,4]"), 3,
         "Tensor `t`.data_offset.END 4 exceeds databuffer size 3.\n"
         "The last tensor's data_offset.END(4) must be equal to databufer size 3.\n"},
        {"size does not match", offsets("[0,3]"), 3, mismatch + "4" + given + "3\n"},
        {"size of wide elements", t(R"("dtype":"F64","shape":[2,3],"data_offsets":[0,47])"), 47,
         mismatch + "48" + given + "47\n"},
        {"data after the last tensor", offsets("[0,4]"), 5,
         "The last tensor's data_offset.END(4) must be equal to databufer size 5.\n"},
        {"gap before the first tensor", offsets("[1,5]"), 5, "t U8 [4] 1..5\n"},
        {"negative end", offsets("[0,-1]"), 4,
         "Tensor `t`.data_offset.END " + huge + " exceeds databuffer size 4.\n" + mismatch + "4" + given +
             huge + "\nThe last tensor's data_offset.END(" + huge + ") must be equal to databufer size 4.\n"},
        {"negative begin beyond 64 bits", offsets("[-1e30,4]"), 4,
         "t.data_offsets.BEGIN 9223372036854775808 must be less than or equal to data_offsets.END 4\n"
         "Tensor `t`.data_offset.BEGIN 9223372036854775808 exceeds databuffer size 4.\n" +
             mismatch + "4" + given + "9223372036854775812\n"},
        {"infinite begin", offsets("[1e400,4]"), 4,
         "t.data_offsets.BEGIN " + huge + " must be less than or equal to data_offsets.END 4\nTensor `t`." +
             "data_offset.BEGIN " + huge + " exceeds databuffer size 4.\n" + mismatch + "4" + given + "5\n"},
        {"largest signed begin", offsets("[9223372036854775807,4]"), 4,
         "t.data_offsets.BEGIN 9223372036854775808 must be less than or equal to data_offsets.END 4\n"
         "Tensor `t`.data_offset.BEGIN 9223372036854775808 exceeds databuffer size 4.\n" +
             mismatch + "4" + given + "9223372036854775812\n"},
        {"negative dimension", shape("-1"), 4, mismatch + huge + given + "4\n"},
        {"infinite dimension", shape("1e400"), 4, mismatch + huge + given + "4\n"},
        {"dimensions that overflow", shape("4294967296,4294967297"), 4, mismatch + huge + given + "4\n"},
        {"dimensions that would wrap to zero", shape("4294967296,4294967296"), 4,
         mismatch + huge + given + "4\n"},
        {"element size that would wrap to zero",
         t(R"("dtype":"F64","shape":[2305843009213693952],"data_offsets":[0,4])"), 4,
         mismatch + huge + given + "4\n"},
        {"dimensions that just fit", shape("4294967296,2147483648"), 4,
         mismatch + "9223372036854775808" + given + "4\n"},
        {"faults of two tensors",
         R"({"a":{"dtype":"U8","shape":[2],"data_offsets":[0,1]},"b":{"dtype":"U8","shape":[2],"data_offsets":[1,2]}})",
         2,
         "Data size mismatch. The size in Tensor `a` is 2, but the size from data_offsets is 1\n"
         "Data size mismatch. The size in Tensor `b` is 2, but the size from data_offsets is 1\n"},
        {"last of the header is not last of the data",
         R"({"b":{"dtype":"U8","shape":[2],"data_offsets":[2,4]},"a":{"dtype":"U8","shape":[2],"data_offsets":[0,2]}})",
         4, "The last tensor's data_offset.END(2) must be equal to databufer size 4.\n"},
        {"no last tensor where one is empty",
         R"({"e":{"dtype":"U8","shape":[0]},"a":{"dtype":"U8","shape":[2],"data_offsets":[0,2]}})", 4,
         "e U8 [0] 0..0\na U8 [2] 0..2\n"},
        {"tensors that overlap",
         R"({"b":{"dtype":"U8","shape":[2],"data_offsets":[0,2]},"a":{"dtype":"U8","shape":[2],"data_offsets":[0,2]}})",
         2, "b U8 [2] 0..2\na U8 [2] 0..2\n"},
    };
    for (const Row& row : rows)
        QTest::newRow(row.name) << row.text << row.dataSize << row.expected;
}

void SafetensorsFileTest::header() {
    QFETCH(std::string, text);
    QFETCH(int, dataSize);
    QFETCH(std::string, expected);
    const std::string path = writeModel(text, static_cast<std::size_t>(dataSize));
    QCOMPARE(readByWholeFile(path), expected);
    QCOMPARE(readByHeader(path), expected);
}

void SafetensorsFileTest::file_data() {
    QTest::addColumn<std::string>("bytes");
    QTest::addColumn<std::string>("expected");
    const auto row = [](const char* name, const std::string& bytes, const std::string& expected) {
        QTest::newRow(name) << bytes << expected;
    };
    const std::string tooShort = "Size is too short.\n";
    const std::string headerTooShort = "Header size is too short.\n";
    const std::string limit = "Header JSON size exceeds the limit(104857600).\n";
    row("one byte", "{", tooShort);
    row("only the size", sizeField(8), tooShort);
    row("fifteen bytes", sizeField(7) + "{}     ", tooShort);
    row("smallest header without data", sizeField(4) + "{}  ", tooShort);
    row("smallest header", sizeField(4) + "{}  data", "");
    row("header size of 3", sizeField(3) + std::string(100, ' '), headerTooShort);
    row("header size of 0", std::string(16, '\0'), headerTooShort);
    row("header past the end", sizeField(9) + "{}      ", "Header size 9 + 8 exceeds input size 16 .\n");
    row("limit in a small file", sizeField(104857601) + "{}      ",
        "Header size 104857601 + 8 exceeds input size 16 .\n");
    row("size that does not wrap", sizeField(0 - std::uint64_t{9}) + "{}      ",
        "Header size 18446744073709551607 + 8 exceeds input size 16 .\n");
    row("size that wraps to zero", sizeField(0 - std::uint64_t{8}) + "{}      ", limit);
    row("largest size", std::string(8, '\xFF') + "{}      ", limit);
    row("text file", "A model in text, as someone saved the page.",
        "Header size 2336353788739002433 + 8 exceeds input size 43 .\n");
}

void SafetensorsFileTest::file() {
    QFETCH(std::string, bytes);
    QFETCH(std::string, expected);
    const std::string path = write(bytes);
    QCOMPARE(readByWholeFile(path), expected);
    QCOMPARE(readByHeader(path), expected);
}

void SafetensorsFileTest::unreadablePath_data() {
    QTest::addColumn<std::string>("path");
    QTest::addColumn<std::string>("expected");
    const auto row = [](const char* name, const std::string& path, const char* before, const char* after) {
        QTest::newRow(name) << path << before + path + after;
    };
    const char* const noRead = "File read error. Maybe empty file or invalid file : ";
    row("no path", "", "File open error : ", "\n");
    row("no such file", "/nowhere/model.safetensors", "File open error : ", "\n");
    row("directory", _dir.path().toStdString(), noRead, "\n");
    QFile empty(_dir.filePath("empty"));
    QVERIFY(empty.open(QFile::WriteOnly));
    row("empty file", empty.fileName().toStdString(), "File is empty : ", "\n");
#ifdef Q_OS_LINUX
    row("device without size", "/dev/zero", "File is empty : ", "\n");
    row("file that cannot seek to its end", "/proc/self/mounts",
        "Invalid file size : ", " (does the path point to a directory?)");
#endif
}

void SafetensorsFileTest::unreadablePath() {
    QFETCH(std::string, path);
    QFETCH(std::string, expected);
    QCOMPARE(readByWholeFile(path), expected);
    QCOMPARE(readByHeader(path), expected);
}

void SafetensorsFileTest::everyDType() {
    const std::pair<const char*, int> dtypes[] = {
        {"BOOL", 1}, {"U8", 1},  {"I8", 1},  {"I16", 2}, {"U16", 2}, {"F16", 2}, {"BF16", 2},
        {"I32", 4},  {"U32", 4}, {"F32", 4}, {"F64", 8}, {"I64", 8}, {"U64", 8}};
    int number = 0;
    for (const auto& [text, size] : dtypes) {
        const std::string header = R"({"t":{"dtype":")" + std::string(text) +
                                   R"(","shape":[3],"data_offsets":[0,)" + std::to_string(3 * size) + "]}}";
        const std::string path = writeModel(header, static_cast<std::size_t>(3 * size));
        SafetensorsData data;
        std::uint64_t dataSize = 0;
        std::string warn;
        std::string err;
        QVERIFY2(readSafetensorsHeader(path, data, dataSize, warn, err) &&
                     validateDataOffsets(data, dataSize, err),
                 err.c_str());
        QCOMPARE(static_cast<int>(data.tensors.at(0)->dtype), number++);
        QCOMPARE(tensorSummary(*data.tensors.at(0)), text + std::string(" [3]"));
        QCOMPARE(data.headerSize, header.size());
        QCOMPARE(dataSize, 3U * size);
    }
}

void SafetensorsFileTest::largestHeader() {
    const std::string path = write(sizeField(104857600) + "{}");
    QVERIFY(QFile::resize(QString::fromStdString(path), 8 + 104857600));
    QCOMPARE(readByHeader(path), "");
    write(sizeField(104857601) + "{}");
    QVERIFY(QFile::resize(QString::fromStdString(path), 8 + 104857601));
    QCOMPARE(readByHeader(path), "Header JSON size exceeds the limit(104857600).\n");
}

void SafetensorsFileTest::sparseFileIsReadByItsHeader() {
    const std::string header =
        R"({"t":{"dtype":"F32","shape":[25000000000],"data_offsets":[0,100000000000]}})";
    const std::string path = writeModel(header, 0);
    if (!QFile::resize(QString::fromStdString(path), 8 + qint64(header.size()) + 100'000'000'000))
        QSKIP("no sparse files here");
    QCOMPARE(readByHeader(path), "t F32 [25000000000] 0..100000000000\n");
    QFile::remove(QString::fromStdString(path));
}

void SafetensorsFileTest::failureLeavesOutputs() {
    const std::string header = R"({"__metadata__":{"a":"1"},"t":{"dtype":"U9"}})";
    const std::string bytes = sizeField(header.size()) + header;
    SafetensorsData data;
    data.metadata.insert("before", "1");
    data.headerSize = 77;
    const SafetensorsData before = data;
    std::string warn;
    std::string err = "kept\n";
    QVERIFY(!parseSafetensorsHeader(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size(), data,
                                    warn, err));
    QCOMPARE(err, "kept\nUnknown `dtype` string: U9.\n");
    QVERIFY(data == before);

    TensorInfo tensor;
    tensor.dataOffsets = {0, 2};
    data.tensors.insert("t", tensor);
    QVERIFY(!validateDataOffsets(data, 2, err));
    QCOMPARE(err, "Data size mismatch. The size in Tensor `t` is 1, but the size from data_offsets is 2\n");
}

void SafetensorsFileTest::inspectorLists() {
    const QString path = QString::fromStdString(writeModel(
        R"({"zé":{"dtype":"F16","shape":[1,2],"data_offsets":[0,4]},"a":{"dtype":"I8","shape":[0]},)"
        R"("__metadata__":{"a":" metadata ","m":"1"}})",
        4));
    using Lines = QMap<QString, QString>;
    const Lines tensors{{"a", "I8 [0]"}, {"zé", "F16 [1, 2]"}};
    const Lines metadata{{"a", " metadata "}, {"m", "1"}};
    const Lines both{{"a", " metadata "}, {"m", "1"}, {"zé", "F16 [1, 2]"}};
    SafetensorInspector inspector;
    QCOMPARE(inspector.insepctSafetensor(path, true, false), tensors);
    QCOMPARE(inspector.insepctSafetensor(path, false, true), metadata);
    QCOMPARE(inspector.insepctSafetensor(path, true, true), both);
    QCOMPARE(inspector.insepctSafetensor(path, false, false), Lines());
    QCOMPARE(inspector.messages(), QString());
}

void SafetensorsFileTest::inspectorTellsFailures() {
    const auto messages = [](const QString& path) {
        SafetensorInspector inspector;
        [&] { QVERIFY(inspector.insepctSafetensor(path, false, false).isEmpty()); }();
        return inspector.messages();
    };
    const QString path = QString::fromStdString(write("short"));
    QTest::ignoreMessage(QtDebugMsg, "  ERR:  Size is too short.\n");
    QCOMPARE(messages(path), "Failed to load: " + path + " error: Size is too short.\n\n");
    writeModel(R"({"t":{"dtype":"U8","shape":[],"data_offsets":[0,1]}})", 2);
    QCOMPARE(messages(path),
             "Failed to load: " + path +
                 " invalid data offsets error: The last tensor's data_offset.END(1) must be equal "
                 "to databufer size 2.\n\n");
}

QTEST_APPLESS_MAIN(SafetensorsFileTest)
#include "tst_safetensorsfile.moc"
