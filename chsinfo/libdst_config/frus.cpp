// Root key "FRUS": the FRUs, with the simulated EEPROM and the simulated readings that a FRU may carry.
// A new key: its member in libdst.h, its line here and in the dump, a case.
#include "chsinfo/libdst_priv.h"
#include "readers.h"

static sim_ss2rpm_fan_info_t *libconfig_dev_sim_ss2rpm_read(void *handle) {
    return dst::read_record<sim_ss2rpm_fan_info_t>([=](auto &row) {
        dst::int_key(handle, "SIM_SPEED", row.speed);
        dst::int_key(handle, "SIM_RPM", row.rpm);
        dst::int_key(handle, "SIM_TOLERANCE", row.tolerance);
        dst::int_key(handle, "SIM_PWMVAL", row.pwmval);
    });
}
DST_LIST_READER(static, libconfig_dev_sim_ss2rpm_get, libconfig_dev_sim_ss2rpm_read, sim_fru_data_t, sim_ss2rpm)

static sim_fru_data_t *libconfig_dev_virt_frudata_read(void *handle) {
    return dst::read_record<sim_fru_data_t>([=](auto &data) {
        dst::list_init(data.sim_ss2rpm);
        dst::list_init(data.sim_ts_threshold);
        dst::text_key(handle, "FRU_PRESENCE", data.presence);
        dst::int_key(handle, "TEMPERATURE", data.temperature);
        dst::int_key(handle, "FAN_SPEED_RPM", data.fan_rpm);
        dst::int_key(handle, "FAN_SPEED_PERCENTAGE", data.fan_speed_percent);
        dst::int_key(handle, "INPUT_VOLTAGE", data.input_voltage);
        dst::int_key(handle, "OUTPUT_VOLTAGE", data.output_voltage);
        dst::int_key(handle, "INPUT_CURRENT", data.input_current);
        dst::int_key(handle, "OUTPUT_CURRENT", data.output_current);
        dst::int_key(handle, "FAN_AF_TYPE", data.fan_af_type);
        brio_config_subtree_get(handle, "SIM_SS2RPM", &data, libconfig_dev_sim_ss2rpm_get);
        brio_config_subtree_get(handle, "SIM_THRESHOLD", &data, libconfig_config_sim_tmp_threshold_get);
    });
}
DST_LIST_READER(static, libconfig_dev_virt_frudata_get, libconfig_dev_virt_frudata_read, fru_module_list_t,
                fru_minfo.virtual_fru_data)

static sim_assembly_id_t *parse_fru_virtual_i2c_data(void *handle) {
    return dst::read_record<sim_assembly_id_t>([=](auto &assembly) {
        constexpr int capacity = sizeof assembly.program_bytes;
        int &count = assembly.program_bytes_read;
        for (int value = 0;
             count < capacity && brio_config_array_int_read(handle, count, &value) == BRIO_CONFIG_SUCCESS; ++count)
            assembly.program_bytes[count] = static_cast<uint8_t>(value);
    });
}

static void parent_key(void *handle, uint32_t &parent_id) {
    if (const char *text = dst::text_of(handle, "PARENT"))
        parent_id = dst::parent_id(text);
}

static fru_module_list_t *libconfig_frudev_data_read(void *handle) {
    return dst::read_record<fru_module_list_t>([=](auto &node) {
        fru_info_t &fru = node.fru_minfo;
        dst::list_init(fru.virtual_fru_data);
        node.i2cdev_id_ext = -1;
        dst::int_key(handle, "id", fru.id);
        dst::kind_key(handle, "Type", dst_fru_type, FRU_TYPE_MAX, fru.fru_type);
        dst::text_key(handle, "NAME", fru.name);
        dst::int_key(handle, "SLOTID", fru.slot);
        fru.logical_slot = fru.slot;
        dst::int_key(handle, "LOGICAL_SLOTID", fru.logical_slot);
        parent_key(handle, node.parent_id);
        dst::int_key(handle, "I2CDEVID", node.i2cdev_id);
        if (node.i2cdev_id < -1)
            node.i2cdev_id = -1;
        dst::int_key(handle, "I2CDEVEXTID", node.i2cdev_id_ext);
        dst::optional_kind_key(handle, "REMOVABLE_TYPE", dst_fru_removable_type, FRU_REMOVABLE_TYPE_MAX,
                               fru.fru_removable_type);
        dst::int_key(handle, "DRIVERID", fru.driverid);
        dst::flag_key(handle, "EPMVALID", fru.epmvalid);
        dst::int_key(handle, "HYST_OFFSET", fru.hyst_offset);
        dst::int_key(handle, "EPMSIZE", fru.epmsize);
        void *assembly = nullptr;
        brio_config_subtree_read(handle, "SIM_ASSEMBLY_DATA", &assembly,
                                 dst::element_reader<parse_fru_virtual_i2c_data>);
        fru.virtual_i2c_data = static_cast<sim_assembly_id_t *>(assembly);
        brio_config_subtree_get(handle, "SIM_FRU_DATA", &node, libconfig_dev_virt_frudata_get);
        dst::int_key(handle, "MAX_ALARM_REASONS", fru.max_alarm_reasons);
    });
}

static brio_cfg_status_t libconfig_frudevice_list_tag_op(void *handle, void *data) {
    auto *info = static_cast<libdst_chs_info_t *>(data);
    return dst::read_list<libconfig_frudev_data_read>(handle, info->fru_info,
                                                      [=] { ++info->chs_cinfo.chs_info.nfrus; });
}

int libconfig_frulist_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    dst::list_init(info->fru_info);
    return brio_config_subtree_get(handle, tag, info, libconfig_frudevice_list_tag_op);
}
