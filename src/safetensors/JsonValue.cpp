#include "safetensors/JsonValue.h"

std::string_view jsonTypeName(JsonKind kind) {
    switch (kind) {
    case JsonKind::Null:
        return "null";
    case JsonKind::Boolean:
        return "boolean";
    case JsonKind::Number:
        return "number";
    case JsonKind::String:
        return "string";
    case JsonKind::Array:
        return "array";
    case JsonKind::Object:
        return "object";
    case JsonKind::Unknown:
        break;
    }
    return "[[invalid]]";
}

std::string_view jsonTypeName(const JsonValue& value) {
    return jsonTypeName(value.kind());
}

std::string_view jsonErrorText(JsonError error) {
    switch (error) {
    case JsonError::NoError:
        return "no error";
    case JsonError::Undefined:
        return "undefined";
    case JsonError::InvalidToken:
        return "invalid token";
    case JsonError::UnknownType:
        return "unknown type";
    case JsonError::MemoryAllocation:
        return "memory allocation error";
    case JsonError::Corrupted:
        return "input is corrupted";
    case JsonError::DuplicatedKey:
        return "duplicated key found";
    }
    return "unknown error";
}
