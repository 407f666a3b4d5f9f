// The model as a whole.
#pragma once

#include "chsinfo/libdst.h"

// Sets every byte of the record to zero, whatever it held.
void libdst_info_init(libdst_chs_info_t *model);

namespace dst {
// Frees everything that the record owns; its lists end empty, its other members stay.
void release_contents(libdst_chs_info_t *model);
} // namespace dst
