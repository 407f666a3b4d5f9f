// Runs a target over the files of the folders that are named, each of which must hold some: corpora as tests.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

#include "target.h"

static std::string content_of(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

int main(int argc, char **argv) {
    LLVMFuzzerInitialize(&argc, &argv);
    promise(argc > 1, "a folder is named");
    for (int i = 1; i < argc; ++i) {
        std::vector<std::filesystem::path> paths;
        for (const auto &entry : std::filesystem::directory_iterator(argv[i]))
            paths.push_back(entry.path());
        promise(!paths.empty(), "the folder holds inputs");
        std::sort(paths.begin(), paths.end());
        for (const auto &path : paths) {
            dprintf(STDOUT_FILENO, "%s\n", path.c_str()); // before it is run: it may be the last
            const std::string input = content_of(path);
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.data()), input.size());
        }
    }
}
