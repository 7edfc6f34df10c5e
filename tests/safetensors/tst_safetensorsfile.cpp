#include "safetensors/SafetensorInspector.h"
#include "safetensors/SafetensorsFile.h"
#include "support/Rows.h"

#include <QFile>
#include <QTemporaryDir>

#include <fstream>

using Bytes = std::vector<std::uint8_t>;

namespace {

std::string sizeField(std::uint64_t size) {
    std::string field;
    for (int shift = 0; shift < 64; shift += 8)
        field += static_cast<char>(size >> shift);
    return field;
}

std::string model(const std::string& header, std::size_t dataSize = 0) {
    return sizeField(header.size()) + header + std::string(dataSize, '\0');
}

// A model with a tensor "t" of the given members, or of four bytes with this shape or these offsets.
std::string tensor(const std::string& members, std::size_t dataSize = 4) {
    return model(R"({"t":{)" + members + "}}", dataSize);
}

std::string shaped(const std::string& items) {
    return tensor(R"("dtype":"U8","shape":[)" + items + R"(],"data_offsets":[0,4])");
}

std::string placed(const std::string& offsets, std::size_t dataSize = 4) {
    return tensor(R"("dtype":"U8","shape":[4],"data_offsets":)" + offsets, dataSize);
}

// Two tensors of two bytes each, in this order.
std::string two(const std::string& first, const std::string& second, std::size_t dataSize) {
    const std::string rest = R"(":{"dtype":"U8","shape":[2],"data_offsets":)";
    return model("{\"a" + rest + first + "},\"b" + rest + second + "}}", dataSize);
}

// Tensors and metadata in a line each, or the error.
std::string described(bool isSound, const SafetensorsData& data, const std::string& err) {
    if (!isSound)
        return err;
    std::string text;
    for (std::size_t i = 0; i < data.tensors.size(); ++i) {
        const TensorInfo& info = *data.tensors.at(i);
        text += data.tensors.keys()[i] + " " + tensorSummary(info) + " " +
                std::to_string(info.dataOffsets.begin) + ".." + std::to_string(info.dataOffsets.end) + "\n";
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

const std::string shapeItem = "Array item in `shape` must be number type, but got ";
const std::string offsetItem = "Array item in `data_offsets` must be number type, but got ";
const std::string offsetCount = "`data_offsets` length must be 2.\n";
const std::string isEmpty =
    "`t` is empty tensors(tensors with 1 dimension being 0), and no data in databuffer, "
    "but `data_offsets` item is provided.\n";

std::string mismatch(const std::string& size, const std::string& given = "4", const char* name = "t") {
    return std::string("Data size mismatch. The size in Tensor `") + name + "` is " + size +
           ", but the size from data_offsets is " + given + "\n";
}

std::string lastEnd(const std::string& end, const std::string& dataSize = "4") {
    return "The last tensor's data_offset.END(" + end + ") must be equal to databufer size " + dataSize +
           ".\n";
}

std::string beginAboveEnd(const std::string& begin, const std::string& end) {
    return "t.data_offsets.BEGIN " + begin + " must be less than or equal to data_offsets.END " + end + "\n";
}

std::string exceeds(const std::string& which, const std::string& offset) {
    return "Tensor `t`.data_offset." + which + " " + offset + " exceeds databuffer size 4.\n";
}

} // namespace

class TestSafetensorsFile : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(_dir.isValid()); }

