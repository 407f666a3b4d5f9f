#include "sandbox.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sched.h>
#include <sstream>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

[[noreturn]] static void refuse(const char *what) {
    std::fprintf(stderr, "the tests need a mount namespace of their own (root, or user namespaces): %s: %s\n", what,
                 std::strerror(errno));
    std::exit(1);
}

static void write_map(const char *path, const std::string &line) {
    const int fd = open(path, O_WRONLY);
    if (fd < 0 || write(fd, line.data(), line.size()) < 0)
        refuse(path);
    close(fd);
}

void enter_sandbox() {
    const auto uid = getuid();
    const auto gid = getgid();
    if (unshare(CLONE_NEWNS) != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            refuse("unshare");
        write_map("/proc/self/setgroups", "deny");
        write_map("/proc/self/uid_map", "0 " + std::to_string(uid) + " 1");
        write_map("/proc/self/gid_map", "0 " + std::to_string(gid) + " 1");
    }
    if (mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", "/var", "tmpfs", 0, nullptr) != 0 || mkdir("/var/platform", 0755) != 0)
        refuse("mount");
}

void write_platform_file(const std::string &name, const std::string &content) {
    const std::string path = "/var/platform/" + name;
    if (content.empty())
        unlink(path.c_str());
    else
        std::ofstream(path, std::ios::binary) << content;
}

std::string read_file(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}
