// What each record owns. A new record type gets its row here; without it, it does not compile. References (fru_info,
// parent, i2cdev, i2cdev_ext) are never listed.
#pragma once

#include "chsinfo/libdst.h"
#include "list.h"

namespace dst {

// I2C devices, FRUs and their simulation data
template <> struct about<libdst_i2cdev_info_t> : record<&libdst_i2cdev_info_t::i2cdev_info_next> {};
template <> struct about<sim_ss2rpm_fan_info_t> : record<&sim_ss2rpm_fan_info_t::sim_ss2rpm_info_next> {};
template <> struct about<sim_limit_t> : record<&sim_limit_t::limit_next> {};
template <> struct about<sim_alarm_info_t> : record<&sim_alarm_info_t::alarm_next> {};
template <>
struct about<sim_tmpsnr_threshold_t>
    : record<&sim_tmpsnr_threshold_t::sim_threshold_next, &sim_tmpsnr_threshold_t::limit_list,
             &sim_tmpsnr_threshold_t::alarm_list> {};
template <>
struct about<sim_fru_data_t>
    : record<&sim_fru_data_t::sim_fru_data_next, &sim_fru_data_t::sim_ss2rpm, &sim_fru_data_t::sim_ts_threshold> {};
template <> struct about<sim_assembly_id_t> : record<nullptr> {};
template <> struct about<fru_info_t> : record<nullptr, &fru_info_t::virtual_i2c_data, &fru_info_t::virtual_fru_data> {};
template <> struct about<fru_module_list_t> : record<&fru_module_list_t::fru_next, &fru_module_list_t::fru_minfo> {};

// FRU models and chassis models
template <> struct about<ambient_temp_t> : record<&ambient_temp_t::ambient_temp_next> {};
template <> struct about<fru_model_info_t> : record<nullptr, &fru_model_info_t::ambient_temp_info> {};
template <>
struct about<frumodel_module_list_t>
    : record<&frumodel_module_list_t::frumodel_next, &frumodel_module_list_t::frumodel_minfo> {};

// Fans. The controller says which module record a node's fan_minfo begins.
template <> struct about<ss2rpm_fan_info_t> : record<&ss2rpm_fan_info_t::ss2rpm_info_next> {};
template <>
struct about<adt7470_fan_info_t> : record<&adt7470_fan_info_t::fan_info_next, &adt7470_fan_info_t::ss2rpm> {};
template <>
struct about<gfc0812_fan_info_t> : record<&gfc0812_fan_info_t::fan_info_next, &gfc0812_fan_info_t::ss2rpm> {};
template <>
struct about<haskel_9hv0812_fan_info_t>
    : record<&haskel_9hv0812_fan_info_t::fan_info_next, &haskel_9hv0812_fan_info_t::ss2rpm> {};
template <> struct about<pelian_fan_syspld_info_t> : record<&pelian_fan_syspld_info_t::fan_info_next> {};
template <> struct about<adt7470_module_info_t> : record<nullptr, &adt7470_module_info_t::fan_info> {};
template <> struct about<gfc0812_module_info_t> : record<nullptr, &gfc0812_module_info_t::fan_info> {};
template <> struct about<haskel_9hv0812_module_info_t> : record<nullptr, &haskel_9hv0812_module_info_t::fan_info> {};
template <>
struct about<pelian_fan_syspld_module_info_t> : record<nullptr, &pelian_fan_syspld_module_info_t::fan_info> {};

// The module record that a tray begins; only for a tray whose ctrl_type says so.
template <class Module> Module *module_of(fan_info_t *tray) { return reinterpret_cast<Module *>(tray); }

// visit(module) for that record; visit(tray) where the controller begins none.
auto with_module(fan_info_t *tray, auto visit) {
    switch (tray->ctrl_type) {
#define DST_MODULE(controller, module, fan)                                                                            \
    case controller:                                                                                                   \
        return visit(module_of<module>(tray));
        DST_FAN_MODULES(DST_MODULE)
#undef DST_MODULE
    default:
        return visit(tray);
    }
}

template <> struct about<fan_info_t> : record<nullptr> {};
template <> struct about<fan_module_list_t> {
    static constexpr auto link = &fan_module_list_t::fan_next;
    static void release_owned(fan_module_list_t *node) {
        if (node->fan_minfo)
            with_module(node->fan_minfo, [](auto *module) { release(module); });
    }
};

// Slot boards and power supplies
template <> struct about<fpc_info_t> : record<nullptr> {};
template <> struct about<fpc_module_list_t> : record<&fpc_module_list_t::fpc_next, &fpc_module_list_t::fpc_minfo> {};
template <> struct about<sib_info_t> : record<nullptr> {};
template <> struct about<sib_module_list_t> : record<&sib_module_list_t::sib_next, &sib_module_list_t::sib_minfo> {};
template <> struct about<tib_info_t> : record<nullptr> {};
template <> struct about<tib_module_list_t> : record<&tib_module_list_t::tib_next, &tib_module_list_t::tib_minfo> {};
template <> struct about<fpm_info_t> : record<nullptr> {};
template <> struct about<fpm_module_list_t> : record<&fpm_module_list_t::fpm_next, &fpm_module_list_t::fpm_minfo> {};
template <> struct about<ftc_info_t> : record<nullptr> {};
template <> struct about<ftc_module_list_t> : record<&ftc_module_list_t::ftc_next, &ftc_module_list_t::ftc_minfo> {};
template <> struct about<cb_info_t> : record<nullptr> {};
template <> struct about<cb_module_list_t> : record<&cb_module_list_t::cb_next, &cb_module_list_t::cb_minfo> {};
template <> struct about<pem_info_t> : record<nullptr, &pem_info_t::ss2rpm> {};
template <> struct about<pem_module_list_t> : record<&pem_module_list_t::pem_next, &pem_module_list_t::pem_minfo> {};

// Sensors
template <> struct about<limit_t> : record<&limit_t::limit_next> {};
template <> struct about<alarm_info_t> : record<&alarm_info_t::alarm_next> {};
template <>
struct about<tmpsnr_threshold_t>
    : record<&tmpsnr_threshold_t::threshold_next, &tmpsnr_threshold_t::limit_list, &tmpsnr_threshold_t::alarm_list> {};
template <> struct about<tmpsnr_info_t> : record<nullptr, &tmpsnr_info_t::threshold_list> {};
template <>
struct about<tmpsnr_module_list_t> : record<&tmpsnr_module_list_t::ts_next, &tmpsnr_module_list_t::ts_minfo> {};
template <> struct about<voltsnr_info_t> : record<nullptr> {};
template <>
struct about<voltsnr_module_list_t> : record<&voltsnr_module_list_t::vs_next, &voltsnr_module_list_t::vs_minfo> {};

// Indicators and PICs
template <> struct about<led_info_t> : record<nullptr> {};
template <>
struct about<ledlcd_module_list_t> : record<&ledlcd_module_list_t::ll_next, &ledlcd_module_list_t::ll_minfo> {};
template <> struct about<lcd_info_t> : record<nullptr> {};
template <> struct about<lcd_module_list_t> : record<&lcd_module_list_t::lcd_next, &lcd_module_list_t::lcd_minfo> {};
template <> struct about<btn_info_t> : record<nullptr> {};
template <>
struct about<button_module_list_t> : record<&button_module_list_t::btn_next, &button_module_list_t::btn_minfo> {};
template <> struct about<pic_info_t> : record<nullptr> {};
template <> struct about<pic_module_list_t> : record<&pic_module_list_t::pic_next, &pic_module_list_t::pic_minfo> {};

// ASICs and optics
template <> struct about<bcm_port_info_t> : record<&bcm_port_info_t::port_info_next> {};
template <> struct about<bcm_chip_info_t> : record<nullptr, &bcm_chip_info_t::port_info> {};
template <> struct about<asic_info_t> : record<nullptr, &asic_info_t::bcm_chip_info> {};
template <>
struct about<asic_module_list_t> : record<&asic_module_list_t::asic_next, &asic_module_list_t::asic_minfo> {};
template <> struct about<optics_module_list_t> : record<&optics_module_list_t::optics_next> {};

// EPM data and resiliency
template <> struct about<cepm_module_list_t> : record<&cepm_module_list_t::cepm_next> {};
template <> struct about<resil_error_list_t> : record<&resil_error_list_t::resil_error_next> {};
template <>
struct about<resil_module_list_t>
    : record<&resil_module_list_t::resil_module_next, &resil_module_list_t::resil_errors> {};
template <>
struct about<resil_fru_list_t> : record<&resil_fru_list_t::resil_fru_next, &resil_fru_list_t::resil_modules> {};

// The model: its lists in the order of their release.
template <> struct about<libdst_chs_cinfo_t> : record<nullptr, &libdst_chs_cinfo_t::i2cdev_info_list> {};
template <>
struct about<libdst_chs_info_t>
    : record<nullptr, &libdst_chs_info_t::chs_cinfo, &libdst_chs_info_t::fan_info, &libdst_chs_info_t::fpc_info,
             &libdst_chs_info_t::sib_info, &libdst_chs_info_t::tib_info, &libdst_chs_info_t::fpm_info,
             &libdst_chs_info_t::ftc_info, &libdst_chs_info_t::cb_info, &libdst_chs_info_t::pem_info,
             &libdst_chs_info_t::ts_info, &libdst_chs_info_t::vs_info, &libdst_chs_info_t::ll_info,
             &libdst_chs_info_t::btn_info, &libdst_chs_info_t::lcd_info, &libdst_chs_info_t::pic_info,
             &libdst_chs_info_t::asic_info, &libdst_chs_info_t::optics_info, &libdst_chs_info_t::fru_info,
             &libdst_chs_info_t::frumodel_info, &libdst_chs_info_t::chsmodel_info, &libdst_chs_info_t::cepm_info,
             &libdst_chs_info_t::resil_info> {};

} // namespace dst
