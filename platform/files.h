// Which files a description may be read from, and how much of the machine a load may take. For both readers: that of
// documents and the stand-in for the platform's configuration-tree library.
#pragma once

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>

namespace dst {

// The limits of one load: about ten times what a chassis of 100,000 records needs.
constexpr int max_files = 10000;                              // a document with all that it includes, read twice
constexpr std::int64_t max_document_bytes = INT64_C(2) << 30; // the same, with its schema
constexpr std::int64_t max_tree_bytes = INT64_C(512) << 20;   // a configuration tree, a simulation tree

// An open file, closed at the end unless it is released.
class descriptor {
  public:
    explicit descriptor(int fd) : fd_(fd) {}
    ~descriptor() {
        if (fd_ >= 0)
            close(fd_);
    }
    descriptor(const descriptor &) = delete;
    descriptor &operator=(const descriptor &) = delete;
    int get() const { return fd_; }
    int release() { return std::exchange(fd_, -1); }

  private:
    int fd_;
};

// The kernel's own file systems: their files may wait forever, have no size, or act on being read.
inline bool is_of_the_kernel(const struct statfs64 &system) {
    switch (static_cast<std::uint32_t>(system.f_type)) {
    case PROC_SUPER_MAGIC:
    case SYSFS_MAGIC:
    case DEBUGFS_MAGIC:
    case TRACEFS_MAGIC:
    case SECURITYFS_MAGIC:
    case CGROUP_SUPER_MAGIC:
    case CGROUP2_SUPER_MAGIC:
    case BPF_FS_MAGIC:
    case BINFMTFS_MAGIC:
    case EFIVARFS_MAGIC:
    case PSTOREFS_MAGIC:
    case RDTGROUP_SUPER_MAGIC:
    case SELINUX_MAGIC:
    case SMACK_MAGIC:
        return true;
    default:
        return false;
    }
}

// Opens a regular file, of any size in 32 bit, that is none of the kernel's own. Negative, with errno, for what cannot
// be opened; with errno 0 for anything else, which is not touched unless it takes the file's place at that moment, and
// never waited for.
inline int open_plain_file(const char *path) {
    struct stat64 status;
    struct statfs64 system;
    if (stat64(path, &status) != 0)
        return -1;
    if (S_ISREG(status.st_mode)) {
        int opened;
        do
            opened = open64(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        while (opened < 0 && errno == EINTR);
        descriptor file(opened);
        if (opened < 0 || fstat64(opened, &status) != 0 || fstatfs64(opened, &system) != 0)
            return -1;
        if (S_ISREG(status.st_mode) && !is_of_the_kernel(system))
            return file.release();
    }
    errno = 0;
    return -1;
}

} // namespace dst
