// What docs/host-contract.md promises to the process that the library lives in.
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <locale.h>
#include <malloc.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../harness/load.h"
#include "chsinfo/libdst_priv.h"

extern "C" [[gnu::weak]] std::size_t __sanitizer_get_current_allocated_bytes();

namespace {

std::size_t heap_in_use() {
    if (__sanitizer_get_current_allocated_bytes)
        return __sanitizer_get_current_allocated_bytes();
    return mallinfo2().uordblks;
}

// What must be after a call as it was before it.
struct host_state {
    std::vector<std::string> descriptors;
    std::string environment, locale, folder;
    mode_t mask;
    std::vector<void (*)(int)> handlers;
    sigset_t blocked;
    std::ptrdiff_t threads;

    static host_state now() {
        host_state state{};
        for (int fd = 0; fd < 256; ++fd) {
            char target[256] = "";
            const std::string link = "/proc/self/fd/" + std::to_string(fd);
            if (readlink(link.c_str(), target, sizeof target - 1) > 0)
                state.descriptors.push_back(std::to_string(fd) + " " + target);
        }
        for (char **variable = environ; *variable; ++variable)
            state.environment += std::string(*variable) + "\n";
        state.locale = setlocale(LC_ALL, nullptr);
        state.folder = std::filesystem::current_path();
        umask(state.mask = umask(0));
        for (int signal = 1; signal < NSIG; ++signal) {
            struct sigaction action {};
            sigaction(signal, nullptr, &action);
            state.handlers.push_back(action.sa_handler);
        }
        sigprocmask(SIG_SETMASK, nullptr, &state.blocked);
        state.threads = std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
        return state;
    }
    void expect_same(const host_state &before) const {
        EXPECT_EQ(descriptors, before.descriptors);
        EXPECT_EQ(environment, before.environment);
        EXPECT_EQ(locale, before.locale);
        EXPECT_EQ(folder, before.folder);
        EXPECT_EQ(mask, before.mask);
        EXPECT_EQ(handlers, before.handlers);
        EXPECT_EQ(std::memcmp(&blocked, &before.blocked, sizeof blocked), 0);
        EXPECT_EQ(threads, before.threads);
        errno = 0;
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
        EXPECT_EQ(errno, ECHILD);
    }
};

constexpr char wrong_tree[] = "CHASSIS = { VERSION 1; };";

struct step {
    const char *name;
    int status;
    int (*run)();
};
const step steps[] = {
    {"an XML document", 0, [] { return load_example("modular").status; }},
    {"one that is refused", -1, [] { return load("<VERSION/>").status; }},
    {"one that is no XML", -1, [] { return load("<").status; }},
    {"a configuration tree", 0, [] { return load_example("modular", form::config).status; }},
    {"a tree that does not parse", -1, [] { return load_config(wrong_tree, wrong_tree).status; }},
    {"neither", -1, [] { return load_config("", ""), write_platform_file("chassis_dst.conf", ""), load().status; }},
};

class Guest : public testing::Test {
  protected:
    void TearDown() override {
        libchs_release();
        for (const char *name : {"chassis_dst.xml", "chassis_dst.conf", "chassis_dst_sim.conf"})
            write_platform_file(name, "");
    }
};

TEST_F(Guest, LeavesTheProcessAsItWas) {
    setlocale(LC_ALL, "C.UTF-8");
    const host_state before = host_state::now();
    for (const step &one : steps) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(one.run() < 0, one.status < 0);
        host_state::now().expect_same(before);
        uint8_t bus = 0, device = 0, function = 0;
        static_cast<void>(get_pcie_bus_device_info("no such device", &bus, &device, &function));
        for (fru_info_t *fru = libchs_fru_info_get_next(nullptr); fru; fru = libchs_fru_info_get_next(fru))
            libchs_fru_fan_info_get_next(fru->id, nullptr);
        libchs_release();
        host_state::now().expect_same(before);
    }
}

TEST_F(Guest, AThousandLivesLeaveNoMemory) {
    std::size_t settled = 0;
    for (int life = 0; life < 1000; ++life) {
        const bool tree = life % 2;
        if (tree)
            load_config("DEVICES = ( { Type = \"PIC\"; ctrl = \"PIC\"; FRUID = 1; } );\nFRUS = ( { id = 1; PARENT = "
                        "\"NULL\"; SIM_FRU_DATA = ( { } ); } );\n");
        else
            load("<DEVICE type='FRU'><FRUDEV id='1' type='PIC'/></DEVICE><DEVICE type='PIC' ctrl='PIC' id='1'/>");
        libchs_release();
        if (life == 199) // the allocator has settled
            settled = heap_in_use();
        if (life > 199 && tree) {
            ASSERT_LE(heap_in_use(), settled + 4096) << life;
        }
    }
}

// libxml2 in the host's own hands.

