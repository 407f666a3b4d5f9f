// Finding records by id, for a pass that looks for many.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "kinds.h"

namespace dst {

// The ids of a list, sorted. Without memory for them, each search goes through the list.
template <class K> class ids_of {
  public:
    using record_t = typename K::record_t;

    // A record and how many stand before it in the list. Null stands behind all of them.
    struct place {
        record_t *record = nullptr;
        uint32_t position = UINT32_MAX;
    };

    explicit ids_of(libdst_chs_info_t *model) : records_(records<K>(model)) {
        std::size_t count = 1; // for an empty list, too, there is a block
        for ([[maybe_unused]] const auto &one : records_)
            ++count;
        first_ = end_ = static_cast<entry *>(std::malloc(count * sizeof(entry)));
        if (!first_)
            return;
        uint32_t position = 0;
        for (auto &one : records_)
            *end_++ = {key(one.id, position++), &one};
        if (!std::is_sorted(first_, end_, before)) // a list mostly is
            std::sort(first_, end_, before);
    }
    ~ids_of() { std::free(first_); }
    ids_of(const ids_of &) = delete;
    ids_of &operator=(const ids_of &) = delete;

    // The first record with the id.
    place first(uint32_t id) const {
        if (first_) {
            const entry *found = std::lower_bound(first_, end_, entry{key(id, 0), nullptr}, before);
            if (found != end_ && found->key >> 32 == id)
                return {found->record, static_cast<uint32_t>(found->key)};
            return {};
        }
        uint32_t position = 0;
        for (auto &one : records_) {
            if (one.id == id)
                return {&one, position};
            ++position;
        }
        return {};
    }

    // The last record with the id up to a position, or null.
    record_t *last(uint32_t id, uint32_t position) const {
        if (first_) {
            const entry *after = std::upper_bound(first_, end_, entry{key(id, position), nullptr}, before);
            return after != first_ && after[-1].key >> 32 == id ? after[-1].record : nullptr;
        }
        record_t *found = nullptr;
        for (auto &one : records_) {
            if (one.id == id)
                found = &one;
            if (position-- == 0)
                break;
        }
        return found;
    }

  private:
    struct entry {
        uint64_t key; // the id, then the position, which keeps equal ids in order
        record_t *record;
    };
    static constexpr uint64_t key(uint32_t id, uint32_t position) { return uint64_t{id} << 32 | position; }
    static constexpr bool before(const entry &a, const entry &b) { return a.key < b.key; }

    record_range<K> records_;
    entry *first_;
    entry *end_;
};

} // namespace dst
