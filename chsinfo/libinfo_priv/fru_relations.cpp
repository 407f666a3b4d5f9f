// The queries that relate FRUs to each other and to the devices on them.
#include "operations.h"
#include "walks.h"

namespace dst {

static constexpr char empty_frus[] = "empty fru list!";

static fru_info_t *next_of_type(const char *func, const fru_info_t *previous, fru_type_t type,
                                const char *empty = empty_frus) {
    const auto of_type = [type](const auto &fru) { return fru.fru_type == type; };
    return next<frus>(func, empty, previous, of_type, same_id);
}

// The devices of one FRU. A device stands at its FRU's id and its controller; one without a FRU stands nowhere.
template <class K, class R>
static R *next_on_fru(const char *func, const char *empty, uint32_t fru_id, const R *previous) {
    const auto on_fru = [fru_id](const auto &device) { return device.fru_info && device.fru_info->id == fru_id; };
    const auto same_place = [](const auto &a, const auto &b) {
        return b.fru_info && a.fru_info->id == b.fru_info->id && a.ctrl_type == b.ctrl_type;
    };
    return next<K>(func, empty, previous, on_fru, same_place);
}

// A walk over the FRU tree: its end is logged too.
static fru_info_t *next_relative(const char *func, const fru_info_t *previous, auto passes) {
    if (is_empty<frus>(func, empty_frus))
        return nullptr;
    fru_info_t *found = next_of(records<frus>(model()), previous, passes, same_id);
    if (!found)
        log_err(func, "could not find the fru info for the parent!");
    return found;
}

} // namespace dst

fru_info_t *fru_info_get_next_priv(fru_info_t *fru_info) {
    return dst::next<dst::frus>(__func__, dst::empty_frus, fru_info);
}

fru_info_t *fru_info_get_next_by_fan_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_FAN);
}

fru_info_t *fru_info_get_next_by_pem_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_PEM);
}

fru_info_t *fru_info_get_next_by_fpc_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_FPC);
}

fru_info_t *fru_info_get_next_by_sib_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_SIB);
}

fru_info_t *fru_info_get_next_by_fpm_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_FPM);
}

fru_info_t *fru_info_get_next_by_ftc_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_FTC);
}

fru_info_t *fru_info_get_next_by_cb_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_CB);
}

fru_info_t *fru_info_get_next_by_tib_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_TIB, "empty fru list!\n");
}

fru_info_t *fru_info_get_next_by_pic_priv(fru_info_t *fru_info) {
    return dst::next_of_type(__func__, fru_info, FRU_TYPE_PIC);
}

fan_info_t *fru_fan_info_get_next_priv(uint32_t fru_id, fan_info_t *fan_info) {
    return dst::next_on_fru<dst::fans>(__func__, "empty fan list!", fru_id, fan_info);
}

pem_info_t *fru_pem_info_get_next_priv(uint32_t fru_id, pem_info_t *pem_info) {
    return dst::next_on_fru<dst::pems>(__func__, "empty pem list!", fru_id, pem_info);
}

fpc_info_t *fru_fpc_info_get_next_priv(uint32_t fru_id, fpc_info_t *fpc_info) {
    return dst::next_on_fru<dst::fpcs>(__func__, "empty fpc list!", fru_id, fpc_info);
}

sib_info_t *fru_sib_info_get_next_priv(uint32_t fru_id, sib_info_t *sib_info) {
    return dst::next_on_fru<dst::sibs>(__func__, "empty sib list!", fru_id, sib_info);
}

fpm_info_t *fru_fpm_info_get_next_priv(uint32_t fru_id, fpm_info_t *fpm_info) {
    return dst::next_on_fru<dst::fpms>(__func__, "empty fpm list!", fru_id, fpm_info);
}

ftc_info_t *fru_ftc_info_get_next_priv(uint32_t fru_id, ftc_info_t *ftc_info) {
    return dst::next_on_fru<dst::ftcs>(__func__, "empty ftc list!", fru_id, ftc_info);
}

cb_info_t *fru_cb_info_get_next_priv(uint32_t fru_id, cb_info_t *cb_info) {
    return dst::next_on_fru<dst::cbs>(__func__, "empty cb list!", fru_id, cb_info);
}

tib_info_t *fru_tib_info_get_next_priv(uint32_t fru_id, tib_info_t *tib_info) {
    return dst::next_on_fru<dst::tibs>(__func__, "empty tib list!\n", fru_id, tib_info);
}

pic_info_t *fru_pic_info_get_next_priv(uint32_t fru_id, pic_info_t *pic_info) {
    return dst::next_on_fru<dst::pics>(__func__, "empty pic list!", fru_id, pic_info);
}

fru_info_t *fru_info_get_by_id_priv(uint32_t fru_id) {
    return dst::by_id<dst::frus>(__func__, dst::empty_frus, fru_id);
}

fru_info_t *fru_info_get_next_parent_priv(fru_info_t *fru_info) {
    return dst::next_relative(__func__, fru_info, [](const auto &fru) { return !fru.parent; });
}

fru_info_t *fru_info_get_next_child_priv(fru_info_t *parent, fru_info_t *fru_info) {
    if (!parent) {
        dst::log_err(__func__, "input parent should not be NULL!");
        return nullptr;
    }
    const auto is_child = [parent](const auto &fru) { return fru.parent && fru.parent->id == parent->id; };
    return dst::next_relative(__func__, fru_info, is_child);
}

int fru_info_get_id_by_type_slotno_priv(fru_type_t fru_type, uint32_t slotno, uint32_t *fru_id) {
    if (dst::is_empty<dst::frus>(__func__, dst::empty_frus))
        return -1;
    const auto in_slot = [=](const auto &fru) { return fru.fru_type == fru_type && fru.slot == slotno; };
    const fru_info_t *fru = dst::first_of(dst::records<dst::frus>(dst::model()), in_slot);
    if (!fru)
        return -1;
    *fru_id = fru->id;
    return 0;
}
