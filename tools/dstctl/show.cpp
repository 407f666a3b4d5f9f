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
#include "dstctl.h"

static void log_to_stderr(int priority, const char *format, va_list arguments) {
    std::fprintf(stderr, "%s: ", priority == LOG_ERR ? "error" : priority == LOG_DEBUG ? "debug" : "info");
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
    return beside(program, DST_BIN_TO_DATA "/libdst/chassis_dst_schema.xsd", path);
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

int verb_show(int count, char **words) {
    const char *document = nullptr;
    const char *schema = nullptr;
    for (int i = 0; i < count; ++i) {
        if (std::strcmp(words[i], "--schema") == 0 && i + 1 < count && !schema)
            schema = words[++i];
        else if (words[i][0] != '-' && !document)
            document = words[i];
        else
            return usage();
    }
    char found[PATH_MAX] = "";
    if (!document)
        return usage();
    if (!schema && find_schema(document, found))
        schema = found;
    if (!schema) {
        std::fputs("dstctl: no schema found, name one with --schema\n", stderr);
        return exit_refused;
    }
    if (!readable(document) || !readable(schema))
        return exit_refused;

    dst::log_sink = log_to_stderr;
    if (libdst_init({document, schema, nullptr, stderr}) < 0)
        return exit_wrong;
    display_dst_info();
    libdst_release();
    return std::fflush(stdout) == 0 ? exit_done : exit_refused;
}
