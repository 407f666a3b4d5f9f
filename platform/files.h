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

// Opens without waiting for the writer of a FIFO, and files of any size in 32 bit. Negative, with errno, for what
// cannot be opened.
inline int open_for_reading(const char *path) {
    int opened;
    do
        opened = open64(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    while (opened < 0 && errno == EINTR);
    return opened;
}

// Whether an open file may be read: a regular one, which is none of the kernel's own: those may wait forever, have no
// size, or act on being read.
inline bool is_plain_file(int fd) {
    struct stat64 status;
    struct statfs64 system;
    if (fstat64(fd, &status) != 0 || !S_ISREG(status.st_mode) || fstatfs64(fd, &system) != 0)
        return false;
    switch (static_cast<std::uint32_t>(system.f_type)) {
    case PROC_SUPER_MAGIC:
    case SYSFS_MAGIC:
    case DEBUGFS_MAGIC:
    case TRACEFS_MAGIC:
    case SECURITYFS_MAGIC:
    case CGROUP_SUPER_MAGIC:
    case CGROUP2_SUPER_MAGIC:
    case BPF_FS_MAGIC:
        return false;
    default:
        return true;
    }
}

} // namespace dst
