// LEDs, buttons and PICs: "DEVICES" groups of "Type" "LED", "BTN" and "PIC".
// A new key: its member in libdst.h, its line here and in the dump, a case. A new LED controller: its enumerator and
// name row, its row here, a case.
#include "devices.h"

// A LED or a button. own_key(record) reads what the other has not; memory that runs out is not logged.
template <class K> static int read_indicator(ctrl_type_t type, void *handle, typename K::entry_t *node, auto own_key) {
    auto *indicator = dst::hold_record<K>(node, type);
    if (!indicator)
        return BRIO_CONFIG_FAIL;
    dst::text_key(handle, "NAME", indicator->name);
    dst::int_key(handle, "id", indicator->id);
    dst::int_key(handle, "DRIVERID", indicator->driver_id);
    dst::int_key(handle, "FRUID", node->fru_id);
    own_key(indicator);
    return 0;
}

static int libconfig_dev_common_led_op(void *handle, ledlcd_module_list_t *node) {
    return read_indicator<dst::leds>(CTRL_TYPE_KORVLED, handle, node, [=](auto *led) {
        dst::kind_key(handle, "LEDTYPE", dst_led_type, LED_TYPE_MAX, led->led_type);
    });
}

using libconfig_tag_parser_ledlcdinfo_t = dst::controller_entry<ledlcd_module_list_t>;
static const libconfig_tag_parser_ledlcdinfo_t config_tag_led_op[] = {
    {"KORVLED", libconfig_dev_common_led_op},    {"DURNLED", libconfig_dev_common_led_op},
    {"GENERICLED", libconfig_dev_common_led_op}, {"ZMBLED", libconfig_dev_common_led_op},
    {"CB", libconfig_dev_common_led_op},         {nullptr, nullptr},
};

brio_cfg_status_t libconfig_device_led_op(void *handle, void *data) {
    return dst::read_strict_device<dst::leds>(handle, config_tag_led_op, data,
                                              [=](auto *led) { dst::ctrl_type_key(handle, led); });
}

static int libconfig_dev_common_btn_op(void *handle, button_module_list_t *node) {
    return read_indicator<dst::btns>(CTRL_TYPE_QVLBTN, handle, node, [=](auto *button) {
        dst::kind_key(handle, "BTNTYPE", dst_btn_type, BTN_TYPE_MAX, button->button_type);
    });
}

using libconfig_tag_parser_buttoninfo_t = dst::controller_entry<button_module_list_t>;
static const libconfig_tag_parser_buttoninfo_t config_tag_btn_op[] = {
    {"QVLBTN", libconfig_dev_common_btn_op},
    {nullptr, nullptr},
};

brio_cfg_status_t libconfig_device_btn_op(void *handle, void *data) {
    return dst::read_strict_device<dst::btns>(handle, config_tag_btn_op, data,
                                              [=](auto *button) { dst::ctrl_type_key(handle, button); });
}

static int libconfig_dev_generic_pic_op(void *handle, pic_module_list_t *node) {
    pic_info_t *pic = dst::hold_record<dst::pics>(node, CTRL_TYPE_PIC);
    if (!pic)
        return BRIO_CONFIG_FAIL;
    dst::int_key(handle, "id", pic->id);
    dst::int_key(handle, "FRUID", node->fru_id);
    dst::int_key(handle, "CAPABILITY", pic->capablility);
    dst::int_key(handle, "PICI2CID", pic->pic_i2cid);
    dst::int_key(handle, "DRIVERID", pic->driver_id);
    dst::text_key(handle, "NAME", pic->name);
    return 0;
}

using libconfig_tag_parser_picinfo_t = dst::controller_entry<pic_module_list_t>;
static const libconfig_tag_parser_picinfo_t config_tag_pic_op[] = {
    {"PIC", libconfig_dev_generic_pic_op},
    {nullptr, nullptr},
};

brio_cfg_status_t libconfig_device_pic_op(void *handle, void *data) {
    return dst::read_strict_device<dst::pics>(handle, config_tag_pic_op, data, [](auto *) {});
}
