// The model's own parts: tail queues, name lookups, teardown, and the checks that a document cannot reach.
#include <cstring>
#include <gtest/gtest.h>

#include "../harness/capture.h"
#include "chsinfo/libdst/model/kinds.h"
#include "chsinfo/libdst/model/link.h"
#include "chsinfo/libdst/model/model.h"
#include "chsinfo/libdst/model/names.h"
#include "chsinfo/libdst/xml/load.h"

namespace {

using lines = std::vector<std::string>;

std::vector<uint32_t> ids(const fpc_info_list_t &list) {
    std::vector<uint32_t> found;
    for (const auto &node : dst::entries(list))
        found.push_back(node.fru_id);
    return found;
}

void append_fpc(fpc_info_list_t &list, uint32_t fru_id) {
    auto node = dst::make<fpc_module_list_t>();
    node->fru_id = fru_id;
    node->fpc_minfo = dst::make<fpc_info_t>().release();
    dst::append(list, node.release());
}

TEST(List, KeepsOrderAndLinksWhileEntriesComeAndGo) {
    fpc_info_list_t list{};
    EXPECT_EQ(dst::pop_front(list), nullptr) << "zero-filled reads as empty";
    dst::list_init(list);
    EXPECT_EQ(dst::pop_front(list), nullptr);
    for (uint32_t id : {1, 2, 3})
        append_fpc(list, id);
    EXPECT_EQ(ids(list), (std::vector<uint32_t>{1, 2, 3}));

    fpc_module_list_t *first = dst::pop_front(list);
    EXPECT_EQ(first->fru_id, 1U);
    EXPECT_EQ(list.tqh_first->fpc_next.tqe_prev, &list.tqh_first);
    dst::release(first);
    dst::release(dst::pop_front(list));
    dst::release(dst::pop_front(list));
    EXPECT_EQ(list.tqh_last, &list.tqh_first) << "the last one out leaves an initialised head";
    append_fpc(list, 4);
    EXPECT_EQ(ids(list), (std::vector<uint32_t>{4}));
    dst::release_member(list);
}

TEST(List, MovesWhole) {
    fpc_info_list_t to{};
    {
        fpc_info_list_t from{};
        dst::list_init(from);
        append_fpc(from, 1);
        append_fpc(from, 2);
        dst::move_list(from, to);
    }
    EXPECT_EQ(to.tqh_first->fpc_next.tqe_prev, &to.tqh_first);
    append_fpc(to, 3);
    EXPECT_EQ(ids(to), (std::vector<uint32_t>{1, 2, 3}));
    dst::release_member(to);

    for (bool initialised : {false, true}) {
        fpc_info_list_t from{};
        if (initialised)
            dst::list_init(from);
        dst::move_list(from, to);
        EXPECT_EQ(to.tqh_first, nullptr);
        EXPECT_EQ(to.tqh_last, &to.tqh_first);
    }
}

TEST(Names, AreFoundWhole) {
    const struct {
        const char *const *table;
        int first, last;
        const char *text;
        int index;
    } cases[] = {
        {dst_chassis_family_type, 1, 19, "KORV", CHASSIS_FAMILY_KORV},
        {dst_chassis_family_type, 1, 19, "BRANNO_QVL_1RU", CHASSIS_FAMILY_QVL_BRANNO_1RU},
        {dst_chassis_family_type, 1, 19, "QVL_BRANNO_1RU", -1},
        {dst_chassis_family_type, 1, 19, "OSTWIN", -1},
        {dst_chassis_family_type, 1, 19, "", -1},
        {dst_ctrl_type, 0, 36, "GENERICLCD", -1},
        {dst_ctrl_type, 0, 36, "KXTEMP", CTRL_TYPE_KXCHIPTEMP},
        {dst_ctrl_type, 0, 36, "", CTRL_TYPE_UNKNOWN},
        {dst_fru_type, 1, 20, "", FRU_TYPE_CPU},
        {dst_aflow_type, 0, 3, "NONE", FRU_AFLOW_TYPE_NONE},
        {dst_aflow_type, 1, 3, "NONE", -1},
        {dst_aflow_type, 0, 3, "AF", -1},
        {dst_led_type, 1, 21, nullptr, -1},
    };
    for (const auto &one : cases)
        EXPECT_EQ(dst::name_index(one.table, one.first, one.last, one.text), one.index)
            << (one.text ? one.text : "null");
}

TEST(Names, PrintAsEmptyOutsideTheirTable) {
    EXPECT_STREQ(dst::name_of(dst_chassis_family_type, CHASSIS_FAMILY_KORV), "KORV");
    for (int index : {-1, static_cast<int>(CHASSIS_FAMILY_OSTWIN), CHASSIS_FAMILY_MAX + 1, INT32_MAX})
        EXPECT_STREQ(dst::name_of(dst_chassis_family_type, index), "") << index;
}

// Fills every list and every record that a reader of either form can make; the leak checkers see what is left.
TEST(Teardown, FreesAllThatAModelCanOwn) {
    libdst_chs_info_t *model = libdst_get_chs_info();
    const auto add = [](auto &list) {
        if (!list.tqh_last)
            dst::list_init(list);
        auto entry = dst::make<dst::entry_of<std::remove_reference_t<decltype(list)>>>();
        dst::append(list, entry.get());
        return entry.release();
    };
    const auto hold = [](auto *&held) {
        held = dst::make<std::remove_pointer_t<std::remove_reference_t<decltype(held)>>>().release();
        return held;
    };
    const auto add_fan = [&](auto module, ctrl_type_t type) {
        module->fan_tray_info.ctrl_type = type;
        auto *fan = add(module->fan_info);
        if constexpr (requires { fan->ss2rpm; })
            add(fan->ss2rpm);
        add(model->fan_info)->fan_minfo = &module.release()->fan_tray_info;
    };
    add(model->chs_cinfo.i2cdev_info_list);
    add_fan(dst::make<adt7470_module_info_t>(), CTRL_TYPE_ADT7470);
    add_fan(dst::make<pelian_fan_syspld_module_info_t>(), CTRL_TYPE_FANSYSPLD);
    add_fan(dst::make<gfc0812_module_info_t>(), CTRL_TYPE_GFC0812);
    add_fan(dst::make<haskel_9hv0812_module_info_t>(), CTRL_TYPE_9HV0812);
    hold(add(model->fan_info)->fan_minfo);
    add(hold(add(model->pem_info)->pem_minfo)->ss2rpm);
    hold(add(model->fpc_info)->fpc_minfo);
    hold(add(model->sib_info)->sib_minfo);
    hold(add(model->tib_info)->tib_minfo);
    hold(add(model->fpm_info)->fpm_minfo);
    hold(add(model->ftc_info)->ftc_minfo);
    hold(add(model->cb_info)->cb_minfo);
    auto *threshold = add(hold(add(model->ts_info)->ts_minfo)->threshold_list);
    add(threshold->limit_list);
    add(threshold->alarm_list);
    hold(add(model->vs_info)->vs_minfo);
    hold(add(model->ll_info)->ll_minfo);
    hold(add(model->lcd_info)->lcd_minfo);
    hold(add(model->btn_info)->btn_minfo);
    hold(add(model->pic_info)->pic_minfo);
    add(add(model->asic_info)->asic_minfo.bcm_chip_info.port_info);
    add(model->optics_info);
    fru_info_t &fru = add(model->fru_info)->fru_minfo;
    hold(fru.virtual_i2c_data);
    auto *simulated = add(fru.virtual_fru_data);
    add(simulated->sim_ss2rpm);
    auto *sim_threshold = add(simulated->sim_ts_threshold);
    add(sim_threshold->limit_list);
    add(sim_threshold->alarm_list);
    add(add(model->frumodel_info)->frumodel_minfo.ambient_temp_info);
    add(add(model->chsmodel_info)->frumodel_minfo.ambient_temp_info);
    add(model->cepm_info);
    add(add(add(model->resil_info)->resil_modules)->resil_errors);

    libdst_release();
    const auto *bytes = reinterpret_cast<const unsigned char *>(model);
    for (std::size_t i = 0; i < sizeof *model; ++i)
        ASSERT_EQ(bytes[i], 0) << "byte " << i;
    libdst_release();
}

// TIB boards have no XML element: their pass, and each pass's own words, on a model made by hand.
TEST(Linking, TellsWhatIsMissing) {
    libdst_chs_info_t model;
    libdst_info_init(&model);
    take_log();
    EXPECT_EQ(libdst_dev_trans_tib(&model), 0);
    dst::list_init(model.tib_info);
    auto node = dst::make<tib_module_list_t>();
    node->fru_id = 4;
    node->tib_minfo = dst::make<tib_info_t>().release();
    tib_info_t *tib = node->tib_minfo;
    dst::append(model.tib_info, node.release());
    EXPECT_EQ(libdst_dev_trans_tib(&model), -1);
    dst::list_init(model.fru_info);
    auto fru = dst::make<fru_module_list_t>();
    fru->fru_minfo.id = 5;
    dst::append(model.fru_info, fru.release());
    EXPECT_EQ(libdst_dev_trans_tib(&model), -1);
    EXPECT_EQ(tib->fru_info, nullptr);
    EXPECT_EQ(libdst_dev_transform_handler(&model), -1);
    model.fru_info.tqh_first->fru_minfo.id = 4;
    EXPECT_EQ(libdst_dev_transform_handler(&model), 0);
    EXPECT_EQ(tib->fru_info, &model.fru_info.tqh_first->fru_minfo);
    EXPECT_EQ(texts_of(take_log(), LOG_ERR),
              (lines{"libdst_dev_trans_tib: fru info list is empty!\\n",
                     "libdst_dev_trans_tib: Invalid fru info in tib info!\\n",
                     "libdst_dev_trans_tib: Invalid fru info in tib info!\\n",
                     "libdst_dev_transform_handler: Failed in setting the fru pointer in tib device info!\\n"}));
    dst::release_contents(&model);
}

// Which of several records with one id a link takes: the dump shows ids alone.
TEST(Linking, TakesTheRightOneOfEquals) {
    struct device {
        uint32_t id;
        const char *name;
    };
    const struct {
        const char *why;
        std::vector<device> devices;
        int32_t primary, extension;
        const char *wanted_primary, *wanted_extension;
    } cases[] = {
        {"the first with the id", {{1, "a"}, {1, "b"}}, 1, -1, "a", nullptr},
        {"extension before the primary", {{2, "x"}, {1, "a"}, {1, "b"}, {2, "y"}}, 1, 2, "a", "x"},
        {"extension after it: the primary goes on until then",
         {{1, "a"}, {1, "b"}, {2, "x"}, {1, "c"}},
         1,
         2,
         "b",
         "x"},
        {"no such extension: the last with the id", {{1, "a"}, {1, "b"}}, 1, 9, "b", nullptr},
        {"no primary wanted", {{1, "a"}, {2, "x"}}, -1, 2, nullptr, nullptr},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.why);
        libdst_chs_info_t model;
        libdst_info_init(&model);
        dst::list_init(model.chs_cinfo.i2cdev_info_list);
        dst::list_init(model.fru_info);
        for (const device &device : one.devices) {
            auto entry = dst::make<libdst_i2cdev_info_t>();
            entry->i2cdev_info.id = device.id;
            std::strcpy(entry->i2cdev_info.name, device.name);
            dst::append(model.chs_cinfo.i2cdev_info_list, entry.release());
        }
        for (int i = 0; i < 2; ++i) {
            auto entry = dst::make<fru_module_list_t>();
            entry->i2cdev_id = one.primary;
            entry->i2cdev_id_ext = one.extension;
            dst::append(model.fru_info, entry.release());
        }
        EXPECT_EQ(libdst_dev_transform_handler(&model), 0);
        const fru_module_list_t *second = model.fru_info.tqh_first->fru_next.tqe_next;
        const fru_info_t &fru = second->fru_minfo;
        EXPECT_STREQ(fru.i2cdev ? fru.i2cdev->name : nullptr, one.wanted_primary);
        EXPECT_STREQ(fru.i2cdev_ext ? fru.i2cdev_ext->name : nullptr, one.wanted_extension);
        EXPECT_EQ(fru.parent, &model.fru_info.tqh_first->fru_minfo) << "the first of two FRUs with id 0";
        dst::release_contents(&model);
    }
}

TEST(Root, AnEmptyDocumentHasNone) {
    const xmlDocPtr doc = xmlNewDoc(nullptr);
    libdst_chs_info_t model;
    libdst_info_init(&model);
    take_log();
    EXPECT_EQ(libdst_root_handler(doc, &model), -1);
    EXPECT_EQ(texts_of(take_log(), LOG_ERR), lines{"libdst_root_handler: Device Specification XML file is empty!"});
    xmlFreeDoc(doc);
}

} // namespace
