// Full walks over the records of one query, which each step begins anew at the first record.
// bench_walks LENGTH: for each query, the nanoseconds of one step.
#include <algorithm>
#include <cstdlib>

#include "chsinfo/libdst/model/model.h"
#include "chsinfo/libdst_priv.h"
#include "chsinfo/libinfo_priv/walks.h"
#include "measure.h"

namespace bench {

constexpr int samples = 3;
constexpr double shortest_sample = 2e-3; // seconds

// What every device stands on, and every FRU hangs under; in no list.
static fru_info_t board;

template <dst::list_head Head> static auto *append_new(Head &list) {
    if (!list.tqh_first)
        dst::list_init(list);
    auto *entry = dst::make<dst::entry_of<Head>>().release();
    dst::append(list, entry);
    return entry;
}

// Records that pass every query.
template <class K> static void fill(libdst_chs_info_t *model, uint32_t length) {
    for (uint32_t id = 1; id <= length; ++id) {
        auto *entry = append_new(K::list(model));
        if constexpr (K::held_by_pointer)
            K::held(entry) = dst::make<typename K::record_t>().release();
        typename K::record_t *record = K::record(entry);
        if constexpr (requires { record->id; })
            record->id = id;
        if constexpr (requires { record->port_id; })
            record->port_id = id;
        if constexpr (requires { record->fru_info; })
            record->fru_info = &board;
        if constexpr (std::is_same_v<K, dst::frus>)
            record->fru_type = FRU_TYPE_FAN;
    }
}

// FRUs under one parent, which is the first of them.
static void fill_children(libdst_chs_info_t *model, uint32_t length) {
    fill<dst::frus>(model, length + 1);
    for (fru_info_t &fru : dst::records<dst::frus>(model))
        if (fru.id > 1)
            fru.parent = &model->fru_info.tqh_first->fru_minfo;
}

static void fill_ports(libdst_chs_info_t *model, uint32_t length) {
    fill<dst::asics>(model, 1);
    for (uint32_t id = 1; id <= length; ++id)
        append_new(model->asic_info.tqh_first->asic_minfo.bcm_chip_info.port_info)->id = id;
}

static void fill_modules(libdst_chs_info_t *model, uint32_t length) {
    resil_fru_list_t *fru = append_new(model->resil_info);
    for (uint32_t i = 0; i < length; ++i)
        append_new(fru->resil_modules);
}

// Steps of a whole walk.
template <class R> static long walk(auto next) {
    long steps = 1;
    for (R *at = next(nullptr); at; at = next(at))
        ++steps;
    return steps;
}

template <class R, class Previous> static long walk_of(R *(*query)(Previous *)) { return walk<R>(query); }
template <class R> static long walk_on(R *(*query)(uint32_t, R *), uint32_t fixed) {
    return walk<R>([=](R *previous) { return query(fixed, previous); });
}

static const struct {
    const char *query;
    void (*fill)(libdst_chs_info_t *model, uint32_t length);
    long (*walk)();
} walks[] = {
#define OVER(kind, query)                                                                                              \
    {                                                                                                                  \
#query, fill < dst::kind>, [] { return walk_of(query); }                                                       \
    }
#define ON_BOARD(kind, query)                                                                                          \
    {                                                                                                                  \
#query, fill < dst::kind>, [] { return walk_on(query, board.id); }                                             \
    }
    OVER(i2c_devices, libchs_i2c_dev_info_get_next),
    OVER(frus, libchs_fru_info_get_next),
    OVER(fans, libchs_fan_info_get_next),
    OVER(pems, libchs_pem_info_get_next),
    OVER(fpcs, libchs_fpc_info_get_next),
    OVER(sibs, libchs_sib_info_get_next),
    OVER(fpms, libchs_fpm_info_get_next),
    OVER(ftcs, libchs_ftc_info_get_next),
    OVER(cbs, libchs_cb_info_get_next),
    OVER(tibs, libchs_tib_info_get_next),
    OVER(tmpsnrs, libchs_tmpsnr_info_get_next),
    OVER(voltsnrs, libchs_voltsnr_info_get_next),
    OVER(leds, libchs_led_info_get_next),
    OVER(lcds, libchs_lcd_info_get_next),
    OVER(btns, libchs_btn_info_get_next),
    OVER(pics, libchs_pic_info_get_next),
    OVER(asics, libchs_asic_info_get_next),
    OVER(optics, libchs_optics_info_get_next),
    OVER(fru_models, libdst_fru_model_info_get_next),
    OVER(chassis_models, libdst_chassis_model_info_get_next),
    OVER(frus, libchs_fru_info_get_next_by_fan),
    OVER(frus, libchs_fru_info_get_next_parent),
    {"libchs_fru_info_get_next_child", fill_children,
     [] {
         fru_info_t *parent = &chs_info.fru_info.tqh_first->fru_minfo;
         return walk<fru_info_t>([=](fru_info_t *fru) { return libchs_fru_info_get_next_child(parent, fru); });
     }},
    ON_BOARD(fans, libchs_fru_fan_info_get_next),
    ON_BOARD(pics, libchs_fru_pic_info_get_next),
    {"libchs_i2c_dev_info_get_next_by_type", fill<dst::i2c_devices>,
     [] {
         return walk<i2c_dev_info_t>(
             [](i2c_dev_info_t *device) { return libchs_i2c_dev_info_get_next_by_type(device, I2C_TYPE_UNKNOWN); });
     }},
    {"libchs_optics_info_get_next_by_slotno", fill<dst::optics>,
     [] {
         return walk<optics_info_t>([](optics_info_t *port) { return libchs_optics_info_get_next_by_slotno(0, port); });
     }},
    {"libchs_bcm_port_info_get_next", fill_ports, [] { return walk_on(libchs_bcm_port_info_get_next, 1); }},
    {"libchs_bcm_port_info_get_next_by_picid", fill_ports,
     [] { return walk_on(libchs_bcm_port_info_get_next_by_picid, 0); }},
    {"libdst_resil_module_list_get_next", fill_modules,
     [] {
         resil_fru_list_t *fru = chs_info.resil_info.tqh_first;
         return walk<resil_module_list_t>(
             [=](resil_module_list_t *module) { return libdst_resil_module_list_get_next(fru, module); });
     }},
#undef ON_BOARD
#undef OVER
};

// Seconds of one step: the median of the samples, each of whole walks. Nothing when a walk is cut short.
static double step_time(long (*walk)(), long expected) {
    double found[samples];
    long rounds = 1;
    for (int i = 0; i < samples;) {
        long steps = 0;
        const double time = time_of([&] {
            for (long round = 0; round < rounds; ++round)
                steps += walk();
        });
        if (steps != rounds * expected)
            return 0;
        if (time < shortest_sample)
            rounds *= 2;
        else
            found[i++] = time / static_cast<double>(steps);
    }
    std::nth_element(found, found + samples / 2, found + samples);
    return found[samples / 2];
}

} // namespace bench

int main(int count, char **words) {
    const uint32_t length = count == 2 ? static_cast<uint32_t>(std::strtoul(words[1], nullptr, 10)) : 0;
    if (length == 0)
        return 2;
    bench::results found;
    dst::log_sink = [](int, const char *, va_list) {};
    // Binds the operations without a description.
    chassis_priv_ops.libc_init = [] {
        dst_chs_info = libdst_get_chs_info();
        return 0;
    };
    libchs_init();
    for (const auto &walk : bench::walks) {
        walk.fill(&chs_info, length);
        const double time = bench::step_time(walk.walk, length + 1L);
        if (time == 0)
            return 1;
        found.add(walk.query, 1e9 * time);
        dst::release_contents(&chs_info);
    }
    libchs_release();
}
