#pragma once

#include "safetensors/JsonValue.h"

// How deep arrays and objects may nest. Deeper ones result in JsonError::Corrupted, as parsing, copying and
// destroying are recursive.
inline constexpr int jsonDepthLimit = 512;

// Reads one value at the cursor, which points into a text that ends in a NUL byte, and moves the cursor past
// it. What follows the value is not read. After a failure `out` is unspecified.
[[nodiscard]] JsonError jsonParse(const char*& cursor, JsonValue& out);
