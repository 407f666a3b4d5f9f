/** @file
 * The queries of libdst.h as C++20 ranges, and enumerators as texts. Header only: it adds nothing to the library.
 *
 *     for (fan_info_t &fan : dst::fans())
 *         std::cout << fan.name << '\n';
 *
 * A range asks the library for each next record, so it logs what the query logs (an empty list; the end of a walk over
 * FRU relatives), and costs what the query costs: a walk from the head of the list to the record, each time. Records
 * belong to the model and are valid until libchs_release().
 */
#ifndef CHSINFO_LIBDST_HPP
#define CHSINFO_LIBDST_HPP

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
        using value_type = R;
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
/** The direct children of a FRU. */
inline auto children(fru_info_t &parent) { return walk<libchs_fru_info_get_next_child>(&parent); }

/* The devices on one FRU. */
inline auto fans(const fru_info_t &fru) { return walk<libchs_fru_fan_info_get_next>(fru.id); }
inline auto pems(const fru_info_t &fru) { return walk<libchs_fru_pem_info_get_next>(fru.id); }
inline auto fpcs(const fru_info_t &fru) { return walk<libchs_fru_fpc_info_get_next>(fru.id); }
inline auto sibs(const fru_info_t &fru) { return walk<libchs_fru_sib_info_get_next>(fru.id); }
inline auto fpms(const fru_info_t &fru) { return walk<libchs_fru_fpm_info_get_next>(fru.id); }
inline auto ftcs(const fru_info_t &fru) { return walk<libchs_fru_ftc_info_get_next>(fru.id); }
inline auto cbs(const fru_info_t &fru) { return walk<libchs_fru_cb_info_get_next>(fru.id); }
inline auto tibs(const fru_info_t &fru) { return walk<libchs_fru_tib_info_get_next>(fru.id); }
inline auto pics(const fru_info_t &fru) { return walk<libchs_fru_pic_info_get_next>(fru.id); }

/** The modules of a resiliency entry, as libdst_resil_get_fru_list() gives it. */
inline auto modules(resil_fru_list_t &entry) { return walk<libdst_resil_module_list_get_next>(&entry); }

/** The row of a name table; empty for a row without a text and for an index outside the table, such as -1. */
template <std::size_t Rows> constexpr std::string_view row_of(const char *const (&table)[Rows], int index) {
    const bool named = index >= 0 && static_cast<std::size_t>(index) < Rows && table[index];
    return named ? table[index] : std::string_view();
}

/* The name of an enumerator, as descriptions write it; empty for one without. */
inline std::string_view name(i2cdev_type_t type) { return row_of(dst_i2c_type, type); }
inline std::string_view name(ctrl_type_t type) { return row_of(dst_ctrl_type, type); }
inline std::string_view name(chassis_family_t family) { return row_of(dst_chassis_family_type, family); }
inline std::string_view name(fru_type_t type) { return row_of(dst_fru_type, type); }
inline std::string_view name(fru_removable_type_t type) { return row_of(dst_fru_removable_type, type); }
inline std::string_view name(fru_aflow_type_t type) { return row_of(dst_aflow_type, type); }
inline std::string_view name(fru_power_type_t type) { return row_of(dst_power_type, type); }
inline std::string_view name(alarm_type_t type) { return row_of(dst_tmpsnr_thres_alarm_type, type); }
inline std::string_view name(led_type_t type) { return row_of(dst_led_type, type); }
inline std::string_view name(lcd_type_t type) { return row_of(dst_lcd_type, type); }
inline std::string_view name(btn_type_t type) { return row_of(dst_btn_type, type); }
inline std::string_view name(scpld_type_t type) { return row_of(dst_scpld_type, type); }
inline std::string_view name(phy_type_t type) { return row_of(dst_phy_type, type); }
inline std::string_view name(xcvr_type_t type) { return row_of(dst_xcvr_type, type); }
inline std::string_view name(chip_type_t type) { return row_of(dst_asic_chip_type, type); }
inline std::string_view name(enum _dst_dev_type_val_s index) { return row_of(dst_dev_type, index); }

} // namespace dst

template <class R, auto Next, class... Fixed>
inline constexpr bool std::ranges::enable_borrowed_range<dst::record_range<R, Next, Fixed...>> = true;

#endif
