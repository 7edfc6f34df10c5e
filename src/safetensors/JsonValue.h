#pragma once

#include "safetensors/OrderedDict.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

class JsonValue;
using JsonArray = std::vector<JsonValue>;
using JsonObject = OrderedDict<JsonValue>;

enum class JsonKind : std::uint8_t { Unknown, Null, Boolean, Number, String, Array, Object };

enum class JsonError : std::uint8_t {
    NoError,
    Undefined,
    InvalidToken,
    UnknownType,
    MemoryAllocation,
    Corrupted,
    DuplicatedKey
};

// Owns a value on the heap and copies it when copied, so that a recursive type can hold itself.
template <typename T>
class JsonBox {
public:
    explicit JsonBox(T value) : _value(std::make_unique<T>(std::move(value))) {}
    // The value of the other box is null only after a move.
    JsonBox(const JsonBox& other) : _value(other._value ? std::make_unique<T>(*other._value) : nullptr) {}
    JsonBox(JsonBox&&) noexcept = default;
    JsonBox& operator=(const JsonBox& other) { return *this = JsonBox(other); }
    JsonBox& operator=(JsonBox&&) noexcept = default;
    ~JsonBox() = default;

    [[nodiscard]] const T* get() const { return _value.get(); }

private:
    std::unique_ptr<T> _value;
};

// One value of a JSON text with everything below it: a kind and one word of payload. Copies are deep.
class JsonValue {
public:
    JsonValue() = default;
    explicit JsonValue(std::nullptr_t) : _payload(nullptr) {}
    explicit JsonValue(bool value) : _payload(value) {}
    explicit JsonValue(double value) : _payload(value) {}
    explicit JsonValue(std::string value) : _payload(JsonBox(std::move(value))) {}
    explicit JsonValue(JsonArray value) : _payload(JsonBox(std::move(value))) {}
    explicit JsonValue(JsonObject value) : _payload(JsonBox(std::move(value))) {}

    [[nodiscard]] JsonKind kind() const { return static_cast<JsonKind>(_payload.index()); }

    // Null when the value is of another kind; valid as long as the value is not changed.
    [[nodiscard]] const bool* boolean() const { return std::get_if<bool>(&_payload); }
    [[nodiscard]] const double* number() const { return std::get_if<double>(&_payload); }
    [[nodiscard]] const std::string* string() const { return boxed<std::string>(); }
    [[nodiscard]] const JsonArray* array() const { return boxed<JsonArray>(); }
    [[nodiscard]] const JsonObject* object() const { return boxed<JsonObject>(); }

private:
    // In the order of JsonKind.
    using Payload = std::variant<std::monostate, std::nullptr_t, bool, double, JsonBox<std::string>,
                                 JsonBox<JsonArray>, JsonBox<JsonObject>>;

    template <typename T>
    [[nodiscard]] const T* boxed() const {
        const auto* const box = std::get_if<JsonBox<T>>(&_payload);
        return box ? box->get() : nullptr;
    }

    Payload _payload;
};

[[nodiscard]] std::string_view jsonTypeName(JsonKind kind);
[[nodiscard]] std::string_view jsonTypeName(const JsonValue& value);
[[nodiscard]] std::string_view jsonErrorText(JsonError error);
