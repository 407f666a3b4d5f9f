// Slot boards and power supplies: "DEVICES" groups of "Type" "FPC", "FPM", "FTC", "CB", "SIB", "TIB" and "PEM", with
// one controller each. A new key: its member in libdst.h, its line here and in the dump, a case. A new board: its
// records in libdst.h, their rows in records.h and kinds.h, its BOARD here, its row in devices.cpp.
#include "devices.h"

DST_LIST_READER(static, libconfig_dev_psu_fan_ss2rpm_get, libconfig_dev_ss2rpm_read, pem_info_t, ss2rpm)

// The keys that one kind alone has, read last.
static void more_keys(void *, auto &) {}
static void more_keys(void *handle, cb_info_t &board) {
    dst::int_key(handle, "NTSENSORS", board.ntsensors);
    dst::int_key(handle, "NVSENSORS", board.nvsensors);
}
static void more_keys(void *handle, pem_info_t &supply) {
    dst::list_init(supply.ss2rpm);
    brio_config_subtree_get(handle, "SS2RPM", &supply, libconfig_dev_psu_fan_ss2rpm_get);
}

template <class K>
static int read_board(const char *func, const char *no_memory, ctrl_type_t type, void *handle,
                      typename K::entry_t *node) {
    auto *board = dst::hold_record<K>(node, type);
    if (!board)
        return dst::check(func, -1, no_memory);
    dst::int_key(handle, "id", board->id);
    dst::int_key(handle, "FRUID", node->fru_id);
    dst::text_key(handle, "NAME", board->name);
    dst::int_key(handle, "DRIVERID", board->driver_id);
    more_keys(handle, *board);
    return 0;
}

// A board without a record, for want of a known controller or of memory, is dropped and the walk goes on.
template <class K>
static brio_cfg_status_t read_board_device(const char *func, const char *failure, void *handle,
                                           const dst::controller_entry<typename K::entry_t> *controllers,
                                           libdst_chs_info_t *info) {
    auto found = dst::read_device<K>(handle, controllers);
    if (!found.node)
        return BRIO_CONFIG_FAIL;
    if (found.known && found.result != 0)
        dst::log_err(func, "%s", failure);
    if (K::held(found.node.get()))
        dst::append_device(info, found);
    return BRIO_CONFIG_SUCCESS;
}

#define BOARD(kind, kind_handler, failure, parser_t, table, ctrl, handler, type, no_memory)                            \
    static int handler(void *handle, kind::entry_t *node) {                                                            \
        return read_board<kind>(__func__, no_memory, type, handle, node);                                              \
    }                                                                                                                  \
    using parser_t = dst::controller_entry<kind::entry_t>;                                                             \
    static const parser_t table[] = {{ctrl, handler}, {nullptr, nullptr}};                                             \
    brio_cfg_status_t kind_handler(void *handle, void *data) {                                                         \
        return read_board_device<kind>(__func__, failure, handle, table, static_cast<libdst_chs_info_t *>(data));      \
    }

BOARD(dst::fpcs, libconfig_device_fpc_data_get, "failed to parse fpc tag", libconfig_tag_parser_fpcinfo_t,
      config_tag_fpc_op, "FPC", libconfig_dev_fpc_op, CTRL_TYPE_FPC, dst::no_memory)
BOARD(dst::fpms, libconfig_device_fpm_data_get, "failed to parse fpm tag", libconfig_tag_parser_fpminfo_t,
      config_tag_fpm_op, "FPM", libconfig_dev_fpm_op, CTRL_TYPE_FPM, dst::no_memory)
BOARD(dst::ftcs, libconfig_device_ftc_data_get, "failed to parse ftc tag", libconfig_tag_parser_ftcinfo_t,
      config_tag_ftc_op, "FTC", libconfig_dev_ftc_op, CTRL_TYPE_FTC, dst::no_memory)
BOARD(dst::cbs, libconfig_device_cb_data_get, "failed to parse cb tag ", libconfig_tag_parser_cbinfo_t,
      config_tag_cb_op, "CB", libconfig_dev_cb_op, CTRL_TYPE_CB, dst::no_memory)
BOARD(dst::sibs, libconfig_device_sib_data_get, "failed to parse sib tag ", libconfig_tag_parser_sibinfo_t,
      config_tag_sib_op, "SIB", libconfig_dev_sib_op, CTRL_TYPE_SIB, dst::no_memory)
BOARD(dst::tibs, libconfig_device_tib_data_get, "failed to parse tib tag\n", libconfig_tag_parser_tibinfo_t,
      config_tag_tib_op, "TIB", libconfig_dev_tib_op, CTRL_TYPE_TIB, "could not allocate the memory!\n")
BOARD(dst::pems, libconfig_device_psu_data_get, "failed to parse pem tag", libconfig_tag_parser_peminfo_t,
      config_tag_pem_op, "PSUEPM", libconfig_dev_psu_psuepm_op, CTRL_TYPE_PSUEPM, dst::no_memory)
