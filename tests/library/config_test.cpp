// What cases do not show of a configuration tree: the chassis keys one by one, where the walk over devices ends, where
// the tree is read from, and files that are no tree.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <sys/stat.h>
#include <tuple>

#include "../harness/cases.h"
#include "../harness/config.h"
#include "../harness/members.h"
#include "chsinfo/libdst/model/kinds.h"

namespace {

using texts = std::vector<std::string>;

const std::string tree_path = "/var/platform/chassis_dst.conf";
const std::string verdict = "libdst_config_init: Unable to convert the DST into chassis info";
const std::string not_parsed = "Could not parse configuration file!\\n";
const std::string no_tree = "libconfig_root_handler: Configuration file is empty!";
const std::string no_simulation = "libconfig_root_handler: Simulation file is empty!";

class Config : public ConfigTest {};

// ---- The root keys, in the order in which they are read

struct root_key {
    enum need_t { required, noted, optional };
    need_t need;
    std::string key;
    std::uint32_t chassis_info_t::*member; // null: not a number of the chassis
    std::string note_or_value;             // the line that tells of its absence; the value of what is no number
};

using chassis = chassis_info_t;
const std::vector<root_key> root_keys = {
    {root_key::required, "VERSION", &chassis::major, ""},
    {root_key::required, "FAMILY", nullptr, "\"QVL\""},
    {root_key::required, "NDRAMSLOTS", &chassis::ndram_slots, ""},
    {root_key::required, "NFANSLOTS", &chassis::nfan_slots, ""},
    {root_key::required, "NPEMSLOTS", &chassis::npem_slots, ""},
    {root_key::noted, "NFPCSLOTS", &chassis::nfpc_slots, "FPC tag not found"},
    {root_key::noted, "NFPMSLOTS", &chassis::nfpm_slots, "FPM tag not found"},
    {root_key::noted, "NFTCSLOTS", &chassis::nftc_slots, "FTC tag not found"},
    {root_key::noted, "NCBSLOTS", &chassis::ncb_slots, "CB tag not found"},
    {root_key::noted, "NSIBSLOTS", &chassis::nsib_slots, "SIB tag not found"},
    {root_key::required, "NPICSLOTS", &chassis::npic_slots, ""},
    {root_key::noted, "NTIBSLOTS", &chassis::ntib_slots, "TIB tag not found\\n"},
    {root_key::required, "NFPGAS", &chassis::nfpgas, ""},
    {root_key::required, "NTMPSENSORS", &chassis::ntmpsnrs, ""},
    {root_key::optional, "ENHANCEDEMTHRESHOLD", &chassis::enhanced_em_threshold, ""},
    {root_key::optional, "SUPPORTPSUFANCTL", &chassis::support_psu_fan_ctl, ""},
    {root_key::optional, "PSM_FANFLT_DFLT_DEBOUNCE_CNT", &chassis::psm_fan_flt_dflt_debounce_cnt, ""},
    {root_key::noted, "NVOLTSENSORS", &chassis::nvoltsnrs, "volt sensor tag not found"},
    {root_key::required, "NFPLEDS", &chassis::nfpleds, ""},
    {root_key::required, "NBPLEDS", &chassis::nbpleds, ""},
    {root_key::optional, "FEATURE", &chassis::feature, ""},
    {root_key::optional, "PCIBUSADDR", &chassis::pci_busaddr, ""},
    {root_key::optional, "PCISUBADDR1", &chassis::pci_subaddr1, ""},
    {root_key::optional, "PCISUBADDR2", &chassis::pci_subaddr2, ""},
    {root_key::optional, "PCIBUSADDR_MEZZ", &chassis::pci_busaddr_mezz, ""},
    {root_key::optional, "PCISUBADDR1_MEZZ", &chassis::pci_subaddr1_mezz, ""},
    {root_key::optional, "PCISUBADDR2_MEZZ", &chassis::pci_subaddr2_mezz, ""},
    {root_key::optional, "LSPCI_OVERRIDE", &chassis::lspci_override, ""},
    {root_key::optional, "RESILIENCY", &chassis::enable_resiliency, ""},
    {root_key::optional, "SIBINITSPMB", &chassis::sib_init_spmb, ""},
    {root_key::required, "FRUMODEL", nullptr, "{ MODEL = ( { } ); }"},
    {root_key::required, "CHSMODEL", nullptr, "{ MODEL = ( ); }"},
    {root_key::required, "FRUS", nullptr, "( { id = 1; }, { id = 2; } )"},
};

std::uint32_t value_of(const root_key &key) { return 0x12345601 + static_cast<std::uint32_t>(&key - root_keys.data()); }

// A tree with the keys that pass.
std::string root_tree(const std::function<bool(const root_key &)> &passes) {
    std::string tree = "CHASSIS = {";
    for (const root_key &key : root_keys)
        if (passes(key))
            tree += " " + key.key + " = " + (key.member ? std::to_string(value_of(key)) : key.note_or_value) + ";";
    return tree + " };";
}

TEST_F(Config, ReadsRootKeysUpToTheFirstRequiredOneThatIsMissing) {
    texts notes;
    for (const root_key &missing : root_keys) {
        if (missing.need == root_key::noted)
            notes.push_back(missing.note_or_value);
        if (missing.need != root_key::required)
            continue;
        SCOPED_TRACE(missing.key);
        EXPECT_NE(read_config(root_tree(
                      [&](const root_key &key) { return &key < &missing && key.need == root_key::required; })),
                  0);
        texts log = notes;
        log.push_back("libconfig_root_tag: failed in parsing root tag " + missing.key);
        EXPECT_EQ(texts_of(take_log(), LOG_ERR), log);
        EXPECT_TRUE(model_is_zero());
    }
}

TEST_F(Config, LeavesTheNumberOfAKeyThatMayBeMissing) {
    for (const root_key &missing : root_keys) {
        if (missing.need == root_key::required)
            continue;
        SCOPED_TRACE(missing.key);
        EXPECT_EQ(read_config(root_tree([&](const root_key &key) { return &key != &missing; })), 0);
        const auto noted = missing.need == root_key::noted ? texts{missing.note_or_value} : texts{};
        const auto log = take_log();
        EXPECT_EQ(texts_of(log, LOG_ERR), noted);
        EXPECT_EQ(texts_of(log, LOG_DEBUG), texts{"Resiliency tag not found!"});
        const chassis &read = chs_info.chs_cinfo.chs_info;
        for (const root_key &key : root_keys)
            if (key.member) {
                EXPECT_EQ(read.*key.member, &key == &missing ? 0 : value_of(key)) << key.key;
            }
        EXPECT_EQ(read.family, CHASSIS_FAMILY_QVL);
        EXPECT_EQ(read.nfrus, 2U);
        EXPECT_STREQ(read.platform_name, "");
    }
}

TEST_F(Config, CutsThePlatformsName) {
    EXPECT_EQ(read_config("PLATFORM_NAME = \"" + std::string(200, 'p') + "\";\nRESILMODEL = ( );\n"), 0);
    EXPECT_EQ(chs_info.chs_cinfo.chs_info.platform_name, std::string(127, 'p'));
    EXPECT_TRUE(take_log().empty());
}

// Cases compare without indentation, and no dump in tests/golden/ is of a configuration tree.
TEST_F(Config, IndentsResiliencyData) {
    const std::string out = load_config(R"(RESILIENCY = 4; SIBINITSPMB = 5;
        RESILMODEL = (
            { Type = "FPC"; ASSEMBLYID = 0xB4E; NMODULES = 7; MODULE = (
                { MNAME = "bridge"; KEY = 0xAB12; NERRORS = 9; ERRORS = (
                    { OFFSET = 0x1F; CHANNEL = 200; THRESHOLD = 0x80000000; LIMIT = 12; PERSIST = 13; DESC = "parity"; },
                    { CHANNEL = 1; THRESHOLD = 2; LIMIT = 3; PERSIST = 4; } ); },
                { } ); },
            { } );
)")
                                .out;
    EXPECT_NE(out.find("    <RESILIENCY>4</RESILIENCY>\n    <SIBINITSPMB>5</SIBINITSPMB>\n"), std::string::npos) << out;
    const auto section = out.find("    <RESILMODEL>");
    ASSERT_NE(section, std::string::npos) << out;
    EXPECT_EQ(out.substr(section), R"(    <RESILMODEL>
        <FRU Type="FPC" ASSEMBLYID="0xb4e">
            <MODULE>
            <KEY>ab12</KEY>
            <NERRORS>9</NERRORS>
            <MNAME>bridge</MNAME>
                <ERRORS>
                <OFFSET>1f</OFFSET>
                <CHANNEL>200</CHANNEL>
                <THRESHOLD>-2147483648</THRESHOLD>
                <LIMIT>12</LIMIT>
                <PERSIST>13</PERSIST>
                <DESC>parity</DESC>
                </ERRORS>
                <ERRORS>
                <OFFSET>0</OFFSET>
                <CHANNEL>1</CHANNEL>
                <THRESHOLD>2</THRESHOLD>
                <LIMIT>3</LIMIT>
                <PERSIST>4</PERSIST>
                <DESC></DESC>
                </ERRORS>
            </MODULE>
            <MODULE>
            <KEY>0</KEY>
            <NERRORS>0</NERRORS>
            <MNAME></MNAME>
            </MODULE>
        </FRU>
        <FRU Type="" ASSEMBLYID="0x0">
        </FRU>
    </RESILMODEL>
</CHASSIS>
)");
}

// ---- The keys of records

// The members of a record's line, by line and name.
std::map<std::string, std::string> values_of(const texts &records) {
    std::map<std::string, std::string> values;
    for (std::size_t i = 0; i < records.size(); ++i) {
        static const std::regex member(R"((\w+)=("[^"]*"|\S+))");
        for (std::sregex_iterator at(records[i].begin(), records[i].end(), member), end; at != end; ++at)
            values[std::to_string(i) + " " + at->str(1)] = at->str(2);
    }
    return values;
}

// Each key of the cases that show all keys is left out in turn: no other member may depend on it.
TEST_F(Config, AMissingKeyChangesItsMemberAlone) {
    const std::regex key_of_value(R"(\b([A-Z][A-Z0-9_]+) = (-?[0-9][0-9a-fx.]*|"[^"]*");)");
    int changed = 0;
    for (const load_case &one : all_cases(DST_TEST_DATA "/config")) {
        if (one.file != "members")
            continue;
        ASSERT_EQ(load_config(one.document).status, 0);
        const texts whole = members_of_model(form::config);
        const auto values = values_of(whole);
        for (std::sregex_iterator at(one.document.begin(), one.document.end(), key_of_value), end; at != end; ++at) {
            const std::string key = at->str(1);
            if (key == "FRUID") // is followed
                continue;
            SCOPED_TRACE(one.name + ": " + at->str());
            std::string without = one.document;
            without.erase(at->position(), at->length());
            ASSERT_EQ(load_config(without).status, 0);
            const texts records = members_of_model(form::config);
            if (records.size() < whole.size()) { // a sensor that insists on it
                EXPECT_TRUE(key == "REG_OFFSET" || key == "DRIVERID");
                continue;
            }
            const auto left = values_of(records);
            int differences = 0;
            for (const auto &[member, value] : values)
                differences += !left.contains(member) || left.at(member) != value;
            EXPECT_LE(differences, key == "SLOTID" ? 2 : 1) << testing::PrintToString(records);
            changed += differences;
        }
    }
    EXPECT_GT(changed, 150);
}

// ---- The walk over the devices

struct walked {
    std::size_t kept; // devices but the last
    bool last;        // whether the walk came to it
    bool operator==(const walked &) const = default;
};
std::ostream &operator<<(std::ostream &out, const walked &one) {
    return out << one.kept << (one.last ? " on" : " end");
}

template <class... K> std::size_t count_of() {
    std::size_t count = 0;
    const auto add = [&](auto range) {
        for ([[maybe_unused]] const auto &one : range)
            ++count;
    };
    (add(dst::entries(K::list(&chs_info))), ...);
    return count;
}

// What a walk over this group and a last device does.
walked walk(const std::string &group) {
    EXPECT_EQ(read_config("DEVICES = ( { " + group + " }, { Type = \"PIC\"; ctrl = \"PIC\"; id = 77; } );"), 0);
    const auto pics = dst::records<dst::pics>(&chs_info);
    const bool last = dst::first_of(pics, [](auto &pic) { return pic.id == 77; });
    return {count_of<dst::fans, dst::pems, dst::fpcs, dst::sibs, dst::fpms, dst::ftcs, dst::cbs, dst::tibs,
                     dst::tmpsnrs, dst::voltsnrs, dst::leds, dst::btns, dst::pics>() -
                last,
            last};
}

TEST_F(Config, ADeviceWithoutAKnownControllerIsDroppedAndMayEndTheWalk) {
    const std::pair<const char *, bool> kinds[] = {{"FAN", true},    {"PEM", true},      {"FPC", true},  {"FPM", true},
                                                   {"FTC", true},    {"CB", true},       {"SIB", true},  {"TIB", true},
                                                   {"TMPSNR", true}, {"VOLTSNR", false}, {"LED", false}, {"BTN", false},
                                                   {"PIC", false}};
    for (const auto &[kind, goes_on] : kinds)
        for (const char *ctrl : {"", "ctrl = 3;", "ctrl = \"\";", "ctrl = \"NONE\";", "ctrl = \"TMPGENERIC\";"}) {
            if (std::string(kind) == "FAN" && std::string(ctrl) == "ctrl = \"\";")
                continue;
            const std::string group = "Type = \"" + std::string(kind) + "\"; " + ctrl + " id = 1; THRESHOLD = ( { } );";
            EXPECT_EQ(walk(group), (walked{0, goes_on})) << group;
            EXPECT_EQ(texts_of(take_log(), LOG_ERR), texts{}) << group;
        }
}

TEST_F(Config, AFanTrayThatItsReaderRefusesEndsTheWalk) {
    const std::pair<const char *, walked> trays[] = {
        {"ADT7470\"; FAN = ( { } );", {0, false}},   {"ADT7470\"; id = 1;", {0, false}},
        {"GFC0812\"; FAN = ( { } );", {0, false}},   {"GFC0812\"; id = 1; FAN = 1;", {0, false}},
        {"FANSYSPLD\"; FAN = ( { } );", {0, false}}, {"FANSYSPLD\"; id = 1;", {0, false}},
        {"9HV0812\"; FAN = ( { } );", {1, true}},    {"9HV0812\"; id = 1; NAME = \"tray\";", {0, false}},
        {"\"; id = 1; FAN = ( );", {1, true}},       {"ADT7470\"; id = \"1\"; FAN = ( { } );", {0, false}},
    };
    for (const auto &[tray, result] : trays) {
        EXPECT_EQ(walk("Type = \"FAN\"; ctrl = \"" + std::string(tray)), result) << tray;
        EXPECT_EQ(texts_of(take_log(), LOG_ERR), texts{}) << tray;
    }
}

// ---- What the model held before

template <class Head> auto *append_zeros(Head &list) {
    auto *entry = dst::make<dst::entry_of<Head>>().release();
    dst::list_init(list);
    dst::append(list, entry);
    return entry;
}

// Gives the empty model what no configuration tree has.
void fill_model() {
    chs_info.chs_cinfo.chs_info.nbuttons = 7;
    chs_info.chs_cinfo.chs_info.minor = 8;
    append_zeros(chs_info.lcd_info)->lcd_minfo = dst::make<lcd_info_t>().release();
    append_zeros(chs_info.cepm_info)->cepm_minfo.cepm_type = EPM_TYPE_CPUBOARDID;
}

TEST_F(Config, KeepsWhatATreeHasNoKeysFor) {
    write_config("FRUS = ( { id = 0; Type = \"LCD\"; } );");
    fill_model();
    const auto *lcd = chs_info.lcd_info.tqh_first->lcd_minfo;
    ASSERT_EQ(libdst_config_init(), 0);
    EXPECT_EQ(chs_info.chs_cinfo.chs_info.nbuttons, 7U);
    EXPECT_EQ(chs_info.chs_cinfo.chs_info.minor, 0U);
    ASSERT_NE(chs_info.lcd_info.tqh_first, nullptr);
    EXPECT_EQ(chs_info.lcd_info.tqh_first->lcd_minfo, lcd);
    EXPECT_EQ(lcd->fru_info, &chs_info.fru_info.tqh_first->fru_minfo);
    ASSERT_NE(chs_info.cepm_info.tqh_first, nullptr);
    EXPECT_EQ(chs_info.cepm_info.tqh_first->cepm_minfo.cepm_type, EPM_TYPE_CPUBOARDID);
}

TEST_F(Config, AFailedReadLeavesNothing) {
    // The result, and what is said on standard output.
    const std::tuple<const char *, int, std::string> rows[] = {
        {"FAMILY = \"none\";", 1, verdict},
        {"FRUMODEL = { MODEL = ( ); };", -1, verdict},
        {"FRUS = 1;\nDEVICES = ( { Type = \"FPC\"; ctrl = \"FPC\"; } );", 1, verdict},
        {"FRUS = ( { id = 3; } );\nDEVICES = ( { Type = \"FPC\"; ctrl = \"FPC\"; FRUID = 4; } );", -1, ""},
    };
    for (const auto &[tree, status, said] : rows) {
        SCOPED_TRACE(tree);
        write_config(tree);
        fill_model();
        streams_capture streams;
        EXPECT_EQ(libdst_config_init(), status);
        EXPECT_EQ(streams.out(), said);
        EXPECT_TRUE(model_is_zero());
    }

    read_config("FRUS = 1;");
    fill_model();
    chs_info.chs_cinfo.chs_info.major = 3;
    const auto bytes = [] { return std::string(reinterpret_cast<const char *>(&chs_info), sizeof chs_info); };
    const std::string before = bytes();
    EXPECT_NE(libconfig_root_handler(&chs_info), 0);
    EXPECT_TRUE(bytes() == before) << "only libdst_config_init() releases";
}

// ---- Where the tree is read from

TEST_F(Config, IsASourceWhenThereIsNoReadableDocument) {
    write_config("FEATURE = 5;\n");
    const auto features = [](const load_result &result) {
        EXPECT_EQ(texts_of(result.log, LOG_ERR), texts{});
        EXPECT_EQ(result.status, 0);
        const auto feature = chs_info.chs_cinfo.chs_info.feature;
        libchs_release();
        return std::pair(feature, texts_of(result.log, LOG_INFO).front());
    };
    EXPECT_EQ(features(load()), std::pair(5U, std::string("Using config file ") + tree_path));
    ASSERT_EQ(symlink("nowhere", "/var/platform/chassis_dst.xml"), 0);
    EXPECT_EQ(features(load()), std::pair(5U, std::string("Using config file ") + tree_path));
    write_platform_file("chassis_dst.xml", "");

    // A readable document is the only source, whatever stands in either.
    write_platform_file("chassis_dst.conf", "CHASSIS = {{{");
    EXPECT_EQ(features(load("<FEATURE>6</FEATURE>")).first, 6U);
    write_config("FEATURE = 5;\n");
    write_platform_file("chassis_dst.xml", "<CHASSIS");
    EXPECT_LT(load().status, 0);
    EXPECT_TRUE(model_is_zero());
}

// ---- Files that are no tree

// A file for the tree to be read from, and how the line about it begins: after its path.
struct hazard {
    const char *what;
    std::function<void(const std::string &path)> put;
    const char *told; // empty: no line
};
hazard file_of(const char *what, const std::string &content, const char *told) {
    return {what, [=](const std::string &path) { std::ofstream(path) << content; }, told};
}

std::vector<hazard> hazards() {
    std::string nested = "CHASSIS =";
    while (nested.size() < 1000000)
        nested += "{\na =";
    return {
        {"a directory", [](const std::string &path) { mkdir(path.c_str(), 0755); }, ": not a regular file"},
        {"a FIFO", [](const std::string &path) { mkfifo(path.c_str(), 0644); }, ": not a regular file"},
        file_of("empty", "", ""),
        file_of("a comment", "# CHASSIS = { };\n", ""),
        file_of("wrong", "CHASSIS = {\n  VERSION = 1;\n  FAMILY = \"QVL;\n};\n", ":"),
        file_of("wrong in its second line", "CHASSIS = {\n  VERSION 1;\n};\n", ":2: syntax error"),
        file_of("cut", "CHASSIS = {\n  VERSION = 1;\n  FRUS = ( { id = 1; }, {\n", ":"),
        file_of("nested", nested, ":"),
        file_of("CHASSIS a number", "CHASSIS = 1;\n", ""),
        file_of("CHASSIS a list", "CHASSIS = ( { VERSION = 1; } );\n", ""),
        file_of("another group", "chassis = { VERSION = 1; };\nCHASSIS1 = { };\n", ""),
    };
}

// The first line, when one is told of the file, is taken off the log.
void expect_told(const hazard &one, const std::string &path, texts &log) {
    if (!*one.told)
        return;
    ASSERT_FALSE(log.empty());
    EXPECT_TRUE(log.front().starts_with(path + one.told)) << log.front();
    log.erase(log.begin());
}

TEST_F(Config, SurvivesFilesThatAreNoTree) {
    for (const hazard &one : hazards()) {
        SCOPED_TRACE(one.what);
        write_config("");
        std::filesystem::remove(tree_path);
        one.put(tree_path);
        for (int i = 0; i < 2; ++i) {
            const load_result result = load();
            EXPECT_LT(result.status, 0);
            texts log = texts_of(result.log, LOG_ERR);
            expect_told(one, tree_path, log);
            EXPECT_EQ(log, (texts{no_tree, not_parsed}));
            EXPECT_EQ(result.out, verdict);
            EXPECT_TRUE(model_is_zero());
        }
        std::filesystem::remove(tree_path);
        EXPECT_EQ(load_config("").status, 0);
        libchs_release();
    }
}

TEST_F(Config, SaysThatBothTreesAreMissing) {
    std::ofstream(tree_path) << "# nothing\n";
    EXPECT_EQ(texts_of(load().log, LOG_ERR), (texts{no_simulation, no_tree, not_parsed}));
}

TEST_F(Config, EndsTheProcessWhenThePlatformsLibraryIsMisused) {
    ASSERT_EQ(load_config("").status, 0);
    const auto misuse = [] {
        std::atexit([] {
            for (const std::string &line : texts_of(take_log(), LOG_CRIT))
                std::fprintf(stderr, "[%s]\n", line.c_str());
        });
        int32_t value = 0;
        brio_config_int_read(nullptr, "id", &value);
    };
    EXPECT_EXIT(misuse(), testing::ExitedWithCode(1),
                "^\\[ config assert at line [1-9][0-9]* error str brio_config_int_read: null handle,"
                "EXITING PSVD process\\\\n\\]\n$");
}

TEST_F(Config, GoesWithoutASimulationThatIsNone) {
    const std::string path = "/var/platform/chassis_dst_sim.conf";
    auto files = hazards();
    files.push_back({"missing", [](const std::string &) {}, ""});
    for (const hazard &one : files) {
        SCOPED_TRACE(one.what);
        write_config("FRUS = ( { id = 1; SIM_FRU_DATA = ( { } ); } );");
        std::filesystem::remove(path);
        one.put(path);
        const load_result result = load();
        EXPECT_EQ(result.status, 0);
        texts log = texts_of(result.log, LOG_ERR);
        expect_told(one, path, log);
        EXPECT_EQ(log, texts{no_simulation});
        EXPECT_NE(chs_info.fru_info.tqh_first->fru_minfo.virtual_fru_data.tqh_first, nullptr);
        libchs_release();
        std::filesystem::remove(path);
    }
}

} // namespace
