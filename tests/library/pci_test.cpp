// The PCI address lookup, with a listing tool of the test's own in the only folder of PATH.
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../harness/load.h"
#include "chsinfo/libdst.h"

namespace {

using lines = std::vector<std::string>;

std::filesystem::path find_in(const std::string &path, const std::string &tool) {
    std::size_t at = 0;
    while (true) {
        const std::size_t colon = path.find(':', at);
        auto file = std::filesystem::path(path.substr(at, colon - at)) / tool;
        if (access(file.c_str(), X_OK) == 0 || colon == std::string::npos)
            return file;
        at = colon + 1;
    }
}

struct lookup {
    int status;
    int bus, dev, func;
    std::vector<log_line> log;
};

class Pci : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directory(folder_);
        for (const char *tool : {"grep", "awk"})
            std::filesystem::create_symlink(find_in(path_, tool), folder_ / tool);
        setenv("PATH", folder_.c_str(), 1);
    }
    void TearDown() override {
        setenv("PATH", path_.c_str(), 1);
        std::filesystem::remove_all(folder_);
    }

    // An lspci that leaves a mark and prints these lines.
    void install_lspci(const lines &listing) const {
        std::string script = "#!/bin/sh\n: >'" + mark_.string() + "'\nprintf '%s\\n'";
        for (const std::string &line : listing)
            script += " '" + line + "'";
        const auto tool = folder_ / "lspci";
        write_platform_file("lspci", script);
        std::filesystem::rename("/var/platform/lspci", tool);
        chmod(tool.c_str(), 0755);
    }
    bool lspci_ran() const { return std::filesystem::exists(mark_); }

    static lookup look_up(const char *identifier) {
        uint8_t bus = 101;
        uint8_t dev = 102;
        uint8_t func = 103;
        streams_capture quiet; // the shell names a missing tool
        take_log();
        const int status = get_pcie_bus_device_info(identifier, &bus, &dev, &func);
        return {status, bus, dev, func, take_log()};
    }
    static void expect_failure(const lookup &result, const lines &log) {
        EXPECT_EQ(result.status, -1);
        EXPECT_EQ(result.bus, 101);
        EXPECT_EQ(result.dev, 102);
        EXPECT_EQ(result.func, 103);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), log);
        EXPECT_EQ(result.log.size(), log.size());
    }

  private:
    const std::filesystem::path folder_ = "/var/bin_of_test";
    const std::filesystem::path mark_ = folder_ / "ran";
    const std::string path_ = std::getenv("PATH");
};

struct found_case {
    const char *name;
    std::string identifier;
    lines listing;
    int bus, dev, func;
    std::string line; // as logged
};

TEST_F(Pci, ReadsTheAddressOfTheFirstLineWithTheWord) {
    const std::string longest(93, 'w');
    const std::string endless = "03:00.0" + std::string(300, 'z');
    const found_case cases[] = {
        {"one", "10fb", {"00:1f.0 bridge", "03:02.1 nic 10fb (rev 1)"}, 3, 2, 1, "03:02.1\\n"},
        {"two", "10fb", {"82:1f.7 nic 10fb", "03:00.0 nic 10fb"}, 0x82, 0x1f, 7, "82:1f.7\\n"},
        {"whole words only", "10fb", {"01:00.0 x10fb", "02:00.0 10fb2", "03:00.0 a-10fb"}, 3, 0, 0, "03:00.0\\n"},
        {"every kind of character", "Az_9.8:7-b", {"0A:0b.C Az_9.8:7-b"}, 10, 11, 12, "0A:0b.C\\n"},
        {"the low 8 bits", "10fb", {"1ff:102.103 10fb"}, 0xff, 2, 3, "1ff:102.103\\n"},
        {"93 characters", longest, {"04:00.0 " + longest}, 4, 0, 0, "04:00.0\\n"},
        {"254 characters of the line", "10fb", {endless + " 10fb"}, 3, 0, 0, endless.substr(0, 254)},
    };
    for (const found_case &one : cases) {
        SCOPED_TRACE(one.name);
        install_lspci(one.listing);
        const lookup result = look_up(one.identifier.c_str());
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.bus, one.bus);
        EXPECT_EQ(result.dev, one.dev);
        EXPECT_EQ(result.func, one.func);
        EXPECT_EQ(result.log, (std::vector<log_line>{{LOG_ERR, "lspci|grep " + one.identifier + ":  = " + one.line}}));
    }
}

TEST_F(Pci, FailsWithoutAnAddress) {
    const std::string not_found = "PCI device device with id: 10fb not found!";
    expect_failure(look_up("10fb"), {not_found}); // no tool
    install_lspci({"03:00.0 nic"});
    expect_failure(look_up("10fb"), {not_found});
    EXPECT_TRUE(lspci_ran());
    for (const std::string first : {"0000:03:00.0", "03:00", "03.00.0", "nic"}) {
        SCOPED_TRACE(first);
        install_lspci({first + " 10fb", "03:00.0 10fb"});
        expect_failure(look_up("10fb"), {"lspci|grep 10fb:  = " + first + "\\n", not_found});
    }
}

TEST_F(Pci, RunsNothingForWhatIsNoIdentifier) {
    install_lspci({"03:00.0 10fb"});
    const std::string too_long(94, '1');
    for (const char *identifier : {
             static_cast<const char *>(nullptr),
             "",
             too_long.c_str(),
             "-v",
             "10fb-",
             "-",
             "10fb nic",
             " 10fb",
             "10fb\t",
             "10fb\n",
             "10fb;lspci",
             "10fb&lspci",
             "10fb|lspci",
             "$(lspci)",
             "`lspci`",
             "$PATH",
             "10f*",
             "10f?",
             "'10fb'",
             "\"10fb\"",
             "10fb>x",
             "10fb#",
             "10\\fb",
             "10/fb",
             "10f\xe9",
         }) {
        SCOPED_TRACE(identifier ? identifier : "(null)");
        expect_failure(look_up(identifier), {"PCI device device with id: (invalid) not found!"});
        EXPECT_FALSE(lspci_ran());
    }
}

// In a child process: a user who may start no more processes. Outside of the first user namespace the user need not
// change for that.
TEST_F(Pci, SaysWhenTheToolCannotBeStarted) {
    install_lspci({"03:00.0 10fb"});
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const rlimit none{0, 0};
        if (setrlimit(RLIMIT_NPROC, &none) != 0)
            _exit(2);
        [[maybe_unused]] const int changed = setuid(65534);
        expect_failure(look_up("10fb"), {"Failed to get pci device list(lspci)!"});
        std::fflush(stdout);
        _exit(HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

} // namespace
