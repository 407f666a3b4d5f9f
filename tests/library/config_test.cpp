// What the dump does not show of a configuration tree: the chassis keys one by one, list heads, the simulation's
// merge, where it is read from, and files that are no tree.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sys/stat.h>
#include <tuple>

#include "../harness/append.h"
#include "../harness/config.h"
#include "chsinfo/libdst/model/kinds.h"

namespace {

using texts = std::vector<std::string>;
using numbers = std::vector<std::int64_t>;

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

// ---- Names, flags and other texts that are converted

TEST_F(Config, ConvertsTexts) {
    static constexpr auto fru = [] { return chs_info.fru_info.tqh_first; };
    static constexpr auto model = [] { return &chs_info.frumodel_info.tqh_first->frumodel_minfo; };
    const struct {
        const char *before;
        const char *after;
        std::int64_t (*member)();
        std::vector<std::pair<const char *, std::int64_t>> values;
    } rows[] = {
        {"FRUS = ( { Type = \"",
         "\"; } );",
         [] { return std::int64_t{fru()->fru_minfo.fru_type}; },
         {{"", 0}, {"C", 1}, {"CB", 17}, {"CBX", -1}, {"cb", -1}, {" CB", -1}, {"P", 5}, {"TMPSNR", 7}, {"TIB", 20}}},
        {"FRUS = ( { REMOVABLE_TYPE = \"",
         "\"; } );",
         [] { return std::int64_t{fru()->fru_minfo.fru_removable_type}; },
         {{"", 0}, {"FIXED", 1}, {"VIRTUAL", 2}, {"VIRTUALLY", -1}}},
        {"FRUS = ( { EPMVALID = \"",
         "\"; } );",
         [] { return std::int64_t{fru()->fru_minfo.epmvalid}; },
         {{"true", 1}, {"True", 0}, {"truer", 0}, {"tru", 0}, {"", 0}}},
        {"FRUS = ( { PARENT = \"",
         "\"; } );",
         [] { return std::int64_t{fru()->parent_id}; },
         {{"NULL", 4294967295}, {"-1", 4294967295}, {"3", 3}, {" 12x", 12}, {"0x10", 0}, {"NULLS", 0}, {"", 0}}},
        {"BUS = { I2CDEV = ( { Type = \"",
         "\"; } ); };",
         [] { return std::int64_t{chs_info.chs_cinfo.i2cdev_info_list.tqh_first->i2cdev_info.type}; },
         {{"GFC0812", 12}, {"MEZZ", 14}, {"LCD", 15}, {"L", 10}, {"F", 3}, {"TIB", -1}}},
        {"FRUMODEL = { MODEL = ( { PEMTYPE = \"",
         "\"; } ); };",
         [] { return std::int64_t{model()->power_type}; },
         {{"AC", 1}, {"D", 2}, {"", 0}, {"ACDC", -1}}},
        {"FRUMODEL = { MODEL = ( { AIRFLOWTYPE = \"",
         "\"; } ); };",
         [] { return std::int64_t{model()->aflow_type}; },
         {{"NONE", 0}, {"AF", 1}, {"AFI", 2}, {"UNKNOWN", -1}, {"", 0}}},
        {"FRUMODEL = { MODEL = ( { PEM_INPSW_ACT = \"",
         "\"; } ); };",
         [] { return std::int64_t{model()->pem_inpsw_act}; },
         {{"true", 1}, {"trueX", 0}, {"TRUE", 0}}},
        {"FRUMODEL = { MODEL = ( { FRUEMP = \"",
         "\"; } ); };",
         [] { return std::int64_t{model()->fru_level_empolicy}; },
         {{"true", 1}, {"trueX", 0}, {"1", 0}}},
        {"FRUMODEL = { MODEL = ( { FRU_ENH_TEMPTHRESHOLD = \"",
         "\"; } ); };",
         [] { return std::int64_t{model()->enh_temp_threshold}; },
         {{"true", 1}, {"trueX", 1}, {"tru", 0}, {"True", 0}, {"", 0}}},
        {"DEVICES = ( { Type = \"LED\"; ctrl = \"CB\"; LEDTYPE = \"",
         "\"; } );",
         [] { return std::int64_t{chs_info.ll_info.tqh_first->ll_minfo->led_type}; },
         {{"", 0}, {"SYSTEM", 2}, {"M", 3}, {"Q", 9}, {"H", 17}, {"EXT_SSD", 19}, {"CLOUD", 21}, {"CLOUDY", -1}}},
        {"DEVICES = ( { Type = \"BTN\"; ctrl = \"QVLBTN\"; BTNTYPE = \"",
         "\"; } );",
         [] { return std::int64_t{chs_info.btn_info.tqh_first->btn_minfo->button_type}; },
         {{"POWER", 1}, {"RESET", 2}, {"RESETS", -1}}},
        {"RESILMODEL = ( { Type = \"",
         "\"; } );",
         [] { return std::int64_t{chs_info.resil_info.tqh_first->resil_finfo.type}; },
         {{"FPC", 13}, {"TIB", 20}, {"S", 14}, {"X", -1}}},
        {"DEVICES = ( { Type = \"TMPSNR\"; ctrl = \"LM73\"; THRESHOLD = ( { ALARM = ( { Type = \"",
         "\"; } ); } ); } );",
         [] {
             return std::int64_t{
                 chs_info.ts_info.tqh_first->ts_minfo->threshold_list.tqh_first->alarm_list.tqh_first->type};
         },
         {{"", 0}, {"SYS_Y", 1}, {"BADFAN", 2}, {"BADFAN_YELLOW", 3}, {"YELLOW", -1}}},
    };
    for (const auto &row : rows)
        for (const auto &[written, value] : row.values) {
            const std::string tree = row.before + std::string(written) + row.after;
            ASSERT_EQ(read_config(tree), 0) << tree;
            EXPECT_EQ(row.member(), value) << tree;
        }
}

// ---- Arrays of integers

TEST_F(Config, KeepsFourValuesOfAMultiplexerChain) {
    ASSERT_EQ(read_config("BUS = { I2CDEV = ( { MC_MUXADDR = [ 1, 2, 3, 4, 5, 6 ]; MC_CHANNEL = [ -1, 0x1FF, 9, 8 ]; "
                          "PRESENCE_MUXADDR = [ ]; PRESENCE_CHANNEL = ( 7, \"six\", 5 ); }, "
                          "{ MC_MUXADDR = 1; PRESENCE_MUXADDR = [ 112 ]; } ); };"),
              0);
    std::vector<numbers> chains;
    for (const i2c_dev_info_t &device : dst::records<dst::i2c_devices>(&chs_info))
        for (const i2c_mc_info_t &chain : {device.mc_mux_addr_list, device.mc_chan_set_list,
                                           device.presence_mux_addr_list, device.presence_chan_set_list})
            chains.push_back({chain.num_entries, chain.rentry[0], chain.rentry[1], chain.rentry[2], chain.rentry[3]});
    EXPECT_EQ(chains, (std::vector<numbers>{{4, 1, 2, 3, 4},
                                            {4, -1, 511, 9, 8},
                                            {0, 0, 0, 0, 0},
                                            {1, 7, 0, 0, 0},
                                            {0, 0, 0, 0, 0},
                                            {0, 0, 0, 0, 0},
                                            {1, 112, 0, 0, 0},
                                            {0, 0, 0, 0, 0}}));
}

TEST_F(Config, KeepsTheBytesOfASimulatedAssembly) {
    std::string values;
    for (int i = 0; i < 130; ++i)
        values += (i ? ", " : "") + std::to_string(i % 2 ? 0x1FF : 0x7F00 + i);
    ASSERT_EQ(read_config("FRUS = ( { SIM_ASSEMBLY_DATA = [ " + values +
                              " ]; MAX_ALARM_REASONS = 3; }, { SIM_ASSEMBLY_DATA = [ ]; }, "
                              "{ SIM_ASSEMBLY_DATA = [ -1, 2 ]; }, { SIM_ASSEMBLY_DATA = 5; }, { id = 9; } );\n",
                          "CHASSIS = { FRUS = ( { id = 9; SIM_ASSEMBLY_DATA = [ 1 ]; } ); };"),
              0);
    texts read;
    for (const fru_info_t &fru : dst::records<dst::frus>(&chs_info)) {
        const auto *data = reinterpret_cast<const char *>(fru.virtual_i2c_data);
        read.emplace_back(data ? "data:" : "none");
        if (data)
            read.back().append(data, fru.virtual_i2c_data->program_bytes_read);
    }
    std::string bytes;
    for (int i = 0; i < 128; ++i)
        bytes += static_cast<char>(i % 2 ? 0xFF : i);
    EXPECT_EQ(read, (texts{"data:" + bytes, "data:", "data:\xFF\x02", "none", "none"}));
    EXPECT_EQ(chs_info.fru_info.tqh_first->fru_minfo.max_alarm_reasons, 3U) << "the member after it";
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

// ---- List heads

// Whether each entry points back at what points at it, and the head at the end.
template <dst::list_head Head> bool sound(Head &list) {
    auto **at = &list.tqh_first;
    for (auto *entry = *at; entry; entry = *at) {
        if (dst::link(entry).tqe_prev != at)
            return false;
        at = &dst::link(entry).tqe_next;
    }
    return list.tqh_last == at;
}

using model_t = libdst_chs_info_t;
constexpr auto lists_read =
    std::make_tuple(&model_t::fan_info, &model_t::pem_info, &model_t::fpc_info, &model_t::sib_info, &model_t::fpm_info,
                    &model_t::ftc_info, &model_t::cb_info, &model_t::tib_info, &model_t::ts_info, &model_t::vs_info,
                    &model_t::ll_info, &model_t::btn_info, &model_t::pic_info, &model_t::fru_info,
                    &model_t::frumodel_info, &model_t::chsmodel_info, &model_t::resil_info);

// How many lists have an entry at least; each must be sound.
int filled_lists() {
    int filled = 0;
    const auto visit = [&](auto &list) {
        EXPECT_TRUE(sound(list)) << "list " << filled << " of those filled";
        filled += list.tqh_first != nullptr;
    };
    std::apply([&](auto... list) { (visit(chs_info.*list), ...); }, lists_read);
    visit(chs_info.chs_cinfo.i2cdev_info_list);
    EXPECT_TRUE(sound(chs_info.asic_info) && sound(chs_info.optics_info));
    return filled;
}

TEST_F(Config, ListsHangOnTheModel) {
    ASSERT_EQ(read_config(""), 0);
    EXPECT_EQ(filled_lists(), 1) << "there must be a FRU model";
    std::string devices;
    for (const char *one :
         {"FAN\"; ctrl = \"GFC0812\"; FAN = ( { }, { } );", "PEM\"; ctrl = \"PSUEPM\";", "FPC\"; ctrl = \"FPC\";",
          "SIB\"; ctrl = \"SIB\";", "FPM\"; ctrl = \"FPM\";", "FTC\"; ctrl = \"FTC\";", "CB\"; ctrl = \"CB\";",
          "TIB\"; ctrl = \"TIB\";", "TMPSNR\"; ctrl = \"LM73\"; THRESHOLD = ( { } );", "TMPSNR\"; ctrl = \"LM73\";",
          "VOLTSNR\"; ctrl = \"LTC3880\";", "LED\"; ctrl = \"CB\";", "BTN\"; ctrl = \"QVLBTN\";",
          "PIC\"; ctrl = \"PIC\";"})
        for (int i = 0; i < 2; ++i)
            devices += std::string(devices.empty() ? "" : ", ") + "{ id = 1; Type = \"" + one + " }";
    ASSERT_EQ(read_config("DEVICES = ( " + devices +
                          " );\nBUS = { I2CDEV = ( { }, { } ); };\nRESILMODEL = ( { MODULE = ( { } ); }, { } );\n"
                          "FRUMODEL = { MODEL = ( { }, { } ); };\nCHSMODEL = { MODEL = ( { }, { } ); };\n"
                          "FRUS = ( { SIM_FRU_DATA = ( { SIM_THRESHOLD = ( { } ); }, { } ); }, { } );\n"),
              0);
    EXPECT_EQ(filled_lists(), 18);

    // Lists of records that lack them are sound too.
    EXPECT_TRUE(sound(chs_info.frumodel_info.tqh_first->frumodel_minfo.ambient_temp_info));
    EXPECT_TRUE(sound(chs_info.resil_info.tqh_first->resil_fru_next.tqe_next->resil_modules));
    EXPECT_TRUE(sound(chs_info.resil_info.tqh_first->resil_modules.tqh_first->resil_errors));
    auto &tray = *dst::module_of<gfc0812_module_info_t>(chs_info.fan_info.tqh_first->fan_minfo);
    EXPECT_TRUE(sound(tray.fan_info) && sound(tray.fan_info.tqh_first->ss2rpm));
    EXPECT_TRUE(sound(chs_info.pem_info.tqh_first->pem_minfo->ss2rpm));
    for (tmpsnr_info_t &sensor : dst::records<dst::tmpsnrs>(&chs_info))
        EXPECT_TRUE(sound(sensor.threshold_list));
    auto &threshold = *chs_info.ts_info.tqh_first->ts_minfo->threshold_list.tqh_first;
    EXPECT_TRUE(sound(threshold.limit_list) && sound(threshold.alarm_list));
    auto &simulated = *chs_info.fru_info.tqh_first->fru_minfo.virtual_fru_data.tqh_first;
    auto &without = *simulated.sim_fru_data_next.tqe_next;
    EXPECT_TRUE(sound(without.sim_ss2rpm) && sound(without.sim_ts_threshold));
    auto &simulated_threshold = *simulated.sim_ts_threshold.tqh_first;
    EXPECT_TRUE(sound(simulated_threshold.limit_list) && sound(simulated_threshold.alarm_list));
    EXPECT_TRUE(sound(chs_info.fru_info.tqh_first->fru_next.tqe_next->fru_minfo.virtual_fru_data));
}

// ---- The simulation's merge

// A FRU with simulated readings of these temperatures, each with two thresholds and what hangs from them.
std::string simulated_fru(int id, std::initializer_list<int> temperatures) {
    std::string readings;
    for (int temperature : temperatures)
        readings +=
            std::string(readings.empty() ? "" : ", ") + "{ TEMPERATURE = " + std::to_string(temperature) +
            "; SIM_SS2RPM = ( { SIM_RPM = 1; }, { } ); SIM_THRESHOLD = ( { SIM_LIMIT = ( { id = 1; }, { id = 2; } ); "
            "SIM_ALARM = ( { id = 3; }, { id = 4; } ); }, { } ); }";
    return "{ id = " + std::to_string(id) + "; SIM_FRU_DATA = ( " + readings + " ); }";
}

// The temperatures that the FRUs have, after one is appended and taken off.
std::string temperatures() {
    std::string all;
    for (fru_info_t &fru : dst::records<dst::frus>(&chs_info)) {
        all += (all.empty() ? "" : " ") + std::to_string(fru.id) + ":";
        for (const sim_fru_data_t &data : dst::entries(fru.virtual_fru_data)) {
            all += " " + std::to_string(data.temperature);
            for (const sim_tmpsnr_threshold_t &threshold : dst::entries(data.sim_ts_threshold)) {
                for (const sim_limit_t &limit : dst::entries(threshold.limit_list))
                    all += limit.id == 1 ? "<" : "";
                for (const sim_alarm_info_t &alarm : dst::entries(threshold.alarm_list))
                    all += alarm.id == 4 ? ">" : "";
            }
        }
        EXPECT_TRUE(sound(fru.virtual_fru_data)) << all;
        append(fru.virtual_fru_data, &sim_fru_data_t::sim_fru_data_next);
        EXPECT_TRUE(sound(fru.virtual_fru_data)) << all;
    }
    return all;
}

TEST_F(Config, MergesTheSimulation) {
    const struct {
        std::vector<std::string> frus;
        std::vector<std::string> simulated;
        std::string merged;
        texts log;
    } rows[] = {
        {{simulated_fru(1, {10, 11}), simulated_fru(2, {20})}, {}, "1: 10<> 11<> 2: 20<>", {}},
        {{simulated_fru(1, {10, 11}), simulated_fru(2, {20})},
         {simulated_fru(2, {30, 31})},
         "1: 10<> 11<> 2: 30<> 31<>",
         {"2: changed ID is !"}},
        {{simulated_fru(1, {10}), simulated_fru(1, {11}), "{ }"},
         {simulated_fru(0, {30}), simulated_fru(1, {31})},
         "1: 31<> 1: 11<> 0: 30<>",
         {"0: changed ID is !", "1: changed ID is !"}},
        {{simulated_fru(1, {10})},
         {simulated_fru(1, {30}), simulated_fru(3, {31}), simulated_fru(1, {32, 33})},
         "1: 32<> 33<>",
         {"1: changed ID is !", "1: changed ID is !"}},
        {{simulated_fru(1, {10}), simulated_fru(2, {20})},
         {"{ id = 1; }", simulated_fru(2, {})},
         "1: 2:",
         {"1: changed ID is !", "2: changed ID is !"}},
        {{}, {simulated_fru(1, {30})}, "", {}},
    };
    const auto list = [](const std::vector<std::string> &elements) {
        std::string all;
        for (const std::string &element : elements)
            all += (all.empty() ? "" : ", ") + element;
        return "FRUS = ( " + all + " );\n";
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(list(row.frus) + list(row.simulated));
        ASSERT_EQ(read_config(list(row.frus), "CHASSIS = { " + list(row.simulated) + "};"), 0);
        EXPECT_EQ(texts_of(take_log(), LOG_ERR), row.log);
        EXPECT_EQ(temperatures(), row.merged);
        EXPECT_EQ(chs_info.chs_cinfo.chs_info.nfrus, row.frus.size());
    }
}

// ---- What the model held before

// Gives the empty model what no configuration tree has.
void fill_model() {
    chs_info.chs_cinfo.chs_info.nbuttons = 7;
    chs_info.chs_cinfo.chs_info.minor = 8;
    append(chs_info.lcd_info, &lcd_module_list_t::lcd_next)->lcd_minfo =
        static_cast<lcd_info_t *>(std::calloc(1, sizeof(lcd_info_t)));
    append(chs_info.cepm_info, &cepm_module_list_t::cepm_next)->cepm_minfo.cepm_type = EPM_TYPE_CPUBOARDID;
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
