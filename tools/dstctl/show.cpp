// dstctl show: the dump of a description on standard output; log lines and the verdict on standard error.
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include "chsinfo/libdst/model/log.h"
#include "chsinfo/libdst/xml/load.h"
#include "dstctl.h"

static void log_to_stderr(int priority, const char *format, va_list arguments) {
    char line[1024];
    std::vsnprintf(line, sizeof line, format, arguments);
    const bool ended = line[0] && line[std::strlen(line) - 1] == '\n';
    const char *level = priority == LOG_ERR ? "error" : priority == LOG_DEBUG ? "debug" : "info";
    std::fprintf(stderr, "%s: %s%s", level, line, ended ? "" : "\n");
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
    return beside(program, "../share/libdst/chassis_dst_schema.xsd", path);
}

static bool readable(const char *path) {
    if (access(path, R_OK) == 0)
        return true;
    std::fprintf(stderr, "dstctl: cannot open ");
    std::perror(path);
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
    if (!readable(document) || !readable(schema ? schema : "chassis_dst_schema.xsd"))
        return exit_refused;

    dst::log_sink = log_to_stderr;
    if (libdst_init({document, schema, nullptr, stderr}) < 0)
        return exit_wrong;
    display_dst_info();
    libdst_release();
    return std::fflush(stdout) == 0 ? exit_done : exit_refused;
}
