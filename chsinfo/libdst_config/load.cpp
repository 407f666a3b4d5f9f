// The entry point of the configuration-tree form. The platform's library opens and parses the files; its handles are
// valid until its next initialisation, longer than they are used here.
#include "load.h"

#include <cstdlib>

#include "chsinfo/libdst/model/broken_pipe.h"
#include "chsinfo/libdst/model/log.h"
#include "chsinfo/paths.h"
#include "readers.h"

static constexpr char root_group[] = "CHASSIS";

// Told of misuse of the platform's library alone, never of what a file contains.
[[noreturn]] static void config_assert(const char *error_str, int error_line) {
    dst::log_plain(LOG_CRIT, " config assert at line %d error str %s,EXITING PSVD process\n", error_line, error_str);
    std::exit(1);
}

int libconfig_root_handler(libdst_chs_info_t *model) {
    void *cur_node = brio_config_handle_get(root_group);
    void *sim_node = brio_config_handle_sim_get(root_group);
    if (!sim_node)
        dst::log_err(__func__, "Simulation file is empty!");
    if (!cur_node)
        return dst::check(__func__, -1, "Configuration file is empty!");
    return libconfig_root_tag(cur_node, sim_node, model);
}

int libdst_config_init(const dst::config_source &source) {
    const dst::broken_pipe_guard printing;
    static_cast<void>(brio_config_init(source.file, 0, source.sim_folder, config_assert));
    libdst_chs_info_t *model = libdst_get_chs_info();
    int rc = libconfig_root_handler(model);
    if (rc != 0)
        std::fprintf(source.verdict, "%s: Unable to convert the DST into chassis info", __func__);
    else
        rc = libdst_dev_transform_handler(model);
    if (rc != 0)
        libdst_release();
    return rc;
}

int libdst_config_init(void) { return libdst_config_init({dst::config_path, dst::config_folder, stdout}); }
