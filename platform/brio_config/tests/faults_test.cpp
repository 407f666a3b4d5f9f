// Each call that the library makes of the C library fails once, is interrupted once, and reads come in bytes.
#include <brio_config.h>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/harness/capture.h"

namespace {

const char *failing = ""; // the function of which a call fails
int fails_at;             // which call, from 1
int error;
std::size_t read_limit;
bool endless; // reads say that they have read all that was asked for
std::map<std::string, int> calls;

bool fails(const char *function) {
    const bool now = ++calls[function] == fails_at && std::strcmp(function, failing) == 0;
    if (now)
        errno = error;
    return now;
}

void fail(const char *function, int call, int with) {
    calls.clear();
    failing = function;
    fails_at = call;
    error = with;
}

} // namespace

extern "C" {
int __real_open64(const char *path, int flags, ...);
int __wrap_open64(const char *path, int flags, ...);
int __wrap_open64(const char *path, int flags, ...) {
    if (fails("open"))
        return -1;
    EXPECT_FALSE(flags & O_CREAT);
    return __real_open64(path, flags);
}

int __real_stat64(const char *path, void *status);
int __wrap_stat64(const char *path, void *status);
int __wrap_stat64(const char *path, void *status) { return fails("stat") ? -1 : __real_stat64(path, status); }

int __real_fstat64(int fd, void *status);
int __wrap_fstat64(int fd, void *status);
int __wrap_fstat64(int fd, void *status) { return fails("fstat") ? -1 : __real_fstat64(fd, status); }

int __real_fstatfs64(int fd, void *status);
int __wrap_fstatfs64(int fd, void *status);
int __wrap_fstatfs64(int fd, void *status) { return fails("fstatfs") ? -1 : __real_fstatfs64(fd, status); }

ssize_t __real_read(int fd, void *buffer, std::size_t size);
ssize_t __wrap_read(int fd, void *buffer, std::size_t size);
ssize_t __wrap_read(int fd, void *buffer, std::size_t size) {
    if (fails("read"))
        return -1;
    return endless ? static_cast<ssize_t>(size) : __real_read(fd, buffer, std::min(size, read_limit));
}

void *__real_realloc(void *memory, std::size_t size);
void *__wrap_realloc(void *memory, std::size_t size);
void *__wrap_realloc(void *memory, std::size_t size) {
    if (fails("realloc") || size > 1 << 30)
        return nullptr;
    return endless && memory ? memory : __real_realloc(memory, size); // nothing is written there
}
}

namespace {

struct outcome {
    bool main, sim;
    std::vector<std::string> said;
    bool operator==(const outcome &) const = default;
};

outcome init() {
    brio_config_init("/var/main.conf", 0, "/var", nullptr);
    return {brio_config_handle_get("C") != nullptr, brio_config_handle_sim_get("C") != nullptr,
            texts_of(take_log(), LOG_ERR)};
}

TEST(Faults, AreSaidOnceAndCostOneTree) {
    const std::string text = "C = { t = \"" + std::string(10000, 'x') + "\"; };";
    std::ofstream("/var/main.conf") << text;
    std::ofstream("/var/chassis_dst_sim.conf") << text;
    for (const std::size_t limit : {std::size_t{1}, std::size_t{1000}, SIZE_MAX}) {
        read_limit = limit;
        fail("", 0, 0);
        ASSERT_EQ(init(), (outcome{true, true, {}}));
        const std::map<std::string, int> needed = calls;
        ASSERT_EQ(needed.size(), 6u);
        for (const auto &[function, count] : needed) {
            SCOPED_TRACE(function);
            for (int call = 1; call <= count; call += count > 100 ? 997 : 1) {
                const bool in_main = call <= count / 2;
                const std::string path = in_main ? "/var/main.conf" : "/var/chassis_dst_sim.conf";
                const int failure = function == "realloc" ? ENOMEM : EIO;
                fail(function.c_str(), call, failure);
                EXPECT_EQ(init(), (outcome{!in_main, in_main, {path + ": " + std::strerror(failure)}})) << call;
                if (function == "open" || function == "read") {
                    fail(function.c_str(), call, EINTR);
                    EXPECT_EQ(init(), (outcome{true, true, {}})) << call;
                }
            }
        }
    }
    fail("", 0, 0);
}

TEST(Faults, AFileThatIsTooLargeIsRefusedUnreadAndOneThatGrowsAtTheLimit) {
    const std::string paths[] = {"/var/main.conf", "/var/chassis_dst_sim.conf"};
    const std::string said = ": larger than 536870912 bytes";
    const auto expect_refusal = [&](off_t size) {
        fail("", 0, 0);
        for (const std::string &path : paths) {
            std::ofstream(path).close();
            ASSERT_EQ(truncate(path.c_str(), size), 0);
        }
        EXPECT_EQ(init(), (outcome{false, false, {paths[0] + said, paths[1] + said}}));
    };
    expect_refusal((512 << 20) + 1);
    EXPECT_EQ(calls["read"], 0);
    if constexpr (sizeof(void *) > 4) { // as far as pointers beyond what is there go
        endless = true;
        expect_refusal(1);
        endless = false;
    }
}

} // namespace
