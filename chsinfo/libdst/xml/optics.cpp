// Optical ports, a list: DEVICE type "optics" with PORT records, each with the CPLD and the PHY that serve it.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case.
#include "patterns.h"
#include "readers.h"

using xml_tag_parser_optics_phy_t = dst::tag_entry<phy_info_t>;
using xml_tag_parser_optics_scpld_t = dst::tag_entry<scpld_info_t>;
using xml_tag_parser_optics_t = dst::tag_entry<optics_module_list_t>;

#define LEDREG_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "OFFSET", libdst_dev_optics_scpld_lr_offset_tag_op, libdst_parse_tag_hex,                            \
        offset[SCPLD_REG_TYPE_STS_LED])                                                                                \
    ROW(T, FIELD, "GREENBITMASK", libdst_dev_optics_scpld_lr_gbm_tag_op, libdst_parse_tag_hex8,                        \
        bit_mask.green_bit_mask)                                                                                       \
    ROW(T, FIELD, "AMBERBITMASK", libdst_dev_optics_scpld_lr_abm_tag_op, libdst_parse_tag_hex8, bit_mask.amber_bit_mask)
DST_TABLE(dst_tag_optics_scpld_ledreg_op, xml_tag_parser_optics_scpld_t, scpld_info_t, LEDREG_ELEMENTS)

#define LEDBLINKREG_ELEMENTS(ROW, T)                                                                                   \
    ROW(T, FIELD, "OFFSET", libdst_dev_optics_scpld_lbr_offset_tag_op, libdst_parse_tag_hex,                           \
        offset[SCPLD_REG_TYPE_BLINK_STS_LED])                                                                          \
    ROW(T, FIELD, "GREENBLINKBITMASK", libdst_dev_optics_scpld_lbr_gbm_tag_op, libdst_parse_tag_hex8,                  \
        bit_mask.green_blink_bit_mask)                                                                                 \
    ROW(T, FIELD, "AMBERBLINKBITMASK", libdst_dev_optics_scpld_lbr_abbm_tag_op, libdst_parse_tag_hex8,                 \
        bit_mask.amber_blink_bit_mask)
DST_TABLE(dst_tag_optics_scpld_ledblinkreg_op, xml_tag_parser_optics_scpld_t, scpld_info_t, LEDBLINKREG_ELEMENTS)

#define SCPLD_ELEMENTS(ROW, T)                                                                                         \
    ROW(T, FIELD, "SCPLDID", libdst_dev_optics_scpld_id_tag_op, libdst_parse_tag_hex8, scpld_id)                       \
    ROW(T, KIND, "SCPLDTYPE", libdst_dev_optics_scpld_type_tag_op, dst_scpld_type, SCPLD_TYPE_0, SCPLD_TYPE_7,         \
        scpld_type)                                                                                                    \
    ROW(T, FIELD, "OFFSET", libdst_dev_optics_scpld_offset_tag_op, libdst_parse_tag_hex8, scpld_offset)                \
    ROW(T, FIELD, "SFPREG", libdst_dev_optics_scpld_reg_tag_op, libdst_parse_tag_hex8, sfp_reg)                        \
    ROW(T, NEST, "LEDREG", libdst_dev_optics_scpld_ledreg_tag_op, dst_tag_optics_scpld_ledreg_op, *to,                 \
        "failed in parsing optics scpld led reg tag!")                                                                 \
    ROW(T, NEST, "LEDBLINKREG", libdst_dev_optics_scpld_ledblinkreg_tag_op, dst_tag_optics_scpld_ledblinkreg_op, *to,  \
        "failed in parsing optics scpld led blink reg tag!")
DST_TABLE(dst_tag_optics_scpld_op, xml_tag_parser_optics_scpld_t, scpld_info_t, SCPLD_ELEMENTS)

#define PHY_ELEMENTS(ROW, T)                                                                                           \
    ROW(T, KIND, "PHYTYPE", libdst_dev_optics_phy_type_tag_op, dst_phy_type, PHY_TYPE_INTERNAL, PHY_TYPE_INTERNAL,     \
        phy_type)                                                                                                      \
    ROW(T, FIELD, "PHYID", libdst_dev_optics_phy_id_tag_op, libdst_parse_tag_hex, phy_id)                              \
    ROW(T, FIELD, "I2CID", libdst_dev_optics_phy_i2cid_tag_op, libdst_parse_tag_uint32, phy_i2cid)
DST_TABLE(dst_tag_optics_phy_op, xml_tag_parser_optics_phy_t, phy_info_t, PHY_ELEMENTS)

#define OPTICS_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "PICSLOT", libdst_dev_optics_picid_tag_op, libdst_parse_tag_uint32, optics_minfo.pic_id)             \
    ROW(T, FIELD, "FPPORT", libdst_dev_optics_fpport_tag_op, libdst_parse_tag_uint32, optics_minfo.fpport)             \
    ROW(T, FIELD, "I2CID", libdst_dev_optics_i2cid_tag_op, libdst_parse_tag_uint32, optics_minfo.op_i2cid)             \
    ROW(T, FIELD, "CHIPID", libdst_dev_optics_chipid_tag_op, libdst_parse_tag_uint32, optics_minfo.chip_id)            \
    ROW(T, KIND, "PORTTYPE", libdst_dev_optics_porttype_tag_op, dst_xcvr_type, XCVR_TYPE_QSFP, XCVR_TYPE_QSFP,         \
        optics_minfo.port_type)                                                                                        \
    ROW(T, NEST, "SCPLD", libdst_dev_optics_scpld_tag_op, dst_tag_optics_scpld_op, to->optics_minfo.scpld_info,        \
        "failed in parsing optics scpld tag!")                                                                         \
    ROW(T, NEST, "PHY", libdst_dev_optics_phy_tag_op, dst_tag_optics_phy_op, to->optics_minfo.phy_info,                \
        "failed in parsing optics phy tag!")                                                                           \
    ROW(T, FIELD, "DRIVERID", libdst_dev_optics_driverid_tag_op, libdst_parse_tag_uint32, optics_minfo.driver_id)      \
    ROW(T, FIELD, "CAPABILITY", libdst_dev_optics_capability_tag_op, libdst_parse_tag_hex, optics_minfo.capabilities)  \
    ROW(T, FIELD, "LOCATION", libdst_dev_optics_location_tag_op, libdst_parse_tag_string, optics_minfo.location)
DST_TABLE(dst_tag_optics_op, xml_tag_parser_optics_t, optics_module_list_t, OPTICS_ELEMENTS)

static int libdst_dev_optics_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_dev_optics_per_tag(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *, optics_module_list_t *entry) {
    return dst::walk(__func__, dst_tag_optics_op, doc, node, entry, "failed in parsing optics tag!");
}

int libdst_dev_optics_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    const char *func = __func__;
    const auto read = [=](xmlNodePtr node, optics_module_list_t *entry) {
        int rc = dst::check(func, libdst_dev_optics_id_attr(node, &entry->optics_minfo.port_id),
                            "could not get optics port id!");
        if (rc >= 0)
            rc = dst::check(func, libdst_dev_optics_per_tag(doc, node, model, entry), "could not get optics info!");
        return rc;
    };
    return dst::read_list(func, "PORT", device, model->optics_info, read);
}
