#pragma once

#include "safetensors/SafetensorsFile.h"

#include <optional>

[[nodiscard]] std::optional<DType> dtypeFromText(std::string_view text);
[[nodiscard]] std::string_view dtypeText(DType dtype);
[[nodiscard]] std::uint64_t dtypeSize(DType dtype);