    void reading_data() {
        const std::string huge = "18446744073709551615";
        const std::string wholeRange = "9223372036854775808"; // 2^63, as far as doubles tell
        const std::string limit = "Header JSON size exceeds the limit(104857600).\n";
        addRows<std::string, std::string>({
            // The file.
            {"smallest header", sizeField(4) + "{}  data", ""},
            {"header past the end", sizeField(9) + "{}      ", "Header size 9 + 8 exceeds input size 16 .\n"},
            {"limit in a small file", sizeField(104857601) + "{}      ",
             "Header size 104857601 + 8 exceeds input size 16 .\n"},
            {"size that does not wrap", sizeField(0 - std::uint64_t{9}) + "{}      ",
             "Header size 18446744073709551607 + 8 exceeds input size 16 .\n"},
            {"size that wraps to zero", sizeField(0 - std::uint64_t{8}) + "{}      ", limit},
            // The header and its metadata.
            {"no tensors", model("{}      "), ""},
            {"header cut short", model(R"({"t":{"dtype":"U8")"), "JSON parse error: input is corrupted\n"},
            {"tensor twice", model(R"({"t":null,"t":null})"), "JSON parse error: duplicated key found\n"},
            {"array as root", model("[1,2,3,4]"), "JSON root elements must be object(dict)\n"},
            {"only metadata", model(R"({"__metadata__":{"b":"2","a":""}})"), "b=2\na=\n"},
            {"metadata with a number", model(R"({"__metadata__":{"a":"1","b":2}})"),
             "`b` must be string value.\n"},
            // Members of a tensor.
            {"no dtype", tensor(R"("shape":[4],"data_offsets":[0,4])"), "`t` does not have `dtype` item.\n"},
            {"no shape", tensor(R"("dtype":"U8","data_offsets":[0,4])"), "`t` does not have `shape` item.\n"},
            {"no offsets", tensor(R"("dtype":"U8","shape":[4])"), "`t` does not have `data_offsets` item.\n"},
            {"other members and another order",
             tensor(R"("x":[{}],"data_offsets":[0,4],"shape":[4],"dtype":"U8")"), "t U8 [4] 0..4\n"},
            {"dtype in lower case", tensor(R"("dtype":"f16")"), "Unknown `dtype` string: f16.\n"},
            {"dimension is an array", shaped("4,[4]"), shapeItem + "array.\n"},
            {"scalar", tensor(R"("dtype":"F32","shape":[],"data_offsets":[0,4])"), "t F32 [] 0..4\n"},
            {"eight dimensions are not checked", shaped("9,9,9,9,9,9,9,9"),
             "t U8 [9, 9, 9, 9, 9, 9, 9, 9] 0..4\n"},
            {"nine dimensions", shaped("1,1,1,1,1,1,1,1,1"),
             "`shape` length must be less than 8 but got 8.\n"},
            {"empty tensor", tensor(R"("dtype":"U8","shape":[0,3])"), "t U8 [0, 3] 0..0\n"},
            {"empty tensor with offsets", tensor(R"("dtype":"U8","shape":[0,3],"data_offsets":[0,0])"),
             isEmpty},
            {"dimension cut to zero", shaped("0.9"), isEmpty},
            {"fractional dimension", shaped("4.9"), "t U8 [4] 0..4\n"},
            {"offsets are an object", placed("{}"),
             "`data_offsets` value must be JSON array, but got object.\n"},
            {"three offsets", placed("[0,4,8]"), offsetCount},
            {"begin above end", placed("[4,0]"),
             beginAboveEnd("4", "0") + mismatch("4", "18446744073709551612") + lastEnd("0")},
            {"begin above end of eight dimensions",
             tensor(R"("dtype":"U8","shape":[1,1,1,1,1,1,1,1],"data_offsets":[9,4])"),
             beginAboveEnd("9", "4")},
            {"begin and end past the data", placed("[5,9]"),
             exceeds("BEGIN", "5") + exceeds("END", "9") + lastEnd("9")},
            {"size does not match", placed("[0,3]", 3), mismatch("4", "3")},
            {"data after the last tensor", placed("[0,4]", 5), lastEnd("4", "5")},
            {"gap before the first tensor", placed("[1,5]", 5), "t U8 [4] 1..5\n"},
            {"negative end", placed("[0,-1]"), exceeds("END", huge) + mismatch("4", huge) + lastEnd(huge)},
            {"negative begin beyond 64 bits", placed("[-1e30,4]"),
             beginAboveEnd(wholeRange, "4") + exceeds("BEGIN", wholeRange) +
                 mismatch("4", "9223372036854775812")},
            {"negative dimension", shaped("-1"), mismatch(huge)},
            {"infinite dimension", shaped("1e400"), mismatch(huge)},
            {"dimensions that would wrap to zero", shaped("4294967296,4294967296"), mismatch(huge)},
            {"element size that would wrap to zero",
             tensor(R"("dtype":"F64","shape":[2305843009213693952],"data_offsets":[0,4])"), mismatch(huge)},
            {"dimensions that just fit", shaped("4294967296,2147483648"), mismatch(wholeRange)},
            {"faults of two tensors", two("[0,1]", "[1,2]", 2),
             mismatch("2", "1", "a") + mismatch("2", "1", "b")},
            {"last of the header is not last of the data", two("[2,4]", "[0,2]", 4), lastEnd("2")},
            {"tensors that overlap", two("[0,2]", "[0,2]", 2), "a U8 [2] 0..2\nb U8 [2] 0..2\n"},
            {"no last tensor where one is empty",
             model(R"({"e":{"dtype":"U8","shape":[0]},"a":{"dtype":"U8","shape":[2],"data_offsets":[0,2]}})",
                   4),
             "e U8 [0] 0..0\na U8 [2] 0..2\n"},
        });
    }
    void reading() {
        const auto& [bytes, expected] = row<std::string, std::string>();
        const std::string path = write(bytes);
        QCOMPARE(readByWholeFile(path), expected);
        QCOMPARE(readByHeader(path), expected);
    }

    void everyDType() {
        const std::pair<std::string, std::size_t> dtypes[] = {
            {"BOOL", 1}, {"U8", 1},  {"I8", 1},  {"I16", 2}, {"U16", 2}, {"F16", 2}, {"BF16", 2},
            {"I32", 4},  {"U32", 4}, {"F32", 4}, {"F64", 8}, {"I64", 8}, {"U64", 8}};
        for (const auto& [text, size] : dtypes) {
            const std::string end = std::to_string(3 * size);
            write(
                tensor(R"("dtype":")" + text + R"(","shape":[3],"data_offsets":[0,)" + end + "]", 3 * size));
            QCOMPARE(readByHeader(path()), "t " + text + " [3] 0.." + end + "\n");
        }
        QCOMPARE(static_cast<int>(DType::UInt64), 12);
    }

    void dataIsNotRead() {
        const std::string bytes =
            tensor(R"("dtype":"F32","shape":[25000000000],"data_offsets":[0,100000000000])", 0);
        if (write(bytes);
            !QFile::resize(QString::fromStdString(path()), qint64(bytes.size()) + 100'000'000'000))
            QSKIP("no sparse files here");
        QCOMPARE(readByHeader(path()), "t F32 [25000000000] 0..100000000000\n");
        QFile::remove(QString::fromStdString(path()));
    }

private:
    [[nodiscard]] std::string path() const { return _dir.filePath("модель 模型.safetensors").toStdString(); }
    std::string write(const std::string& bytes) const {
        std::ofstream(path(), std::ios::binary) << bytes;
        return path();
    }

    QTemporaryDir _dir;
};

QTEST_APPLESS_MAIN(TestSafetensorsFile)
#include "tst_safetensorsfile.moc"
