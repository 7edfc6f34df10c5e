#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Values by key, with the keys in order of first insertion. Lookup is by byte-wise order of the keys: small
// dictionaries are searched through, keys that came in order are halved, and only the others pay for a map.
template <typename T>
class OrderedDict {
public:
    [[nodiscard]] std::size_t size() const { return _values.size(); }
    [[nodiscard]] const std::vector<std::string>& keys() const { return _keys; }
    [[nodiscard]] bool count(std::string_view key) const { return placeOf(key) != size(); }

    // Null for an index that is not below the number of keys.
    [[nodiscard]] const T* at(std::size_t index) const {
        return index < _values.size() ? &_values[index] : nullptr;
    }
    // Copies the value; false, with `out` as it was, where the other form gives null.
    [[nodiscard]] bool at(std::size_t index, T& out) const {
        const T* const value = at(index);
        if (value)
            out = *value;
        return value != nullptr;
    }
    // Null for an unknown key.
    [[nodiscard]] const T* find(std::string_view key) const { return at(placeOf(key)); }

    // A known key keeps its place and takes the new value.
    void insert(std::string key, T value) {
        if (const std::size_t place = placeOf(key); place != size())
            _values[place] = std::move(value);
        else
            append(std::move(key), std::move(value));
    }
    // False, with the dictionary as it was, for a known key.
    [[nodiscard]] bool insertNew(std::string key, T value) {
        if (count(key))
            return false;
        append(std::move(key), std::move(value));
        return true;
    }

    bool operator==(const OrderedDict& other) const {
        return _keys == other._keys && _values == other._values;
    }

private:
    static constexpr std::size_t searchedThrough = 8;
    static constexpr std::size_t firstCapacity = 4;

    // The size for an unknown key.
    [[nodiscard]] std::size_t placeOf(std::string_view key) const {
        if (!_places.empty()) {
            const auto found = _places.find(key);
            return found == _places.end() ? size() : found->second;
        }
        auto found = _keys.end();
        if (size() <= searchedThrough)
            found = std::find(_keys.begin(), _keys.end(), key);
        else if (key <= _keys.back())
            found = std::lower_bound(_keys.begin(), _keys.end(), key);
        return found != _keys.end() && *found == key ? static_cast<std::size_t>(found - _keys.begin())
                                                     : size();
    }

    void append(std::string key, T value) {
        if (_keys.empty()) {
            _keys.reserve(firstCapacity);
            _values.reserve(firstCapacity);
        }
        _isSorted = _isSorted && (_keys.empty() || _keys.back() < key);
        if (!_isSorted && size() >= searchedThrough)
            enterPlaces(key);
        _keys.push_back(std::move(key));
        _values.push_back(std::move(value));
    }

    void enterPlaces(const std::string& key) {
        if (_places.empty()) {
            for (std::size_t place = 0; place < size(); ++place)
                _places.emplace(_keys[place], place);
        }
        _places.emplace(key, size());
    }

    std::vector<std::string> _keys;
    std::vector<T> _values;
    std::map<std::string, std::size_t, std::less<>> _places; // of unsorted keys
    bool _isSorted = true;
};
