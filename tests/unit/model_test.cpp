// The model's own parts: tail queues, name lookups, and a check that a document cannot reach.
#include <gtest/gtest.h>

#include "../harness/load.h"
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

// No description brings one in.
TEST(Teardown, FreesATrayWithoutAController) {
    libdst_chs_info_t *model = libdst_get_chs_info();
    dst::list_init(model->fan_info);
    auto node = dst::make<fan_module_list_t>();
    node->fan_minfo = dst::make<fan_info_t>().release();
    dst::append(model->fan_info, node.release());
    streams_capture streams;
    display_dst_info();
    EXPECT_NE(streams.out().find("<DEVICE id=\"0\" type=\"FAN\" ctrl=\"\">"), std::string::npos);
    libdst_release();
    EXPECT_TRUE(model_is_zero());
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

TEST(Link, APassAloneFindsFrus) {
    ASSERT_EQ(
        load("<DEVICE type='i2c'><I2CDEV id='5' type='PIC'/></DEVICE><DEVICE type='FRU'><FRUDEV id='3' "
             "type='PIC'><PARENT>3</PARENT>"
             "<I2CDEVID>5</I2CDEVID></FRUDEV></DEVICE><DEVICE type='PIC' ctrl='PIC' id='0'><FRUID>3</FRUID></DEVICE>")
            .status,
        0);
    fru_info_t &fru = chs_info.fru_info.tqh_first->fru_minfo;
    pic_info_t &pic = *chs_info.pic_info.tqh_first->pic_minfo;
    pic.fru_info = fru.parent = nullptr;
    EXPECT_EQ(libdst_dev_trans_pic(&chs_info), 0);
    EXPECT_EQ(libdst_dev_trans_fru(&chs_info), 0);
    EXPECT_EQ(pic.fru_info, &fru);
    EXPECT_EQ(fru.parent, &fru);
    libchs_release();
}

} // namespace
