#include "safetensors/SafetensorsFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Reading {
    bool isSound = false;
    SafetensorsData data;
    std::uint64_t dataSize = 0;
    std::string err;
};

Reading readAll(const std::string& file) {
    Reading reading;
    std::istringstream stream(file);
    std::vector<std::uint8_t> bytes;
    std::string warn;
    if (!readWholeStream(stream, "file", bytes, reading.err) ||
        !parseSafetensorsHeader(bytes.data(), bytes.size(), reading.data, warn, reading.err))
        return reading;
    const std::size_t start = safetensorsPrefixSize + reading.data.headerSize;
    reading.data.storage.assign(bytes.begin() + static_cast<std::ptrdiff_t>(start), bytes.end());
    reading.dataSize = reading.data.storage.size();
    reading.isSound = validateDataOffsets(reading.data, reading.err);
    reading.data.storage.clear();
    return reading;
}

Reading readHeaderOnly(const std::string& file) {
    Reading reading;
    std::istringstream stream(file);
    std::string warn;
    reading.isSound =
        readSafetensorsHeader(stream, "file", reading.data, reading.dataSize, warn, reading.err) &&
        validateDataOffsets(reading.data, reading.dataSize, reading.err);
    return reading;
}

// Both functions give the same result, and a failure always has a message.
void compareReadings(const std::string& file) {
    const Reading whole = readAll(file);
    const Reading header = readHeaderOnly(file);
    if (whole.isSound != header.isSound || !(whole.data == header.data) ||
        whole.dataSize != header.dataSize || whole.err != header.err || whole.isSound != whole.err.empty())
        std::abort();
    for (std::size_t i = 0; i < whole.data.tensors.size(); ++i) {
        const TensorInfo& tensor = *whole.data.tensors.at(i);
        if (tensorSummary(tensor).empty() || tensor.shape.size() > safetensorsDimensionLimit)
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    const std::string input(bytes, bytes + count);
    compareReadings(input);
    if (count == 0)
        return 0;
    // Most inputs fail at the header size, so it is made to fit here; the first byte is the size of the data
    // area.
    std::string file{static_cast<char>(count - 1), static_cast<char>((count - 1) >> 8), 0, 0, 0, 0, 0, 0};
    file += input.substr(1);
    file.append(bytes[0], '\0');
    compareReadings(file);
    return 0;
}
