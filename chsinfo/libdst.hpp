/** @file
 * The queries of libdst.h and the lists inside its records as C++20 ranges, and enumerators as texts. Header only: it
 * adds nothing to the library.
 *
 *     for (fan_info_t &tray : dst::fans())
 *         std::cout << tray.name << '\n';
 *     for (const tmpsnr_threshold_t &threshold : dst::thresholds(sensor))
 *         std::cout << threshold.fire << '\n';
 *
 * The range of a query asks the library for each next record, so it logs what the query logs (an empty list; the end of
 * a walk over FRU relatives), and costs what the query costs: a walk from the head of the list to the record, each
 * time. empty(), front() and a test as bool ask for the first. The range of a list inside a record follows its links.
 * Records belong to the model and are valid until libchs_release().
 */
#ifndef CHSINFO_LIBDST_HPP
#define CHSINFO_LIBDST_HPP

#if __cplusplus < 202002L
#error "libdst.hpp needs C++20, -std=c++20; C and older C++ use libdst.h"
#else

#include <cstddef>
#include <iterator>
#include <ranges>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "libdst.h"

namespace dst {

/** The records that a query gives one after the other: `Next` with the arguments that stay the same and the previous
 * record, null at first; null ends. A view, cheap to copy; its iterators do not depend on it. */
template <class R, auto Next, class... Fixed> class record_range : public std::ranges::view_base {
  public:
    class iterator {
      public:
        using value_type = std::remove_const_t<R>;
        using difference_type = std::ptrdiff_t;
        using pointer = R *;
        using reference = R &;
        using iterator_category = std::forward_iterator_tag;

        iterator() = default;
        iterator(record_range range, R *record) : range_(range), record_(record) {}
        R &operator*() const { return *record_; }
        R *operator->() const { return record_; }
        iterator &operator++() {
            record_ = range_.after(record_);
            return *this;
        }
        iterator operator++(int) {
            iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const iterator &other) const { return record_ == other.record_; }

      private:
        record_range range_;
        R *record_ = nullptr;
    };

    record_range() = default;
    explicit record_range(std::tuple<Fixed...> fixed) : fixed_(fixed) {}
    iterator begin() const { return {*this, after(nullptr)}; }
    iterator end() const { return {*this, nullptr}; }
    bool empty() const { return !after(nullptr); }
    explicit operator bool() const { return !empty(); }
    R &front() const { return *begin(); }

  private:
    R *after(R *previous) const {
        return std::apply(
            [previous](Fixed... fixed) {
                if constexpr (std::is_invocable_v<decltype(Next), Fixed..., R *>)
                    return Next(fixed..., previous);
                else
                    return Next(previous, fixed...);
            },
            fixed_);
    }
    std::tuple<Fixed...> fixed_;
};

/** What a query gives: the record type of `R *next(...)`. */
template <class R, class... Parameters> R record_of(R *(*)(Parameters...));

/** The range over a query of libdst.h, the arguments beside the previous record being `fixed`. */
template <auto Next, class... Fixed> auto walk(Fixed... fixed) {
    return record_range<decltype(record_of(Next)), Next, Fixed...>(std::tuple<Fixed...>(fixed...));
}

/** `Next` among the devices of one FRU, for kinds that have no query for it. */
template <auto Next, class R = decltype(record_of(Next))> R *next_on_fru(uint32_t fru_id, R *previous) {
    do
        previous = Next(previous);
    while (previous && previous->fru_info->id != fru_id);
    return previous;
}

/** What has a link as its member. */
template <class Entry, class Link> Entry entry_with(Link Entry::*);

/** The entry after `previous` in a list inside a record; `first` for null. */
template <auto Link, class Entry = decltype(entry_with(Link))>
const Entry *next_entry(const Entry *first, const Entry *previous) {
    return previous ? (previous->*Link).tqe_next : first;
}

/** The range over a list inside a record. */
template <auto Link> auto linked(const auto &list) { return walk<next_entry<Link>>(list.tqh_first); }

/* All records of a kind. */
inline auto i2c_devices() { return walk<libchs_i2c_dev_info_get_next>(); }
inline auto fans() { return walk<libchs_fan_info_get_next>(); }
inline auto pems() { return walk<libchs_pem_info_get_next>(); }
inline auto fpcs() { return walk<libchs_fpc_info_get_next>(); }
inline auto sibs() { return walk<libchs_sib_info_get_next>(); }
inline auto fpms() { return walk<libchs_fpm_info_get_next>(); }
inline auto ftcs() { return walk<libchs_ftc_info_get_next>(); }
inline auto cbs() { return walk<libchs_cb_info_get_next>(); }
inline auto tibs() { return walk<libchs_tib_info_get_next>(); }
inline auto temperature_sensors() { return walk<libchs_tmpsnr_info_get_next>(); }
inline auto voltage_sensors() { return walk<libchs_voltsnr_info_get_next>(); }
inline auto leds() { return walk<libchs_led_info_get_next>(); }
inline auto lcds() { return walk<libchs_lcd_info_get_next>(); }
inline auto buttons() { return walk<libchs_btn_info_get_next>(); }
inline auto pics() { return walk<libchs_pic_info_get_next>(); }
inline auto frus() { return walk<libchs_fru_info_get_next>(); }
inline auto asics() { return walk<libchs_asic_info_get_next>(); }
inline auto optics() { return walk<libchs_optics_info_get_next>(); }
inline auto epm_data() { return walk<libchs_epm_data_get_next>(); }
inline auto fru_models() { return walk<libdst_fru_model_info_get_next>(); }
inline auto chassis_models() { return walk<libdst_chassis_model_info_get_next>(); }

/* Records of a kind that have something in common. */
inline auto i2c_devices(i2cdev_type_t type) { return walk<libchs_i2c_dev_info_get_next_by_type>(type); }
/** The ports of the ASIC with this id. */
inline auto ports_of_asic(uint32_t asic_id) { return walk<libchs_bcm_port_info_get_next>(asic_id); }
/** The ports of all ASICs that lead to the PIC with this I2C id. */
inline auto ports_of_pic(uint32_t pic_i2cid) { return walk<libchs_bcm_port_info_get_next_by_picid>(pic_i2cid); }
inline auto optics_of_port(uint32_t port_no) { return walk<libchs_optics_info_get_next_by_port_no>(port_no); }
inline auto optics_of_slot(uint32_t slotno) { return walk<libchs_optics_info_get_next_by_slotno>(slotno); }
inline auto fru_models(fru_type_t type) { return walk<libdst_fru_model_info_get_next_by_type>(type); }

/* The FRUs of one type that have a walk of their own. */
inline auto fan_frus() { return walk<libchs_fru_info_get_next_by_fan>(); }
inline auto pem_frus() { return walk<libchs_fru_info_get_next_by_pem>(); }
inline auto fpc_frus() { return walk<libchs_fru_info_get_next_by_fpc>(); }
inline auto sib_frus() { return walk<libchs_fru_info_get_next_by_sib>(); }
inline auto fpm_frus() { return walk<libchs_fru_info_get_next_by_fpm>(); }
inline auto ftc_frus() { return walk<libchs_fru_info_get_next_by_ftc>(); }
inline auto cb_frus() { return walk<libchs_fru_info_get_next_by_cb>(); }
inline auto tib_frus() { return walk<libchs_fru_info_get_next_by_tib>(); }
inline auto pic_frus() { return walk<libchs_fru_info_get_next_by_pic>(); }

/* The FRU tree. */
inline auto top_level_frus() { return walk<libchs_fru_info_get_next_parent>(); }
/** The direct children of the FRUs with this FRU's id; those of the very record have it as their `parent`. The query
 * only reads the FRU. */
inline auto children(const fru_info_t &parent) {
    return walk<libchs_fru_info_get_next_child>(const_cast<fru_info_t *>(&parent));
}

/* The devices on one FRU, those of all FRUs with its id. */
inline auto fans(const fru_info_t &fru) { return walk<libchs_fru_fan_info_get_next>(fru.id); }
inline auto pems(const fru_info_t &fru) { return walk<libchs_fru_pem_info_get_next>(fru.id); }
inline auto fpcs(const fru_info_t &fru) { return walk<libchs_fru_fpc_info_get_next>(fru.id); }
inline auto sibs(const fru_info_t &fru) { return walk<libchs_fru_sib_info_get_next>(fru.id); }
inline auto fpms(const fru_info_t &fru) { return walk<libchs_fru_fpm_info_get_next>(fru.id); }
inline auto ftcs(const fru_info_t &fru) { return walk<libchs_fru_ftc_info_get_next>(fru.id); }
inline auto cbs(const fru_info_t &fru) { return walk<libchs_fru_cb_info_get_next>(fru.id); }
inline auto tibs(const fru_info_t &fru) { return walk<libchs_fru_tib_info_get_next>(fru.id); }
inline auto pics(const fru_info_t &fru) { return walk<libchs_fru_pic_info_get_next>(fru.id); }
inline auto temperature_sensors(const fru_info_t &fru) {
    return walk<next_on_fru<libchs_tmpsnr_info_get_next>>(fru.id);
}
inline auto voltage_sensors(const fru_info_t &fru) { return walk<next_on_fru<libchs_voltsnr_info_get_next>>(fru.id); }
inline auto leds(const fru_info_t &fru) { return walk<next_on_fru<libchs_led_info_get_next>>(fru.id); }
inline auto lcds(const fru_info_t &fru) { return walk<next_on_fru<libchs_lcd_info_get_next>>(fru.id); }
inline auto buttons(const fru_info_t &fru) { return walk<next_on_fru<libchs_btn_info_get_next>>(fru.id); }

/** The modules of a resiliency entry, as libdst_resil_get_fru_list() gives it. The query only reads the entry. */
inline auto modules(const resil_fru_list_t &entry) {
    return walk<libdst_resil_module_list_get_next>(const_cast<resil_fru_list_t *>(&entry));
}

/* The lists inside records. */
inline auto thresholds(const tmpsnr_info_t &sensor) {
    return linked<&tmpsnr_threshold_t::threshold_next>(sensor.threshold_list);
}
inline auto limits(const tmpsnr_threshold_t &threshold) { return linked<&limit_t::limit_next>(threshold.limit_list); }
inline auto alarms(const tmpsnr_threshold_t &threshold) {
    return linked<&alarm_info_t::alarm_next>(threshold.alarm_list);
}
#define DST_FANS(controller, module_record, fan_record)                                                                \
    inline auto fans(const module_record &module) { return linked<&fan_record::fan_info_next>(module.fan_info); }
DST_FAN_MODULES(DST_FANS)
#undef DST_FANS
inline auto speeds(const adt7470_fan_info_t &fan) { return linked<&ss2rpm_fan_info_t::ss2rpm_info_next>(fan.ss2rpm); }
inline auto speeds(const gfc0812_fan_info_t &fan) { return linked<&ss2rpm_fan_info_t::ss2rpm_info_next>(fan.ss2rpm); }
inline auto speeds(const haskel_9hv0812_fan_info_t &fan) {
    return linked<&ss2rpm_fan_info_t::ss2rpm_info_next>(fan.ss2rpm);
}
inline auto speeds(const pem_info_t &pem) { return linked<&ss2rpm_fan_info_t::ss2rpm_info_next>(pem.ss2rpm); }
inline auto ports(const asic_info_t &asic) {
    return linked<&bcm_port_info_t::port_info_next>(asic.bcm_chip_info.port_info);
}
inline auto ambient_temperatures(const fru_model_info_t &model) {
    return linked<&ambient_temp_t::ambient_temp_next>(model.ambient_temp_info);
}
inline auto errors(const resil_module_list_t &module) {
    return linked<&resil_error_list_t::resil_error_next>(module.resil_errors);
}
inline auto simulated_readings(const fru_info_t &fru) {
    return linked<&sim_fru_data_t::sim_fru_data_next>(fru.virtual_fru_data);
}
inline auto speeds(const sim_fru_data_t &readings) {
    return linked<&sim_ss2rpm_fan_info_t::sim_ss2rpm_info_next>(readings.sim_ss2rpm);
}
inline auto thresholds(const sim_fru_data_t &readings) {
    return linked<&sim_tmpsnr_threshold_t::sim_threshold_next>(readings.sim_ts_threshold);
}
inline auto limits(const sim_tmpsnr_threshold_t &threshold) {
    return linked<&sim_limit_t::limit_next>(threshold.limit_list);
}
inline auto alarms(const sim_tmpsnr_threshold_t &threshold) {
    return linked<&sim_alarm_info_t::alarm_next>(threshold.alarm_list);
}

/** Calls `visit` with the module record that a tray begins, and returns its result, of one type for all modules:
 *
 *     dst::visit_module(tray, [](const auto &module) { return std::ranges::distance(dst::fans(module)); })
 *
 * A tray whose controller has no module, which no model holds, is not visited; the result is a default one. */
template <class Visit> auto visit_module(const fan_info_t &tray, Visit visit) {
    switch (tray.ctrl_type) {
#define DST_VISIT(controller, module_record, fan_record)                                                               \
    case controller:                                                                                                   \
        return visit(reinterpret_cast<const module_record &>(tray));
        DST_FAN_MODULES(DST_VISIT)
#undef DST_VISIT
    default:
        return std::invoke_result_t<Visit, const adt7470_module_info_t &>();
    }
}

/* The name of an enumerator, as descriptions write it; empty for one without. */
inline std::string_view name(i2cdev_type_t type) { return DST_NAME(dst_i2c_type, type); }
inline std::string_view name(ctrl_type_t type) { return DST_NAME(dst_ctrl_type, type); }
inline std::string_view name(chassis_family_t family) { return DST_NAME(dst_chassis_family_type, family); }
inline std::string_view name(fru_type_t type) { return DST_NAME(dst_fru_type, type); }
inline std::string_view name(fru_removable_type_t type) { return DST_NAME(dst_fru_removable_type, type); }
inline std::string_view name(fru_aflow_type_t type) { return DST_NAME(dst_aflow_type, type); }
inline std::string_view name(fru_power_type_t type) { return DST_NAME(dst_power_type, type); }
inline std::string_view name(alarm_type_t type) { return DST_NAME(dst_tmpsnr_thres_alarm_type, type); }
inline std::string_view name(led_type_t type) { return DST_NAME(dst_led_type, type); }
inline std::string_view name(lcd_type_t type) { return DST_NAME(dst_lcd_type, type); }
inline std::string_view name(btn_type_t type) { return DST_NAME(dst_btn_type, type); }
inline std::string_view name(scpld_type_t type) { return DST_NAME(dst_scpld_type, type); }
inline std::string_view name(phy_type_t type) { return DST_NAME(dst_phy_type, type); }
inline std::string_view name(xcvr_type_t type) { return DST_NAME(dst_xcvr_type, type); }
inline std::string_view name(chip_type_t type) { return DST_NAME(dst_asic_chip_type, type); }
inline std::string_view name(enum _dst_dev_type_val_s index) { return DST_NAME(dst_dev_type, index); }

} // namespace dst

template <class R, auto Next, class... Fixed>
inline constexpr bool std::ranges::enable_borrowed_range<dst::record_range<R, Next, Fixed...>> = true;

#endif
#endif
