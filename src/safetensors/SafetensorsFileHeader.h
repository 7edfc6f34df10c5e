#pragma once

#include "safetensors/SafetensorsFile.h"

// The header size that the first bytes of a file of `fileSize` bytes declare, checked against the limits.
[[nodiscard]] bool readHeaderSize(const std::uint8_t* prefix, std::uint64_t fileSize,
                                  std::uint64_t& headerSize, std::string& err);

// Sets tensors and metadata; a failure leaves `out` as it was.
[[nodiscard]] bool parseHeaderText(const std::string& text, SafetensorsData& out, std::string& err);
