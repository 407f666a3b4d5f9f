#include "brio_config.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <memory>

#include <libconfig.h>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

#include "platform/files.h"
#include "scan.h"

namespace {

struct tree {
    config_t config;
    config_setting_t *root; // null: nothing was read
};

tree main_tree, sim_tree;
void (*on_misuse)(const char *error_str, int error_line);

struct requirement {
    template <class T> requirement(const char *its_absence, T it) : absence(its_absence), met(static_cast<bool>(it)) {}
    const char *absence;
    bool met;
};

bool well_used(const char *func, std::initializer_list<requirement> requirements, int line = __builtin_LINE()) {
    for (const requirement &one : requirements) {
        if (one.met)
            continue;
        char text[80];
        std::snprintf(text, sizeof text, "%s: %s", func, one.absence);
        if (on_misuse)
            on_misuse(text, line);
        return false;
    }
    return true;
}

struct heap_free {
    void operator()(char *text) const { std::free(text); }
};
using heap_text = std::unique_ptr<char, heap_free>;

constexpr std::size_t max_bytes{dst::max_tree_bytes};
static_assert(max_bytes < INT_MAX, "libconfig's scanner counts in int");

// Null, with errno, for what cannot be read; EFBIG for what is too large, also where only reading shows it: a file may
// change meanwhile.
heap_text read_all(int fd, std::size_t &size) {
    struct stat64 status;
    if (fstat64(fd, &status) != 0)
        return nullptr;
    if (status.st_size > dst::max_tree_bytes) {
        errno = EFBIG;
        return nullptr;
    }
    heap_text text;
    std::size_t capacity = 0;
    for (size = 0;;) {
        if (capacity - size < 2) {
            if (size > max_bytes) {
                errno = EFBIG;
                return nullptr;
            }
            capacity = std::min(2 * capacity + 4096, max_bytes + 2);
            char *const grown = static_cast<char *>(std::realloc(text.get(), capacity));
            if (!grown)
                return nullptr;
            static_cast<void>(text.release());
            text.reset(grown);
        }
        const ssize_t count = read(fd, text.get() + size, capacity - size - 1);
        if (count < 0 && errno != EINTR)
            return nullptr;
        if (count == 0)
            break;
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    text.get()[size] = '\0';
    return text;
}

// A file that is not there is nothing to log.
heap_text read_file(const char *path, std::size_t &size) {
    const dst::descriptor file(dst::open_plain_file(path));
    if (file.get() < 0 && errno == ENOENT)
        return nullptr;
    heap_text text;
    if (file.get() >= 0)
        text = read_all(file.get(), size);
    if (!text && errno == EFBIG)
        syslog(LOG_ERR, "%s: larger than %zu bytes", path, max_bytes);
    else if (!text)
        syslog(LOG_ERR, "%s: %s", path, errno ? std::strerror(errno) : "not a regular file");
    return text;
}

bool refuse(const char *path, int line, const char *reason) {
    syslog(LOG_ERR, "%s:%d: %s", path, line, reason);
    return false;
}

int line_of(const char *text, const char *position) {
    int line = 1;
    for (; text != position; ++text)
        line += *text == '\n';
    return line;
}

bool parse(config_t *config, const char *path, char *text, std::size_t size) {
    if (const void *nul = std::memchr(text, '\0', size))
        return refuse(path, line_of(text, static_cast<const char *>(nul)), "a NUL byte");
    if (const brio::refusal refusal = brio::prepare(text); refusal.reason)
        return refuse(path, line_of(text, refusal.position), refusal.reason);
    // The second defence: nothing can be opened in there.
    config_set_include_dir(config, "/dev/null");
    return config_read_string(config, text) || refuse(path, config_error_line(config), config_error_text(config));
}

void forget(tree &tree) {
    if (tree.root)
        config_destroy(&tree.config);
    tree.root = nullptr;
}

bool load(tree &tree, const char *path) {
    std::size_t size = 0;
    const heap_text text = read_file(path, size);
    if (!text)
        return false;
    config_init(&tree.config);
    const bool parsed = parse(&tree.config, path, text.get(), size);
    tree.root = config_root_setting(&tree.config); // a new one: libconfig starts anew for each text
    if (!parsed || config_setting_length(tree.root) == 0)
        forget(tree);
    return tree.root;
}

[[gnu::destructor]] void forget_trees() {
    forget(main_tree);
    forget(sim_tree);
}

// Null for anything but a group. libconfig compares names up to the first of ".:/".
config_setting_t *member(void *handle, const char *key) {
    config_setting_t *const found = config_setting_get_member(static_cast<config_setting_t *>(handle), key);
    return found && std::strcmp(config_setting_name(found), key) == 0 ? found : nullptr;
}

config_setting_t *subtree(void *handle, const char *key) {
    config_setting_t *const found = member(handle, key);
    return found && config_setting_is_aggregate(found) ? found : nullptr;
}

config_setting_t *element(config_setting_t *array, int index) {
    if (!array || !(config_setting_is_array(array) || config_setting_is_list(array)) || index < 0)
        return nullptr;
    return config_setting_get_elem(array, static_cast<unsigned>(index));
}

void *root_group(const tree &tree, const char *name) {
    config_setting_t *const found = tree.root ? member(tree.root, name) : nullptr;
    return found && config_setting_is_group(found) ? found : nullptr;
}

brio_cfg_status_t store_int(const config_setting_t *setting, int *value) {
    if (!setting || config_setting_type(setting) != CONFIG_TYPE_INT)
        return BRIO_CONFIG_FAIL;
    *value = config_setting_get_int(setting);
    return BRIO_CONFIG_SUCCESS;
}

// The number as it is written; not finite when there is none that fits.
double number_of(const config_setting_t *setting) {
    const int type = setting ? config_setting_type(setting) : CONFIG_TYPE_NONE;
    if (type == CONFIG_TYPE_FLOAT)
        return config_setting_get_float(setting);
    if (type != CONFIG_TYPE_INT)
        return NAN;
    const int value = config_setting_get_int(setting);
    // No hexadecimal number is negative: it is of the upper half.
    const bool upper_half = value < 0 && config_setting_get_format(setting) == CONFIG_FORMAT_HEX;
    return upper_half ? static_cast<unsigned>(value) : static_cast<double>(value);
}

brio_cfg_status_t visit(config_setting_t *setting, void *context, brio_config_get_fn_t callback) {
    return setting ? callback(setting, context) : BRIO_CONFIG_FAIL;
}

brio_cfg_status_t store_made(config_setting_t *setting, void **result, void *(*reader)(void *handle)) {
    if (!setting)
        return BRIO_CONFIG_FAIL;
    *result = reader(setting);
    return BRIO_CONFIG_SUCCESS;
}

} // namespace

brio_cfg_status_t brio_config_init(const char *path, int options, const char *sim_dir,
                                   void (*assert_fn)(const char *error_str, int error_line)) {
    forget_trees();
    on_misuse = assert_fn;
    if (!well_used(__func__, {{"null path", path}, {"unknown options", !options}, {"null folder", sim_dir}}))
        return BRIO_CONFIG_FAIL;
    const bool loaded = load(main_tree, path);
    char sim_path[PATH_MAX];
    if (std::snprintf(sim_path, sizeof sim_path, "%s/chassis_dst_sim.conf", sim_dir) < PATH_MAX)
        load(sim_tree, sim_path);
    else
        syslog(LOG_ERR, "%s: too long a path", sim_dir);
    return loaded ? BRIO_CONFIG_SUCCESS : BRIO_CONFIG_FAIL;
}

void *brio_config_handle_get(const char *name) {
    return well_used(__func__, {{"null name", name}}) ? root_group(main_tree, name) : nullptr;
}

void *brio_config_handle_sim_get(const char *name) {
    return well_used(__func__, {{"null name", name}}) ? root_group(sim_tree, name) : nullptr;
}

brio_cfg_status_t brio_config_int_read(void *handle, const char *key, int32_t *value) {
    if (!well_used(__func__, {{"null handle", handle}, {"null key", key}, {"null value", value}}))
        return BRIO_CONFIG_FAIL;
    return store_int(member(handle, key), value);
}

brio_cfg_status_t brio_config_str_read(void *handle, const char *key, const char **value) {
    if (!well_used(__func__, {{"null value", value}}))
        return BRIO_CONFIG_FAIL;
    *value = nullptr;
    if (!well_used(__func__, {{"null handle", handle}, {"null key", key}}))
        return BRIO_CONFIG_FAIL;
    const config_setting_t *const setting = member(handle, key);
    if (setting && config_setting_type(setting) == CONFIG_TYPE_STRING)
        *value = config_setting_get_string(setting);
    return *value ? BRIO_CONFIG_SUCCESS : BRIO_CONFIG_FAIL;
}

brio_cfg_status_t brio_config_float_read(void *handle, const char *key, double *value) {
    if (!well_used(__func__, {{"null handle", handle}, {"null key", key}, {"null value", value}}))
        return BRIO_CONFIG_FAIL;
    const double number = number_of(member(handle, key));
    if (!std::isfinite(number))
        return BRIO_CONFIG_FAIL;
    *value = number;
    return BRIO_CONFIG_SUCCESS;
}

brio_cfg_status_t brio_config_subtree_get(void *handle, const char *key, void *context, brio_config_get_fn_t callback) {
    if (!well_used(__func__, {{"null handle", handle}, {"null key", key}, {"null callback", callback}}))
        return BRIO_CONFIG_FAIL;
    return visit(subtree(handle, key), context, callback);
}

brio_cfg_status_t brio_config_subtree_read(void *handle, const char *key, void **result,
                                           void *(*reader)(void *handle)) {
    if (!well_used(__func__,
                   {{"null handle", handle}, {"null key", key}, {"null result", result}, {"null reader", reader}}))
        return BRIO_CONFIG_FAIL;
    return store_made(subtree(handle, key), result, reader);
}

brio_cfg_status_t brio_config_array_element_get(void *handle, const char *key, int index, void *context,
                                                brio_config_get_fn_t callback) {
    if (!well_used(__func__, {{"null handle", handle}, {"null key", key}, {"null callback", callback}}))
        return BRIO_CONFIG_FAIL;
    return visit(element(member(handle, key), index), context, callback);
}

brio_cfg_status_t brio_config_array_element_read(void *array, int index, void **result, void *(*reader)(void *handle)) {
    if (!well_used(__func__, {{"null array", array}, {"null result", result}, {"null reader", reader}}))
        return BRIO_CONFIG_FAIL;
    return store_made(element(static_cast<config_setting_t *>(array), index), result, reader);
}

brio_cfg_status_t brio_config_array_int_read(void *array, int index, int *value) {
    if (!well_used(__func__, {{"null array", array}, {"null value", value}}))
        return BRIO_CONFIG_FAIL;
    return store_int(element(static_cast<config_setting_t *>(array), index), value);
}
