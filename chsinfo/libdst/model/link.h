// The linking passes, one a family, run in order by libdst_dev_transform_handler() (libdst_priv.h). Each returns 0, or
// -1 (logged) at the first record whose FRU, I2C device or parent does not exist. They look FRUs up in an index, which
// the handler makes once for all of them.
#pragma once

#include "chsinfo/libdst.h"

int libdst_dev_trans_fpc(libdst_chs_info_t *model);
int libdst_dev_trans_sib(libdst_chs_info_t *model);
int libdst_dev_trans_fpm(libdst_chs_info_t *model);
int libdst_dev_trans_ftc(libdst_chs_info_t *model);
int libdst_dev_trans_cb(libdst_chs_info_t *model);
int libdst_dev_trans_pem(libdst_chs_info_t *model);
int libdst_dev_trans_fan(libdst_chs_info_t *model);
int libdst_dev_trans_pic(libdst_chs_info_t *model);
int libdst_dev_trans_tib(libdst_chs_info_t *model);
int libdst_dev_trans_tmpsnr(libdst_chs_info_t *model);
int libdst_dev_trans_voltsnr(libdst_chs_info_t *model);
int libdst_dev_trans_led(libdst_chs_info_t *model);
int libdst_dev_trans_lcd(libdst_chs_info_t *model);
int libdst_dev_trans_btn(libdst_chs_info_t *model);
int libdst_dev_trans_fru(libdst_chs_info_t *model);
