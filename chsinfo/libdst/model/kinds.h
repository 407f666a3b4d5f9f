// Where each kind of record stands in the model: its list, and the record in an entry of that list. Readers, linking,
// dump and queries reach records through these. A new kind gets its line here.
#pragma once

#include "records.h"

namespace dst {

template <class> struct member;
template <class C, class M> struct member<M C::*> {
    using owner = C;
    using type = M;
};

// Record: the entry's member that holds the record, by pointer or embedded.
template <auto List, auto Record> struct kind {
    using entry_t = typename member<decltype(Record)>::owner;
    using record_t = std::remove_pointer_t<typename member<decltype(Record)>::type>;
    static constexpr bool held_by_pointer = std::is_pointer_v<typename member<decltype(Record)>::type>;

    static auto &list(libdst_chs_info_t *model) { return model->*List; }
    static record_t *record(entry_t *entry) {
        if constexpr (held_by_pointer)
            return entry->*Record;
        else
            return &(entry->*Record);
    }
    static record_t *&held(entry_t *entry) requires held_by_pointer { return entry->*Record; }
};

struct fans : kind<&libdst_chs_info_t::fan_info, &fan_module_list_t::fan_minfo> {};
struct pems : kind<&libdst_chs_info_t::pem_info, &pem_module_list_t::pem_minfo> {};
struct fpcs : kind<&libdst_chs_info_t::fpc_info, &fpc_module_list_t::fpc_minfo> {};
struct sibs : kind<&libdst_chs_info_t::sib_info, &sib_module_list_t::sib_minfo> {};
struct fpms : kind<&libdst_chs_info_t::fpm_info, &fpm_module_list_t::fpm_minfo> {};
struct ftcs : kind<&libdst_chs_info_t::ftc_info, &ftc_module_list_t::ftc_minfo> {};
struct cbs : kind<&libdst_chs_info_t::cb_info, &cb_module_list_t::cb_minfo> {};
struct tibs : kind<&libdst_chs_info_t::tib_info, &tib_module_list_t::tib_minfo> {};
struct tmpsnrs : kind<&libdst_chs_info_t::ts_info, &tmpsnr_module_list_t::ts_minfo> {};
struct voltsnrs : kind<&libdst_chs_info_t::vs_info, &voltsnr_module_list_t::vs_minfo> {};
struct leds : kind<&libdst_chs_info_t::ll_info, &ledlcd_module_list_t::ll_minfo> {};
struct lcds : kind<&libdst_chs_info_t::lcd_info, &lcd_module_list_t::lcd_minfo> {};
struct btns : kind<&libdst_chs_info_t::btn_info, &button_module_list_t::btn_minfo> {};
struct pics : kind<&libdst_chs_info_t::pic_info, &pic_module_list_t::pic_minfo> {};

struct frus : kind<&libdst_chs_info_t::fru_info, &fru_module_list_t::fru_minfo> {};
struct asics : kind<&libdst_chs_info_t::asic_info, &asic_module_list_t::asic_minfo> {};
struct optics : kind<&libdst_chs_info_t::optics_info, &optics_module_list_t::optics_minfo> {};
struct fru_models : kind<&libdst_chs_info_t::frumodel_info, &frumodel_module_list_t::frumodel_minfo> {};
struct chassis_models : kind<&libdst_chs_info_t::chsmodel_info, &frumodel_module_list_t::frumodel_minfo> {};
struct epms : kind<&libdst_chs_info_t::cepm_info, &cepm_module_list_t::cepm_minfo> {};

struct i2c_devices : kind<nullptr, &libdst_i2cdev_info_t::i2cdev_info> {
    static auto &list(libdst_chs_info_t *model) { return model->chs_cinfo.i2cdev_info_list; }
};

// The records of one kind as a range: for (fru_info_t &fru : records<frus>(model)).
template <class K> struct record_iterator {
    entry_iterator<typename K::entry_t> at;
    auto &operator*() const { return *K::record(at.entry); }
    record_iterator &operator++() {
        ++at;
        return *this;
    }
    bool operator==(const record_iterator &) const = default;
};
template <class K> struct record_range {
    typename K::entry_t *first;
    record_iterator<K> begin() const { return {{first}}; }
    record_iterator<K> end() const { return {{nullptr}}; }
};
template <class K> record_range<K> records(libdst_chs_info_t *model) { return {K::list(model).tqh_first}; }

// The first record that passes, or null.
auto *first_of(auto range, auto passes) {
    for (auto &record : range)
        if (passes(record))
            return &record;
    return static_cast<decltype(&*range.begin())>(nullptr);
}

} // namespace dst
