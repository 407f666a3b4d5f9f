// The configuration trees as a program sees them: what reads take and refuse, and what is said about files.
#include <brio_config.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sys/stat.h>
#include <tuple>
#include <type_traits>
#include <unistd.h>

#include "../scan.h"
#include "tests/harness/capture.h"

namespace {

const std::string main_file = "/var/main.conf";
const std::string sim_file = "/var/chassis_dst_sim.conf";
const std::string good = "CHASSIS = { VERSION = 1; };";

std::vector<std::string> misuses;
void note_misuse(const char *error_str, int error_line) {
    EXPECT_GT(error_line, 0);
    misuses.emplace_back(error_str);
}

brio_cfg_status_t init(const std::string &path = main_file) {
    return brio_config_init(path.c_str(), 0, "/var", note_misuse);
}

brio_cfg_status_t load(const std::string &text) {
    std::ofstream(main_file, std::ios::binary) << text;
    return init();
}

std::vector<std::string> errors() { return texts_of(take_log(), LOG_ERR); }

brio_cfg_status_t keep(void *handle, void *context) {
    *static_cast<void **>(context) = handle;
    return static_cast<brio_cfg_status_t>(7);
}

void *same(void *handle) { return handle; }

// Both ways to a subtree and to an element, which must agree; null when there is none.
void *subtree(void *handle, const char *key) {
    void *got = nullptr;
    void *read = nullptr;
    const int got_status = brio_config_subtree_get(handle, key, &got, keep);
    const int read_status = brio_config_subtree_read(handle, key, &read, same);
    EXPECT_EQ(got, read);
    EXPECT_EQ(got_status, got ? 7 : BRIO_CONFIG_FAIL);
    EXPECT_EQ(read_status, got ? BRIO_CONFIG_SUCCESS : BRIO_CONFIG_FAIL);
    return got;
}

void *element(void *handle, const char *key, int index) {
    void *got = nullptr;
    void *read = nullptr;
    const int got_status = brio_config_array_element_get(handle, key, index, &got, keep);
    EXPECT_EQ(got_status, got ? 7 : BRIO_CONFIG_FAIL);
    if (void *array = subtree(handle, key)) {
        const int read_status = brio_config_array_element_read(array, index, &read, same);
        EXPECT_EQ(read_status, got ? BRIO_CONFIG_SUCCESS : BRIO_CONFIG_FAIL);
    }
    EXPECT_EQ(got, read);
    return got;
}

std::optional<int> integer(void *handle, const char *key) {
    int32_t value = 77;
    if (brio_config_int_read(handle, key, &value) == BRIO_CONFIG_SUCCESS)
        return value;
    EXPECT_EQ(value, 77);
    return std::nullopt;
}

std::optional<int> integer(void *array, int index) {
    int value = 77;
    if (brio_config_array_int_read(array, index, &value) == BRIO_CONFIG_SUCCESS)
        return value;
    EXPECT_EQ(value, 77);
    return std::nullopt;
}

std::optional<double> number(void *handle, const char *key) {
    double value = 77;
    if (brio_config_float_read(handle, key, &value) == BRIO_CONFIG_SUCCESS)
        return value;
    EXPECT_EQ(value, 77);
    return std::nullopt;
}

std::optional<std::string> text(void *handle, const char *key) {
    const char *value = "before";
    const brio_cfg_status_t status = brio_config_str_read(handle, key, &value);
    EXPECT_EQ(status == BRIO_CONFIG_SUCCESS, value != nullptr);
    return value ? std::optional<std::string>(value) : std::nullopt;
}

// Which reads of the key succeed: integer, float, text, subtree, element 0.
std::string successes(void *handle, const char *key) {
    std::string letters;
    if (integer(handle, key))
        letters += 'i';
    if (number(handle, key))
        letters += 'f';
    if (text(handle, key))
        letters += 't';
    if (subtree(handle, key))
        letters += 's';
    if (element(handle, key, 0))
        letters += 'e';
    return letters;
}

TEST(BrioConfig, ConvertsNothingButIntegersToFloats) {
    ASSERT_EQ(load(R"(CHASSIS = { int = 5; float = 5.0; text = "5"; empty = ""; bool = true; group = { int = 1; };
        list = ( { int = 6; }, 1.5, "x", ( 1 ), [ 2 ] ); array = [ 7 ]; texts = [ "x" ];
        empty-group = { }; empty-list = ( ); empty-array = [ ]; }; top = 1; list = ( { } );)"),
              BRIO_CONFIG_SUCCESS);
    void *chassis = brio_config_handle_get("CHASSIS");
    struct {
        const char *key, *reads;
    } const rows[] = {
        {"int", "if"},       {"float", "f"},       {"text", "t"},        {"empty", "t"},  {"bool", ""},
        {"group", "s"},      {"list", "se"},       {"array", "se"},      {"texts", "se"}, {"empty-group", "s"},
        {"empty-list", "s"}, {"empty-array", "s"}, {"absent", ""},       {"", ""},        {"INT", ""},
        {"group.int", ""},   {"group:int", ""},    {"list.[0].int", ""}, {"int.", ""},    {"[0]", ""}};
    for (const auto &row : rows)
        EXPECT_EQ(successes(chassis, row.key), row.reads) << row.key;

