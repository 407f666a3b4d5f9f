// Typed tail queues over the plain C heads of libdst.h, and the release of whatever a record owns. The rows that say
// what a record owns are in records.h.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <type_traits>

namespace dst {

template <class Head>
concept list_head = requires(Head &head) {
    head.tqh_first;
    head.tqh_last;
};
template <list_head Head> using entry_of = std::remove_pointer_t<decltype(Head::tqh_first)>;

// The ownership row of a record type: its link, and release_owned(), which frees what its members own.
template <class T> struct about;

template <class T> auto &link(T *entry) { return entry->*about<T>::link; }

// List operations

template <list_head Head> void list_init(Head &list) {
    list.tqh_first = nullptr;
    list.tqh_last = &list.tqh_first;
}

template <list_head Head> void append(Head &list, entry_of<Head> *entry) {
    link(entry).tqe_next = nullptr;
    link(entry).tqe_prev = list.tqh_last;
    *list.tqh_last = entry;
    list.tqh_last = &link(entry).tqe_next;
}

// Takes the first entry out; null when the list is empty, zero-filled or initialised.
template <list_head Head> entry_of<Head> *pop_front(Head &list) {
    auto *entry = list.tqh_first;
    if (!entry)
        return nullptr;
    auto *next = link(entry).tqe_next;
    if (next)
        link(next).tqe_prev = link(entry).tqe_prev;
    else
        list.tqh_last = link(entry).tqe_prev;
    *link(entry).tqe_prev = next;
    return entry;
}

// Hands a whole list over; `from` must not be used as a list afterwards.
template <list_head Head> void move_list(Head &from, Head &to) {
    list_init(to);
    if (!from.tqh_first)
        return;
    to = from;
    link(to.tqh_first).tqe_prev = &to.tqh_first;
}

template <auto... Lists> void init_lists(auto &model) { (list_init(model.*Lists), ...); }
template <auto... Lists> void move_lists(auto &from, auto &to) { (move_list(from.*Lists, to.*Lists), ...); }

// A list as a range of its entries: for (fru_module_list_t &fru : entries(model->fru_info)).
template <class T> struct entry_iterator {
    T *entry;
    T &operator*() const { return *entry; }
    entry_iterator &operator++() {
        entry = link(entry).tqe_next;
        return *this;
    }
    bool operator==(const entry_iterator &) const = default;
};
template <class T> struct entry_range {
    T *first;
    entry_iterator<T> begin() const { return {first}; }
    entry_iterator<T> end() const { return {nullptr}; }
};
template <list_head Head> entry_range<entry_of<Head>> entries(const Head &list) { return {list.tqh_first}; }

// Creation and release

template <class T> void release(T *record);
template <list_head Head> void release_member(Head &list);

template <class T> void release_member(T *&held) {
    if (held)
        release(held);
}

template <class T>
    requires requires { about<T>::link; }
void release_member(T &embedded) { about<T>::release_owned(&embedded); }

template <list_head Head> void release_member(Head &list) {
    while (auto *entry = pop_front(list))
        release(entry);
}

template <class T> void release(T *record) {
    about<T>::release_owned(record);
    std::free(record);
}

// A row of records.h: the record's link (nullptr: not a list entry), then every member that it owns: lists, held
// records, embedded records that own something themselves.
template <auto Link, auto... Owned> struct record {
    static constexpr auto link = Link;
    static void release_owned([[maybe_unused]] auto *owner) { (release_member(owner->*Owned), ...); }
};

struct releaser {
    void operator()(auto *record) const { release(record); }
};
template <class T> using owned = std::unique_ptr<T, releaser>;

// Every record of the model is made here, zero-filled; null when memory runs out.
template <class T> owned<T> make() { return owned<T>(static_cast<T *>(std::calloc(1, sizeof(T)))); }

} // namespace dst