void print_nothing(void *, const char *, ...) {}

void report_nothing(void *, xmlErrorPtr) {}

xmlParserInputPtr load_nothing(const char *, const char *, xmlParserCtxtPtr) { return nullptr; }

TEST_F(Guest, TheHostUsesLibxml2BeforeBetweenAndAfter) {
    const auto text_of_root = [](xmlDocPtr doc) {
        xmlChar *text = xmlNodeGetContent(xmlDocGetRootElement(doc));
        std::string copy = reinterpret_cast<char *>(text);
        xmlFree(text);
        return copy;
    };
    const auto parse = [](const char *text) { return xmlReadMemory(text, strlen(text), nullptr, nullptr, 0); };
    xmlDocPtr mine = parse("<a>before</a>");
    for (const step &one : steps) {
        SCOPED_TRACE(one.name);
        one.run();
        EXPECT_EQ(xmlGetLastError(), nullptr);
        EXPECT_EQ(text_of_root(mine), "before");
        xmlDocPtr between = parse("<a>between</a>");
        EXPECT_EQ(text_of_root(between), "between");
        xmlFreeDoc(between);
    }
    xmlFreeDoc(mine);
}

// Whatever the host chose, a load gives the same, and the choice stays.
TEST_F(Guest, TheHostsSettingsOfLibxml2AreNeitherUsedNorLost) {
    const struct {
        int &setting;
        int other;
    } settings[] = {{xmlSubstituteEntitiesDefaultValue, 1},
                    {xmlDoValidityCheckingDefaultValue, 1},
                    {xmlLineNumbersDefaultValue, 0}};
    const char document[] = "<!DOCTYPE CHASSIS SYSTEM 'secret' [<!ENTITY e SYSTEM 'secret'>]>"
                            "<CHASSIS><VERSION> </VERSION><PCIBUSADDR>&e;</PCIBUSADDR></CHASSIS>";
    write_platform_file("secret", "<!broken");
    std::vector<int> before;
    const load_result usual = load(document);
    for (const auto &one : settings)
        before.push_back(std::exchange(one.setting, one.other));
    const xmlExternalEntityLoader loader = xmlGetExternalEntityLoader();
    int mine = 0;
    xmlSetExternalEntityLoader(load_nothing);
    const load_result result = load(document);
    EXPECT_EQ(result.status, usual.status);
    EXPECT_EQ(result.log, usual.log);
    EXPECT_EQ(result.err, usual.err);
    EXPECT_EQ(result.err.find("secret"), std::string::npos) << result.err;
    xmlSetGenericErrorFunc(&mine, print_nothing);
    xmlSetStructuredErrorFunc(&mine, report_nothing);
    EXPECT_LT(load("<").status, 0);
    for (std::size_t i = 0; i < std::size(settings); ++i)
        EXPECT_EQ(std::exchange(settings[i].setting, before[i]), settings[i].other) << i;
    EXPECT_EQ(xmlGetExternalEntityLoader(), load_nothing);
    EXPECT_EQ(xmlGenericError, print_nothing);
    EXPECT_EQ(xmlGenericErrorContext, &mine);
    EXPECT_EQ(xmlStructuredError, report_nothing);
    EXPECT_EQ(xmlStructuredErrorContext, &mine);
    xmlSetExternalEntityLoader(loader);
    xmlSetGenericErrorFunc(nullptr, nullptr);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    xmlCleanupParser();
    write_platform_file("secret", "");
}

// In a process of its own, whose standard output is a pipe without a reader, and holds a line of its own.
TEST_F(Guest, ABrokenPipeEndsNothing) {
    for (const step &one : steps) {
        if (one.status < 0 && std::strstr(one.name, "tree") == nullptr)
            continue;
        for (const bool pending : {false, true}) {
            SCOPED_TRACE(one.name);
            static_cast<void>(one.run()), libchs_release(); // the files stay
            const pid_t child = fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                sigset_t set;
                sigemptyset(&set);
                sigaddset(&set, SIGPIPE);
                if (pending && (sigprocmask(SIG_BLOCK, &set, nullptr) != 0 || raise(SIGPIPE) != 0))
                    _exit(2);
                int ends[2];
                if (pipe(ends) != 0 || dup2(ends[1], 1) != 1 || close(ends[0]) != 0)
                    _exit(3);
                const host_state before = host_state::now();
                std::puts("mine");
                const int status = libchs_init();
                host_state::now().expect_same(before);
                std::fflush(stdout); // nothing is left that would end the host
                sigpending(&set);
                _exit((status < 0) == (one.status < 0) && !HasFailure() && sigismember(&set, SIGPIPE) == pending ? 0
                                                                                                                 : 1);
            }
            int status = 0;
            ASSERT_EQ(waitpid(child, &status, 0), child);
            EXPECT_EQ(status, 0);
        }
    }
}

} // namespace
