// Root key "BUS": the I2C devices.
// A new key: its member in libdst.h, its line here and in the dump, a case.
#include "readers.h"

namespace dst {
// A list head of its own, on its way to the model.
template <> struct about<i2cdev_info_list_t> {
    static void release_owned(i2cdev_info_list_t *list) { release_member(*list); }
};
} // namespace dst

static brio_cfg_status_t libconfig_i2c_mc_list_read(void *handle, void *data) {
    auto *mc = static_cast<i2c_mc_info_t *>(data);
    constexpr int capacity = sizeof mc->rentry / sizeof mc->rentry[0];
    brio_cfg_status_t status = BRIO_CONFIG_SUCCESS;
    while (mc->num_entries < capacity) {
        int value = 0;
        status = brio_config_array_int_read(handle, mc->num_entries, &value);
        if (status != BRIO_CONFIG_SUCCESS)
            break;
        mc->rentry[mc->num_entries++] = value;
    }
    return status;
}

static libdst_i2cdev_info_t *libconfig_i2cdevice_data_read(void *handle) {
    return dst::read_record<libdst_i2cdev_info_t>([=](auto &entry) {
        i2c_dev_info_t &device = entry.i2cdev_info;
        dst::int_key(handle, "id", device.id);
        dst::int_key(handle, "I2CADDR", device.i2caddr);
        dst::int_key(handle, "SEGMENT", device.segment);
        dst::int_key(handle, "DRIVERID", device.driver_id);
        dst::int_key(handle, "MUXADDR", device.muxaddr);
        dst::int_key(handle, "MUXADDR1", device.muxaddr1);
        dst::int_key(handle, "MUXADDR2", device.muxaddr2);
        dst::int_key(handle, "SMBUS", device.smbus);
        dst::int_key(handle, "PRESENCE_OFFSET", device.presence_offset);
        dst::int_key(handle, "PRESENCE_SMBUS", device.presence_smbus);
        dst::int_key(handle, "PRESENCE_CPLD_ADDR", device.presence_cpld_addr);
        brio_config_subtree_get(handle, "MC_MUXADDR", &device.mc_mux_addr_list, libconfig_i2c_mc_list_read);
        brio_config_subtree_get(handle, "MC_CHANNEL", &device.mc_chan_set_list, libconfig_i2c_mc_list_read);
        brio_config_subtree_get(handle, "PRESENCE_MUXADDR", &device.presence_mux_addr_list, libconfig_i2c_mc_list_read);
        brio_config_subtree_get(handle, "PRESENCE_CHANNEL", &device.presence_chan_set_list, libconfig_i2c_mc_list_read);
        dst::int_key(handle, "REGOFFSET", device.reg_offset);
        dst::kind_key(handle, "Type", dst_i2c_type, I2C_TYPE_MAX, device.type);
        dst::text_key(handle, "NAME", device.name);
        dst::text_key(handle, "PARENT", device.parent);
        dst::text_key(handle, "LOCATION", device.location);
        dst::text_key(handle, "SYSPATH", device.syspath);
    });
}

static i2cdev_info_list_t *libconfig_i2cdevlist_tag_op3(void *handle) {
    dst::owned<i2cdev_info_list_t> list = dst::make<i2cdev_info_list_t>();
    if (list)
        dst::read_list<libconfig_i2cdevice_data_read>(handle, *list);
    return list.release();
}

static i2cdev_info_list_t *libconfig_i2cdevlist_tag_op2(void *handle) {
    void *list = nullptr;
    brio_config_subtree_read(handle, "I2CDEV", &list, dst::element_reader<libconfig_i2cdevlist_tag_op3>);
    return static_cast<i2cdev_info_list_t *>(list);
}

int libconfig_bus_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    void *result = nullptr;
    brio_config_subtree_read(handle, tag, &result, dst::element_reader<libconfig_i2cdevlist_tag_op2>);
    const dst::owned<i2cdev_info_list_t> list(static_cast<i2cdev_info_list_t *>(result));
    if (list) {
        dst::move_list(*list, info->chs_cinfo.i2cdev_info_list);
        dst::list_init(*list);
    }
    return 0;
}
