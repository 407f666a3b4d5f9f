// Fan trays: "DEVICES" groups of "Type" "FAN", with "FAN" groups and their "SS2RPM" rows inside.
// A new key: its member in libdst.h, its line here and in the dump, a case. A new controller: its enumerator and name
// row, its records and its row of DST_FAN_MODULES in libdst.h, their rows in records.h, its fans' readers and its row
// here, a case.
#include "devices.h"

ss2rpm_fan_info_t *libconfig_dev_ss2rpm_read(void *handle) {
    return dst::read_record<ss2rpm_fan_info_t>([=](auto &row) {
        dst::int_key(handle, "SPEED", row.speed);
        dst::int_key(handle, "AFISPEED", row.afi_speed);
        dst::int_key(handle, "RPM", row.rpm);
        dst::int_key(handle, "TOLERANCE", row.tolerance);
        dst::int_key(handle, "PWMVAL", row.pwmval);
        dst::int_key(handle, "AFIPWMVAL", row.afi_pwmval);
    });
}

// The fans of a tray, by controller

DST_LIST_READER(static, libconfig_dev_ss2rpm_get, libconfig_dev_ss2rpm_read, adt7470_fan_info_t, ss2rpm)
static adt7470_fan_info_t *libconfig_dev_fan_fan_tag_adt7470_read(void *handle) {
    return dst::read_record<adt7470_fan_info_t>([=](auto &fan) {
        dst::list_init(fan.ss2rpm);
        dst::int_key(handle, "id", fan.fan_id);
        dst::text_key(handle, "NAME", fan.name);
        dst::int_key(handle, "TACH_LOW_BYTE_REG", fan.tach_low_byte_reg);
        dst::int_key(handle, "TACH_HIGH_BYTE_REG", fan.tach_high_byte_reg);
        dst::int_key(handle, "PWM_DUTY_CYCLE_REG", fan.pwm_duty_cycle_reg);
        dst::int_key(handle, "SPEED_REG", fan.speed_reg);
        brio_config_subtree_get(handle, "SS2RPM", &fan, libconfig_dev_ss2rpm_get);
    });
}

// Two controllers select the fan by a register of its own.
template <class Fan> static Fan *read_selected_fan(void *handle, brio_config_get_fn_t ss2rpm_get) {
    return dst::read_record<Fan>([=](auto &fan) {
        dst::list_init(fan.ss2rpm);
        dst::int_key(handle, "id", fan.fan_id);
        dst::text_key(handle, "NAME", fan.name);
        dst::int_key(handle, "TACH_LOW_BYTE_REG", fan.tach_low_byte_reg);
        dst::int_key(handle, "PWM_DUTY_CYCLE_REG", fan.pwm_duty_cycle_reg);
        dst::int_key(handle, "FAN_SELECT_REG", fan.ec_i2cs_fan_select);
        brio_config_subtree_get(handle, "SS2RPM", &fan, ss2rpm_get);
    });
}

DST_LIST_READER(static, libconfig_dev_gfc0812_ss2rpm_get, libconfig_dev_ss2rpm_read, gfc0812_fan_info_t, ss2rpm)
static gfc0812_fan_info_t *libconfig_dev_fan_fan_tag_gfc0812_read(void *handle) {
    return read_selected_fan<gfc0812_fan_info_t>(handle, libconfig_dev_gfc0812_ss2rpm_get);
}

DST_LIST_READER(static, libconfig_dev_haskel_9hv0812_ss2rpm_get, libconfig_dev_ss2rpm_read, haskel_9hv0812_fan_info_t,
                ss2rpm)
static haskel_9hv0812_fan_info_t *libconfig_dev_fan_fan_tag_haskel_9hv0812_read(void *handle) {
    return read_selected_fan<haskel_9hv0812_fan_info_t>(handle, libconfig_dev_haskel_9hv0812_ss2rpm_get);
}

static pelian_fan_syspld_info_t *libconfig_dev_fan_fan_syspld_tag_read(void *handle) {
    return dst::read_record<pelian_fan_syspld_info_t>([=](auto &fan) {
        dst::int_key(handle, "id", fan.fan_id);
        dst::text_key(handle, "NAME", fan.name);
        dst::int_key(handle, "PEL_SYSPLD_FAN_CTRL_REG", fan.fan_ctrl_reg);
        dst::int_key(handle, "PEL_SYSPLD_FAN_CTRL_SHIFT_BITS", fan.fan_ctrl_shift_bits);
        dst::int_key(handle, "PEL_SYSPLD_FAN_SPEED_REG", fan.fan_speed_reg);
    });
}

