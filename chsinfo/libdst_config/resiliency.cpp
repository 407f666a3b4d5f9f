// Root key "RESILMODEL": the modules of each FRU model that can report errors.
// A new key: its member in libdst.h, its line here and in the dump, a case.
#include "readers.h"

namespace dst {
// An element reader that says so when memory runs out. `position` is fixed for each reader: part of its message.
template <class T> static T *read_resil_record(const char *func, int position, auto fill) {
    T *record = read_record<T>(fill);
    if (!record)
        log_plain(LOG_ERR, "%s:%d Memory Allocation Failed", func, position);
    return record;
}
} // namespace dst

static resil_error_list_t *libconfig_resil_error_data_read(void *handle) {
    return dst::read_resil_record<resil_error_list_t>(__func__, 651, [=](auto &node) {
        resil_error_info_t &error = node.resil_einfo;
        dst::int_key(handle, "OFFSET", error.offset);
        dst::int_key(handle, "CHANNEL", error.channel);
        dst::int_key(handle, "THRESHOLD", error.threshold);
        dst::int_key(handle, "LIMIT", error.limit);
        dst::int_key(handle, "PERSIST", error.persistence);
        dst::text_key(handle, "DESC", error.desc);
    });
}
DST_LIST_READER(static, libconfig_resil_error_arrayread, libconfig_resil_error_data_read, resil_module_list_t,
                resil_errors)

static resil_module_list_t *libconfig_resil_module_data_read(void *handle) {
    return dst::read_resil_record<resil_module_list_t>(__func__, 700, [=](auto &node) {
        resil_module_info_t &module = node.resil_minfo;
        dst::list_init(node.resil_errors);
        dst::text_key(handle, "MNAME", module.mname);
        dst::int_key(handle, "KEY", module.key);
        dst::int_key(handle, "NERRORS", module.nerrors);
        brio_config_subtree_get(handle, "ERRORS", &node, libconfig_resil_error_arrayread);
    });
}
DST_LIST_READER(static, libconfig_resil_module_arrayread, libconfig_resil_module_data_read, resil_fru_list_t,
                resil_modules)

static resil_fru_list_t *libconfig_resilmodel_fru_data_read(void *handle) {
    return dst::read_resil_record<resil_fru_list_t>(__func__, 749, [=](auto &node) {
        resil_fru_info_t &fru = node.resil_finfo;
        dst::list_init(node.resil_modules);
        dst::int_key(handle, "ASSEMBLYID", fru.id);
        dst::kind_key(handle, "Type", dst_fru_type, FRU_TYPE_MAX, fru.type);
        dst::int_key(handle, "NMODULES", fru.nmodules);
        brio_config_subtree_get(handle, "MODULE", &node, libconfig_resil_module_arrayread);
    });
}
DST_LIST_READER(static, libconfig_resilmodel_fru_arrayread, libconfig_resilmodel_fru_data_read, libdst_chs_info_t,
                resil_info)

int libconfig_resilmodel_tag_op(void *handle, const char *tag, libdst_chs_info_t *info) {
    if (brio_config_subtree_get(handle, tag, info, libconfig_resilmodel_fru_arrayread) != BRIO_CONFIG_SUCCESS)
        dst::log_plain(LOG_DEBUG, "Resiliency tag not found!");
    return 0;
}
