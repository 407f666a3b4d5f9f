// A regular file in memory, under a name that both libxml2 and open() take.
#pragma once

#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

#include "target.h"

class memory_file {
  public:
    // The number becomes the name: what an input refers to must stay the same.
    explicit memory_file(int number) : fd_(number), path_("/proc/self/fd/" + std::to_string(number)) {
        const int made = memfd_create("input", MFD_CLOEXEC);
        promise(made >= 0 && dup2(made, fd_) == fd_ && close(made) == 0, "a file in memory can be made");
    }
    void write(std::string_view content) const {
        promise(ftruncate(fd_, 0) == 0 && pwrite(fd_, content.data(), content.size(), 0) == ssize_t(content.size()),
                "it can be written");
    }
    const char *path() const { return path_.c_str(); }

  private:
    int fd_;
    std::string path_;
};
