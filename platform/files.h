// Which files a description may be read from, and how much of the machine a load may take. For both readers: that of
// documents and the stand-in for the platform's configuration-tree library.
#pragma once

#include <cstdint>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>

namespace dst {

// The limits of one load: about ten times what a chassis of 100,000 records needs.
constexpr int max_files = 10000;                              // a document with all that it includes, read twice
constexpr std::int64_t max_document_bytes = INT64_C(2) << 30; // the same, with its schema
constexpr std::int64_t max_tree_bytes = INT64_C(512) << 20;   // a configuration tree, a simulation tree

// Opens without waiting for the writer of a FIFO, and files of any size in 32 bit.
constexpr int open_flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_LARGEFILE;

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
