// An identifier, and after a line "---" what the listing of the devices with it prints; without it, no listing starts.
#include <cerrno>
#include <cstdio>
#include <string>

#include "../target.h"
#include "chsinfo/libdst.h"

extern "C" {
FILE *__real_popen(const char *command, const char *mode);
int __real_pclose(FILE *stream);
FILE *__wrap_popen(const char *command, const char *mode);
int __wrap_pclose(FILE *stream);
}

namespace {

struct lookup {
    std::string identifier;
    std::string listing;
    bool starts;
};
lookup *current;

constexpr char word_characters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_.:-";

} // namespace

FILE *__wrap_popen(const char *command, const char *mode) {
    if (!current)
        return __real_popen(command, mode);
    const std::string &word = current->identifier;
    promise(command == "lspci |grep -w " + word + " | awk '{print $1}'", "the command is whole");
    promise(word.find_first_not_of(word_characters) == std::string::npos && word[0] != '-',
            "the identifier is one word of the command and no option");
    if (current->starts)
        return fmemopen(current->listing.data(), current->listing.size(), mode);
    errno = ENOMEM;
    return nullptr;
}

int __wrap_pclose(FILE *stream) { return current ? std::fclose(stream) : __real_pclose(stream); }

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const auto [identifier, listing] = parts_of(data, size);
    const bool starts = identifier.size() != size;
    lookup one{std::string(identifier.substr(0, identifier.size() - starts)), std::string(listing), starts};
    one.identifier.resize(one.identifier.find('\0') < one.identifier.size() ? one.identifier.find('\0')
                                                                            : one.identifier.size());
    current = &one;
    uint8_t bus = 101;
    uint8_t dev = 102;
    uint8_t func = 103;
    const int status = get_pcie_bus_device_info(one.identifier.c_str(), &bus, &dev, &func);
    current = nullptr;
    promise(status == 0 || (bus == 101 && dev == 102 && func == 103), "a lookup that fails stores nothing");
    return 0;
}
