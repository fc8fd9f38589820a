#pragma once

#include <algorithm>
#include <utility>
#include <vector>

namespace quick {

// A map of a few entries that is copied often.
template <typename Key, typename T>
class SortedMap
{
public:
    using Entry = std::pair<Key, T>;

    auto begin() const { return entries.begin(); }
    auto end() const { return entries.end(); }
    // Null when there is none.
    const T* find(const Key& key) const
    {
        const auto place = std::lower_bound(entries.begin(), entries.end(), key, isBefore);
        return place != entries.end() && place->first == key ? &place->second : nullptr;
    }
    void set(const Key& key, const T& value)
    {
        const auto place = std::lower_bound(entries.begin(), entries.end(), key, isBefore);
        if (place != entries.end() && place->first == key) {
            place->second = value;
        } else {
            entries.insert(place, {key, value});
        }
    }

    bool empty() const { return entries.empty(); }
    bool operator<(const SortedMap& other) const { return entries < other.entries; }
    bool operator!=(const SortedMap& other) const { return entries != other.entries; }

private:
    static bool isBefore(const Entry& entry, const Key& key) { return entry.first < key; }

    std::vector<Entry> entries;
};

// A set of a few elements that is copied often.
template <typename T>
class SortedSet
{
public:
    auto begin() const { return elements.begin(); }
    auto end() const { return elements.end(); }
    bool empty() const { return elements.empty(); }
    bool has(const T& element) const
    {
        return std::binary_search(elements.begin(), elements.end(), element);
    }
    void insert(const T& element)
    {
        const auto place = std::lower_bound(elements.begin(), elements.end(), element);
        if (place == elements.end() || *place != element) {
            elements.insert(place, element);
        }
    }
    void erase(const T& element)
    {
        const auto place = std::lower_bound(elements.begin(), elements.end(), element);
        if (place != elements.end() && *place == element) {
            elements.erase(place);
        }
    }
    bool operator==(const SortedSet& other) const { return elements == other.elements; }

private:
    std::vector<T> elements;
};

}  // namespace quick
