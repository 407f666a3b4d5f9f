#include "model.h"

#include <cstring>

#include "chsinfo/libdst_priv.h"
#include "records.h"

libdst_chs_info_t chs_info;
libdst_chs_info_t *dst_chs_info;

void libdst_info_init(libdst_chs_info_t *model) { std::memset(model, 0, sizeof *model); }

libdst_chs_info_t *libdst_get_chs_info(void) { return &chs_info; }

void dst::release_contents(libdst_chs_info_t *model) { about<libdst_chs_info_t>::release_owned(model); }

void libdst_release(void) {
    dst::release_contents(&chs_info);
    libdst_info_init(&chs_info);
}