    // Nothing but a group has keys.
    for (void *handle : {subtree(chassis, "list"), subtree(chassis, "array"), element(chassis, "list", 1),
                         element(chassis, "list", 2), element(chassis, "texts", 0)})
        for (const char *key : {"int", "", "[0]"})
            EXPECT_EQ(successes(handle, key), "") << key;
    EXPECT_EQ(integer(element(chassis, "list", 0), "int"), 6);
    EXPECT_EQ(integer(element(chassis, "list", 3), 0), 1);
    EXPECT_EQ(integer(element(chassis, "list", 4), 0), 2);

    for (const char *name : {"top", "list", "absent", "", "CHASSIS.group", "CHASSIS:", "chassis"})
        EXPECT_EQ(brio_config_handle_get(name), nullptr) << name;
    EXPECT_EQ(brio_config_handle_sim_get("CHASSIS"), nullptr);
    EXPECT_EQ(misuses, std::vector<std::string>());
}

TEST(BrioConfig, KeepsIndexesWithinTheArray) {
    ASSERT_EQ(load(R"(CHASSIS = { three = [ 1, 2, 3 ]; mixed = ( 1, "x", 3 ); group = { a = 1; }; none = [ ]; };)"),
              BRIO_CONFIG_SUCCESS);
    void *chassis = brio_config_handle_get("CHASSIS");
    struct {
        const char *key;
        int index;
        bool there;
        std::optional<int> value;
    } const rows[] = {{"three", 0, true, 1},    {"three", 2, true, 3},         {"three", 3, false, {}},
                      {"three", -1, false, {}}, {"three", INT_MIN, false, {}}, {"three", INT_MAX, false, {}},
                      {"mixed", 0, true, 1},    {"mixed", 1, true, {}},        {"mixed", 2, true, 3},
                      {"mixed", 3, false, {}},  {"group", 0, false, {}},       {"none", 0, false, {}}};
    for (const auto &row : rows) {
        EXPECT_EQ(element(chassis, row.key, row.index) != nullptr, row.there) << row.key << row.index;
        EXPECT_EQ(integer(subtree(chassis, row.key), row.index), row.value) << row.key << row.index;
    }
    EXPECT_EQ(integer(element(chassis, "three", 0), 0), std::nullopt) << "an element is no array";
}

// The pattern with the value for each @.
std::string filled(const std::string &pattern, const std::string &value) {
    std::string text;
    for (char c : pattern)
        text += c == '@' ? value : std::string(1, c);
    return text;
}

