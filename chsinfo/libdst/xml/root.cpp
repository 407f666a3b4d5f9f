// The root walk: the chassis-wide elements, and the hand-over of everything read.
// A new chassis element: its member in libdst.h, its row here, in the dump and in the schema, a case.
#include "../model/model.h"
#include "patterns.h"
#include "readers.h"

#define CHASSIS_ELEMENTS(ROW, T)                                                                                       \
    ROW(T, FIELD, "VERSION", libdst_version_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.major)                 \
    ROW(T, KIND, "FAMILY", libdst_family_tag_op, dst_chassis_family_type, CHASSIS_FAMILY_DUMMY, CHASSIS_FAMILY_OSTWIN, \
        chs_cinfo.chs_info.family)                                                                                     \
    ROW(T, FIELD, "NDRAMSLOTS", libdst_ndramslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.ndram_slots)     \
    ROW(T, FIELD, "NFANSLOTS", libdst_nfanslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nfan_slots)        \
    ROW(T, FIELD, "NFPCSLOTS", libdst_nfpcslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nfpc_slots)        \
    ROW(T, FIELD, "NSIBSLOTS", libdst_nsibslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nsib_slots)        \
    ROW(T, FIELD, "NFPMSLOTS", libdst_nfpmslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nfpm_slots)        \
    ROW(T, FIELD, "NFTCSLOTS", libdst_nftcslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nftc_slots)        \
    ROW(T, FIELD, "NCBSLOTS", libdst_ncbslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.ncb_slots)           \
    ROW(T, FIELD, "NPEMSLOTS", libdst_npemslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.npem_slots)        \
    ROW(T, FIELD, "NPICSLOTS", libdst_npicslots_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.npic_slots)        \
    ROW(T, FIELD, "NFPGAS", libdst_nfpgas_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nfpgas)                  \
    ROW(T, FIELD, "NTMPSENSORS", libdst_ntmpsensors_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.ntmpsnrs)      \
    ROW(T, FIELD, "NVOLTSENSORS", libdst_nvoltsensors_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nvoltsnrs)   \
    ROW(T, FIELD, "NFPLEDS", libdst_nfpleds_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nfpleds)               \
    ROW(T, FIELD, "NBPLEDS", libdst_nbpleds_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nbpleds)               \
    ROW(T, FIELD, "NBUTTONS", libdst_nbuttons_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.nbuttons)            \
    ROW(T, LENIENT, "FEATURE", libdst_feature_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.feature)             \
    ROW(T, LENIENT, "PCIBUSADDR", libdst_pciaddr_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.pci_busaddr)      \
    ROW(T, LENIENT, "PCISUBADDR1", libdst_subaddr1_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.pci_subaddr1)   \
    ROW(T, LENIENT, "PCISUBADDR2", libdst_subaddr2_tag_op, libdst_parse_tag_uint32, chs_cinfo.chs_info.pci_subaddr2)   \
    ROW(T, LENIENT, "PCIBUSADDR_MEZZ", libdst_pciaddr_mezz_tag_op, libdst_parse_tag_uint32,                            \
        chs_cinfo.chs_info.pci_busaddr_mezz)                                                                           \
    ROW(T, LENIENT, "PCISUBADDR1_MEZZ", libdst_subaddr1_mezz_tag_op, libdst_parse_tag_uint32,                          \
        chs_cinfo.chs_info.pci_subaddr1_mezz)                                                                          \
    ROW(T, LENIENT, "PCISUBADDR2_MEZZ", libdst_subaddr2_mezz_tag_op, libdst_parse_tag_uint32,                          \
        chs_cinfo.chs_info.pci_subaddr2_mezz)                                                                          \
    ROW(T, LENIENT, "LSPCI_OVERRIDE", libdst_lspci_override_tag_op, libdst_parse_tag_uint32,                           \
        chs_cinfo.chs_info.lspci_override)                                                                             \
    ROW(T, CALL, "FRUMODEL", libdst_frumodel_tag_op)                                                                   \
    ROW(T, CALL, "MODEL", libdst_chsmodel_tag_op)                                                                      \
    ROW(T, CALL, "DEVICE", libdst_device_tag_op)
DST_TABLE(dst_tag_chs_op, xml_tag_parser_chsinfo_t, libdst_chs_info_t, CHASSIS_ELEMENTS)

namespace dst {

using model_t = libdst_chs_info_t;

// `cepm_info` and `resil_info` of the destination stay: this form fills neither.
static void hand_over(model_t &from, model_t &to) {
    to.chs_cinfo.chs_info = from.chs_cinfo.chs_info;
    move_list(from.chs_cinfo.i2cdev_info_list, to.chs_cinfo.i2cdev_info_list);
    move_lists<&model_t::fan_info, &model_t::pem_info, &model_t::fpc_info, &model_t::sib_info, &model_t::tib_info,
               &model_t::fpm_info, &model_t::ftc_info, &model_t::cb_info, &model_t::ts_info, &model_t::vs_info,
               &model_t::ll_info, &model_t::lcd_info, &model_t::btn_info, &model_t::pic_info, &model_t::fru_info,
               &model_t::asic_info, &model_t::optics_info, &model_t::frumodel_info, &model_t::chsmodel_info>(from, to);
}

} // namespace dst

int libdst_root_tag(xmlDocPtr pdoc, xmlNodePtr node, libdst_chs_info_t *cinfo) {
    using dst::model_t;
    model_t model;
    libdst_info_init(&model);
    // The list readers initialise their own.
    dst::init_lists<&model_t::ts_info, &model_t::vs_info, &model_t::ll_info, &model_t::lcd_info, &model_t::btn_info,
                    &model_t::pem_info, &model_t::fpc_info, &model_t::sib_info, &model_t::tib_info, &model_t::fpm_info,
                    &model_t::ftc_info, &model_t::cb_info, &model_t::pic_info, &model_t::chsmodel_info,
                    &model_t::fan_info>(model);
    const int rc = dst::walk(__func__, dst_tag_chs_op, pdoc, node, &model, "failed in parsing root tag!");
    if (rc < 0)
        dst::release_contents(&model);
    else
        dst::hand_over(model, *cinfo);
    return rc;
}
