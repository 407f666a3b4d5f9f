// The ranges of libdst.hpp against the walks that they stand for, and the names of enumerators.
#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

#include "../harness/load.h"
#include "../harness/walk.h"
#include "chsinfo/libdst.hpp"

namespace {

// The modular example in either form, with EPM data.
class Ranges : public testing::TestWithParam<form> {
  protected:
    void SetUp() override {
        epm_null_ops = {[](cepm_type_t) { return true; },
                        [](cepm_data_t *data, cepm_type_t type) {
                            data->cepm_type = type;
                            return 0;
                        }};
        ASSERT_EQ(load_example("modular", GetParam()).status, 0);
    }
    void TearDown() override {
        libchs_release();
        epm_null_ops = {};
    }
};

template <class Range>
concept cheap_view = std::ranges::forward_range<Range> && std::ranges::common_range<Range> &&
    std::ranges::view<Range> && std::ranges::borrowed_range<Range>;
static_assert(cheap_view<decltype(dst::fpcs())> && cheap_view<decltype(dst::ports_of_asic(0))> &&
              cheap_view<decltype(dst::thresholds(tmpsnr_info_t()))>);

// The records of a range, and those of the walk that it stands for.
struct found {
    std::vector<const void *> by_range, by_walk;
    bool operator==(const found &) const = default;
};

void add(std::vector<found> &all, auto range, auto next) {
    found &one = all.emplace_back();
    for (auto &record : range)
        one.by_range.push_back(&record);
    for (auto *record : all_of(next))
        one.by_walk.push_back(record);
}

// Those that only one of the forms can fill.
void add_ranges_of(form source, std::vector<found> &all) {
    const auto visit = [&all](auto range, auto next) { add(all, range, next); };
    if (source == form::xml) {
        const uint32_t asic = dst::asics().begin()->id;
        const uint32_t pic = dst::ports_of_asic(asic).begin()->pic_i2cid;
        const optics_info_t &optic = *dst::optics().begin();
        visit(dst::lcds(), libchs_lcd_info_get_next);
        visit(dst::asics(), libchs_asic_info_get_next);
        visit(dst::optics(), libchs_optics_info_get_next);
        visit(dst::ports_of_asic(asic), with(asic, libchs_bcm_port_info_get_next));
        visit(dst::ports_of_pic(pic), with(pic, libchs_bcm_port_info_get_next_by_picid));
        visit(dst::optics_of_port(optic.port_id), with(optic.port_id, libchs_optics_info_get_next_by_port_no));
        visit(dst::optics_of_slot(optic.pic_id), with(optic.pic_id, libchs_optics_info_get_next_by_slotno));
    } else {
        const fru_info_t &fru = *dst::tibs().begin()->fru_info;
        resil_fru_list_t &entry = *chs_info.resil_info.tqh_first;
        visit(dst::tibs(), libchs_tib_info_get_next);
        visit(dst::tibs(fru), with(fru.id, libchs_fru_tib_info_get_next));
        visit(dst::modules(entry),
              [&](resil_module_list_t *at) { return libdst_resil_module_list_get_next(&entry, at); });
    }
}

std::vector<found> every_range(form source) {
    std::vector<found> all;
    add_ranges_of(source, all);
    const auto visit = [&all](auto range, auto next) { add(all, range, next); };
    visit(dst::i2c_devices(), libchs_i2c_dev_info_get_next);
    visit(dst::fans(), libchs_fan_info_get_next);
    visit(dst::pems(), libchs_pem_info_get_next);
    visit(dst::fpcs(), libchs_fpc_info_get_next);
    visit(dst::sibs(), libchs_sib_info_get_next);
    visit(dst::fpms(), libchs_fpm_info_get_next);
    visit(dst::ftcs(), libchs_ftc_info_get_next);
    visit(dst::cbs(), libchs_cb_info_get_next);
    visit(dst::temperature_sensors(), libchs_tmpsnr_info_get_next);
    visit(dst::voltage_sensors(), libchs_voltsnr_info_get_next);
    visit(dst::leds(), libchs_led_info_get_next);
    visit(dst::buttons(), libchs_btn_info_get_next);
    visit(dst::pics(), libchs_pic_info_get_next);
    visit(dst::frus(), libchs_fru_info_get_next);
    visit(dst::epm_data(), libchs_epm_data_get_next);
    visit(dst::fru_models(), libdst_fru_model_info_get_next);
    visit(dst::chassis_models(), libdst_chassis_model_info_get_next);

    visit(dst::i2c_devices(I2C_TYPE_FPC),
          [](i2c_dev_info_t *at) { return libchs_i2c_dev_info_get_next_by_type(at, I2C_TYPE_FPC); });
    visit(dst::fru_models(FRU_TYPE_PEM),
          [](const fru_model_info_t *at) { return libdst_fru_model_info_get_next_by_type(at, FRU_TYPE_PEM); });
    visit(dst::fan_frus(), libchs_fru_info_get_next_by_fan);
    visit(dst::pem_frus(), libchs_fru_info_get_next_by_pem);
    visit(dst::fpc_frus(), libchs_fru_info_get_next_by_fpc);
    visit(dst::sib_frus(), libchs_fru_info_get_next_by_sib);
    visit(dst::fpm_frus(), libchs_fru_info_get_next_by_fpm);
    visit(dst::ftc_frus(), libchs_fru_info_get_next_by_ftc);
    visit(dst::cb_frus(), libchs_fru_info_get_next_by_cb);
    visit(dst::pic_frus(), libchs_fru_info_get_next_by_pic);
    visit(dst::top_level_frus(), libchs_fru_info_get_next_parent);
    visit(dst::tib_frus(), libchs_fru_info_get_next_by_tib);
    fru_info_t &chassis = dst::top_level_frus().front();
    visit(dst::children(chassis), [&](fru_info_t *at) { return libchs_fru_info_get_next_child(&chassis, at); });

    const auto on_fru = [&](auto all, auto range_of, auto query) {
        const fru_info_t &fru = *all.begin()->fru_info;
        visit(range_of(fru), with(fru.id, query));
    };
    on_fru(
        dst::fans(), [](auto &fru) { return dst::fans(fru); }, libchs_fru_fan_info_get_next);
    on_fru(
        dst::pems(), [](auto &fru) { return dst::pems(fru); }, libchs_fru_pem_info_get_next);
    on_fru(
        dst::fpcs(), [](auto &fru) { return dst::fpcs(fru); }, libchs_fru_fpc_info_get_next);
    on_fru(
        dst::sibs(), [](auto &fru) { return dst::sibs(fru); }, libchs_fru_sib_info_get_next);
    on_fru(
        dst::fpms(), [](auto &fru) { return dst::fpms(fru); }, libchs_fru_fpm_info_get_next);
    on_fru(
        dst::ftcs(), [](auto &fru) { return dst::ftcs(fru); }, libchs_fru_ftc_info_get_next);
    on_fru(
        dst::cbs(), [](auto &fru) { return dst::cbs(fru); }, libchs_fru_cb_info_get_next);
    on_fru(
        dst::pics(), [](auto &fru) { return dst::pics(fru); }, libchs_fru_pic_info_get_next);
    return all;
}

TEST_P(Ranges, GiveTheRecordsOfTheirWalks) {
    int empty = 0;
    for (const found &one : every_range(GetParam())) {
        EXPECT_EQ(one.by_range, one.by_walk);
        empty += one.by_range.empty();
    }
    EXPECT_EQ(empty, 1) << "the FRUs of TIB boards";
}

TEST_P(Ranges, GoWithTheAlgorithms) {
    const auto fpc_3 = std::ranges::find(dst::fpcs(), std::string_view("FPC 3"), &fpc_info_t::name);
    ASSERT_NE(fpc_3, dst::fpcs().end());
    EXPECT_EQ(std::ranges::distance(fpc_3, dst::fpcs().end()), 5);
    auto at = fpc_3;
    EXPECT_EQ(at++, fpc_3);
    EXPECT_STREQ(at->name, "FPC 4");
    EXPECT_EQ(decltype(at)(), dst::fpcs().end());
    EXPECT_TRUE(dst::fpcs() && !dst::fpcs().empty() && !dst::tib_frus() && dst::tib_frus().empty());
}

// Run under helgrind by scripts/test.
TEST_P(Ranges, FourThreadsAtOnce) {
    const std::vector<found> alone = every_range(GetParam());
    std::vector<found> together[4];
    std::vector<std::thread> threads;
    for (auto &result : together)
        threads.emplace_back([&result] { result = every_range(GetParam()); });
    for (std::thread &thread : threads)
        thread.join();
    for (const auto &result : together)
        EXPECT_EQ(result, alone);
}

INSTANTIATE_TEST_SUITE_P(Forms, Ranges, testing::Values(form::xml, form::config));

TEST(Names, OfEnumerators) {
    EXPECT_EQ(dst::name(I2C_TYPE_PSU), "PSUEPM");
    EXPECT_EQ(dst::name(CTRL_TYPE_9HV0812), "9HV0812");
    EXPECT_EQ(dst::name(CHASSIS_FAMILY_RQ7100MP), "RQ-7100MP");
    EXPECT_EQ(dst::name(FRU_TYPE_TSENSOR), "TMPSNR");
    EXPECT_EQ(dst::name(FRU_REMOVABLE_TYPE_VIRTUAL), "VIRTUAL");
    EXPECT_EQ(dst::name(FRU_AFLOW_TYPE_AFI_BF), "AFI");
    EXPECT_EQ(dst::name(FRU_POWER_TYPE_DC), "DC");
    EXPECT_EQ(dst::name(ALARM_TYPE_BADFAN_RED), "BADFAN_RED");
    EXPECT_EQ(dst::name(LED_TYPE_QIC1_STATUS), "QIC1");
    EXPECT_EQ(dst::name(LCD_TYPE_DISPLAY_FP0), "LCD_FP0");
    EXPECT_EQ(dst::name(BTN_TYPE_RESET), "RESET");
    EXPECT_EQ(dst::name(SCPLD_TYPE_7), "SCPLD_TYPE_7");
    EXPECT_EQ(dst::name(PHY_TYPE_INTERNAL), "INTERNAL_PHY");
    EXPECT_EQ(dst::name(XCVR_TYPE_QSFP), "QSFP");
    EXPECT_EQ(dst::name(CHIP_TYPE_5685), "5685");
    EXPECT_EQ(dst::name(DST_PSU_DEV_IDX), "PEM");
    for (const auto type : {FRU_TYPE_CPU, FRU_TYPE_MAX, fru_type_t(-1), fru_type_t(FRU_TYPE_MAX + 1)})
        EXPECT_EQ(dst::name(type), "") << "without a name, or outside of the table";
}

} // namespace
