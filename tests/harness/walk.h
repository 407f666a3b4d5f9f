// Walks over the records of a query.
#pragma once

#include <cstdint>
#include <vector>

// What `next` gives, from null to null; cut off where it does not end.
auto all_of(auto next) {
    std::vector<decltype(next(nullptr))> found;
    for (auto *at = next(nullptr); at && found.size() < 1000; at = next(at))
        found.push_back(at);
    return found;
}

// A query whose first argument stays the same.
template <class R> auto with(uint32_t fixed, R *(*query)(uint32_t, R *)) {
    return [=](R *previous) { return query(fixed, previous); };
}
