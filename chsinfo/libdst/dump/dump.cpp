// display_dst_info(): the model as indented, XML-like text on standard output, section by section.
// A new leaf is a row of its record's table. A new section is a function, called by display_dst_info() in its place.
#include "../model/broken_pipe.h"
#include "sections.h"

namespace dst {

static constexpr leaf<chassis_info_t> chassis_leaves[] = {
    {"VERSION", [](const auto &c) { return dec(c.major); }},
    {"FAMILY", [](const auto &c) { return name(dst_chassis_family_type, c.family); }},
    {"NDRAMSLOTS", [](const auto &c) { return dec(c.ndram_slots); }},
    {"NFANSLOTS", [](const auto &c) { return dec(c.nfan_slots); }},
    {"NFPCSLOTS", [](const auto &c) { return dec(c.nfpc_slots); }},
    {"NSIBSLOTS", [](const auto &c) { return dec(c.nsib_slots); }},
    {"NFPMSLOTS", [](const auto &c) { return dec(c.nfpm_slots); }},
    {"NFTCSLOTS", [](const auto &c) { return dec(c.nftc_slots); }},
    {"NCBSLOTS", [](const auto &c) { return dec(c.ncb_slots); }},
    {"NPEMSLOTS", [](const auto &c) { return dec(c.npem_slots); }},
    {"NPICSLOTS", [](const auto &c) { return dec(c.npic_slots); }},
    {"NFPGAS", [](const auto &c) { return dec(c.nfpgas); }},
    {"NTMPSENSORS", [](const auto &c) { return dec(c.ntmpsnrs); }},
    {"NVOLTSENSORS", [](const auto &c) { return dec(c.nvoltsnrs); }},
    {"NFPLEDS", [](const auto &c) { return dec(c.nfpleds); }},
    {"NBPLEDS", [](const auto &c) { return dec(c.nbpleds); }},
    {"NBUTTONS", [](const auto &c) { return dec(c.nbuttons); }},
    {"FEATURE", [](const auto &c) { return dec(c.feature); }},
    {"RESILIENCY", [](const auto &c) { return dec(c.enable_resiliency); }},
    {"SIBINITSPMB", [](const auto &c) { return dec(c.sib_init_spmb); }},
};

static constexpr leaf<i2c_dev_info_t> i2cdev_leaves[] = {
    {"NAME", [](const auto &d) { return text(d.name); }},
    {"PARENT", [](const auto &d) { return text(d.parent); }},
    {"I2CADDR", [](const auto &d) { return hex(d.i2caddr); }},
    {"SEGMENT", [](const auto &d) { return hex(d.segment); }},
    {"LOCATION", [](const auto &d) { return text(d.location); }},
    {"SYSPATH", [](const auto &d) { return text(d.syspath); }},
    {"DRIVERID", [](const auto &d) { return dec(d.driver_id); }},
    {"REGOFFSET", [](const auto &d) { return dec(d.reg_offset); }},
    {"MUXADDR", [](const auto &d) { return hex(d.muxaddr); }},
    {"MUXADDR1", [](const auto &d) { return hex(d.muxaddr1); }},
    {"MUXADDR2", [](const auto &d) { return hex(d.muxaddr2); }},
};

static value flag(bool set) { return text(set ? "true" : "false"); }

static constexpr leaf<fru_info_t> fru_leaves[] = {
    {"NAME", [](const auto &f) { return text(f.name); }},
    {"SLOTID", [](const auto &f) { return dec(f.slot); }},
    {"LOGICAL_SLOTID", [](const auto &f) { return dec(f.logical_slot); }},
    {"PARENT", [](const auto &f) { return f.parent ? dec(f.parent->id) : text("NULL"); }},
    {"I2CDEVID", [](const auto &f) { return f.i2cdev ? dec(f.i2cdev->id) : text("-1"); }},
    {"I2CDEVEXTID", [](const auto &f) { return f.i2cdev_ext ? dec(f.i2cdev_ext->id) : no_line(); }},
    {"DRIVERID", [](const auto &f) { return dec(f.driverid); }},
    {"TYPE",
     [](const auto &f) {
         return f.fru_removable_type ? name(dst_fru_removable_type, f.fru_removable_type) : no_line();
     }},
    {"EPMVALID", [](const auto &f) { return flag(f.epmvalid); }},
    {"EPMSIZE", [](const auto &f) { return dec(f.epmsize); }},
    {"HYST_OFFSET", [](const auto &f) { return flag(f.hyst_offset); }},
    {"MAX_ALARM_REASONS", [](const auto &f) { return flag(f.max_alarm_reasons); }},
};

static void print_i2c_device(const i2c_dev_info_t &device) {
    print_record(8, "I2CDEV", name(dst_i2c_type, device.type), i2cdev_leaves, device);
}

static void print_fru(const fru_info_t &fru) {
    print_record(8, "FRUDEV", name(dst_fru_type, fru.fru_type), fru_leaves, fru);
}

} // namespace dst

void display_dst_info(void) {
    const dst::broken_pipe_guard printing;
    libdst_chs_info_t *model = libdst_get_chs_info();
    std::puts("\n\n============== DST info =============");
    dst::print_open(0, "CHASSIS");
    dst::print_leaves(4, dst::chassis_leaves, model->chs_cinfo.chs_info);
    dst::print_fru_models(model);
    dst::print_chassis_models(model);
    dst::print_section<dst::i2c_devices>(model, DST_I2C_DEV_IDX, dst::print_i2c_device);
    dst::print_asics(model);
    dst::print_optics(model);
    dst::print_single_devices(model);
    dst::print_section<dst::frus>(model, DST_FRU_DEV_IDX, dst::print_fru);
    dst::print_resiliency(model);
    dst::print_close(0, "CHASSIS");
}
