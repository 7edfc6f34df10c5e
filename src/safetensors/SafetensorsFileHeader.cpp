#include "safetensors/SafetensorsFileHeader.h"

#include "safetensors/JsonParser.h"

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <utility>

namespace {

constexpr std::string_view metadataKey = "__metadata__";
constexpr std::size_t offsetCount = 2;

bool failHeader(std::string& err, std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts)
        err += part;
    err += '\n';
    return false;
}

// Truncates toward zero and saturates. A negative number becomes a huge one, which every size check rejects.
std::uint64_t unsignedFromNumber(double number) {
    constexpr double signedEnd = 9223372036854775808.0;
    constexpr double unsignedEnd = 18446744073709551616.0;
    if (number >= unsignedEnd)
        return std::numeric_limits<std::uint64_t>::max();
    if (number >= 0)
        return static_cast<std::uint64_t>(number);
    return static_cast<std::uint64_t>(number <= -signedEnd ? std::numeric_limits<std::int64_t>::min()
                                                           : static_cast<std::int64_t>(number));
}

bool parseDType(const JsonValue& value, DType& out, std::string& err) {
    const std::string* const text = value.string();
    if (!text)
        return failHeader(err, {"`dtype` item should be string type but got ", jsonTypeName(value), "."});
    const auto dtype = dtypeFromText(*text);
    if (!dtype)
        return failHeader(err, {"Unknown `dtype` string: ", *text, "."});
    out = *dtype;
    return true;
}

bool parseShape(const JsonValue& value, std::vector<std::uint64_t>& out, std::string& err) {
    const JsonArray* const items = value.array();
    if (!items)
        return failHeader(err, {"`shape` value must be JSON array, but got ", jsonTypeName(value), "."});
    const std::string limit = std::to_string(safetensorsDimensionLimit);
    out.reserve(std::min(items->size(), safetensorsDimensionLimit));
    for (const JsonValue& item : *items) {
        if (!item.number())
            return failHeader(
                err, {"Array item in `shape` must be number type, but got ", jsonTypeName(item), "."});
        // After the type: a ninth item that is no number is reported as such.
        if (out.size() == safetensorsDimensionLimit)
            return failHeader(err, {"`shape` length must be less than ", limit, " but got ", limit, "."});
        out.push_back(unsignedFromNumber(*item.number()));
    }
    return true;
}

bool parseOffsets(const JsonValue& value, TensorInfo::Offsets& out, std::string& err) {
    const JsonArray* const items = value.array();
    if (!items)
        return failHeader(err,
                          {"`data_offsets` value must be JSON array, but got ", jsonTypeName(value), "."});
    std::vector<std::uint64_t> offsets;
    for (const JsonValue& item : *items) {
        if (!item.number())
            return failHeader(
                err, {"Array item in `data_offsets` must be number type, but got ", jsonTypeName(item), "."});
        offsets.push_back(unsignedFromNumber(*item.number()));
        if (offsets.size() > offsetCount) // the length is wrong, however many follow
            break;
    }
    if (offsets.size() != offsetCount)
        return failHeader(err, {"`data_offsets` length must be 2."});
    out = {offsets[0], offsets[1]};
    return true;
}

// Which of a tensor's members have been seen.
struct TensorMembers {
    bool hasDType = false;
    bool hasShape = false;
    bool hasOffsets = false;
};

bool parseTensorMember(const std::string& name, const JsonValue* value, TensorInfo& tensor,
                       TensorMembers& seen, std::string& err) {
    const bool isDType = name == "dtype";
    const bool isShape = name == "shape";
    const bool isOffsets = name == "data_offsets";
    // Unknown members are no fault.
    if (!isDType && !isShape && !isOffsets)
        return true;
    if (!value)
        return failHeader(err, {"Internal error. `", name, "` has invalid object."});
    seen.hasDType |= isDType;
    seen.hasShape |= isShape;
    seen.hasOffsets |= isOffsets;
    return isDType   ? parseDType(*value, tensor.dtype, err)
           : isShape ? parseShape(*value, tensor.shape, err)
                     : parseOffsets(*value, tensor.dataOffsets, err);
}

bool checkTensorMembers(const std::string& key, const TensorInfo& tensor, const TensorMembers& seen,
                        std::string& err) {
    if (!seen.hasDType)
        return failHeader(err, {"`", key, "` does not have `dtype` item."});
    if (!seen.hasShape)
        return failHeader(err, {"`", key, "` does not have `shape` item."});
    // A scalar has no dimensions and is not empty.
    const bool isEmpty = std::find(tensor.shape.begin(), tensor.shape.end(), 0U) != tensor.shape.end();
    if (isEmpty && seen.hasOffsets)
        return failHeader(err, {"`", key,
                                "` is empty tensors(tensors with 1 dimension being 0), and no data in "
                                "databuffer, but `data_offsets` item is provided."});
    if (!isEmpty && !seen.hasOffsets)
        return failHeader(err, {"`", key, "` does not have `data_offsets` item."});
    return true;
}

