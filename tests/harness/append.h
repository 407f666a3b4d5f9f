// Entries that no document brings, put into the model by hand.
#pragma once

#include <cstdlib>

// Appends a zero-filled entry, which the library frees with the model.
template <class Head, class Entry, class Link> Entry *append(Head &list, Link Entry::*link) {
    auto *entry = static_cast<Entry *>(std::calloc(1, sizeof(Entry)));
    if (!list.tqh_first)
        list.tqh_last = &list.tqh_first;
    (entry->*link).tqe_prev = list.tqh_last;
    *list.tqh_last = entry;
    list.tqh_last = &(entry->*link).tqe_next;
    return entry;
}
