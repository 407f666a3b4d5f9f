// Voltage sensors, single devices: DEVICE type "VOLTSNR" with one of three chips.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case. A new chip: its
// enumerator and name row, its name in the schema, its CTRL row here, a case.
#include "patterns.h"
#include "readers.h"

static int libdst_dev_voltsnr_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct voltsnr : dst::family<dst::voltsnrs> {
    static constexpr dst::family_words words{"voltage sensor", "volt sensor", "volt sensor", "volt sensor",
                                             "failed in parsing volt sensor tag!"};
    static constexpr auto id_attr = libdst_dev_voltsnr_id_attr;
};

using xml_tag_parser_voltsnrinfo_t = dst::tag_entry<voltsnr_module_list_t>;

#define VOLTSNR_ELEMENTS(ROW, T)                                                                                       \
    ROW(T, FIELD, "NAME", libdst_dev_voltsnr_per_name_tag_op, libdst_parse_tag_string, vs_minfo->name)                 \
    ROW(T, FRUID, "FRUID", libdst_dev_voltsnr_per_fruid_tag_op, voltsnr)                                               \
    ROW(T, FIELD, "DRIVERID", libdst_dev_voltsnr_per_driverid_tag_op, libdst_parse_tag_uint32, vs_minfo->driver_id)    \
    ROW(T, FIELD, "REG_OFFSET", libdst_dev_voltsnr_per_regoffset_tag_op, libdst_parse_tag_hex, vs_minfo->reg_offset)   \
    ROW(T, FIELD, "MARGIN", libdst_dev_voltsnr_per_margin_tag_op, libdst_parse_tag_uint32, vs_minfo->margin)           \
    ROW(T, FIELD, "DEF_VOLTAGE", libdst_dev_voltsnr_per_def_voltage_tag_op, libdst_parse_tag_uint32,                   \
        vs_minfo->def_voltage)                                                                                         \
    ROW(T, FIELD, "CONVERSION_FACTOR", libdst_dev_voltsnr_per_conversion_factor_tag, libdst_parse_tag_double,          \
        vs_minfo->conversion_factor)                                                                                   \
    ROW(T, FIELD, "MUX_ADDR", libdst_dev_voltsnr_per_mux_addr_tag, libdst_parse_tag_hex, vs_minfo->mux_addr)           \
    ROW(T, FIELD, "MUX_SEGMENT", libdst_dev_voltsnr_per_mux_segment_tag, libdst_parse_tag_hex, vs_minfo->mux_segment)  \
    ROW(T, FIELD, "CFPGAID", libdst_dev_voltsnr_per_cfpgaid_tag, libdst_parse_tag_hex, vs_minfo->cfpga_id)
DST_TABLE(dst_tag_voltsnrinfo_op, xml_tag_parser_voltsnrinfo_t, voltsnr_module_list_t, VOLTSNR_ELEMENTS)

static int libdst_dev_voltsnr_per_tag(xmlDocPtr doc, xmlNodePtr device, voltsnr_module_list_t *node) {
    return dst::walk(__func__, dst_tag_voltsnrinfo_op, doc, device, node, voltsnr::words.walk);
}

#define VOLTSNR_CONTROLLERS(ROW, T)                                                                                    \
    ROW(T, CTRL, "LTC3880", libdst_dev_voltsnr_ltc3880_op, voltsnr, CTRL_TYPE_LTC3880, libdst_dev_voltsnr_per_tag)     \
    ROW(T, CTRL, "ADS7830", libdst_dev_voltsnr_ads7830_op, voltsnr, CTRL_TYPE_ADS7830, libdst_dev_voltsnr_per_tag)     \
    ROW(T, CTRL, "MAX207XX", libdst_dev_voltsnr_max207xx_op, voltsnr, CTRL_TYPE_MAX207XX, libdst_dev_voltsnr_per_tag)
DST_TABLE(dst_tag_voltsnr_op, xml_tag_parser_voltsnrinfo_t, voltsnr_module_list_t, VOLTSNR_CONTROLLERS)

int libdst_dev_voltsnr_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    return dst::read_device<voltsnr>(__func__, dst_tag_voltsnr_op, doc, device, model);
}
