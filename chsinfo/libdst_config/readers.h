// The readers of the configuration-tree form, across its files. All fill the model that the root walk hands them.
#pragma once

#include "keys.h"

// Fills the model from the root groups, all or nothing; `sim_node`, the simulation tree's, may be null. What the lists
// of `cinfo` held before is forgotten, not released. Returns 0, or the non-zero result of the key that failed, logged.
int libconfig_root_tag(void *node, void *sim_node, libdst_chs_info_t *cinfo);

// Root keys. 0 or the library's status; those that say so never fail.
int libconfig_resilmodel_tag_op(void *handle, const char *tag, libdst_chs_info_t *info); // never
int libconfig_frumodel_tag_op(void *handle, const char *tag, libdst_chs_info_t *info);
int libconfig_chsmodel_tag_op(void *handle, const char *tag, libdst_chs_info_t *info);
int libconfig_bus_tag_op(void *handle, const char *tag, libdst_chs_info_t *info);     // never
int libconfig_devices_tag_op(void *handle, const char *tag, libdst_chs_info_t *info); // never
int libconfig_frulist_tag_op(void *handle, const char *tag, libdst_chs_info_t *info);

// Kinds of devices: callbacks of the library's, `data` being the libdst_chs_info_t. Any result but success ends the
// walk over the devices.
brio_cfg_status_t libconfig_device_fan_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_psu_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_fpc_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_fpm_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_ftc_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_cb_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_sib_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_tib_data_get(void *handle, void *data);
brio_cfg_status_t libconfig_device_tmpsnr_op(void *handle, void *data);
brio_cfg_status_t libconfig_device_voltsnr_op(void *handle, void *data);
brio_cfg_status_t libconfig_device_led_op(void *handle, void *data);
brio_cfg_status_t libconfig_device_btn_op(void *handle, void *data);
brio_cfg_status_t libconfig_device_pic_op(void *handle, void *data);

// The rows of a speed table, which fans and power supplies have.
ss2rpm_fan_info_t *libconfig_dev_ss2rpm_read(void *handle);
