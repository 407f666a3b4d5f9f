// Reading a configuration tree into chs_info, without the linking and the dump of a whole load.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>

#include "chsinfo/libdst_priv.h"
#include "load.h"

// Fills chs_info from what load_config() would load; gives the result.
inline int read_config(const std::string &tree, const std::string &simulation = "") {
    libdst_release();
    write_config(tree, simulation);
    take_log();
    brio_config_init("/var/platform/chassis_dst.conf", 0, "/var/platform", nullptr);
    return libconfig_root_handler(&chs_info);
}

class ConfigTest : public testing::Test {
  protected:
    void TearDown() override {
        libchs_release();
        libdst_release(); // libchs_release() leaves what libchs_init() has not read
        for (const auto &file : std::filesystem::directory_iterator("/var/platform"))
            std::filesystem::remove(file);
    }
};
