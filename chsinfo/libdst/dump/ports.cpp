// The dump of switching ASICs with their ports, and of optical ports.
#include "sections.h"

namespace dst {

static constexpr leaf<asic_info_t> asic_leaves[] = {
    {"NAME", [](const auto &a) { return text(a.name); }},
    {"VENDOR", [](const auto &a) { return text(a.vendor); }},
    {"CHIPID", [](const auto &a) { return text(a.chipid); }},
    {"CHIPTYPE", [](const auto &a) { return name(dst_asic_chip_type, a.chip_type); }},
    {"LOCATION", [](const auto &a) { return text(a.location); }},
    {"BASEADDR", [](const auto &a) { return hex(a.base_addr); }},
    {"DRIVERID", [](const auto &a) { return dec(a.driver_id); }},
};

static constexpr leaf<bcm_chip_info_t> chip_leaves[] = {
    {"MAXLANES", [](const auto &c) { return dec(c.maxlanes); }},
    {"MAXUFTENTRIES", [](const auto &c) { return dec(c.max_uft_entries); }},
    {"MAXFPSLICES", [](const auto &c) { return dec(c.max_fp_slices); }},
    {"SYSTEMPREEMPH", [](const auto &c) { return dec(c.system_preemph); }},
    {"SYSTEMDRIVER", [](const auto &c) { return dec(c.system_driver); }},
    {"SYSTEMPREDRIVER", [](const auto &c) { return dec(c.system_predriver); }},
    {"LEDPROGRAM", [](const auto &c) { return dec(c.led_program); }},
    {"LEDPROGRAMLEN", [](const auto &c) { return dec(c.led_program_len); }},
};

static constexpr leaf<bcm_port_info_t> chip_port_leaves[] = {
    {"PICI2CID", [](const auto &p) { return hex(p.pic_i2cid); }},
    {"FRONTPANELPORT", [](const auto &p) { return dec(p.fp_port); }},
    {"WARPCORE", [](const auto &p) { return dec(p.warp_core); }},
    {"BANDWIDTHINGBPS", [](const auto &p) { return dec(p.bw_in_gbps); }},
    {"PHYADDR", [](const auto &p) { return dec(p.phy_addr); }},
    {"RXLANEMAP", [](const auto &p) { return hex(p.rx_lane_map); }},
    {"TXLANEMAP", [](const auto &p) { return hex(p.tx_lane_map); }},
    {"PHYTXPOLARITYFLIP", [](const auto &p) { return dec(p.tx_polarity); }},
    {"PHYRXPOLARITYFLIP", [](const auto &p) { return dec(p.rx_polarity); }},
    {"PORTPHYID1", [](const auto &p) { return hex(p.port_phy_id1); }},
    {"LINKSCANMODE", [](const auto &p) { return dec(p.link_scan_mode); }},
    {"OPTICSPREEMPH", [](const auto &p) { return dec(p.optics_preemph); }},
    {"OPTICSDRIVER", [](const auto &p) { return dec(p.optics_driver); }},
    {"OPTICSPREDRIVER", [](const auto &p) { return dec(p.optics_predriver); }},
    {"DACPREEMPH", [](const auto &p) { return dec(p.dac_preemph); }},
    {"DACDRIVER", [](const auto &p) { return dec(p.dac_driver); }},
    {"DACPREDRIVER", [](const auto &p) { return dec(p.dac_predriver); }},
};

static constexpr leaf<optics_info_t> optics_leaves[] = {
    {"PICSLOT", [](const auto &o) { return dec(o.pic_id); }},
    {"FPPORT", [](const auto &o) { return dec(o.fpport); }},
    {"I2CID", [](const auto &o) { return dec(o.op_i2cid); }},
    {"CHIPID", [](const auto &o) { return dec(o.chip_id); }},
    {"PORTTYPE", [](const auto &o) { return name(dst_xcvr_type, o.port_type); }},
};

static constexpr leaf<scpld_info_t> scpld_leaves[] = {
    {"SCPLDID", [](const auto &s) { return hex(s.scpld_id); }},
    {"SCPLDTYPE", [](const auto &s) { return name(dst_scpld_type, s.scpld_type); }},
    {"OFFSET", [](const auto &s) { return hex(s.scpld_offset); }},
    {"SFPREG", [](const auto &s) { return hex(s.sfp_reg); }},
};

static constexpr leaf<scpld_info_t> ledreg_leaves[] = {
    {"OFFSET", [](const auto &s) { return hex(s.offset[SCPLD_REG_TYPE_STS_LED]); }},
    {"GREENBITMASK", [](const auto &s) { return hex(s.bit_mask.green_bit_mask); }},
    {"AMBERBITMASK", [](const auto &s) { return hex(s.bit_mask.amber_bit_mask); }},
};

static constexpr leaf<scpld_info_t> ledblinkreg_leaves[] = {
    {"OFFSET", [](const auto &s) { return hex(s.offset[SCPLD_REG_TYPE_BLINK_STS_LED]); }},
    {"GREENBLINKBITMASK", [](const auto &s) { return hex(s.bit_mask.green_blink_bit_mask); }},
    {"AMBERBLINKBITMASK", [](const auto &s) { return hex(s.bit_mask.amber_blink_bit_mask); }},
};

static constexpr leaf<phy_info_t> phy_leaves[] = {
    {"PHYTYPE", [](const auto &p) { return name(dst_phy_type, p.phy_type); }},
    {"PHYID", [](const auto &p) { return hex(p.phy_id); }},
    {"I2CID", [](const auto &p) { return dec(p.phy_i2cid); }},
};

static constexpr leaf<optics_info_t> optics_end_leaves[] = {
    {"DRIVERID", [](const auto &o) { return dec(o.driver_id); }},
    {"CAPABILITY", [](const auto &o) { return hex(o.capabilities); }},
    {"LOCATION", [](const auto &o) { return text(o.location); }},
};

// An element without attributes that is all leaves.
template <class R, std::size_t N>
static void print_group(int indent, const char *element, const leaf<R> (&leaves)[N], const R &record) {
    print_open(indent, element);
    print_leaves(indent + 4, leaves, record);
    print_close(indent, element);
}

static void print_chip(const bcm_chip_info_t &chip) {
    print_open(12, "CHIPBCM");
    print_leaves(16, chip_leaves, chip);
    for (const bcm_port_info_t &port : entries(chip.port_info)) {
        print_open(16, "PORT", {{"id", dec(port.id)}});
        print_leaves(20, chip_port_leaves, port);
        print_close(16, "PORT");
    }
    print_close(12, "CHIPBCM");
}

static void print_scpld(const scpld_info_t &scpld) {
    print_open(12, "SCPLD");
    print_leaves(16, scpld_leaves, scpld);
    print_group(16, "LEDREG", ledreg_leaves, scpld);
    print_group(16, "LEDBLINKREG", ledblinkreg_leaves, scpld);
    print_close(12, "SCPLD");
}

void print_asics(libdst_chs_info_t *model) {
    print_section<asics>(model, DST_ASIC_DEV_IDX, [](const asic_info_t &asic) {
        print_open(8, "ASIC", {{"id", dec(asic.id)}});
        print_leaves(12, asic_leaves, asic);
        print_chip(asic.bcm_chip_info);
        print_close(8, "ASIC");
    });
}

void print_optics(libdst_chs_info_t *model) {
    print_section<optics>(model, DST_OPTICS_DEV_IDX, [](const optics_info_t &port) {
        print_open(8, "PORT", {{"id", dec(port.port_id)}});
        print_leaves(12, optics_leaves, port);
        print_scpld(port.scpld_info);
        print_group(12, "PHY", phy_leaves, port.phy_info);
        print_leaves(12, optics_end_leaves, port);
        print_close(8, "PORT");
    });
}

} // namespace dst
