#include "Require.h"
#include "safetensors/JsonParser.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

// Requires equal trees that keep what the reader promises: known kinds, and keys that can be looked up.
void requireEqual(const JsonValue& left, const JsonValue& right, int depth) {
    require(left.kind() == right.kind() && left.kind() != JsonKind::Unknown && depth <= jsonDepthLimit);
    if (const auto* text = left.string())
        require(*text == *right.string());
    if (const auto* number = left.number())
        require(*number == *right.number());
    if (const auto* array = left.array()) {
        require(array->size() == right.array()->size());
        for (std::size_t i = 0; i < array->size(); ++i)
            requireEqual((*array)[i], (*right.array())[i], depth + 1);
    }
    if (const auto* object = left.object()) {
        require(object->keys() == right.object()->keys() && object->size() == object->keys().size());
        for (std::size_t i = 0; i < object->size(); ++i) {
            require(object->find(object->keys()[i]) == object->at(i));
            requireEqual(*object->at(i), *right.object()->at(i), depth + 1);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    const std::string text(bytes, bytes + count);
    const char* cursor = text.c_str();
    JsonValue value;
    const JsonError error = jsonParse(cursor, value);
    require(cursor >= text.c_str() && cursor <= text.c_str() + text.size());
    if (error != JsonError::NoError)
        return 0;
    const JsonValue copy = value;
    requireEqual(copy, value, 0);

    // The part that was read gives the same value when it is read alone.
    const std::string alone(text.c_str(), cursor);
    const char* aloneCursor = alone.c_str();
    JsonValue again;
    require(jsonParse(aloneCursor, again) == JsonError::NoError && *aloneCursor == '\0');
    requireEqual(again, value, 0);
    return 0;
}
