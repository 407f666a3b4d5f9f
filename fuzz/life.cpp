#include "life.h"

#include <algorithm>
#include <cstdint>

#include "chsinfo/libdst.hpp"
#include "chsinfo/libdst_priv.h"
#include "target.h"

namespace {

int (*load_model)();

int init_operation() {
    const int rc = load_model();
    if (rc != 0)
        return -1;
    display_dst_info();
    dst_chs_info = libdst_get_chs_info();
    return 0;
}

bool model_is_zero() {
    const auto *bytes = reinterpret_cast<const char *>(&chs_info);
    return std::all_of(bytes, bytes + sizeof chs_info, [](char byte) { return byte == 0; });
}

// Every byte of a record that was handed out can be read.
template <class T> void read_whole(const T *record) {
    const auto *bytes = reinterpret_cast<const volatile unsigned char *>(record);
    for (std::size_t i = 0; record && i < sizeof *record; ++i)
        static_cast<void>(bytes[i]);
}

void each(auto range, std::size_t limit, auto visit) {
    std::size_t count = 0;
    for (auto &record : range) {
        promise(++count <= limit, "every walk ends");
        read_whole(&record);
        visit(record);
    }
}
void each(auto range, std::size_t limit) {
    each(range, limit, [](auto &) {});
}

void ask_of_kinds(std::size_t limit) {
    each(dst::pems(), limit);
    each(dst::fans(), limit);
    each(dst::fpcs(), limit);
    each(dst::sibs(), limit);
    each(dst::fpms(), limit);
    each(dst::ftcs(), limit);
    each(dst::cbs(), limit);
    each(dst::tibs(), limit);
    each(dst::pics(), limit);
    each(dst::chassis_models(), limit);
    each(dst::i2c_devices(), limit, [&](const i2c_dev_info_t &device) {
        promise(libchs_i2c_dev_info_by_id(device.id), "a record is found by its id");
        each(dst::i2c_devices(device.type), limit);
        each(dst::ports_of_pic(device.id), limit);
    });
    each(dst::temperature_sensors(), limit, [](const tmpsnr_info_t &sensor) {
        promise(libchs_tmpsnr_info_get_by_id(sensor.id), "a record is found by its id");
    });
    each(dst::voltage_sensors(), limit, [](const voltsnr_info_t &sensor) {
        promise(libchs_voltsnr_info_get_by_id(sensor.id), "a record is found by its id");
    });
    each(dst::leds(), limit,
         [](const led_info_t &led) { promise(libchs_led_info_get_by_id(led.id), "a record is found by its id"); });
    each(dst::lcds(), limit,
         [](const lcd_info_t &lcd) { promise(libchs_lcd_info_get_by_id(lcd.id), "a record is found by its id"); });
    each(dst::buttons(), limit, [](const btn_info_t &button) {
        promise(libchs_btn_info_get_by_id(button.id), "a record is found by its id");
    });
    each(dst::asics(), limit, [&](const asic_info_t &asic) {
        each(dst::ports_of_asic(asic.id), limit,
             [](const bcm_port_info_t &port) { read_whole(libchs_bcm_port_info_get_by_port_no(port.id)); });
    });
    each(dst::optics(), limit, [&](const optics_info_t &optic) {
        each(dst::optics_of_port(optic.port_id), limit);
        each(dst::optics_of_slot(optic.pic_id), limit);
    });
    each(dst::fru_models(), limit,
         [&](const fru_model_info_t &model) { each(dst::fru_models(model.fru_type), limit); });
    for (resil_fru_list_t *entry = chs_info.resil_info.tqh_first; entry; entry = entry->resil_fru_next.tqe_next) {
        read_whole(libdst_resil_get_fru_list(entry->resil_finfo.type, static_cast<uint16_t>(entry->resil_finfo.id)));
        each(dst::modules(*entry), limit);
    }
}

void ask_of_frus(std::size_t limit) {
    each(dst::fan_frus(), limit);
    each(dst::pem_frus(), limit);
    each(dst::fpc_frus(), limit);
    each(dst::sib_frus(), limit);
    each(dst::fpm_frus(), limit);
    each(dst::ftc_frus(), limit);
    each(dst::cb_frus(), limit);
    each(dst::tib_frus(), limit);
    each(dst::pic_frus(), limit);
    each(dst::top_level_frus(), limit, [&](fru_info_t &top) { each(dst::children(top), limit); });
    each(dst::frus(), limit, [&](fru_info_t &fru) {
        promise(libchs_fru_info_get_by_id(fru.id), "a record is found by its id");
        read_whole(fru.parent);
        uint32_t id = 0;
        libdst_fru_info_get_id_by_type_slotno(fru.fru_type, fru.slot, &id);
        each(dst::children(fru), limit);
        each(dst::fans(fru), limit);
        each(dst::pems(fru), limit);
        each(dst::fpcs(fru), limit);
        each(dst::sibs(fru), limit);
        each(dst::fpms(fru), limit);
        each(dst::ftcs(fru), limit);
        each(dst::cbs(fru), limit);
        each(dst::tibs(fru), limit);
        each(dst::pics(fru), limit);
    });
}

} // namespace

bool live(int (*load)(), std::size_t limit) {
    load_model = load;
    libc_get_priv_ops()->libc_init = init_operation;
    const bool loaded = libchs_init() == 0;
    if (loaded) {
        read_whole(libchs_chassis_info_get());
        ask_of_kinds(limit);
        ask_of_frus(limit);
    } else {
        promise(model_is_zero(), "a description that is refused leaves no model");
    }
    libchs_release();
    promise(model_is_zero(), "a release leaves nothing");
    return loaded;
}
