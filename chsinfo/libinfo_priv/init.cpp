// The operations table, and the operations that load and release the model.
#include <unistd.h>

#include "chsinfo/libdst/model/log.h"
#include "chsinfo/paths.h"
#include "operations.h"

chassis_ops_t chassis_priv_ops = {
#define SLOT(result, slot, operation, parameters) .slot = operation,
#define QUERY(result, slot, operation, wrapper, parameters, arguments) SLOT(result, slot, operation, parameters)
#include "chsinfo/chassis_ops.def"
#undef QUERY
#undef SLOT
};

chassis_ops_t *libc_get_priv_ops(void) { return &chassis_priv_ops; }

// The first readable file wins, whatever it contains.
int libc_configuration_init(void) {
    if (access(dst::xml_path, R_OK) == 0) {
        dst::log_plain(LOG_INFO, "Using xml config file %s", dst::xml_path);
        return libdst_init();
    }
    if (access(dst::config_path, R_OK) == 0) {
        dst::log_plain(LOG_INFO, "Using config file %s", dst::config_path);
        return libdst_config_init();
    }
    dst::log_plain(LOG_ERR, "Fatal: Could not find configuration file %s OR %s\n", dst::xml_path, dst::config_path);
    return -1;
}

int libc_init_priv(void) {
    const int rc = libc_configuration_init();
    if (rc != 0) {
        dst::log_plain(LOG_ERR, "Could not parse configuration file!\n");
        return rc < 0 ? rc : -1;
    }
    display_dst_info();
    dst_chs_info = libdst_get_chs_info();
    if (!dst_chs_info)
        return dst::check(__func__, -1, "INVALID chassis info!");
    return 0;
}

void libc_release_priv(void) {
    libdst_release();
    dst_chs_info = nullptr;
}

chassis_info_t *chassis_info_get_priv(void) {
    if (!dst_chs_info) {
        dst::log_err(__func__, "ERROR: Chassis information not present.");
        return nullptr;
    }
    return &dst_chs_info->chs_cinfo.chs_info;
}
