// The root walk: the chassis-wide keys, the hand-over of everything read, and the simulation tree's merge.
// A new chassis key: its member in libdst.h, its row here and in the dump, a case.
#include "chsinfo/libdst/model/ids.h"
#include "chsinfo/libdst/model/model.h"
#include "readers.h"

// A root key and its handler.
struct libconfig_tag_parser_chsinfo_t {
    const char *tagname;
    int (*tag_parser_op)(void *handle, const char *tag, libdst_chs_info_t *info);
};

#define DST_KEY(kind, ...) DST_KEY_##kind(__VA_ARGS__)
#define DST_KEY_ENTRY(kind, key, handler, ...) {key, handler},
#define DST_KEY_FUNCTION(handler)                                                                                      \
    static int handler(void *handle, const char *tag, [[maybe_unused]] libdst_chs_info_t *info)

// The row kinds; `member` is one of the chassis block.
// An integer, without which the read fails.
#define DST_KEY_REQUIRED(key, handler, member)                                                                         \
    DST_KEY_FUNCTION(handler) { return dst::int_key(handle, tag, info->chs_cinfo.chs_info.member); }
// One that may be missing.
#define DST_KEY_OPTIONAL(key, handler, member)                                                                         \
    DST_KEY_FUNCTION(handler) {                                                                                        \
        dst::int_key(handle, tag, info->chs_cinfo.chs_info.member);                                                    \
        return 0;                                                                                                      \
    }
// One whose absence is logged.
#define DST_KEY_NOTED(key, handler, member, note)                                                                      \
    DST_KEY_FUNCTION(handler) {                                                                                        \
        if (dst::int_key(handle, tag, info->chs_cinfo.chs_info.member) != BRIO_CONFIG_SUCCESS)                         \
            dst::log_plain(LOG_ERR, note);                                                                             \
        return 0;                                                                                                      \
    }
// Written by hand.
#define DST_KEY_CALL(key, handler)

static int libconfig_family_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    chassis_family_t &family = info->chs_cinfo.chs_info.family;
    dst::kind_key(handle, tag, dst_chassis_family_type, CHASSIS_FAMILY_MAX, family);
    return family < 0 ? BRIO_CONFIG_FAIL : BRIO_CONFIG_SUCCESS;
}

static int libconfig_platform_name_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    dst::text_key(handle, tag, info->chs_cinfo.chs_info.platform_name);
    return 0;
}

static constexpr char frus_key[] = "FRUS";

#define CHASSIS_KEYS(ROW)                                                                                              \
    ROW(REQUIRED, "VERSION", libconfig_version_tag_op, major)                                                          \
    ROW(CALL, "FAMILY", libconfig_family_tag_op)                                                                       \
    ROW(REQUIRED, "NDRAMSLOTS", libconfig_ndramslots_tag_op, ndram_slots)                                              \
    ROW(REQUIRED, "NFANSLOTS", libconfig_nfanslots_tag_op, nfan_slots)                                                 \
    ROW(REQUIRED, "NPEMSLOTS", libconfig_npemslots_tag_op, npem_slots)                                                 \
    ROW(NOTED, "NFPCSLOTS", libconfig_nfpcslots_tag_op, nfpc_slots, "FPC tag not found")                               \
    ROW(NOTED, "NFPMSLOTS", libconfig_nfpmslots_tag_op, nfpm_slots, "FPM tag not found")                               \
    ROW(NOTED, "NFTCSLOTS", libconfig_nftcslots_tag_op, nftc_slots, "FTC tag not found")                               \
    ROW(NOTED, "NCBSLOTS", libconfig_ncbslots_tag_op, ncb_slots, "CB tag not found")                                   \
    ROW(NOTED, "NSIBSLOTS", libconfig_nsibslots_tag_op, nsib_slots, "SIB tag not found")                               \
    ROW(REQUIRED, "NPICSLOTS", libconfig_npicslots_tag_op, npic_slots)                                                 \
    ROW(NOTED, "NTIBSLOTS", libconfig_ntibslots_tag_op, ntib_slots, "TIB tag not found\n")                             \
    ROW(REQUIRED, "NFPGAS", libconfig_nfpgas_tag_op, nfpgas)                                                           \
    ROW(REQUIRED, "NTMPSENSORS", libconfig_ntmpsensors_tag_op, ntmpsnrs)                                               \
    ROW(OPTIONAL, "ENHANCEDEMTHRESHOLD", libconfig_enhancedemthreshold_tag_op, enhanced_em_threshold)                  \
    ROW(OPTIONAL, "SUPPORTPSUFANCTL", libconfig_support_psu_fan_ctl_tag_op, support_psu_fan_ctl)                       \
    ROW(OPTIONAL, "PSM_FANFLT_DFLT_DEBOUNCE_CNT", libconfig_psm_fan_flt_dflt_debounce_cnt_tag_op,                      \
        psm_fan_flt_dflt_debounce_cnt)                                                                                 \
    ROW(NOTED, "NVOLTSENSORS", libconfig_nvoltsensors_tag_op, nvoltsnrs, "volt sensor tag not found")                  \
    ROW(REQUIRED, "NFPLEDS", libconfig_nfpleds_tag_op, nfpleds)                                                        \
    ROW(REQUIRED, "NBPLEDS", libconfig_nbpleds_tag_op, nbpleds)                                                        \
    ROW(OPTIONAL, "FEATURE", libconfig_feature_tag_op, feature)                                                        \
    ROW(OPTIONAL, "PCIBUSADDR", libconfig_pciaddr_tag_op, pci_busaddr)                                                 \
    ROW(OPTIONAL, "PCISUBADDR1", libconfig_subaddr1_tag_op, pci_subaddr1)                                              \
    ROW(OPTIONAL, "PCISUBADDR2", libconfig_subaddr2_tag_op, pci_subaddr2)                                              \
    ROW(OPTIONAL, "PCIBUSADDR_MEZZ", libconfig_pciaddr_mezz_tag_op, pci_busaddr_mezz)                                  \
    ROW(OPTIONAL, "PCISUBADDR1_MEZZ", libconfig_subaddr1_mezz_tag_op, pci_subaddr1_mezz)                               \
    ROW(OPTIONAL, "PCISUBADDR2_MEZZ", libconfig_subaddr2_mezz_tag_op, pci_subaddr2_mezz)                               \
    ROW(OPTIONAL, "LSPCI_OVERRIDE", libconfig_lspci_override_tag_op, lspci_override)                                   \
    ROW(OPTIONAL, "RESILIENCY", libconfig_resiliency_tag_op, enable_resiliency)                                        \
    ROW(OPTIONAL, "SIBINITSPMB", libconfig_sibinitspmb_tag_op, sib_init_spmb)                                          \
    ROW(CALL, "RESILMODEL", libconfig_resilmodel_tag_op)                                                               \
    ROW(CALL, "FRUMODEL", libconfig_frumodel_tag_op)                                                                   \
    ROW(CALL, "CHSMODEL", libconfig_chsmodel_tag_op)                                                                   \
    ROW(CALL, "BUS", libconfig_bus_tag_op)                                                                             \
    ROW(CALL, "DEVICES", libconfig_devices_tag_op)                                                                     \
    ROW(CALL, frus_key, libconfig_frulist_tag_op)                                                                      \
    ROW(CALL, "PLATFORM_NAME", libconfig_platform_name_tag_op)
