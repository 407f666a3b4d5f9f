// Element tables: one row an element, in which the element, its handler, its parser and the member that it fills can be
// seen. A row makes a real function, which a debugger and grep find by its name, and an entry of the table.
//
//   #define PIC_ELEMENTS(ROW, T)
//       ROW(T, FIELD, "NAME", libdst_dev_pic_name_tag_op, libdst_parse_tag_string, pic_minfo->name)
//   DST_TABLE(dst_tag_picinfo_op, xml_tag_parser_picinfo_t, pic_module_list_t, PIC_ELEMENTS)
//
// T is the target type. A wrong width, a misspelt member, a handler name used twice do not compile.
#pragma once

#include <cstddef>

#include "../model/log.h"
#include "../model/names.h"
#include "values.h"

namespace dst {

template <class T> struct tag_entry {
    const char *tagname;
    int (*tag_parser_op)(xmlDocPtr doc, xmlNodePtr node, T *target);
};

// What a parser writes to: the member, or the first byte of a text that is long enough.
template <class M> M *into(M &member) { return &member; }
template <std::size_t N> char *into(char (&text)[N]) {
    static_assert(N >= 128);
    return text;
}

// Every element walk: each child that the table knows (a node without a name, CDATA, is none) goes to its handler, in
// document order, until one fails, or memory ran out beneath it; which is logged. Returns the last handler's result, 0
// when none ran.
template <class T>
int walk(const char *func, const tag_entry<T> *table, xmlDocPtr doc, xmlNodePtr element, T *target,
         const char *failure) {
    int rc = 0;
    for (xmlNodePtr child = content_of(element); child && rc >= 0; child = child->next) {
        if (child->type == XML_TEXT_NODE) // half of the children, named "text", which no table has
            continue;
        if (const tag_entry<T> *entry = find(table, reinterpret_cast<const char *>(child->name))) {
            rc = entry->tag_parser_op(doc, child, target);
            rc = check(func, rc >= 0 && out_of_memory() ? -1 : rc, failure);
        }
    }
    return rc;
}

} // namespace dst

#define DST_HANDLER(T, kind, ...) DST_HANDLER_##kind(T, __VA_ARGS__)
#define DST_ENTRY(T, kind, element, handler, ...) {element, handler},
#define DST_TABLE(table, entry_t, T, ROWS) ROWS(DST_HANDLER, T) DST_ENTRIES(table, entry_t, T, ROWS)
// A table alone: rows that several tables share make their functions once, by ROWS(DST_HANDLER, T).
#define DST_ENTRIES(table, entry_t, T, ROWS) static const entry_t table[] = {ROWS(DST_ENTRY, T){nullptr, nullptr}};
#define DST_FUNCTION(T, handler) static int handler([[maybe_unused]] xmlDocPtr doc, xmlNodePtr node, T *to)

// The row kinds.
// A value; an element without a text fails.
#define DST_HANDLER_FIELD(T, element, handler, parser, member)                                                         \
    DST_FUNCTION(T, handler) { return parser(doc, node, dst::into(to->member)); }
// A value that may be missing: never fails.
#define DST_HANDLER_LENIENT(T, element, handler, parser, member)                                                       \
    DST_FUNCTION(T, handler) {                                                                                         \
        parser(doc, node, dst::into(to->member));                                                                      \
        return 0;                                                                                                      \
    }
// The index of the text among the rows first to last of a name table; an unknown text leaves the member: never fails.
#define DST_HANDLER_KIND(T, element, handler, names, first, last, member)                                              \
    DST_FUNCTION(T, handler) {                                                                                         \
        dst::kind_of(dst::element_text(doc, node), names, first, last, &to->member);                                   \
        return 0;                                                                                                      \
    }
// A nested element: walks its children into a part of the record, `to->part`, or into the whole of it, `*to`.
#define DST_HANDLER_NEST(T, element, handler, table, part, failure)                                                    \
    DST_FUNCTION(T, handler) { return dst::walk(__func__, table, doc, node, &(part), failure); }
// Written by hand, above the table.
#define DST_HANDLER_CALL(T, element, handler)