TEST(BrioConfig, ReadsIntegersThatFit) {
    struct {
        const char *written;
        std::optional<int> value;
    } const rows[] = {{"0", 0},
                      {"+12", 12},
                      {"-12L", -12},
                      {"010", 10},
                      {"08LL", 8},
                      {"0x1F", 31},
                      {"0X1fL", 31},
                      {"0x00000000000000000001", 1},
                      {"00000000000000000001", 1},
                      {"2147483647", INT_MAX},
                      {"2147483648", INT_MIN},
                      {"2147483648L", INT_MIN},
                      {"+4294967295", -1},
                      {"4294967295LL", -1},
                      {"0x7FFFFFFF", INT_MAX},
                      {"0x80000000", INT_MIN},
                      {"0xffffffff", -1},
                      {"0xFFFFFFFFL", -1},
                      {"0x00FFFFFFFF", -1},
                      {"-2147483648", INT_MIN},
                      {"-2147483648L", INT_MIN},
                      {"4294967296", {}},
                      {"4294967296L", {}},
                      {"-2147483649", {}},
                      {"-2147483649L", {}},
                      {"0x100000000", {}},
                      {"0x100000001L", {}},
                      {"0xFFFFFFFFFFFFFFFFL", {}},
                      {"0x10000000000000001LL", {}},
                      {"18446744073709551617", {}},
                      {"-99999999999999999999L", {}},
                      {"1.0", {}},
                      {"1e3", {}}};
    for (const auto &row : rows) {
        const std::string written = row.written;
        SCOPED_TRACE(written);
        // Neither texts, comments nor names are numbers.
        ASSERT_EQ(load(filled(R"(CHASSIS = { /* @ " */ x4294967296 = 1; # " @
                                 t = "\" @"; // " /*
                                 n-4294967296 = 2; f = 4294967296.5; v=@;l=(1,@,1);};)",
                              written)),
                  BRIO_CONFIG_SUCCESS);
        void *chassis = brio_config_handle_get("CHASSIS");
        EXPECT_EQ(integer(chassis, "v"), row.value);
        EXPECT_EQ(integer(subtree(chassis, "l"), 1), row.value);
        EXPECT_EQ(integer(subtree(chassis, "l"), 2), 1);
        const bool is_number = row.value || written.find_first_of(".e") != std::string::npos;
        EXPECT_EQ(number(chassis, "v"), is_number ? std::optional(std::strtod(row.written, nullptr)) : std::nullopt);
        EXPECT_EQ(text(chassis, "t"), "\" " + written);
        EXPECT_EQ(integer(chassis, "x4294967296"), 1);
        EXPECT_EQ(integer(chassis, "n-4294967296"), 2);
        EXPECT_EQ(number(chassis, "f"), 4294967296.5);
        // An array holds one type: integers of any width, or none that fits.
        EXPECT_EQ(load(filled("CHASSIS = { a = [ 1, @,-1L]; };", written)) == BRIO_CONFIG_SUCCESS,
                  row.value.has_value());
        if (row.value) {
            EXPECT_EQ(integer(subtree(brio_config_handle_get("CHASSIS"), "a"), 1), row.value);
        }
    }
    take_log();
}

TEST(BrioConfig, ReadsFloats) {
    struct {
        const char *written;
        std::optional<double> value;
    } const rows[] = {{"1.5", 1.5},  {"-.5", -.5},   {"2.", 2},
                      {"1e3", 1000}, {"25E-2", .25}, {"1.5e+2", 150},
                      {"1e999", {}}, {"-1e999", {}}, {"12345678901.25", 12345678901.25}};
    for (const auto &row : rows) {
        ASSERT_EQ(load(filled("CHASSIS = { f = @; };", row.written)), BRIO_CONFIG_SUCCESS);
        EXPECT_EQ(number(brio_config_handle_get("CHASSIS"), "f"), row.value) << row.written;
    }
}

// What versions of libconfig do not read alike.
TEST(BrioConfig, WritesNumbersAndListsForAllVersions) {
    const std::pair<std::string, std::string> rows[] = {
        {"a=010;", "a=10 ;"}, {"a=-010L;", "a= -10 ;"}, {"a=010.5;", "a=010.5;"}, {"a=[1,];", "a=[1,!;"}};
    for (auto [text, prepared] : rows) {
        brio::prepare(text.data());
        EXPECT_EQ(text, prepared);
    }
}

