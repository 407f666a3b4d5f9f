// A new record or member: its row in chsinfo/layout.def.
#include "members.h"

#include <cinttypes>
#include <cstddef>
#include <gtest/gtest.h>

#include "chsinfo/libdst/model/kinds.h"
#include "chsinfo/libdst_priv.h"

namespace {

// Null for what is no record.
template <class T> constexpr const char *record_name = nullptr;
#define RECORD(type, in32, in64) template <> constexpr const char *record_name<type> = #type;
#include "chsinfo/layout.def"

using lines = std::vector<std::string>;

form read_from;

void show_record(lines &out, const char *name, const void *record);

std::string number(std::int64_t value) {
    char text[24];
    std::snprintf(text, sizeof text, value > 0xffff ? "%#" PRIx64 : "%" PRId64, value);
    return text;
}

std::string quoted(const char *text) { return *text ? '"' + std::string(text) + '"' : ""; }

// Without the zeros at the end.
template <class T, std::size_t Size> std::string numbers(const T (&array)[Size]) {
    std::size_t used = Size;
    while (used > 0 && array[used - 1] == 0)
        --used;
    std::string text;
    for (std::size_t i = 0; i < used; ++i)
        text += (text.empty() ? "[" : " ") + number(array[i]);
    return text.empty() ? "" : text + "]";
}

template <class T> const char *name_of(const T *) { return record_name<T>; }
const char *name_of(fan_info_t *tray) {
    return dst::with_module(tray, [](auto *module) { return record_name<std::remove_pointer_t<decltype(module)>>; });
}

template <class Head> void show_list(lines &out, const Head &list) {
    auto *const *at = &list.tqh_first;
    for (auto *entry = *at; entry; entry = *at) {
        show_record(out, record_name<dst::entry_of<Head>>, entry);
        EXPECT_EQ(dst::link(entry).tqe_prev, at) << out.back();
        at = &dst::link(entry).tqe_next;
    }
    const bool no_keys = std::is_same_v<Head, lcd_info_list_t> || std::is_same_v<Head, cepm_data_list_t>;
    const bool zeros = !list.tqh_first && !list.tqh_last; // reads as empty
    EXPECT_TRUE(list.tqh_last == at || (zeros && (no_keys || read_from == form::xml)))
        << "after " << out.back() << ": list of " << record_name<dst::entry_of<Head>>;
}

// What a member adds to the line of its record, or the lines after it.
template <class T> void show(lines &out, std::size_t line, const char *name, const void *at) {
    const T &member = *static_cast<const T *>(at);
    std::string value;
    if constexpr (record_name<T>)
        show_record(out, record_name<T>, at);
    else if constexpr (std::is_same_v<T, generic_fan_info_list_t>)
        EXPECT_EQ(member.tqh_first, nullptr) << "its entries are of any kind";
    else if constexpr (dst::list_head<T>)
        show_list(out, member);
    else if constexpr (std::is_same_v<T, fru_info_t *> || std::is_same_v<T, i2c_dev_info_t *>)
        value = member ? "@" + number(member->id) + quoted(member->name) : "";
    else if constexpr (std::is_pointer_v<T> && std::is_class_v<std::remove_pointer_t<T>>) {
        if (member)
            show_record(out, name_of(member), member);
    } else if constexpr (std::is_same_v<std::remove_extent_t<T>, char>)
        value = quoted(member);
    else if constexpr (std::is_array_v<T>)
        value = numbers(member);
    else if constexpr (std::is_floating_point_v<T>)
        value = member ? std::to_string(member) : "";
    else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>)
        value = member ? number(static_cast<std::int64_t>(member)) : "";
    if (!value.empty())
        out[line] += " " + std::string(name) + "=" + value;
}

constexpr struct {
    const char *record, *member;
    std::size_t offset;
    void (*show)(lines &out, std::size_t line, const char *name, const void *at);
} rows[] = {
#define MEMBER(type, member, in32, in64) {#type, #member, offsetof(type, member), show<decltype(type::member)>},
#include "chsinfo/layout.def"
};

void show_record(lines &out, const char *name, const void *record) {
    const std::size_t line = out.size();
    out.emplace_back(name);
    for (const auto &row : rows)
        if (row.record == std::string_view(name))
            row.show(out, line, row.member, static_cast<const char *>(record) + row.offset);
}

} // namespace

std::vector<std::string> members_of_model(form source) {
    lines out;
    read_from = source;
    show_record(out, record_name<libdst_chs_info_t>, &chs_info);
    return out;
}
