// The identification EEPROMs of the main board and the CPU board, which the host hands in.
#include "operations.h"
#include "walks.h"

epm_data_init_ops_t epm_null_ops;

// The table in use; the host fills it before libchs_init().
static const epm_data_init_ops_t *const epm_data_init_ops = &epm_null_ops;

// Asks the host for one board and appends what it delivers. A negative result leaves the list as it was.
static int append_epm(const char *func, cepm_data_list_t &list, cepm_type_t type) {
    auto entry = dst::make<cepm_module_list_t>();
    if (!entry)
        return dst::check(func, -1, "could not allocate the memory for creating EPM data.!");
    int rc = 0;
    if (epm_data_init_ops->libchs_get_epm_data_by_type)
        rc = epm_data_init_ops->libchs_get_epm_data_by_type(&entry->cepm_minfo, type);
    if (rc < 0)
        dst::log_err(func, "could not get epm data (%d)!", type);
    else
        dst::append(list, entry.release());
    return rc;
}

int chassis_epm_data_init_priv(void) {
    if (!dst_chs_info)
        return -1;
    cepm_data_list_t &list = dst_chs_info->cepm_info;
    dst::release_member(list);
    dst::list_init(list);
    int rc = 0;
    for (int type = EPM_TYPE_MAINBOARDID; type < EPM_TYPE_MAX && rc >= 0; ++type) {
        const auto board = static_cast<cepm_type_t>(type);
        const auto present = epm_data_init_ops->libchs_epm_data_present_by_type;
        if (present && present(board))
            rc = append_epm(__func__, list, board);
    }
    if (rc < 0)
        dst::release_member(list);
    return rc;
}

void chassis_epm_data_release_priv(void) {
    if (dst_chs_info)
        dst::release_member(dst_chs_info->cepm_info);
}

cepm_data_t *epm_data_get_next_priv(cepm_data_t *cepm_data) {
    const auto same_type = [](const auto &a, const auto &b) { return a.cepm_type == b.cepm_type; };
    return dst::next<dst::epms>(__func__, "empty epm list!", cepm_data, dst::every, same_type);
}

cepm_data_t *epm_data_get_by_type_priv(cepm_type_t cepm_type) {
    const auto of_type = [cepm_type](const auto &epm) { return epm.cepm_type == cepm_type; };
    if (dst::is_empty<dst::epms>(__func__, "empty epm list!"))
        return nullptr;
    return dst::first_of(dst::records<dst::epms>(dst::model()), of_type);
}