template <auto FanReader, class Module> static brio_cfg_status_t read_counted_fans(void *handle, Module *module) {
    return dst::read_list<FanReader>(handle, module->fan_info, [=] { ++module->nfans; });
}

static brio_cfg_status_t libconfig_dev_fan_fan_tag_adt7470_get(void *handle, void *data) {
    return read_counted_fans<libconfig_dev_fan_fan_tag_adt7470_read>(handle,
                                                                     static_cast<adt7470_module_info_t *>(data));
}
static brio_cfg_status_t libconfig_dev_fan_fan_tag_gfc0812_get(void *handle, void *data) {
    return read_counted_fans<libconfig_dev_fan_fan_tag_gfc0812_read>(handle,
                                                                     static_cast<gfc0812_module_info_t *>(data));
}
static brio_cfg_status_t libconfig_dev_fan_fan_tag_haskel_9hv0812_get(void *handle, void *data) {
    return read_counted_fans<libconfig_dev_fan_fan_tag_haskel_9hv0812_read>(
        handle, static_cast<haskel_9hv0812_module_info_t *>(data));
}
// This controller's fans are not counted: `nfans` stays 0.
DST_LIST_READER(static, libconfig_dev_fan_fan_tag_syscpld_get, libconfig_dev_fan_fan_syspld_tag_read,
                pelian_fan_syspld_module_info_t, fan_info)

// Trays

// A controller reader; the node points at the tray that begins the module. A tray without "FAN", and where it is
// required without "id", is none.
template <class Module>
static int read_tray(const char *func, ctrl_type_t type, bool id_required, brio_config_get_fn_t fans_reader,
                     void *handle, fan_module_list_t *node) {
    auto made = dst::make<Module>();
    if (!made)
        return dst::check(func, -1, dst::no_memory);
    Module *module = made.release();
    dst::list_init(module->fan_info);
    module->fan_tray_info.ctrl_type = type;
    node->fan_minfo = &module->fan_tray_info;
    if (dst::int_key(handle, "id", module->fan_tray_info.id) != BRIO_CONFIG_SUCCESS && id_required)
        return -1;
    return brio_config_subtree_get(handle, "FAN", module, fans_reader) == BRIO_CONFIG_SUCCESS ? 0 : -1;
}

#define FAN_CONTROLLERS(ROW)                                                                                           \
    ROW("ADT7470", libconfig_dev_fan_adt7470_op, adt7470_module_info_t, CTRL_TYPE_ADT7470, true,                       \
        libconfig_dev_fan_fan_tag_adt7470_get)                                                                         \
    ROW("FANSYSPLD", libconfig_dev_fan_syspld_op, pelian_fan_syspld_module_info_t, CTRL_TYPE_FANSYSPLD, true,          \
        libconfig_dev_fan_fan_tag_syscpld_get)                                                                         \
    ROW("GFC0812", libconfig_dev_fan_gfc0812_op, gfc0812_module_info_t, CTRL_TYPE_GFC0812, true,                       \
        libconfig_dev_fan_fan_tag_gfc0812_get)                                                                         \
    ROW("9HV0812", libconfig_dev_fan_haskel_9hv0812_op, haskel_9hv0812_module_info_t, CTRL_TYPE_9HV0812, false,        \
        libconfig_dev_fan_fan_tag_haskel_9hv0812_get)
#define FAN_READER(ctrl, handler, Module, type, id_required, fans_reader)                                              \
    static int handler(void *handle, fan_module_list_t *node) {                                                        \
        return read_tray<Module>(__func__, type, id_required, fans_reader, handle, node);                              \
    }
#define FAN_ENTRY(ctrl, handler, ...) {ctrl, handler},
FAN_CONTROLLERS(FAN_READER)
using libconfig_tag_parser_faninfo_t = dst::controller_entry<fan_module_list_t>;
static const libconfig_tag_parser_faninfo_t config_tag_fan_op[] = {FAN_CONTROLLERS(FAN_ENTRY){nullptr, nullptr}};

// The beginning of a controller's name suffices, for fan trays alone. A tray with an unknown controller is dropped and
// the walk goes on.
brio_cfg_status_t libconfig_device_fan_data_get(void *handle, void *data) {
    auto found = dst::read_device<dst::fans>(handle, config_tag_fan_op, dst::begins_with);
    if (!found.node || (found.known && found.result != 0))
        return BRIO_CONFIG_FAIL;
    if (fan_info_t *tray = found.node->fan_minfo) {
        dst::text_key(handle, "NAME", tray->name);
        dst::int_key(handle, "DRIVERID", tray->driver_id);
        dst::int_key(handle, "FRUID", found.node->fru_id);
        dst::append_device(static_cast<libdst_chs_info_t *>(data), found);
    }
    return BRIO_CONFIG_SUCCESS;
}
