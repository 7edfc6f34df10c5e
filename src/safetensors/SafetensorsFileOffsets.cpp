#include "safetensors/SafetensorsFileDType.h"

#include <limits>
#include <utility>

namespace {

// A wrapped product could pass for a small one.
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
    return saturatedProduct(count, dtypeSize(tensor.dtype));
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
    if (size != end - begin)
        faults += "Data size mismatch. The size in Tensor `" + key + "` is " + std::to_string(size) +
                  ", but the size from data_offsets is " + std::to_string(end - begin) + "\n";
    return faults;
}

} // namespace

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