// Makes each argument that has a name null in turn.
template <class R, class... P>
void expect_misuse(const std::string &func, R (*call)(P...), const std::vector<std::string> &names,
                   std::type_identity_t<P>... arguments) {
    for (std::size_t n = 0; n < names.size(); ++n) {
        if (names[n].empty())
            continue;
        misuses.clear();
        std::size_t at = 0;
        std::tuple<P...> given{arguments...};
        std::apply([&](auto &...each) { ((at++ == n ? void(each = {}) : void()), ...); }, given);
        if constexpr (std::is_pointer_v<R>)
            EXPECT_EQ(std::apply(call, given), nullptr);
        else
            EXPECT_EQ(std::apply(call, given), BRIO_CONFIG_FAIL);
        EXPECT_EQ(misuses, std::vector{func + ": null " + names[n]});
    }
}

TEST(BrioConfig, TellsOfMisuse) {
    ASSERT_EQ(load("C = { g = { }; a = [ 1 ]; };"), BRIO_CONFIG_SUCCESS);
    void *const c = brio_config_handle_get("C");
    void *const a = subtree(c, "a");
    int32_t i;
    double d;
    void *r;
    const char *t = "before";
    expect_misuse("brio_config_handle_get", brio_config_handle_get, {"name"}, "C");
    expect_misuse("brio_config_handle_sim_get", brio_config_handle_sim_get, {"name"}, "C");
    expect_misuse("brio_config_int_read", brio_config_int_read, {"handle", "key", "value"}, c, "k", &i);
    expect_misuse("brio_config_str_read", brio_config_str_read, {"handle", "key", "value"}, c, "k", &t);
    EXPECT_EQ(t, nullptr);
    expect_misuse("brio_config_float_read", brio_config_float_read, {"handle", "key", "value"}, c, "k", &d);
    expect_misuse("brio_config_subtree_get", brio_config_subtree_get, {"handle", "key", "", "callback"}, c, "g", &r,
                  keep);
    expect_misuse("brio_config_subtree_read", brio_config_subtree_read, {"handle", "key", "result", "reader"}, c, "g",
                  &r, same);
    expect_misuse("brio_config_array_element_get", brio_config_array_element_get, {"handle", "key", "", "", "callback"},
                  c, "a", 0, &r, keep);
    expect_misuse("brio_config_array_element_read", brio_config_array_element_read, {"array", "", "result", "reader"},
                  a, 0, &r, same);
    expect_misuse("brio_config_array_int_read", brio_config_array_int_read, {"array", "", "value"}, a, 0, &i);
    expect_misuse("brio_config_init", brio_config_init, {"path", "", "folder"}, main_file.c_str(), 0, "/var",
                  note_misuse);
    misuses.clear();
    EXPECT_EQ(brio_config_init(main_file.c_str(), 1, "/var", note_misuse), BRIO_CONFIG_FAIL);
    EXPECT_EQ(misuses, std::vector<std::string>{"brio_config_init: unknown options"});
    EXPECT_EQ(brio_config_handle_get("C"), nullptr);
    // Nobody is told.
    EXPECT_EQ(brio_config_init(main_file.c_str(), 0, "/var", nullptr), BRIO_CONFIG_SUCCESS);
    EXPECT_EQ(integer(nullptr, "k"), std::nullopt);
    EXPECT_EQ(misuses.size(), 1u);
}

