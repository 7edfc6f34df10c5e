#pragma once

#include "safetensors/OrderedDict.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// A model file is an 8-byte header size (little-endian), that many bytes of JSON, and the tensors' data.

enum class DType : std::uint8_t {
    Bool,
    UInt8,
    Int8,
    Int16,
    UInt16,
    Float16,
    BFloat16,
    Int32,
    UInt32,
    Float32,
    Float64,
    Int64,
    UInt64
};

[[nodiscard]] std::optional<DType> dtypeFromText(std::string_view text);
[[nodiscard]] std::string_view dtypeText(DType dtype);

struct TensorInfo {
    struct Offsets {
        std::uint64_t begin = 0;
        std::uint64_t end = 0; // exclusive
        bool operator==(const Offsets&) const = default;
    };

    DType dtype = DType::Bool;
    std::vector<std::uint64_t> shape;
    Offsets dataOffsets; // in the data area
    bool operator==(const TensorInfo&) const = default;
};

struct SafetensorsData {
    OrderedDict<TensorInfo> tensors;
    OrderedDict<std::string> metadata;
    std::vector<std::uint8_t> storage; // the data area, where the caller wants it in memory
    std::uint64_t headerSize = 0;
    bool operator==(const SafetensorsData&) const = default;
};

inline constexpr std::size_t safetensorsPrefixSize = 8;
inline constexpr std::size_t safetensorsSmallestFile = 16;
inline constexpr std::uint64_t safetensorsSmallestHeader = 4;
inline constexpr std::uint64_t safetensorsLargestHeader = 104857600;
inline constexpr std::size_t safetensorsDimensionLimit = 8;

// An operation that fails appends a line about it to `err` and returns false. Messages and paths are in
// UTF-8.

[[nodiscard]] bool readWholeFile(const std::string& path, std::vector<std::uint8_t>& out, std::string& err);
[[nodiscard]] bool readWholeStream(std::istream& stream, const std::string& path,
                                   std::vector<std::uint8_t>& out, std::string& err);

// Sets tensors, metadata and header size; a failure leaves `out` as it was.
[[nodiscard]] bool parseSafetensorsHeader(const std::uint8_t* bytes, std::size_t count, SafetensorsData& out,
                                          std::string& warn, std::string& err);

// Reads only the header, and computes the size of the data area from the file's size. Results and messages
// are the same as if the whole file were read.
[[nodiscard]] bool readSafetensorsHeader(const std::string& path, SafetensorsData& out,
                                         std::uint64_t& dataSize, std::string& warn, std::string& err);
[[nodiscard]] bool readSafetensorsHeader(std::istream& stream, const std::string& path, SafetensorsData& out,
                                         std::uint64_t& dataSize, std::string& warn, std::string& err);

// Checks all tensors. If there are faults, `err` is replaced by a line for each of them.
[[nodiscard]] bool validateDataOffsets(const SafetensorsData& data, std::uint64_t dataSize, std::string& err);
[[nodiscard]] bool validateDataOffsets(const SafetensorsData& data, std::string& err);

// Dtype and shape, as in "F16 [320, 4, 3, 3]".
[[nodiscard]] std::string tensorSummary(const TensorInfo& tensor);
