// The shapes of the dump's lines. A leaf is a row of a table: the element's name and what it shows of the record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <initializer_list>

#include "../model/names.h"

namespace dst {

struct value {
    const char *format;
    uint32_t number;
    const char *text; // null: the number is shown
};
constexpr value dec(uint32_t number) { return {"%d", number, nullptr}; }
constexpr value hex(uint32_t number) { return {"0x%x", number, nullptr}; }
constexpr value bare_hex(uint32_t number) { return {"%x", number, nullptr}; }
constexpr value no_line() { return {nullptr, 0, nullptr}; } // the leaf is left out
constexpr value text(const char *shown) { return {"%s", 0, shown}; }
template <std::size_t Rows> value name(const char *const (&table)[Rows], int index) {
    return text(name_of(table, index));
}

struct attribute {
    const char *name;
    value shown;
};

template <class R> struct leaf {
    const char *element;
    value (*shown)(const R &record);
};

void print_open(int indent, const char *element, std::initializer_list<attribute> attributes = {});
void print_close(int indent, const char *element);
void print_leaf(int indent, const char *element, value shown, std::initializer_list<attribute> attributes = {});

template <class R, std::size_t N> void print_leaves(int indent, const leaf<R> (&rows)[N], const R &record) {
    for (const leaf<R> &row : rows)
        print_leaf(indent, row.element, row.shown(record));
}

} // namespace dst
