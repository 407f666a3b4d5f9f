// dstctl show: the dump of a description on standard output; log lines and the verdict on standard error.
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

#include "chsinfo/libdst/model/log.h"
#include "chsinfo/libdst/xml/load.h"
#include "chsinfo/libdst_config/load.h"
#include "dstctl.h"

static void log_to_stderr(int priority, const char *format, va_list arguments) {
    std::fprintf(stderr, "%s: ", priority <= LOG_ERR ? "error" : priority == LOG_DEBUG ? "debug" : "info");
    std::vfprintf(stderr, format, arguments);
    const std::size_t length = std::strlen(format);
    if (length == 0 || format[length - 1] != '\n')
        std::fputc('\n', stderr);
}

// The path of a file in the folder of another; false when it does not fit.
static bool beside(const char *file, const char *name, char (&path)[PATH_MAX]) {
    const char *slash = std::strrchr(file, '/');
    const int folder = slash ? static_cast<int>(slash - file + 1) : 0;
    return std::snprintf(path, sizeof path, "%.*s%s", folder, file, name) < PATH_MAX;
}

// The schema beside the document, else the one installed with this program.
static bool find_schema(const char *document, char (&path)[PATH_MAX]) {
    if (beside(document, "chassis_dst_schema.xsd", path) && access(path, R_OK) == 0)
        return true;
    char program[PATH_MAX] = "";
    if (readlink("/proc/self/exe", program, sizeof program - 1) < 0)
        return false;
    return beside(program, DST_BIN_TO_DATA "/libdst/chassis_dst_schema.xsd", path) && access(path, R_OK) == 0;
}

// Whether there is a file to read; says so where there is none.
static bool readable(const char *path) {
    errno = 0;
    struct stat found;
    if (access(path, R_OK) == 0 && stat(path, &found) == 0 && !S_ISDIR(found.st_mode))
        return true;
    std::fprintf(stderr, "dstctl: cannot read %s: %s\n", path, std::strerror(errno ? errno : EISDIR));
    return false;
}

static bool is_config(const char *file) {
    const std::size_t length = std::strlen(file);
    return length > 5 && std::strcmp(file + length - 5, ".conf") == 0;
}

static int refuse(const char *why) {
    std::fprintf(stderr, "dstctl: %s\n", why);
    return exit_refused;
}

// A configuration tree; the simulation tree beside it is read with it.
static int load_config(const char *file) {
    char folder[PATH_MAX];
    if (!beside(file, ".", folder))
        return refuse("the name is too long");
    openlog("dstctl", LOG_PERROR, LOG_USER); // the configuration-tree library logs for itself
    if (libdst_config_init({file, folder, stderr}) == 0)
        return exit_done;
    std::fputc('\n', stderr); // the verdict has no line end
    return exit_wrong;
}

static int load_xml(const char *document, const char *schema) {
    char found[PATH_MAX] = "";
    if (!schema && find_schema(document, found))
        schema = found;
    if (!schema)
        return refuse("no schema found, name one with --schema");
    if (!readable(schema))
        return exit_refused;
    return libdst_init({document, schema, nullptr, stderr}) == 0 ? exit_done : exit_wrong;
}

int verb_show(int count, char **words) {
    const char *file = nullptr;
    const char *schema = nullptr;
    for (int i = 0; i < count; ++i) {
        if (std::strcmp(words[i], "--schema") == 0 && i + 1 < count && !schema)
            schema = words[++i];
        else if (words[i][0] != '-' && !file)
            file = words[i];
        else
            return usage();
    }
    if (!file || (schema && is_config(file)))
        return usage();
    if (!readable(file))
        return exit_refused;

    dst::log_sink = log_to_stderr;
    const int status = is_config(file) ? load_config(file) : load_xml(file, schema);
    if (status != exit_done)
        return status;
    display_dst_info();
    libdst_release();
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return exit_done;
    return refuse("the model could not be written to standard output");
}
