// Loading the configuration-tree form: the fixed files, or those that the caller names.
#pragma once

#include <cstdio>

#include "chsinfo/libdst_priv.h"

namespace dst {

// What a load reads and where it prints: the configuration tree, and the folder in which chassis_dst_sim.conf, the
// simulation tree, stands.
struct config_source {
    const char *file;
    const char *sim_folder;
    FILE *verdict;
};

} // namespace dst

// Reads the file into `chs_info`, linked; on failure `chs_info` is all zero.
int libdst_config_init(const dst::config_source &source);