TEST(BrioConfig, RefusesWhatIsNoFile) {
    ASSERT_EQ(mkfifo("/var/fifo", 0600), 0);
    ASSERT_EQ(symlink("loop", "/var/loop"), 0);
    const std::string long_path(5000, 'x');
    struct {
        std::string path;
        std::vector<std::string> said;
    } const rows[] = {{"/var/absent", {}},
                      {"/var/absent/file", {}},
                      {"/var", {"/var: not a regular file"}},
                      {"/var/fifo", {"/var/fifo: not a regular file"}}, // that nobody writes to
                      {"/dev/null", {"/dev/null: not a regular file"}},
                      {"/proc/self/mem", {"/proc/self/mem: not a regular file"}},
                      {"/var/loop", {"/var/loop: Too many levels of symbolic links"}},
                      {long_path, {long_path + ": File name too long"}}};
    for (const auto &row : rows) {
        ASSERT_EQ(load(good), BRIO_CONFIG_SUCCESS);
        EXPECT_EQ(init(row.path), BRIO_CONFIG_FAIL) << row.path;
        EXPECT_EQ(errors(), row.said);
        EXPECT_EQ(brio_config_handle_get("CHASSIS"), nullptr);
    }
    EXPECT_EQ(brio_config_init(main_file.c_str(), 0, long_path.c_str(), note_misuse), BRIO_CONFIG_SUCCESS);
    EXPECT_EQ(errors(), std::vector{long_path + ": too long a path"});
}

TEST(BrioConfig, SaysWhatIsWrongWithAFile) {
    using namespace std::string_literals;
    std::ofstream("/var/included.conf") << "CHASSIS = { VERSION = 2; };";
    const std::string include = "@include \"/var/included.conf\"";
    const std::string not_supported = "@include is not supported";
    struct {
        std::string text, said; // said: the line and the reason
    } const rows[] = {{"", ""},
                      {" \n# nothing\n", ""},
                      {"\n\0"s, "2: a NUL byte"},
                      {good + "\n# \0"s, "2: a NUL byte"},
                      {"\xEF\xBB\xBF" + good, "1: syntax error"},
                      {"CHASSIS", "1: syntax error"},
                      {"\nCHASSIS = { VERSION = ; };", "2: syntax error"},
                      {"CHASSIS = { VERSION = 08x; };", "1: syntax error"},
                      {"CHASSIS = { VERSION = -0x1; };", "1: syntax error"},
                      {"CHASSIS = { VERSION+4294967295 = 1; };", "1: syntax error"},
                      {"CHASSIS = { VERSION = 4294967295b; };", "1: syntax error"},
                      {"CHASSIS = { VERSION = 0b101 = 1; };", "1: syntax error"},
                      {good + good, "1: duplicate setting name"},
                      {"A = 1;\nB = [ 1,\n\"x\" ];", "3: mismatched element type in array"},
                      {"A = 1;\n\"x\" = 2;\nB", "2: syntax error"},
                      {"A = 1,\n\"x\";", "2: syntax error"},
                      {"A = { B = 1\n\"x\" };", "2: syntax error"},
                      {"A = (1), \"x\";", "1: syntax error"},
                      {"A = ( { B = 1, \"x\" } );", "1: syntax error"},
                      {"A = 1; /*\n", "1: a comment without an end"},
                      {"A = 1;\nB = \"x\n\n", "2: a text without an end"},
                      {"A = 1;\nB = \"x\" \"y\\\"", "2: a text without an end"},
                      {include, "1: " + not_supported},
                      {good + "\n \t" + include, "2: " + not_supported},
                      {good + "\n@include", "2: " + not_supported},
                      {good + "\n@include \"unended", "2: " + not_supported},
                      {good + "# text\n" + include, "2: " + not_supported},
                      {good + include, "1: syntax error"},
                      {"A = \"\\\\\";\n" + include + "\nB = \"\\\\\";", "2: " + not_supported}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.text);
        std::vector<std::string> said;
        if (!row.said.empty())
            said.push_back(main_file + ":" + row.said);
        for (int twice = 0; twice < 2; ++twice) {
            streams_capture streams;
            EXPECT_EQ(load(row.text), BRIO_CONFIG_FAIL);
            EXPECT_EQ(errors(), said);
            EXPECT_EQ(brio_config_handle_get("CHASSIS"), nullptr);
            EXPECT_EQ(streams.out() + streams.err(), "");
        }
        ASSERT_EQ(load(good), BRIO_CONFIG_SUCCESS);
    }
    // No inclusion, and nothing wrong: in a comment and in a text.
    const std::string text_line = "@include \\\"/var/included.conf\\\"";
    ASSERT_EQ(load("/*\n" + include + "\n*/ CHASSIS = { T = \"(\", \"\n" + text_line + "\"; };"), BRIO_CONFIG_FAIL);
    ASSERT_EQ(load("/*\n" + include + "\n*/ CHASSIS = { T = \"\n" + text_line + "\"; };"), BRIO_CONFIG_SUCCESS);
    EXPECT_EQ(text(brio_config_handle_get("CHASSIS"), "T"), "\n" + include);
    take_log();
}

