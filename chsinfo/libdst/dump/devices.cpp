// The devices that are one DEVICE element each, kind by kind in the order of print_single_devices().
// A new leaf is a row of its record's table. A new kind is its leaves and a line of print_single_devices().
#include "sections.h"

namespace dst {

// The FRU of a device; -1 where the link is missing.
static value fru_id(const fru_info_t *fru) { return dec(fru ? fru->id : static_cast<uint32_t>(-1)); }

static constexpr leaf<fan_info_t> fan_tray_leaves[] = {
    {"NAME", [](const auto &f) { return text(f.name); }},
    {"DRIVERID", [](const auto &f) { return dec(f.driver_id); }},
    {"FRUID", [](const auto &f) { return fru_id(f.fru_info); }},
};

static constexpr leaf<adt7470_fan_info_t> adt7470_fan_leaves[] = {
    {"NAME", [](const auto &f) { return text(f.name); }},
    {"TACH_LOW_BYTE_REG", [](const auto &f) { return hex(f.tach_low_byte_reg); }},
    {"TACH_HIGH_BYTE_REG", [](const auto &f) { return hex(f.tach_high_byte_reg); }},
    {"PWM_DUTY_CYCLE_REG", [](const auto &f) { return hex(f.pwm_duty_cycle_reg); }},
};

// The fans of GFC0812 and 9HV0812 trays.
template <class Fan>
static constexpr leaf<Fan> selected_fan_leaves[] = {
    {"NAME", [](const auto &f) { return text(f.name); }},
    {"TACH_LOW_BYTE_REG", [](const auto &f) { return hex(f.tach_low_byte_reg); }},
    {"PWM_DUTY_CYCLE_REG", [](const auto &f) { return hex(f.pwm_duty_cycle_reg); }},
    {"FAN_SELECT_REG", [](const auto &f) { return hex(f.ec_i2cs_fan_select); }},
};

// Slot boards and power supplies
template <class Board>
static constexpr leaf<Board> board_leaves[] = {
    {"NAME", [](const auto &b) { return text(b.name); }},
    {"FRUID", [](const auto &b) { return fru_id(b.fru_info); }},
    {"DRIVERID", [](const auto &b) { return dec(b.driver_id); }},
};

static constexpr leaf<limit_t> limit_leaves[] = {
    {"TEMP", [](const auto &l) { return dec(l.temp); }},
    {"FANSTEPID", [](const auto &l) { return dec(static_cast<uint32_t>(l.fan_step_id)); }},
};

static constexpr leaf<tmpsnr_info_t> tmpsnr_leaves[] = {
    {"FRUID", [](const auto &t) { return fru_id(t.fru_info); }},
    {"DRIVERID", [](const auto &t) { return dec(t.driver_id); }},
};

static constexpr leaf<voltsnr_info_t> voltsnr_leaves[] = {
    {"FRUID", [](const auto &v) { return fru_id(v.fru_info); }},
    {"NAME", [](const auto &v) { return text(v.name); }},
    {"DRIVERID", [](const auto &v) { return dec(v.driver_id); }},
};

static constexpr leaf<led_info_t> led_leaves[] = {
    {"NAME", [](const auto &l) { return text(l.name); }},
    {"LEDTYPE", [](const auto &l) { return name(dst_led_type, l.led_type); }},
    {"DRIVERID", [](const auto &l) { return dec(l.driver_id); }},
    {"FRUID", [](const auto &l) { return fru_id(l.fru_info); }},
};

static constexpr leaf<btn_info_t> btn_leaves[] = {
    {"NAME", [](const auto &b) { return text(b.name); }},
    {"BTNTYPE", [](const auto &b) { return name(dst_btn_type, b.button_type); }},
    {"DRIVERID", [](const auto &b) { return dec(b.driver_id); }},
    {"FRUID", [](const auto &b) { return fru_id(b.fru_info); }},
};

static constexpr leaf<pic_info_t> pic_leaves[] = {
    {"NAME", [](const auto &p) { return text(p.name); }},
    {"PICI2CID", [](const auto &p) { return hex(p.pic_i2cid); }},
    {"DRIVERID", [](const auto &p) { return dec(p.driver_id); }},
    {"CAPABILITY", [](const auto &p) { return dec(p.capablility); }},
    {"FRUID", [](const auto &p) { return fru_id(p.fru_info); }},
};

// The DEVICE elements of a kind: what print_first prints, the leaves, what print_last prints.
template <class K, std::size_t N>
static void print_devices(libdst_chs_info_t *model, int device, const leaf<typename K::record_t> (&leaves)[N],
                          auto print_first, auto print_last) {
    for (auto &record : records<K>(model)) {
        print_open(4, "DEVICE",
                   {{"id", dec(record.id)},
                    {"type", name(dst_dev_type, device)},
                    {"ctrl", name(dst_ctrl_type, record.ctrl_type)}});
        print_first(record);
        print_leaves(8, leaves, record);
        print_last(record);
        print_close(4, "DEVICE");
    }
}

static constexpr auto nothing = [](const auto &) {};

template <class K, std::size_t N>
static void print_devices(libdst_chs_info_t *model, int device, const leaf<typename K::record_t> (&leaves)[N]) {
    print_devices<K>(model, device, leaves, nothing, nothing);
}

template <class K> static void print_boards(libdst_chs_info_t *model, int device) {
    print_devices<K>(model, device, board_leaves<typename K::record_t>);
}

template <class Module, class Fan, std::size_t N>
static void print_fans(const Module &module, const leaf<Fan> (&leaves)[N]) {
    print_leaf(8, "NFANS", dec(module.nfans));
    for (const Fan &fan : entries(module.fan_info)) {
        print_open(12, "FAN", {{"id", dec(fan.fan_id)}});
        print_leaves(16, leaves, fan);
        print_close(12, "FAN");
    }
}

static void print_module(const adt7470_module_info_t &module) { print_fans(module, adt7470_fan_leaves); }
static void print_module(const gfc0812_module_info_t &module) {
    print_fans(module, selected_fan_leaves<gfc0812_fan_info_t>);
}
static void print_module(const haskel_9hv0812_module_info_t &module) {
    print_fans(module, selected_fan_leaves<haskel_9hv0812_fan_info_t>);
}
static void print_module(const pelian_fan_syspld_module_info_t &) {}
static void print_module(const fan_info_t &) {}

static void print_fan_module(fan_info_t &tray) {
    with_module(&tray, [](auto *module) { print_module(*module); });
}

static void print_thresholds(const tmpsnr_info_t &sensor) {
    for (const tmpsnr_threshold_t &threshold : entries(sensor.threshold_list)) {
        print_open(8, "THRESHOLD", {{"id", dec(threshold.id)}, {"type", name(dst_aflow_type, threshold.aflow_type)}});
        print_leaf(12, "NAME", text(threshold.name));
        for (const limit_t &limit : entries(threshold.limit_list)) {
            print_open(12, "LIMIT", {{"id", dec(limit.id)}});
            print_leaves(16, limit_leaves, limit);
            print_close(12, "LIMIT");
        }
        print_leaf(12, "FIRE", dec(threshold.fire));
        for (const alarm_info_t &alarm : entries(threshold.alarm_list))
            print_leaf(12, "ALARM", dec(alarm.alarm),
                       {{"id", dec(alarm.id)}, {"type", name(dst_tmpsnr_thres_alarm_type, alarm.type)}});
        print_close(8, "THRESHOLD");
    }
}

void print_single_devices(libdst_chs_info_t *model) {
    print_devices<fans>(model, DST_FAN_DEV_IDX, fan_tray_leaves, nothing, print_fan_module);
    print_boards<fpcs>(model, DST_FPC_DEV_IDX);
    print_boards<sibs>(model, DST_SIB_DEV_IDX);
    print_boards<fpms>(model, DST_FPM_DEV_IDX);
    print_boards<ftcs>(model, DST_FTC_DEV_IDX);
    print_boards<cbs>(model, DST_CB_DEV_IDX);
    print_boards<pems>(model, DST_PSU_DEV_IDX);
    print_devices<tmpsnrs>(model, DST_TMPSNR_DEV_IDX, tmpsnr_leaves, print_thresholds, nothing);
    print_devices<voltsnrs>(model, DST_VOLTSNR_DEV_IDX, voltsnr_leaves);
    print_devices<leds>(model, DST_LED_DEV_IDX, led_leaves);
    print_devices<btns>(model, DST_BTN_DEV_IDX, btn_leaves);
    print_devices<pics>(model, DST_PIC_DEV_IDX, pic_leaves);
}

} // namespace dst