CHASSIS_KEYS(DST_KEY)
static const libconfig_tag_parser_chsinfo_t config_tag_chs_op[] = {CHASSIS_KEYS(DST_KEY_ENTRY){nullptr, nullptr}};

namespace dst {

using model_t = libdst_chs_info_t;

// The destination keeps what this form has no source for: `nbuttons`, LCDs and EPM data.
static void hand_over(model_t &from, model_t &to) {
    from.chs_cinfo.chs_info.nbuttons = to.chs_cinfo.chs_info.nbuttons;
    to.chs_cinfo.chs_info = from.chs_cinfo.chs_info;
    move_list(from.chs_cinfo.i2cdev_info_list, to.chs_cinfo.i2cdev_info_list);
    move_lists<&model_t::fan_info, &model_t::pem_info, &model_t::fpc_info, &model_t::fpm_info, &model_t::ftc_info,
               &model_t::cb_info, &model_t::sib_info, &model_t::tib_info, &model_t::ts_info, &model_t::vs_info,
               &model_t::ll_info, &model_t::btn_info, &model_t::pic_info, &model_t::fru_info, &model_t::asic_info,
               &model_t::optics_info, &model_t::frumodel_info, &model_t::chsmodel_info, &model_t::resil_info>(from, to);
}

// The simulated readings of each FRU of the simulation tree replace those of the first FRU with its id.
static void merge_simulation(model_t &simulation, model_t &model) {
    if (!simulation.fru_info.tqh_first)
        return;
    const ids_of<frus> by_id(&model);
    for (fru_info_t &simulated : records<frus>(&simulation)) {
        fru_info_t *fru = by_id.first(simulated.id).record;
        if (!fru)
            continue;
        release_member(fru->virtual_fru_data);
        move_list(simulated.virtual_fru_data, fru->virtual_fru_data);
        list_init(simulated.virtual_fru_data);
        log_plain(LOG_ERR, "%d: changed ID is !", static_cast<int>(simulated.id));
    }
}

} // namespace dst

int libconfig_root_tag(void *node, void *sim_node, libdst_chs_info_t *cinfo) {
    using dst::model_t;
    model_t lrt_info;
    model_t lrt_sim_info;
    libdst_info_init(&lrt_info);
    libdst_info_init(&lrt_sim_info);
    dst::list_init(lrt_info.chs_cinfo.i2cdev_info_list);
    // The handlers of the FRUs and of the FRU models initialise their own.
    dst::init_lists<&model_t::fan_info, &model_t::pem_info, &model_t::fpc_info, &model_t::sib_info, &model_t::fpm_info,
                    &model_t::ftc_info, &model_t::cb_info, &model_t::tib_info, &model_t::ts_info, &model_t::vs_info,
                    &model_t::ll_info, &model_t::btn_info, &model_t::pic_info, &model_t::chsmodel_info,
                    &model_t::resil_info>(lrt_info);
    int rc = 0;
    for (const auto *entry = config_tag_chs_op; rc == 0 && entry->tagname; ++entry) {
        rc = entry->tag_parser_op(node, entry->tagname, &lrt_info);
        if (sim_node && entry->tagname == frus_key)
            entry->tag_parser_op(sim_node, entry->tagname, &lrt_sim_info);
        if (rc != 0)
            dst::log_err(__func__, "failed in parsing root tag %s", entry->tagname);
    }
    if (rc != 0) {
        dst::release_contents(&lrt_info);
    } else {
        dst::hand_over(lrt_info, *cinfo);
        dst::merge_simulation(lrt_sim_info, *cinfo);
    }
    dst::release_contents(&lrt_sim_info);
    return rc;
}

int libconfig_string2enum_convert(const char *typestr, const char *const *strarray, int maxelem) {
    for (int index = 0; typestr && index < maxelem; ++index)
        if (strarray[index] && dst::begins_with(strarray[index], typestr))
            return index;
    return -1;
}