bool parseTensor(const std::string& key, const JsonValue& value, TensorInfo& tensor, std::string& err) {
    const JsonObject* const object = value.object();
    if (!object)
        return failHeader(err, {"`", key, "` value must be JSON object."});
    TensorMembers seen;
    for (std::size_t i = 0; i < object->size(); ++i) {
        if (!parseTensorMember(object->keys()[i], object->at(i), tensor, seen, err))
            return false;
    }
    return checkTensorMembers(key, tensor, seen, err);
}

bool parseMetadata(const JsonValue& value, OrderedDict<std::string>& metadata, std::string& err) {
    const JsonObject* const object = value.object();
    if (!object)
        return failHeader(err, {"`__metadata__` value must be JSON object."});
    for (std::size_t i = 0; i < object->size(); ++i) {
        const std::string& key = object->keys()[i];
        const JsonValue* const item = object->at(i);
        if (!item)
            return failHeader(err, {"[Internal error] Invalid object found in __metadata__, at index ",
                                    std::to_string(i), "."});
        if (!item->string())
            return failHeader(err, {"`", key, "` must be string value."});
        if (!metadata.insertNew(key, *item->string()))
            return failHeader(err, {"Duplicate key `", key, "` found in __metadata__."});
    }
    return true;
}

bool parseRootMember(const std::string& key, const JsonValue* value, SafetensorsData& data,
                     std::string& err) {
    if (key == metadataKey)
        return value ? parseMetadata(*value, data.metadata, err)
                     : failHeader(err, {"Internal error. Invalid object in __metadata__."});
    // Only a guard: the parser has rejected repeated keys already.
    if (data.tensors.count(key))
        return failHeader(err, {"Duplicate key `", key, "` found."});
    if (!value)
        return failHeader(err, {"Internal error. Invalid object in `", key, "`."});
    TensorInfo tensor;
    if (!parseTensor(key, *value, tensor, err))
        return false;
    data.tensors.insert(key, std::move(tensor));
    return true;
}

} // namespace

bool readHeaderSize(const std::uint8_t* prefix, std::uint64_t fileSize, std::uint64_t& headerSize,
                    std::string& err) {
    std::uint64_t size = 0;
    // Little-endian, so the last byte is the most significant one.
    for (std::size_t i = safetensorsPrefixSize; i-- > 0;)
        size = (size << 8) | prefix[i];
    if (size < safetensorsSmallestHeader)
        return failHeader(err, {"Header size is too short."});
    // A size close to 2^64 wraps around here and is rejected by the limit below.
    if (size + safetensorsPrefixSize > fileSize)
        return failHeader(err, {"Header size ", std::to_string(size), " + 8 exceeds input size ",
                                std::to_string(fileSize), " ."});
    if (size > safetensorsLargestHeader)
        return failHeader(
            err, {"Header JSON size exceeds the limit(", std::to_string(safetensorsLargestHeader), ")."});
    headerSize = size;
    return true;
}

bool parseHeaderText(const std::string& text, SafetensorsData& out, std::string& err) {
    const char* cursor = text.c_str();
    JsonValue root;
    // The text behind the value is not read: writers fill the header up with blanks.
    if (const JsonError error = jsonParse(cursor, root); error != JsonError::NoError)
        return failHeader(err, {"JSON parse error: ", jsonErrorText(error)});
    const JsonObject* const object = root.object();
    if (!object)
        return failHeader(err, {"JSON root elements must be object(dict)"});

    // Collected apart, so that a failure leaves `out` unchanged.
    SafetensorsData collected;
    for (std::size_t i = 0; i < object->size(); ++i) {
        if (!parseRootMember(object->keys()[i], object->at(i), collected, err))
            return false;
    }
    out.tensors = std::move(collected.tensors);
    out.metadata = std::move(collected.metadata);
    return true;
}

bool parseSafetensorsHeader(const std::uint8_t* bytes, std::size_t count, SafetensorsData& out, std::string&,
                            std::string& err) {
    if (count < safetensorsSmallestFile)
        return failHeader(err, {"Size is too short."});
    std::uint64_t headerSize = 0;
    if (!readHeaderSize(bytes, count, headerSize, err))
        return false;
    const std::uint8_t* const text = bytes + safetensorsPrefixSize;
    // A copy, as the parser needs a NUL byte behind the text.
    if (!parseHeaderText(std::string(text, text + headerSize), out, err))
        return false;
    out.headerSize = headerSize;
    return true;
}
