#include "dstctl.h"

#include <cstdio>
#include <cstring>

static const struct {
    const char *name;
    int (*run)(int count, char **words);
    const char *usage;
} verbs[] = {
    {"show", verb_show,
     "show [--schema FILE] FILE   load a description as the daemon does and print the model; FILE is an XML document, "
     "or\n"
     "                              a configuration tree where its name ends in .conf"},
};

int usage() {
    std::fputs("usage:\n", stderr);
    for (const auto &verb : verbs)
        std::fprintf(stderr, "  dstctl %s\n", verb.usage);
    std::fputs("exit status: 0 done, 1 the description is wrong, 2 bad usage or a file that cannot be opened\n",
               stderr);
    return exit_refused;
}

int main(int argc, char **argv) {
    for (const auto &verb : verbs)
        if (argc > 1 && std::strcmp(argv[1], verb.name) == 0)
            return verb.run(argc - 2, argv + 2);
    return usage();
}
