// The walks behind the queries, once each, over ranges of records of the model. A walk allocates, locks and writes
// nothing.
#pragma once

#include "chsinfo/libdst/model/kinds.h"
#include "chsinfo/libdst/model/log.h"

namespace dst {

// The model that queries read: the loaded one, or an empty one that nobody writes.
libdst_chs_info_t *model();

// Whether the list of a kind is empty, which is logged.
template <class K> bool is_empty(const char *func, const char *message) {
    if (K::list(model()).tqh_first)
        return false;
    log_err(func, "%s", message);
    return true;
}

constexpr auto every = [](const auto &) { return true; };
constexpr auto same_id = [](const auto &a, const auto &b) { return a.id == b.id; };

// The record after `previous` among those that pass; the first of them for null. `previous` stands at the first record
// with its key; where keys repeat, at itself if it is one of the records, so that a walk always ends. Null at the end
// and for a key that no record has.
template <class R> auto *next_of(auto range, const R *previous, auto passes, auto same_key) {
    auto at = range.begin();
    const auto end = range.end();
    if (previous) {
        auto position = end;
        for (; at != end; ++at) {
            if (!passes(*at) || !same_key(*at, *previous))
                continue;
            if (position == end || &*at == previous)
                position = at;
            if (&*at == previous)
                break;
        }
        at = position;
        if (at != end)
            ++at;
    }
    for (; at != end; ++at)
        if (passes(*at))
            return &*at;
    return static_cast<decltype(&*at)>(nullptr);
}

// The walks over one list, with its empty-list message.
template <class K, class R>
auto *next(const char *func, const char *empty, const R *previous, auto passes, auto same_key) {
    if (is_empty<K>(func, empty))
        return static_cast<typename K::record_t *>(nullptr);
    return next_of(records<K>(model()), previous, passes, same_key);
}
template <class K, class R> auto *next(const char *func, const char *empty, const R *previous) {
    return next<K>(func, empty, previous, every, same_id);
}
template <class K> auto *by_id(const char *func, const char *empty, uint32_t id) {
    const auto has_id = [id](const auto &record) { return record.id == id; };
    return is_empty<K>(func, empty) ? nullptr : first_of(records<K>(model()), has_id);
}

} // namespace dst
