// get_pcie_bus_device_info(): a PCI device's address, from the system's listing tool.
#include <cstdio>
#include <cstring>
#include <syslog.h>

#include "chsinfo/libdst.h"

// The word goes into a shell command unquoted: nothing that a shell could take for more than a word gets through, nor
// anything that grep could take for an option.
static bool is_identifier(const char *word) {
    constexpr char letters_and_digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    constexpr std::size_t longest = 93;
    const std::size_t length = word ? strnlen(word, longest + 1) : 0;
    if (length == 0 || length > longest || word[0] == '-' || word[length - 1] == '-')
        return false;
    for (std::size_t i = 0; i < length; ++i)
        if (!std::strchr(letters_and_digits, word[i]) && !std::strchr("_.:-", word[i]))
            return false;
    return true;
}

static int read_address(const char *word, uint8_t *bus, uint8_t *dev, uint8_t *func) {
    char command[128];
    std::snprintf(command, sizeof command, "lspci |grep -w %s | awk '{print $1}'", word);
    FILE *listing = popen(command, "r");
    if (!listing) {
        syslog(LOG_ERR, "Failed to get pci device list(lspci)!");
        return -1;
    }
    int fields = 0;
    unsigned int numbers[3];
    char line[256];
    if (std::fgets(line, 255, listing)) {
        syslog(LOG_ERR, "lspci|grep %s:  = %s", word, line);
        fields = std::sscanf(line, "%x:%x.%x", &numbers[0], &numbers[1], &numbers[2]);
    }
    pclose(listing);
    if (fields != 3) {
        syslog(LOG_ERR, "PCI device device with id: %s not found!", word);
        return -1;
    }
    *bus = static_cast<uint8_t>(numbers[0]);
    *dev = static_cast<uint8_t>(numbers[1]);
    *func = static_cast<uint8_t>(numbers[2]);
    return 0;
}

int get_pcie_bus_device_info(const void *dev_id_str, uint8_t *bus, uint8_t *dev, uint8_t *func) {
    const char *word = static_cast<const char *>(dev_id_str);
    if (!is_identifier(word)) {
        syslog(LOG_ERR, "PCI device device with id: (invalid) not found!");
        return -1;
    }
    return read_address(word, bus, dev, func);
}
