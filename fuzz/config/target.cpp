// A configuration tree, and after a line "---" its simulation tree; without one, the tree simulates itself.
#include <cstdio>

#include "../life.h"
#include "../memory_file.h"
#include "chsinfo/libdst_config/load.h"

static int load_trees() { return libdst_config_init({"/proc/self/fd/100", DST_SIM_FOLDER, stdout}); }

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    static const memory_file tree(100);
    static const memory_file simulation(101);
    const auto [text, readings] = parts_of(data, size);
    tree.write(text);
    simulation.write(text.size() == size ? text : readings);
    live(load_trees, size);
    brio_config_init("", 0, "", nullptr); // forgets the trees
    return 0;
}
