// The dump's sections that have files of their own, and the shapes that several sections share.
#pragma once

#include "../model/kinds.h"
#include "chsinfo/libdst.h"
#include "print.h"

namespace dst {

void print_fru_models(libdst_chs_info_t *model);
void print_chassis_models(libdst_chs_info_t *model);
void print_asics(libdst_chs_info_t *model);
void print_optics(libdst_chs_info_t *model);
void print_single_devices(libdst_chs_info_t *model); // each a DEVICE element of its own, from fans to PICs
void print_resiliency(libdst_chs_info_t *model);

// All of a range inside one element, which is left out when there are none.
void print_wrapped(const char *element, std::initializer_list<attribute> attributes, auto range, auto print_one) {
    if (range.begin() == range.end())
        return;
    print_open(4, element, attributes);
    for (const auto &one : range)
        print_one(one);
    print_close(4, element);
}

// All records of a kind inside one DEVICE element.
template <class K> void print_section(libdst_chs_info_t *model, int device, auto print_one) {
    print_wrapped("DEVICE", {{"type", name(dst_dev_type, device)}}, records<K>(model), print_one);
}

// A record that is all leaves, with its "id" and "type".
template <class R, std::size_t N>
void print_record(int indent, const char *element, value type, const leaf<R> (&leaves)[N], const R &record) {
    print_open(indent, element, {{"id", dec(record.id)}, {"type", type}});
    print_leaves(indent + 4, leaves, record);
    print_close(indent, element);
}

} // namespace dst
