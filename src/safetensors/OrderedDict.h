#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Values by key, with the keys in order of first insertion. Keys are compared by their bytes. A small
// dictionary is searched linearly, one whose keys were inserted in ascending order by bisection; any other
// one uses a map.
template <typename T>
class OrderedDict {
public:
    [[nodiscard]] std::size_t size() const { return _values.size(); }
    [[nodiscard]] const std::vector<std::string>& keys() const { return _keys; }
    [[nodiscard]] bool count(std::string_view key) const { return indexOf(key) != size(); }

    // Null for an index that is not below the number of keys.
    [[nodiscard]] const T* at(std::size_t index) const {
        return index < _values.size() ? &_values[index] : nullptr;
    }
    // Copies the value to `out`. Returns false and leaves `out` unchanged where the other overload returns
    // null.
    [[nodiscard]] bool at(std::size_t index, T& out) const {
        const T* const value = at(index);
        if (value)
            out = *value;
        return value != nullptr;
    }
    // Null for a key that does not exist.
    [[nodiscard]] const T* find(std::string_view key) const { return at(indexOf(key)); }

    // A key that exists keeps its index and gets the new value.
    void insert(std::string key, T value) {
        if (const std::size_t index = indexOf(key); index != size())
            _values[index] = std::move(value);
        else
            append(std::move(key), std::move(value));
    }
    // Returns false and changes nothing if the key exists.
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
    static constexpr std::size_t linearSearchLimit = 8;
    static constexpr std::size_t firstCapacity = 4;

    // size() for a key that does not exist.
    [[nodiscard]] std::size_t indexOf(std::string_view key) const {
        if (!_indexByKey.empty()) {
            const auto found = _indexByKey.find(key);
            return found == _indexByKey.end() ? size() : found->second;
        }
        auto found = _keys.end();
        if (size() <= linearSearchLimit)
            found = std::find(_keys.begin(), _keys.end(), key);
        else if (key <= _keys.back()) // a key inserted in order is behind the last one and needs no search
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
        // Sorted keys can be found by bisection, so the map is built at the first one out of order.
        if (!_isSorted && size() >= linearSearchLimit)
            addToMap(key);
        _keys.push_back(std::move(key));
        _values.push_back(std::move(value));
    }

    void addToMap(const std::string& key) {
        if (_indexByKey.empty()) {
            for (std::size_t index = 0; index < size(); ++index)
                _indexByKey.emplace(_keys[index], index);
        }
        // The index that the key gets when the caller appends it.
        _indexByKey.emplace(key, size());
    }

    std::vector<std::string> _keys;
    std::vector<T> _values;
    std::map<std::string, std::size_t, std::less<>> _indexByKey; // empty while the keys are sorted or few
    bool _isSorted = true;
};
