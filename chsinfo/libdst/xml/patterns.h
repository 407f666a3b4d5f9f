// The ways in which records are read, once each: lists of records (read_list), single devices that a controller drives
// (read_device, read_controller) and records inside a record (append_record). All log under the name of the function
// that the caller gives.
#pragma once

#include "../model/kinds.h"
#include "rows.h"

// Row kinds of the device families. `family` is the family's record of words, below.
// The device's FRU id: 0 or more.
#define DST_HANDLER_FRUID(T, element, handler, family)                                                                 \
    DST_FUNCTION(T, handler) { return dst::fru_id_tag(__func__, doc, node, to->fru_id, family::words.fru_id); }
// A controller: "ctrl" value, its reader, its enumerator, the element walk that it uses.
#define DST_HANDLER_CTRL(T, element, handler, family, type, per_tag)                                                   \
    DST_FUNCTION(T, handler) { return dst::read_controller<family>(__func__, type, per_tag, doc, node, to); }
// A record inside a record, appended to the list `member` of the outer one: read(func, doc, node, record) fills it.
#define DST_HANDLER_APPEND(T, element, handler, member, read)                                                          \
    DST_FUNCTION(T, handler) { return dst::append_record(__func__, doc, node, to->member, read); }

namespace dst {

constexpr char no_memory[] = "could not allocate the memory!";

// Makes an entry and appends it once fill(entry) filled it; a failure leaves the list as it was.
template <list_head Head> int append_filled(const char *func, Head &list, auto fill) {
    auto entry = make<entry_of<Head>>();
    if (!entry)
        return check(func, -1, no_memory);
    const int rc = fill(entry.get());
    if (rc >= 0)
        append(list, entry.release());
    return rc;
}

// Empties the list, makes an entry of each child element with this name and appends those that read_entry(node, entry)
// fills. Any failure leaves the list empty.
template <list_head Head>
int read_list(const char *func, const char *element, xmlNodePtr section, Head &list, auto read_entry) {
    release_member(list);
    list_init(list);
    int rc = 0;
    for (xmlNodePtr child = content_of(section); child && rc >= 0; child = child->next) {
        if (child->type != XML_ELEMENT_NODE || !name_is(child, element))
            continue;
        rc = append_filled(func, list, [&](auto *entry) { return read_entry(child, entry); });
    }
    if (rc < 0)
        release_member(list);
    return rc;
}

// One record of a list that stays as it is: read(func, doc, node, entry) fills it. The list was initialised before.
template <list_head Head> int append_record(const char *func, xmlDocPtr doc, xmlNodePtr node, Head &list, auto read) {
    return append_filled(func, list, [&](auto *record) { return read(func, doc, node, record); });
}

// The words in which a family's messages differ.
struct family_words {
    const char *ctrl;   // "could not get %s op for the ctrl!"
    const char *id;     // "could not get %s id!"
    const char *info;   // "could not get %s info!"
    const char *fru_id; // "could not get %s fru id!"
    const char *walk;   // the element walk's whole message
};

// The base of a family of devices; the family adds `words` and its own `id_attr`. One whose node points at a larger
// record (fan trays) hides record_t, head() and hold().
template <class Kind> struct family : Kind {
    using typename Kind::entry_t;
    using record_t = typename Kind::record_t;
    static record_t &head(record_t &record) { return record; } // where id and ctrl_type stand
    static void hold(entry_t *node, record_t *record) { Kind::held(node) = record; }
    static void init(record_t &) {} // one with lists of its own hides this
};

inline int fru_id_tag(const char *func, xmlDocPtr doc, xmlNodePtr node, uint32_t &fru_id, const char *word) {
    const xml_text text = element_text(doc, node);
    const int32_t id = text ? decimal(text.get()) : -1;
    if (id < 0) {
        log_err(func, "could not get %s fru id!", word);
        return -1;
    }
    fru_id = static_cast<uint32_t>(id);
    return 0;
}

// A controller reader: makes the record, holds it in the node and fills both. A failure leaves the node without one.
template <class F>
int read_controller(const char *func, ctrl_type_t type, auto per_tag, xmlDocPtr doc, xmlNodePtr device,
                    typename F::entry_t *node) {
    auto record = make<typename F::record_t>();
    if (!record)
        return check(func, -1, no_memory);
    F::head(*record).ctrl_type = type;
    F::init(*record);
    F::hold(node, record.get());
    int rc = F::id_attr(device, &F::head(*record).id);
    if (rc < 0)
        log_err(func, "could not get %s id!", F::words.id);
    else if ((rc = per_tag(doc, device, node)) < 0)
        log_err(func, "could not get %s info!", F::words.info);
    if (rc < 0)
        F::hold(node, nullptr);
    else
        static_cast<void>(record.release());
    return rc;
}

// A device reader: finds the controller by the "ctrl" attribute and appends the node that its reader filled. Any
// failure leaves the family's list empty.
template <class F>
int read_device(const char *func, const tag_entry<typename F::entry_t> *controllers, xmlDocPtr doc, xmlNodePtr device,
                libdst_chs_info_t *model) {
    const xml_text ctrl = attribute(device, "ctrl");
    int rc = -1;
    if (ctrl) {
        auto node = make<typename F::entry_t>();
        if (!node) {
            log_err(func, "%s", no_memory);
            release_member(F::list(model));
            return rc;
        }
        if (const auto *controller = find(controllers, ctrl.get()))
            rc = controller->tag_parser_op(doc, device, node.get());
        if (rc >= 0) {
            append(F::list(model), node.release());
            return rc;
        }
    }
    log_err(func, "could not get %s op for the ctrl!", F::words.ctrl);
    release_member(F::list(model));
    return rc;
}

} // namespace dst
