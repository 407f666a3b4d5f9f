// Lookups in the name tables of libdst.h, and in the readers' tables of elements, controllers and kinds.
#pragma once

#include <cstddef>
#include <cstring>

namespace dst {

// The first row from `first` to `last` (included) that equals `text`; -1 for none. A row without a text, and no text at
// all, match nothing.
int name_index(const char *const *table, int first, int last, const char *text);

// The text of a row; the empty text outside the table and for a row without one.
template <std::size_t Rows> const char *name_of(const char *const (&table)[Rows], int index) {
    const bool inside = index >= 0 && static_cast<std::size_t>(index) < Rows;
    return inside && table[index] ? table[index] : "";
}

inline bool equal(const char *text, const char *name) { return std::strcmp(text, name) == 0; }
inline bool begins_with(const char *text, const char *name) { return std::strncmp(text, name, std::strlen(name)) == 0; }

// The first entry of a table that the name matches, or null; no name matches nothing. The table ends with a null
// `tagname`.
template <class Entry>
const Entry *find(const Entry *table, const char *name, bool (*matches)(const char *text, const char *name) = equal) {
    for (; name && table->tagname; ++table)
        if (matches(table->tagname, name))
            return table;
    return nullptr;
}

} // namespace dst
