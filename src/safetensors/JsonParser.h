#pragma once

#include "safetensors/JsonValue.h"

// Arrays and objects inside each other; more ends in JsonError::Corrupted, so that parsing, copying and
// destroying stay within the stack.
inline constexpr int jsonDepthLimit = 512;

// Reads one value at the cursor, which points into a text that ends in a NUL byte, and moves the cursor past
// it. What follows the value is not read. After a failure `out` is not to be used.
[[nodiscard]] JsonError jsonParse(const char*& cursor, JsonValue& out);
