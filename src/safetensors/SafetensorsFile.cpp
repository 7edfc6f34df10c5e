#include "safetensors/SafetensorsFileHeader.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <limits>
#include <new>
#include <utility>

#ifdef _WIN32
#define NOMINMAX
#include <windows.h>
#endif

namespace {

// --- data types ------------------------------------------------------------------------------------

struct DTypeRow {
    std::string_view text;
    std::uint64_t size; // in bytes
};

// In the order of DType.
constexpr std::array<DTypeRow, 13> dtypeRows{{{"BOOL", 1},
                                              {"U8", 1},
                                              {"I8", 1},
                                              {"I16", 2},
                                              {"U16", 2},
                                              {"F16", 2},
                                              {"BF16", 2},
                                              {"I32", 4},
                                              {"U32", 4},
                                              {"F32", 4},
                                              {"F64", 8},
                                              {"I64", 8},
                                              {"U64", 8}}};

const DTypeRow& dtypeRow(DType dtype) {
    return dtypeRows[static_cast<std::size_t>(dtype)];
}

// --- bytes -----------------------------------------------------------------------------------------

#ifdef _WIN32
// Empty for a path that is no UTF-8, which then fails to open.
std::filesystem::path nativeModelPath(const std::string& path) {
    const auto convert = [&path](wchar_t* out, int size) {
        return MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, path.data(), static_cast<int>(path.size()),
                                   out, size);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return wide;
}
#else
std::filesystem::path nativeModelPath(const std::string& path) {
    return path;
}
#endif

bool openModelFile(std::ifstream& stream, const std::string& path, std::string& err) {
    stream.open(nativeModelPath(path), std::ios::binary);
    if (!stream)
        err += "File open error : " + path + "\n";
    return stream.is_open();
}

bool failModelRead(const std::string& path, std::string& err) {
    err += "File read error. Maybe empty file or invalid file : " + path + "\n";
    return false;
}

// Leaves the stream at its start.
bool measureStream(std::istream& stream, const std::string& path, std::uint64_t& size, std::string& err) {
    // A directory can be opened, and fails at the first read. An empty file only has no next byte.
    stream.peek();
    if (!stream)
        return failModelRead(path, err);
    stream.seekg(0, std::ios::end);
    const std::streamoff end = stream.tellg();
    // A stream that cannot seek has failed by now.
    stream.clear();
    stream.seekg(0, std::ios::beg);
    // The first text has no line end, on purpose.
    if (end < 0)
        err += "Invalid file size : " + path + " (does the path point to a directory?)";
    else if (end == 0)
        err += "File is empty : " + path + "\n";
    // The library gives this number for what has no size, as a directory.
    else if (end == std::numeric_limits<std::int64_t>::max())
        err += "Invalid file size : " + path + "\n";
    size = end < 0 ? 0 : static_cast<std::uint64_t>(end);
    return end > 0 && end != std::numeric_limits<std::int64_t>::max();
}

bool readModelBytes(std::istream& stream, void* out, std::uint64_t count) {
    stream.read(static_cast<char*>(out), static_cast<std::streamsize>(count));
    return static_cast<std::uint64_t>(stream.gcount()) == count;
}

// --- data area -------------------------------------------------------------------------------------

// A product that wraps around could match the size of a small data area.
std::uint64_t saturatedProduct(std::uint64_t left, std::uint64_t right) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint64_t>::max();
    return right != 0 && left > largest / right ? largest : left * right;
}

// In bytes. Zero for a shape at the limit of dimensions.
std::uint64_t tensorDataSize(const TensorInfo& tensor) {
    if (tensor.shape.size() >= safetensorsDimensionLimit)
        return 0;
    std::uint64_t count = 1;
    for (const std::uint64_t dimension : tensor.shape)
        count = saturatedProduct(count, dimension);
    return saturatedProduct(count, dtypeRow(tensor.dtype).size);
}

std::string dataFaults(const std::string& key, const TensorInfo& tensor, std::uint64_t size,
                       std::uint64_t dataSize) {
    const auto [begin, end] = tensor.dataOffsets;
    const std::string area = " exceeds databuffer size " + std::to_string(dataSize) + ".\n";
    std::string faults;
    if (begin > dataSize)
        faults += "Tensor `" + key + "`.data_offset.BEGIN " + std::to_string(begin) + area;
    if (end > dataSize)
        faults += "Tensor `" + key + "`.data_offset.END " + std::to_string(end) + area;
    // An end before the begin wraps around; the caller reports that itself.
    if (size != end - begin)
        faults += "Data size mismatch. The size in Tensor `" + key + "` is " + std::to_string(size) +
                  ", but the size from data_offsets is " + std::to_string(end - begin) + "\n";
    return faults;
}

} // namespace

