// What the kinds of devices share: a group of "DEVICES" names its controller in "ctrl", whose reader makes the record
// and puts it into the kind's list entry, the node.
#pragma once

#include "readers.h"

namespace dst {

// A controller's "ctrl" value and its reader, which returns 0 or, with what it built released, another value.
template <class Node> struct controller_entry {
    const char *tagname;
    int (*tag_parser_op)(void *handle, Node *node);
};

// A device as far as its controller reader made it.
template <class K> struct device {
    owned<typename K::entry_t> node; // null when memory ran out
    bool known = false;              // whether "ctrl" names a controller of the kind
    int result = BRIO_CONFIG_FAIL;   // the controller reader's, where one is known
};

// What every kind handler begins with. A group without "ctrl" has no controller.
template <class K>
device<K> read_device(void *handle, const controller_entry<typename K::entry_t> *controllers,
                      bool (*matches)(const char *tagname, const char *ctrl) = equal) {
    device<K> found{make<typename K::entry_t>()};
    const auto *controller = found.node ? find(controllers, text_of(handle, "ctrl"), matches) : nullptr;
    if (controller) {
        found.known = true;
        found.result = controller->tag_parser_op(handle, found.node.get());
    }
    return found;
}

template <class K> void append_device(libdst_chs_info_t *info, device<K> &found) {
    append(K::list(info), found.node.release());
}

// What every controller reader begins with: the record, held by the node. Null when memory runs out.
template <class K> typename K::record_t *hold_record(typename K::entry_t *node, ctrl_type_t type) {
    auto record = make<typename K::record_t>();
    if (record)
        record->ctrl_type = type;
    return K::held(node) = record.release();
}

// The controller as the name table has it, where several share a reader.
template <class Record> void ctrl_type_key(void *handle, Record *record) {
    kind_key(handle, "ctrl", dst_ctrl_type, CTRL_TYPE_MAX, record->ctrl_type);
}

// A kind handler whose device, for want of a known controller or of memory, ends the walk. finish(record) completes
// what the controller reader read.
template <class K>
brio_cfg_status_t read_strict_device(void *handle, const controller_entry<typename K::entry_t> *controllers, void *info,
                                     auto finish) {
    auto found = read_device<K>(handle, controllers);
    if (!found.node || found.result != 0)
        return BRIO_CONFIG_FAIL;
    finish(K::held(found.node.get()));
    append_device(static_cast<libdst_chs_info_t *>(info), found);
    return BRIO_CONFIG_SUCCESS;
}

} // namespace dst
