// Reading keys and lists of the configuration tree, once for all records.
//
// A record is read by an element reader, which makes it and names its keys one by one, in the order in which they are
// read; a list by a list reader, one row:
//
//   static ambient_temp_t *libconfig_dev_ambient_data_read(void *handle) {
//       return dst::read_record<ambient_temp_t>([=](auto &row) {
//           dst::int_key(handle, "AMBIENT_TEMPERATURE", row.temperature);
//           ...
//       });
//   }
//   DST_LIST_READER(static, libconfig_dev_ambient_data_get, libconfig_dev_ambient_data_read, fru_model_info_t,
//                   ambient_temp_info)
//
// A missing key leaves its member as it was: zero, or what the reader set before.
#pragma once

#include <brio_config.h>
#include <cstring>

#include "chsinfo/libdst/model/kinds.h"
#include "chsinfo/libdst/model/log.h"
#include "chsinfo/libdst/model/names.h"
#include "chsinfo/libdst/model/numbers.h"

// The first of `maxelem` names that begins with the text, or -1: an empty text finds the first name there is, no text
// nothing.
int libconfig_string2enum_convert(const char *typestr, const char *const *strarray, int maxelem);

namespace dst {

constexpr char no_memory[] = "could not allocate the memory!";

// The low bits of an integer, in a member of any width.
template <class Int> brio_cfg_status_t int_key(void *group, const char *key, Int &member) {
    int32_t value = 0;
    const brio_cfg_status_t status = brio_config_int_read(group, key, &value);
    if (status == BRIO_CONFIG_SUCCESS)
        member = static_cast<Int>(value);
    return status;
}

// A text of the library's, or null.
inline const char *text_of(void *group, const char *key) {
    const char *text = nullptr;
    return brio_config_str_read(group, key, &text) == BRIO_CONFIG_SUCCESS ? text : nullptr;
}

// A text, cut to fit.
template <std::size_t Size> void text_key(void *group, const char *key, char (&member)[Size]) {
    if (const char *text = text_of(group, key)) {
        const std::size_t length = strnlen(text, Size - 1);
        std::memcpy(member, text, length);
        member[length] = '\0';
    }
}

// Whether a text is "true".
inline void flag_key(void *group, const char *key, bool &member) {
    if (const char *text = text_of(group, key))
        member = std::strcmp(text, "true") == 0;
}

// The index of a text among the names; -1 for an unknown text and for none.
template <class Enum> void kind_key(void *group, const char *key, const char *const *names, int count, Enum &member) {
    member = static_cast<Enum>(libconfig_string2enum_convert(text_of(group, key), names, count));
}

// The same, but a missing text leaves the member.
template <class Enum>
void optional_kind_key(void *group, const char *key, const char *const *names, int count, Enum &member) {
    if (const char *text = text_of(group, key))
        member = static_cast<Enum>(libconfig_string2enum_convert(text, names, count));
}

// A record that `fill` reads the keys into; null when memory runs out.
template <class T> T *read_record(auto fill) {
    owned<T> record = make<T>();
    if (record)
        fill(*record);
    return record.release();
}

// An element reader as the library calls it.
template <auto ElementReader> void *element_reader(void *handle) { return ElementReader(handle); }

// Every list: the records of the array's elements, in their order, up to the last one or the one for which memory runs
// out. appended() is called after each.
template <auto ElementReader, list_head Head> brio_cfg_status_t read_list(void *array, Head &list, auto appended) {
    list_init(list);
    void *element = nullptr;
    for (int index = 0;
         brio_config_array_element_read(array, index, &element, element_reader<ElementReader>) == BRIO_CONFIG_SUCCESS &&
         element;
         ++index) {
        entry_of<Head> *entry = static_cast<decltype(ElementReader(nullptr))>(element);
        append(list, entry);
        appended();
    }
    return BRIO_CONFIG_SUCCESS;
}
template <auto ElementReader, list_head Head> brio_cfg_status_t read_list(void *array, Head &list) {
    return read_list<ElementReader>(array, list, [] {});
}

} // namespace dst

// A list reader: a callback of the library's, `data` being the T that owns the list. `storage` is static, or empty for
// an exported one.
#define DST_LIST_READER(storage, list_reader, element_reader, T, list)                                                 \
    storage brio_cfg_status_t list_reader(void *handle, void *data) {                                                  \
        return dst::read_list<element_reader>(handle, static_cast<T *>(data)->list);                                   \
    }