bool readWholeFile(const std::string& path, std::vector<std::uint8_t>& out, std::string& err) {
    std::ifstream stream;
    return openModelFile(stream, path, err) && readWholeStream(stream, path, out, err);
}

bool readWholeStream(std::istream& stream, const std::string& path, std::vector<std::uint8_t>& out,
                     std::string& err) {
    std::uint64_t size = 0;
    if (!measureStream(stream, path, size, err))
        return false;
    try {
        out.resize(size);
    } catch (const std::exception&) { // more than the memory holds
        err += "Invalid file size : " + path + "\n";
        return false;
    }
    return readModelBytes(stream, out.data(), size) || failModelRead(path, err);
}

bool readSafetensorsHeader(const std::string& path, SafetensorsData& out, std::uint64_t& dataSize,
                           std::string& warn, std::string& err) {
    std::ifstream stream;
    return openModelFile(stream, path, err) && readSafetensorsHeader(stream, path, out, dataSize, warn, err);
}

bool readSafetensorsHeader(std::istream& stream, const std::string& path, SafetensorsData& out,
                           std::uint64_t& dataSize, std::string& warn, std::string& err) {
    std::uint64_t fileSize = 0;
    if (!measureStream(stream, path, fileSize, err))
        return false;
    // parseSafetensorsHeader() reports a file that is too small.
    std::array<std::uint8_t, safetensorsSmallestFile> start{};
    if (fileSize < start.size())
        return parseSafetensorsHeader(start.data(), fileSize, out, warn, err);
    std::uint64_t headerSize = 0;
    if (!readModelBytes(stream, start.data(), safetensorsPrefixSize))
        return failModelRead(path, err);
    if (!readHeaderSize(start.data(), fileSize, headerSize, err))
        return false;
    // At most 100 MiB, and no more than the file has.
    std::string text(headerSize, '\0');
    if (!readModelBytes(stream, text.data(), headerSize))
        return failModelRead(path, err);
    if (!parseHeaderText(text, out, err))
        return false;
    out.headerSize = headerSize;
    // Not below zero, as readHeaderSize() has compared both with the file.
    dataSize = fileSize - safetensorsPrefixSize - headerSize;
    return true;
}

std::optional<DType> dtypeFromText(std::string_view text) {
    for (std::size_t i = 0; i < dtypeRows.size(); ++i) {
        if (dtypeRows[i].text == text)
            return static_cast<DType>(i);
    }
    return std::nullopt;
}

std::string_view dtypeText(DType dtype) {
    return dtypeRow(dtype).text;
}

std::string tensorSummary(const TensorInfo& tensor) {
    std::string text(dtypeRow(tensor.dtype).text);
    text += " [";
    for (std::size_t i = 0; i < tensor.shape.size(); ++i)
        text.append(i == 0 ? "" : ", ").append(std::to_string(tensor.shape[i]));
    return text + "]";
}

bool validateDataOffsets(const SafetensorsData& data, std::uint64_t dataSize, std::string& err) {
    std::string faults;
    std::size_t tensorsWithData = 0;
    for (std::size_t i = 0; i < data.tensors.size(); ++i) {
        const std::string& key = data.tensors.keys()[i];
        const TensorInfo* const tensor = data.tensors.at(i);
        if (!tensor) {
            faults += "Internal error: Failed to get tensor at [" + std::to_string(i) + "]\n";
            continue;
        }
        const auto [begin, end] = tensor->dataOffsets;
        if (begin > end)
            faults += key + ".data_offsets.BEGIN " + std::to_string(begin) +
                      " must be less than or equal to data_offsets.END " + std::to_string(end) + "\n";
        const std::uint64_t size = tensorDataSize(*tensor);
        if (size == 0)
            continue;
        faults += dataFaults(key, *tensor, size, dataSize);
        ++tensorsWithData;
        // Only if every tensor has data, the last one must end where the data area ends.
        if (tensorsWithData == data.tensors.size() && end != dataSize)
            faults += "The last tensor's data_offset.END(" + std::to_string(end) +
                      ") must be equal to databufer size " + std::to_string(dataSize) + ".\n";
    }
    if (faults.empty())
        return true;
    err = std::move(faults);
    return false;
}

bool validateDataOffsets(const SafetensorsData& data, std::string& err) {
    return validateDataOffsets(data, data.storage.size(), err);
}
