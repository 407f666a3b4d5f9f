// The resiliency data of a FRU model.
#include "operations.h"
#include "walks.h"

resil_fru_list_t *resil_fru_get_priv(fru_type_t ftype, uint16_t id) {
    const auto of_model = [=](const auto &fru) { return fru.resil_finfo.type == ftype && fru.resil_finfo.id == id; };
    return dst::first_of(dst::entries(dst::model()->resil_info), of_model);
}

resil_module_list_t *resil_module_list_next_priv(resil_fru_list_t *rlist, const resil_module_list_t *current) {
    if (current)
        return current->resil_module_next.tqe_next;
    return rlist ? rlist->resil_modules.tqh_first : nullptr;
}
