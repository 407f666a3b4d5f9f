// Switching ASICs, a list: DEVICE type "asic" with ASIC records, each with the settings and ports of its chip.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case.
#include "patterns.h"
#include "readers.h"

using xml_tag_parser_asic_cb_port_t = dst::tag_entry<bcm_port_info_t>;
using xml_tag_parser_asic_chipbcm_t = dst::tag_entry<bcm_chip_info_t>;
using xml_tag_parser_asic_t = dst::tag_entry<asic_module_list_t>;

#define CHIP_PORT_ELEMENTS(ROW, T)                                                                                     \
    ROW(T, FIELD, "PICI2CID", libdst_dev_asic_cb_port_pi_tag_op, libdst_parse_tag_hex, pic_i2cid)                      \
    ROW(T, FIELD, "FRONTPANELPORT", libdst_dev_asic_cb_port_fpp_tag_op, libdst_parse_tag_uint32, fp_port)              \
    ROW(T, FIELD, "WARPCORE", libdst_dev_asic_cb_port_wc_tag_op, libdst_parse_tag_uint32, warp_core)                   \
    ROW(T, FIELD, "BANDWIDTHINGBPS", libdst_dev_asic_cb_port_bw_tag_op, libdst_parse_tag_uint32, bw_in_gbps)           \
    ROW(T, FIELD, "PHYADDR", libdst_dev_asic_cb_port_pa_tag_op, libdst_parse_tag_uint32, phy_addr)                     \
    ROW(T, FIELD, "RXLANEMAP", libdst_dev_asic_cb_port_rlm_tag_op, libdst_parse_tag_hex, rx_lane_map)                  \
    ROW(T, FIELD, "TXLANEMAP", libdst_dev_asic_cb_port_tlm_tag_op, libdst_parse_tag_hex, tx_lane_map)                  \
    ROW(T, FIELD, "PHYTXPOLARITYFLIP", libdst_dev_asic_cb_port_ptpf_tag_op, libdst_parse_tag_uint32, tx_polarity)      \
    ROW(T, FIELD, "PHYRXPOLARITYFLIP", libdst_dev_asic_cb_port_prpf_tag_op, libdst_parse_tag_uint32, rx_polarity)      \
    ROW(T, FIELD, "PORTPHYID1", libdst_dev_asic_cb_port_ppid1_tag_op, libdst_parse_tag_hex, port_phy_id1)              \
    ROW(T, FIELD, "LINKSCANMODE", libdst_dev_asic_cb_port_lsm_tag_op, libdst_parse_tag_uint32, link_scan_mode)         \
    ROW(T, FIELD, "OPTICSPREEMPH", libdst_dev_asic_cb_port_op_tag_op, libdst_parse_tag_uint32, optics_preemph)         \
    ROW(T, FIELD, "OPTICSDRIVER", libdst_dev_asic_cb_port_od_tag_op, libdst_parse_tag_uint32, optics_driver)           \
    ROW(T, FIELD, "OPTICSPREDRIVER", libdst_dev_asic_cb_port_opd_tag_op, libdst_parse_tag_uint32, optics_predriver)    \
    ROW(T, FIELD, "DACPREEMPH", libdst_dev_asic_cb_port_dp_tag_op, libdst_parse_tag_uint32, dac_preemph)               \
    ROW(T, FIELD, "DACDRIVER", libdst_dev_asic_cb_port_dd_tag_op, libdst_parse_tag_uint32, dac_driver)                 \
    ROW(T, FIELD, "DACPREDRIVER", libdst_dev_asic_cb_port_dpd_tag_op, libdst_parse_tag_uint32, dac_predriver)
DST_TABLE(dst_tag_asic_cb_port_op, xml_tag_parser_asic_cb_port_t, bcm_port_info_t, CHIP_PORT_ELEMENTS)

