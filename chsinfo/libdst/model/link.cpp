// The linking pass: ids that records carry become pointers within the model. A new device family gets its pass and its
// row in libdst_dev_transform_handler().
#include "link.h"

#include <algorithm>

#include "chsinfo/libdst_priv.h"
#include "ids.h"
#include "log.h"

namespace dst {

constexpr uint32_t no_parent = 0xFFFFFFFF;
constexpr int32_t no_i2c_device = -1;

// The ids of the model's FRUs, sorted once for all passes that run while this stands.
struct fru_index {
    explicit fru_index(libdst_chs_info_t *model) : ids(model) { standing = &ids; }
    ~fru_index() { standing = nullptr; }
    fru_index(const fru_index &) = delete;
    fru_index &operator=(const fru_index &) = delete;

    const ids_of<frus> ids;
    static const ids_of<frus> *standing;
};
const ids_of<frus> *fru_index::standing;

// `word` names the family in the messages, which end with `line_end`.
template <class K>
static int link_frus(const char *func, libdst_chs_info_t *model, const char *word, const char *line_end = "") {
    if (!K::list(model).tqh_first) {
        log_at(LOG_INFO, func, "%s info list is empty!%s", word, line_end);
        return 0;
    }
    if (!model->fru_info.tqh_first) {
        log_err(func, "fru info list is empty!%s", line_end);
        return -1;
    }
    if (!fru_index::standing) {
        const fru_index of_this_pass(model);
        return link_frus<K>(func, model, word, line_end);
    }
    for (auto &node : entries(K::list(model))) {
        fru_info_t *fru = fru_index::standing->first(node.fru_id).record;
        if (!fru) {
            log_err(func, "Invalid fru info in %s info!%s", word, line_end);
            return -1;
        }
        K::record(&node)->fru_info = fru;
    }
    return 0;
}

// With an extension device wanted, of each id the last device counts up to where both have been met.
static void link_i2c_devices(const ids_of<i2c_devices> &by_id, fru_module_list_t &entry) {
    fru_info_t &fru = entry.fru_minfo;
    const auto primary = static_cast<uint32_t>(entry.i2cdev_id);
    const auto extension = static_cast<uint32_t>(entry.i2cdev_id_ext);
    const auto first = by_id.first(primary);
    if (entry.i2cdev_id_ext == no_i2c_device) {
        fru.i2cdev = first.record;
        return;
    }
    const uint32_t both_met = std::max(first.position, by_id.first(extension).position);
    fru.i2cdev = by_id.last(primary, both_met);
    fru.i2cdev_ext = by_id.last(extension, both_met);
}

} // namespace dst

int libdst_dev_trans_fpc(libdst_chs_info_t *model) { return dst::link_frus<dst::fpcs>(__func__, model, "fpc"); }
int libdst_dev_trans_sib(libdst_chs_info_t *model) { return dst::link_frus<dst::sibs>(__func__, model, "sib"); }
int libdst_dev_trans_fpm(libdst_chs_info_t *model) { return dst::link_frus<dst::fpms>(__func__, model, "fpm"); }
int libdst_dev_trans_ftc(libdst_chs_info_t *model) { return dst::link_frus<dst::ftcs>(__func__, model, "ftc"); }
int libdst_dev_trans_cb(libdst_chs_info_t *model) { return dst::link_frus<dst::cbs>(__func__, model, "cb"); }
int libdst_dev_trans_pem(libdst_chs_info_t *model) { return dst::link_frus<dst::pems>(__func__, model, "pem"); }
int libdst_dev_trans_fan(libdst_chs_info_t *model) { return dst::link_frus<dst::fans>(__func__, model, "fan"); }
int libdst_dev_trans_pic(libdst_chs_info_t *model) { return dst::link_frus<dst::pics>(__func__, model, "pic"); }
int libdst_dev_trans_tib(libdst_chs_info_t *model) { return dst::link_frus<dst::tibs>(__func__, model, "tib", "\n"); }
int libdst_dev_trans_tmpsnr(libdst_chs_info_t *model) {
    return dst::link_frus<dst::tmpsnrs>(__func__, model, "temperature sensor");
}
int libdst_dev_trans_voltsnr(libdst_chs_info_t *model) {
    return dst::link_frus<dst::voltsnrs>(__func__, model, "voltage sensor");
}
int libdst_dev_trans_led(libdst_chs_info_t *model) { return dst::link_frus<dst::leds>(__func__, model, "led"); }
int libdst_dev_trans_lcd(libdst_chs_info_t *model) { return dst::link_frus<dst::lcds>(__func__, model, "lcd"); }
int libdst_dev_trans_btn(libdst_chs_info_t *model) { return dst::link_frus<dst::btns>(__func__, model, "btn"); }

