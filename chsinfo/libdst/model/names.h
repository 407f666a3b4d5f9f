// Lookups in the name tables of libdst.h.
#pragma once

#include <cstddef>

namespace dst {

// The first row from `first` to `last` (included) that equals `text`; -1 for none. A row without a text, and no text at
// all, match nothing.
int name_index(const char *const *table, int first, int last, const char *text);

// The text of a row; the empty text outside the table and for a row without one.
template <std::size_t Rows> const char *name_of(const char *const (&table)[Rows], int index) {
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < Rows;
    return inside && table[index] ? table[index] : "";
}

} // namespace dst