static int libdst_dev_asic_cb_port_id_attr(xmlDocPtr, xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int read_port(const char *func, xmlDocPtr doc, xmlNodePtr node, bcm_port_info_t *port) {
    const int rc = dst::check(func, libdst_dev_asic_cb_port_id_attr(doc, node, &port->id), "could not get port id!");
    return rc < 0 ? rc : dst::walk(func, dst_tag_asic_cb_port_op, doc, node, port, "failed in parsing cb port tag!");
}

#define CHIP_ELEMENTS(ROW, T)                                                                                          \
    ROW(T, FIELD, "MAXLANES", libdst_dev_asic_cb_maxlanes_tag_op, libdst_parse_tag_uint32, maxlanes)                   \
    ROW(T, FIELD, "MAXUFTENTRIES", libdst_dev_asic_cb_mue_tag_op, libdst_parse_tag_uint32, max_uft_entries)            \
    ROW(T, FIELD, "MAXFPSLICES", libdst_dev_asic_cb_mfs_tag_op, libdst_parse_tag_uint32, max_fp_slices)                \
    ROW(T, FIELD, "SYSTEMPREEMPH", libdst_dev_asic_cb_sp_tag_op, libdst_parse_tag_uint32, system_preemph)              \
    ROW(T, FIELD, "SYSTEMDRIVER", libdst_dev_asic_cb_sd_tag_op, libdst_parse_tag_uint32, system_driver)                \
    ROW(T, FIELD, "SYSTEMPREDRIVER", libdst_dev_asic_cb_spd_tag_op, libdst_parse_tag_uint32, system_predriver)         \
    ROW(T, FIELD, "LEDPROGRAM", libdst_dev_asic_cb_lp_tag_op, libdst_parse_tag_uint32, led_program)                    \
    ROW(T, FIELD, "LEDPROGRAMLEN", libdst_dev_asic_cb_lpl_tag_op, libdst_parse_tag_uint32, led_program_len)            \
    ROW(T, APPEND, "PORT", libdst_dev_asic_cb_port_tag_op, port_info, read_port)
DST_TABLE(dst_tag_asic_chipbcm_op, xml_tag_parser_asic_chipbcm_t, bcm_chip_info_t, CHIP_ELEMENTS)

// A second CHIPBCM of an ASIC starts the ports again; the settings that it does not name stay.
static int libdst_dev_asic_per_chipbcm_tag_op(xmlDocPtr doc, xmlNodePtr node, asic_module_list_t *to) {
    bcm_chip_info_t &chip = to->asic_minfo.bcm_chip_info;
    dst::release_member(chip.port_info);
    dst::list_init(chip.port_info);
    const int rc =
        dst::walk(__func__, dst_tag_asic_chipbcm_op, doc, node, &chip, "failed in parsing asic chipbcm tag!");
    if (rc < 0)
        dst::release_member(chip.port_info);
    return rc;
}

#define ASIC_ELEMENTS(ROW, T)                                                                                          \
    ROW(T, FIELD, "NAME", libdst_dev_asic_per_name_tag_op, libdst_parse_tag_string, asic_minfo.name)                   \
    ROW(T, FIELD, "VENDOR", libdst_dev_asic_per_vendor_tag_op, libdst_parse_tag_string, asic_minfo.vendor)             \
    ROW(T, FIELD, "CHIPID", libdst_dev_asic_per_chipid_tag_op, libdst_parse_tag_string, asic_minfo.chipid)             \
    ROW(T, KIND, "CHIPTYPE", libdst_dev_asic_per_chiptype_tag_op, dst_asic_chip_type, CHIP_TYPE_5685, CHIP_TYPE_5685,  \
        asic_minfo.chip_type)                                                                                          \
    ROW(T, FIELD, "LOCATION", libdst_dev_asic_per_location_tag_op, libdst_parse_tag_string, asic_minfo.location)       \
    ROW(T, FIELD, "BASEADDR", libdst_dev_asic_per_baseaddr_tag_op, libdst_parse_tag_hex, asic_minfo.base_addr)         \
    ROW(T, FIELD, "DRIVERID", libdst_dev_asic_per_driverid_tag_op, libdst_parse_tag_uint32, asic_minfo.driver_id)      \
    ROW(T, CALL, "CHIPBCM", libdst_dev_asic_per_chipbcm_tag_op)
DST_TABLE(dst_tag_asic_op, xml_tag_parser_asic_t, asic_module_list_t, ASIC_ELEMENTS)

static int libdst_dev_asic_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_dev_asic_per_tag(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *, asic_module_list_t *entry) {
    return dst::walk(__func__, dst_tag_asic_op, doc, node, entry, "failed in parsing asic tag!");
}

int libdst_dev_asic_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    const char *func = __func__;
    const auto read = [=](xmlNodePtr node, asic_module_list_t *entry) {
        int rc = dst::check(func, libdst_dev_asic_id_attr(node, &entry->asic_minfo.id), "could not get asic id!");
        if (rc >= 0)
            rc = dst::check(func, libdst_dev_asic_per_tag(doc, node, model, entry), "could not get asic info!");
        return rc;
    };
    return dst::read_list(func, "ASIC", device, model->asic_info, read);
}