int libdst_dev_trans_fru(libdst_chs_info_t *model) {
    if (!model->fru_info.tqh_first) {
        dst::log_at(LOG_INFO, __func__, "fru info list is empty!");
        return 0;
    }
    if (!model->chs_cinfo.i2cdev_info_list.tqh_first) {
        dst::log_at(LOG_INFO, __func__, "i2c dev info list is empty!");
        return 0;
    }
    if (!dst::fru_index::standing) {
        const dst::fru_index of_this_pass(model);
        return libdst_dev_trans_fru(model);
    }
    const dst::ids_of<dst::i2c_devices> devices(model);
    for (fru_module_list_t &entry : dst::entries(model->fru_info)) {
        entry.fru_minfo.i2cdev = entry.fru_minfo.i2cdev_ext = nullptr;
        if (entry.i2cdev_id < 0)
            continue;
        dst::link_i2c_devices(devices, entry);
        if (!entry.fru_minfo.i2cdev) {
            dst::log_err(__func__, "Invalid i2c dev info in fru info!");
            return -1;
        }
    }
    for (fru_module_list_t &entry : dst::entries(model->fru_info)) {
        entry.fru_minfo.parent = nullptr;
        if (entry.parent_id == dst::no_parent)
            continue;
        entry.fru_minfo.parent = dst::fru_index::standing->first(entry.parent_id).record;
        if (!entry.fru_minfo.parent) {
            dst::log_err(__func__, "Invalid parent fru dev info!");
            return -1;
        }
    }
    return 0;
}

int libdst_dev_transform_handler(libdst_chs_info_t *model) {
    static const struct {
        int (*pass)(libdst_chs_info_t *model);
        const char *failure;
        bool fatal;
    } passes[] = {
        {libdst_dev_trans_fpc, "Failed in setting the fru pointer in fpc device info!\n", true},
        {libdst_dev_trans_sib, "Failed in setting the fru pointer in sib device info!\n", true},
        {libdst_dev_trans_fpm, "Failed in setting the fru pointer in fpm device info!\n", true},
        {libdst_dev_trans_ftc, "Failed in setting the fru pointer in ftc device info!\n", true},
        {libdst_dev_trans_cb, "Failed in setting the fru pointer in cb device info!\n", true},
        {libdst_dev_trans_pem, "Failed in setting the fru pointer in pem device info!\n", true},
        {libdst_dev_trans_fan, "Failed in setting the fru pointer in fan device info!\n", true},
        {libdst_dev_trans_pic, "Failed in setting the fru pointer in pic device info!\n", false},
        {libdst_dev_trans_tib, "Failed in setting the fru pointer in tib device info!\n", true},
        {libdst_dev_trans_tmpsnr, "Failed in setting the i2c dev ptr in temperature sensor info!\n", true},
        {libdst_dev_trans_voltsnr, "Failed in setting the i2c dev ptr in voltage sensor info!\n", true},
        {libdst_dev_trans_led, "Failed in setting the i2c dev ptr in led info!\n", true},
        {libdst_dev_trans_lcd, "Failed in setting the fru dev ptr in lcd info!\n", true},
        {libdst_dev_trans_btn, "Failed in setting the i2c dev ptr in btn info!\n", true},
        {libdst_dev_trans_fru, "Failed in setting the i2c dev ptr in fru info!\n", true},
    };
    const dst::fru_index index(model);
    for (const auto &step : passes) {
        const int rc = dst::check(__func__, step.pass(model), step.failure);
        if (rc < 0 && step.fatal)
            return rc;
    }
    return 0;
}