TEST(BrioConfig, TakesAFileCutAnywhereWholeOrNotAtAll) {
    const std::string whole = "# cut\nCHASSIS = { V = 4294967295L; F = \"a\\\"\" \"b\"; S = -1.5e-3;\n/* x */ "
                              "L = ( { id = 0x80000000; }, [ 1, 2 ], \"t\" ); B = true; } # end";
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const bool closed = length > whole.rfind('}');
        EXPECT_EQ(load(whole.substr(0, length)) == BRIO_CONFIG_SUCCESS, closed) << length;
        EXPECT_EQ(errors().size(), !closed && length > whole.find("CHASSIS")) << length;
    }
}

std::string repeated(const std::string &part, std::size_t times) {
    std::string text;
    while (times--)
        text += part;
    return text;
}

TEST(BrioConfig, ReadsLargeFilesAndRefusesDeepOnes) {
    struct {
        std::string text;
        bool read;
    } const rows[] = {{repeated("x=1;a={", 1000) + repeated("};", 1000), true},
                      {"a=" + repeated("(", 1000) + repeated(")", 1000), true},
                      {"a=" + repeated("((),", 999) + "1" + repeated(")", 999), true},
                      {repeated("a={", 1001) + repeated("};", 1001), false},
                      {repeated("a={", 350000), false},
                      {"a=" + repeated("(", 1 << 20), false},
                      {"a=" + repeated("[", 1 << 20), false},
                      {repeated("}", 1 << 20), false},
                      {repeated("\"", 1 << 20), false},
                      {"a={b=(" + repeated("1,", 1 << 15) + "7);};", true},
                      {"a={b=\"" + repeated("x", 1 << 20) + "\";};", true},
                      {"a={b=1;};" + repeated("/* */\n", 1 << 18), true}};
    for (const auto &row : rows) {
        EXPECT_EQ(load(row.text) == BRIO_CONFIG_SUCCESS, row.read) << row.text.substr(0, 10);
        EXPECT_EQ(errors().size(), !row.read);
    }
    ASSERT_EQ(load(rows[9].text), BRIO_CONFIG_SUCCESS);
    EXPECT_EQ(integer(subtree(brio_config_handle_get("a"), "b"), 1 << 15), 7);
}

TEST(BrioConfig, KeepsTheSimulationTreeApart) {
    struct {
        const char *main, *sim; // null: no file
        bool main_read, sim_read;
        std::vector<std::string> said;
    } const rows[] = {{good.c_str(), good.c_str(), true, true, {}},
                      {nullptr, good.c_str(), false, true, {}},
                      {"", good.c_str(), false, true, {}},
                      {good.c_str(), "", true, false, {}},
                      {good.c_str(), "\n=", true, false, {sim_file + ":2: syntax error"}},
                      {"=", "=", false, false, {main_file + ":1: syntax error", sim_file + ":1: syntax error"}},
                      {good.c_str(), nullptr, true, false, {}}};
    for (const auto &row : rows) {
        unlink(sim_file.c_str());
        unlink(main_file.c_str());
        if (row.main)
            std::ofstream(main_file) << row.main;
        if (row.sim)
            std::ofstream(sim_file) << row.sim;
        EXPECT_EQ(init() == BRIO_CONFIG_SUCCESS, row.main_read);
        EXPECT_EQ(errors(), row.said);
        void *const main = brio_config_handle_get("CHASSIS");
        void *const sim = brio_config_handle_sim_get("CHASSIS");
        EXPECT_EQ(main != nullptr, row.main_read);
        EXPECT_EQ(sim != nullptr, row.sim_read);
        EXPECT_TRUE(main != sim || !main);
    }
}

} // namespace
