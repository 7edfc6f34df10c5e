#include "safetensors/SafetensorInspector.h"
#include "safetensors/SafetensorsFile.h"
#include "support/Rows.h"

#include <QFile>
#include <QTemporaryDir>

#include <fstream>

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

std::string readByHeader(const std::string& path) {
    SafetensorsData data;
    std::uint64_t dataSize = 0;
    std::string warn;
    std::string err;
    const bool isSound =
        readSafetensorsHeader(path, data, dataSize, warn, err) && validateDataOffsets(data, dataSize, err);
    return warn + described(isSound, data, err);
}

std::string mismatch(const std::string& size, const std::string& given = "4") {
    return "Data size mismatch. The size in Tensor `t` is " + size + ", but the size from data_offsets is " +
           given + "\n";
}

std::string lastEnd(const std::string& end, const std::string& dataSize = "4") {
    return "The last tensor's data_offset.END(" + end + ") must be equal to databufer size " + dataSize +
           ".\n";
}

} // namespace

class TestSafetensorsFile : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(_dir.isValid()); }

    void reading_data() {
        const std::string huge = "18446744073709551615";
        const std::string wholeRange = "9223372036854775808"; // 2^63, which a double holds exactly
        addRows<std::string, std::string>({
            // The file.
            {"smallest header", sizeField(4) + "{}  data", ""},
            {"size that does not wrap", sizeField(0 - std::uint64_t{9}) + "{}      ",
             "Header size 18446744073709551607 + 8 exceeds input size 16 .\n"},
            {"size that wraps to zero", sizeField(0 - std::uint64_t{8}) + "{}      ",
             "Header JSON size exceeds the limit(104857600).\n"},
            // The header and its metadata.
            {"header cut short", model(R"({"t":{"dtype":"U8")"), "JSON parse error: input is corrupted\n"},
            {"array as root", model("[1,2,3,4]"), "JSON root elements must be object(dict)\n"},
            {"only metadata", model(R"({"__metadata__":{"b":"2","a":""}})"), "b=2\na=\n"},
            {"metadata with a number", model(R"({"__metadata__":{"a":"1","b":2}})"),
             "`b` must be string value.\n"},
            // Members of a tensor.
            {"no dtype", tensor(R"("shape":[4],"data_offsets":[0,4])"), "`t` does not have `dtype` item.\n"},
            {"other members and another order",
             tensor(R"("x":[{}],"data_offsets":[0,4],"shape":[4],"dtype":"U8")"), "t U8 [4] 0..4\n"},
            {"dtype in lower case", tensor(R"("dtype":"f16")"), "Unknown `dtype` string: f16.\n"},
            {"scalar", tensor(R"("dtype":"F32","shape":[],"data_offsets":[0,4])"), "t F32 [] 0..4\n"},
            {"nine dimensions", shaped("1,1,1,1,1,1,1,1,1"),
             "`shape` length must be less than 8 but got 8.\n"},
            {"empty tensor", tensor(R"("dtype":"U8","shape":[0,3])"), "t U8 [0, 3] 0..0\n"},
            {"empty tensor with offsets", tensor(R"("dtype":"U8","shape":[0,3],"data_offsets":[0,0])"),
             "`t` is empty tensors(tensors with 1 dimension being 0), and no data in databuffer, but "
             "`data_offsets` item is provided.\n"},
            {"offsets are an object", placed("{}"),
             "`data_offsets` value must be JSON array, but got object.\n"},
            {"begin above end", placed("[4,0]"),
             "t.data_offsets.BEGIN 4 must be less than or equal to data_offsets.END 0\n" +
                 mismatch("4", "18446744073709551612") + lastEnd("0")},
            {"size does not match", placed("[0,3]", 3), mismatch("4", "3")},
            {"negative end", placed("[0,-1]"),
             "Tensor `t`.data_offset.END " + huge + " exceeds databuffer size 4.\n" + mismatch("4", huge) +
                 lastEnd(huge)},
            {"dimensions that would wrap to zero", shaped("4294967296,4294967296"), mismatch(huge)},
            {"dimensions that just fit", shaped("4294967296,2147483648"), mismatch(wholeRange)},
            {"tensors that overlap",
             model(R"({"a":{"dtype":"U8","shape":[2],"data_offsets":[0,2]},)"
                   R"("b":{"dtype":"U8","shape":[2],"data_offsets":[0,2]}})",
                   2),
             "a U8 [2] 0..2\nb U8 [2] 0..2\n"},
            {"no last tensor where one is empty",
             model(R"({"e":{"dtype":"U8","shape":[0]},"a":{"dtype":"U8","shape":[2],"data_offsets":[0,2]}})",
                   4),
             "e U8 [0] 0..0\na U8 [2] 0..2\n"},
        });
    }
    void reading() {
        const auto& [bytes, expected] = row<std::string, std::string>();
        QCOMPARE(readByHeader(write(bytes)), expected);
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
