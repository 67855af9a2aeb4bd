// Searching the small tables that all rooms keep.
#pragma once

#include <algorithm>
#include <iterator>

/// True if `table`, an array or a container, holds `value`.
template <typename Table, typename Value>
bool holds(const Table& table, const Value& value) {
    return std::find(std::begin(table), std::end(table), value) != std::end(table);
}
