// Root key "DEVICES": the walk over the device groups.
// A new kind: its handler in readers.h and its row here.
#include "devices.h"

// A kind of device and its handler.
struct libconfig_tag_parser_frudevinfo_t {
    const char *tagname;
    brio_config_get_fn_t get_fn;
};

static const libconfig_tag_parser_frudevinfo_t config_tag_dev_op[] = {
    {"FAN", libconfig_device_fan_data_get},   {"PEM", libconfig_device_psu_data_get},
    {"FPC", libconfig_device_fpc_data_get},   {"FPM", libconfig_device_fpm_data_get},
    {"FTC", libconfig_device_ftc_data_get},   {"CB", libconfig_device_cb_data_get},
    {"SIB", libconfig_device_sib_data_get},   {"TMPSNR", libconfig_device_tmpsnr_op},
    {"VOLTSNR", libconfig_device_voltsnr_op}, {"LED", libconfig_device_led_op},
    {"BTN", libconfig_device_btn_op},         {"PIC", libconfig_device_pic_op},
    {"TIB", libconfig_device_tib_data_get},   {nullptr, nullptr},
};

static brio_cfg_status_t libconfig_device_type_get(void *handle, void *data) {
    const char *&type = *static_cast<const char **>(data);
    type = dst::text_of(handle, "Type");
    return type ? BRIO_CONFIG_SUCCESS : BRIO_CONFIG_FAIL;
}

// The first group without a known "Type", or whose handler fails, ends the walk in silence.
int libconfig_devices_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    brio_cfg_status_t status = BRIO_CONFIG_SUCCESS;
    for (int index = 0; status == BRIO_CONFIG_SUCCESS; ++index) {
        const char *type = nullptr;
        status = brio_config_array_element_get(handle, tag, index, &type, libconfig_device_type_get);
        const auto *kind = status == BRIO_CONFIG_SUCCESS ? dst::find(config_tag_dev_op, type) : nullptr;
        status = kind ? brio_config_array_element_get(handle, tag, index, info, kind->get_fn) : BRIO_CONFIG_FAIL;
    }
    return 0;
}
