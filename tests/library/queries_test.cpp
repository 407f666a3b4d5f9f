// Every query, on models read from documents and configuration trees. A row says how a query is called and what it
// finds; the tests take all rows through a model that is empty, one with one record of each kind, several records,
// repeated keys, or no model. The EPM initialisation is in load_test.cpp.
#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

#include "../harness/load.h"
#include "../harness/walk.h"
#include "chsinfo/libdst_priv.h"

namespace {

using keys = std::vector<uint32_t>;
using lines = std::vector<std::string>;

// Descriptions, in either form

struct kind {
    std::string device, controller;
    uint32_t id;             // of its devices, before what `devices` adds
    uint32_t fru_id;         // of the first of the two FRUs that they sit on
    bool holds_frus = false; // which are of the same kind
};
const kind device_kinds[] = {
    {"FAN", "ADT7470", 100, 40, true}, {"PEM", "PSUEPM", 200, 50, true}, {"PIC", "PIC", 300, 60, true},
    {"FPC", "FPC", 400, 130, true},    {"SIB", "SIB", 500, 140, true},   {"FPM", "FPM", 600, 150, true},
    {"FTC", "FTC", 700, 160, true},    {"CB", "CB", 800, 170, true},     {"TMPSNR", "TMP435", 900, 40},
    {"VOLTSNR", "MAX207XX", 1000, 40}, {"LED", "DURNLED", 1100, 40},     {"LCD", "GENERICLCD", 1200, 40},
    {"BTN", "QVLBTN", 1300, 40},       {"TIB", "TIB", 1400, 200, true},
};

// Whether a form can describe what a name, of a kind or of an operation, speaks of.
bool speaks_of(form source, const std::string &name) {
    const auto has = [&name](std::initializer_list<const char *> words) {
        return std::any_of(words.begin(), words.end(), [&](auto word) { return name.find(word) != name.npos; });
    };
    return source == form::xml ? !has({"TIB", "tib_info"}) : !has({"LCD", "lcd_", "asic", "bcm", "optics"});
}

// What a device adds to the ids of its kind and of the FRU: two devices share controller and FRU.
constexpr struct { uint32_t id, fru; } devices[] = {{5, 0}, {3, 1}, {9, 0}};

// An element with an id, a type and a controller where there are any, and elements inside; as a group of keys.
struct record {
    std::string name;
    uint32_t id;
    std::string type, controller;
    std::vector<std::pair<std::string, std::string>> content;
};

std::string text_of(form source, const record &one) {
    std::string inside;
    if (source == form::config) {
        inside = "id = " + std::to_string(one.id) + ";";
        for (const auto &[key, value] : {std::pair("Type", one.type), std::pair("ctrl", one.controller)})
            inside += value.empty() ? "" : std::string(key) + " = \"" + value + "\";";
        for (const auto &[key, value] : one.content)
            inside += key + " = " + (key == "PARENT" ? "\"" + value + "\"" : value) + ";";
        const bool insists = one.type == "FAN" || one.type == "TMPSNR"; // on a list, as a device
        return "{ " + inside + (insists && !one.controller.empty() ? "FAN = (); THRESHOLD = ();" : "") + " }";
    }
    for (const auto &[key, value] : one.content)
        inside.append("<").append(key).append(">").append(value).append("</").append(key).append(">");
    return "<" + one.name + " id='" + std::to_string(one.id) + "' type='" + one.type + "' ctrl='" + one.controller +
           "'>" + inside + "</" + one.name + ">";
}

record fru(uint32_t id, const std::string &type, const std::string &parent = "NULL") {
    return {"FRUDEV", id, type, "", {{"I2CDEVID", "-1"}, {"PARENT", parent}}};
}
std::string port(uint32_t id, uint32_t pic) {
    return text_of(form::xml, {"PORT", id, "", "", {{"PICI2CID", std::to_string(pic)}, {"FRONTPANELPORT", "7"}}});
}
record asic(uint32_t id, const std::string &ports) { return {"ASIC", id, "", "", {{"CHIPBCM", ports}}}; }
record optic(uint32_t id, uint32_t slot) { return {"PORT", id, "", "", {{"PICSLOT", std::to_string(slot)}}}; }
record model(uint32_t id, const std::string &type) { return {"MODEL", id, type, "", {}}; }

// All records or one of each kind; each of them so many times.
std::string description(form source, bool all, int copies) {
    const auto list = [=](std::vector<record> records) {
        records.resize(all ? records.size() : 1);
        std::string text;
        for (const record &one : records)
            for (int i = 0; i < copies; ++i)
                text += (text.empty() || source == form::xml ? "" : ", ") + text_of(source, one);
        return text;
    };
    const auto join = [=](std::string &texts, const std::string &text) {
        texts += (texts.empty() || source == form::xml ? "" : ", ") + text;
    };
    std::string frus = list({fru(1, "CHASSIS"), fru(2, "CHASSIS")});
    std::string kinds;
    for (const kind &one : device_kinds) {
        if (one.holds_frus) {
            const std::string parent = one.device == "PIC" ? "130" : "1";
            join(frus, list({fru(one.fru_id, one.device, parent), fru(one.fru_id + 1, one.device, parent)}));
        }
        if (!speaks_of(source, one.device))
            continue;
        std::vector<record> of_kind;
        for (const auto &device : devices)
            of_kind.push_back({"DEVICE",
                               one.id + device.id,
                               one.device,
                               one.controller,
                               {{"FRUID", std::to_string(one.fru_id + device.fru)}}});
        join(kinds, list(of_kind));
    }
    const auto i2c_device = [](uint32_t id, const char *type) { return record{"I2CDEV", id, type, "", {}}; };
    const std::string i2c_devices = list({i2c_device(11, "FPC"), i2c_device(13, "CB"), i2c_device(12, "FPC")});
    const std::string fru_models = list({model(3, "FAN"), model(1, "PEM"), model(2, "FAN")});
    const std::string chassis_models = list({model(72, "CHASSIS"), model(71, "CHASSIS")});
    if (source == form::config)
        return "BUS = { I2CDEV = ( " + i2c_devices + " ); };\nFRUS = ( " + frus + " );\nDEVICES = ( " + kinds +
               " );\nFRUMODEL = { MODEL = ( " + fru_models + " ); };\nCHSMODEL = { MODEL = ( " + chassis_models +
               " ); };\n";
    const auto ports = [=](std::initializer_list<std::pair<uint32_t, uint32_t>> of_pics) {
        std::string text;
        for (const auto &[id, pic] : of_pics)
            for (int i = 0; i < copies && (all || text.empty()); ++i)
                text += port(id, pic);
        return text;
    };
    std::vector<record> asics = {asic(30, ports({{5, 32}, {3, 33}, {9, 32}})), asic(31, ""),
                                 asic(32, ports({{6, 32}, {4, 33}, {8, 32}}))};
    if (all)
        asics.insert(asics.begin(), asic(33, ""));
    return "<DEVICE type='i2c'>" + i2c_devices + "</DEVICE><DEVICE type='FRU'>" + frus + "</DEVICE>" + kinds +
           "<DEVICE type='asic'>" + list(asics) + "</DEVICE><DEVICE type='optics'>" +
           list({optic(1, 0), optic(2, 0), optic(1, 1), optic(2, 1), optic(1, 2)}) + "</DEVICE><FRUMODEL>" +
           fru_models + "</FRUMODEL>" + chassis_models;
}

// The host's EPM data: how many boards there are, and whether both say that they are the main board.
int epm_boards;
bool epm_repeats;

void load_description(bool all, int copies = 1, form source = form::xml) {
    epm_boards = all ? 2 : 1;
    epm_repeats = copies > 1;
    epm_null_ops = {[](cepm_type_t type) { return type <= epm_boards; },
                    [](cepm_data_t *data, cepm_type_t type) {
                        data->cepm_type = epm_repeats ? EPM_TYPE_MAINBOARDID : type;
                        return 0;
                    }};
    const std::string text = description(source, all, copies);
    const load_result result = source == form::xml ? load(text) : load_config(text);
    ASSERT_EQ(texts_of(result.log, LOG_ERR), lines{}) << result.err;
}

// Rows

uint32_t key_of(const auto &record) { return record.id; }
uint32_t key_of(const optics_info_t &record) { return 10 * record.port_id + record.pic_id; }
uint32_t key_of(const cepm_data_t &record) { return record.cepm_type; }

// A key that no record has.
void lose_key(auto &record) { record.id = 99; }
void lose_key(optics_info_t &record) { record.pic_id = 99; }
void lose_key(cepm_data_t &record) { record.cepm_type = EPM_TYPE_MAX; }

// A type of record, and by what a walk finds the record passed: its place.
struct record_type {
    std::size_t size;
    uint32_t (*key)(const void *record);
    uint32_t (*place)(const void *record);
    void (*lose_place)(void *record);
};
template <class R> uint32_t key(const void *record) { return key_of(*static_cast<const R *>(record)); }
template <class R>
constexpr record_type by_key = {sizeof(R), key<R>, key<R>, [](void *record) { lose_key(*static_cast<R *>(record)); }};
template <class R>
constexpr record_type by_controller_on_fru = {
    sizeof(R), key<R>, [](const void *record) { return uint32_t(static_cast<const R *>(record)->ctrl_type); },
    [](void *record) { static_cast<R *>(record)->fru_info = nullptr; }};

// A query with the type of its records taken off.
using step = void *(*)(void *previous);
template <auto Query, auto... Fixed> using found_by = std::remove_pointer_t<decltype(Query(Fixed..., nullptr))>;
template <auto Query, auto... Fixed> void *take(void *previous) {
    return Query(Fixed..., static_cast<found_by<Query, Fixed...> *>(previous));
}

struct walk {
    std::string operation, empty; // who logs what of an empty list
    step next;
    step others; // a walk over the same records and some that this one leaves out
    record_type type;
    keys one, several;    // of a document with one record of a kind, and with several
    std::size_t repeated; // records found where each element of the latter stands twice
    std::string end = {}; // logged with every null result

    std::vector<log_line> end_log() const {
        std::vector<log_line> log;
        if (!end.empty())
            log.push_back({LOG_ERR, operation + ": " + end});
        return log;
    }
    void *next_of_copy(const void *record) const {
        std::vector<char> copy(type.size);
        std::memcpy(copy.data(), record, type.size);
        return next(copy.data());
    }
    // From a copy, or from zeros, that stand nowhere in the list.
    void *next_of_lost(const void *record = nullptr) const {
        std::vector<char> copy(type.size);
        if (record)
            std::memcpy(copy.data(), record, type.size);
        type.lose_place(copy.data());
        return next(copy.data());
    }
};

// Query with its fixed arguments, which come first, among what Others finds.
template <auto Others, auto Query, auto... Fixed>
walk filtered(const char *operation, const char *empty, const keys &one, const keys &several, std::size_t repeated) {
    return {operation, empty, take<Query, Fixed...>, take<Others>, by_key<found_by<Others>>, one, several, repeated};
}
template <auto Query> walk plain(const char *operation, const char *empty, const keys &one, const keys &several) {
    return filtered<Query, Query>(operation, empty, one, several, 2 * several.size());
}
template <auto Query> walk device(const char *operation, const char *empty, uint32_t id) {
    return plain<Query>(operation, empty, {id + 5}, {id + 5, id + 3, id + 9});
}
template <auto Query> walk fru_of(const char *operation, uint32_t id, const char *empty = "empty fru list!") {
    return filtered<libchs_fru_info_get_next, Query>(operation, empty, {id}, {id, id + 1}, 4);
}
template <auto Query> walk relative(const char *operation, const keys &one, const keys &several) {
    walk row = filtered<libchs_fru_info_get_next, Query>(operation, "empty fru list!", one, several, 4);
    row.end = "could not find the fru info for the parent!";
    return row;
}
template <auto Others, auto Query, uint32_t Fru> walk on_fru(const char *operation, const char *empty, uint32_t id) {
    walk row = filtered<Others, Query, Fru>(operation, empty, {id + 5}, {id + 5, id + 9}, 4);
    row.type = by_controller_on_fru<found_by<Others>>;
    return row;
}

i2c_dev_info_t *next_fpc_device(i2c_dev_info_t *at) { return libchs_i2c_dev_info_get_next_by_type(at, I2C_TYPE_FPC); }
fru_model_info_t *next_fan_model(const fru_model_info_t *at) {
    return libdst_fru_model_info_get_next_by_type(at, FRU_TYPE_FAN);
}
fru_info_t *next_on_fpc(fru_info_t *at) {
    static fru_info_t fpc_0; // the key of a FRU, in place of the model's record
    fpc_0.id = 130;
    return libchs_fru_info_get_next_child(&fpc_0, at);
}

// Ports of either PIC.
bcm_port_info_t *next_port(bcm_port_info_t *port) {
    if (port && port->pic_i2cid == 33)
        return libchs_bcm_port_info_get_next_by_picid(33, port);
    bcm_port_info_t *next = libchs_bcm_port_info_get_next_by_picid(32, port);
    return next ? next : libchs_bcm_port_info_get_next_by_picid(33, nullptr);
}

std::vector<walk> walks() {
    const char *const i2c = "Empty i2c device list!";
    const char *const no_optics = "empty optics list!";
    return {
        plain<libchs_i2c_dev_info_get_next>("i2c_dev_info_get_next_priv", i2c, {11}, {11, 13, 12}),
        filtered<libchs_i2c_dev_info_get_next, next_fpc_device>("i2c_dev_info_get_next_by_type_priv", i2c, {11},
                                                                {11, 12}, 4),
        device<libchs_fan_info_get_next>("fan_info_get_next_priv", "empty fan list!", 100),
        device<libchs_pem_info_get_next>("pem_info_get_next_priv", "empty pem list!", 200),
        device<libchs_pic_info_get_next>("pic_info_get_next_priv", "empty pic list!", 300),
        device<libchs_fpc_info_get_next>("fpc_info_get_next_priv", "empty fpc list!", 400),
        device<libchs_sib_info_get_next>("sib_info_get_next_priv", "empty sib list!", 500),
        device<libchs_fpm_info_get_next>("fpm_info_get_next_priv", "empty fpm list!", 600),
        device<libchs_ftc_info_get_next>("ftc_info_get_next_priv", "empty ftc list!", 700),
        device<libchs_cb_info_get_next>("cb_info_get_next_priv", "empty cb list!", 800),
        device<libchs_tmpsnr_info_get_next>("tmpsnr_info_get_next_priv", "empty temp sensor list!", 900),
        device<libchs_voltsnr_info_get_next>("voltsnr_info_get_next_priv", "empty volt sensor list!", 1000),
        device<libchs_led_info_get_next>("led_info_get_next_priv", "empty led list!", 1100),
        device<libchs_lcd_info_get_next>("lcd_info_get_next_priv", "empty lcd list!", 1200),
        device<libchs_btn_info_get_next>("btn_info_get_next_priv", "empty btn list!", 1300),
        device<libchs_tib_info_get_next>("tib_info_get_next_priv", "empty tib list!\\n", 1400),
        plain<libchs_asic_info_get_next>("asic_info_get_next_priv", "empty asic list!", {30}, {33, 30, 31, 32}),
        filtered<next_port, libchs_bcm_port_info_get_next, 30>("bcm_port_info_get_next_priv", "empty asic list!", {5},
                                                               {5, 3, 9}, 6),
        filtered<next_port, libchs_bcm_port_info_get_next_by_picid, 32>("bcm_port_info_get_next_by_picid_priv",
                                                                        "empty asic list!", {5}, {5, 9, 6, 8}, 16),
        plain<libchs_optics_info_get_next>("optics_info_get_next_priv", no_optics, {10}, {10, 20, 11, 21, 12}),
        filtered<libchs_optics_info_get_next, libchs_optics_info_get_next_by_port_no, 1>(
            "optics_info_get_next_by_portno_priv", no_optics, {10}, {10, 11, 12}, 6),
        filtered<libchs_optics_info_get_next, libchs_optics_info_get_next_by_slotno, 0>(
            "optics_info_get_next_by_slotno_priv", no_optics, {10}, {10, 20}, 4),
        plain<libdst_fru_model_info_get_next>("fru_model_info_get_next_priv", "empty fru model list!", {3}, {3, 1, 2}),
        filtered<libdst_fru_model_info_get_next, next_fan_model>("fru_model_info_get_next_by_type_priv",
                                                                 "empty fru model list!", {3}, {3, 2}, 4),
        plain<libdst_chassis_model_info_get_next>("chassis_model_info_get_next_priv", "empty chassis model list!", {72},
                                                  {72, 71}),
        filtered<libchs_epm_data_get_next, libchs_epm_data_get_next>("epm_data_get_next_priv", "empty epm list!", {1},
                                                                     {1, 2}, 2),
        plain<libchs_fru_info_get_next>(
            "fru_info_get_next_priv", "empty fru list!", {1, 40, 50, 60, 130, 140, 150, 160, 170, 200},
            {1, 2, 40, 41, 50, 51, 60, 61, 130, 131, 140, 141, 150, 151, 160, 161, 170, 171, 200, 201}),
        fru_of<libchs_fru_info_get_next_by_fan>("fru_info_get_next_by_fan_priv", 40),
        fru_of<libchs_fru_info_get_next_by_pem>("fru_info_get_next_by_pem_priv", 50),
        fru_of<libchs_fru_info_get_next_by_pic>("fru_info_get_next_by_pic_priv", 60),
        fru_of<libchs_fru_info_get_next_by_fpc>("fru_info_get_next_by_fpc_priv", 130),
        fru_of<libchs_fru_info_get_next_by_sib>("fru_info_get_next_by_sib_priv", 140),
        fru_of<libchs_fru_info_get_next_by_fpm>("fru_info_get_next_by_fpm_priv", 150),
        fru_of<libchs_fru_info_get_next_by_ftc>("fru_info_get_next_by_ftc_priv", 160),
        fru_of<libchs_fru_info_get_next_by_cb>("fru_info_get_next_by_cb_priv", 170),
        fru_of<libchs_fru_info_get_next_by_tib>("fru_info_get_next_by_tib_priv", 200, "empty fru list!\\n"),
        relative<libchs_fru_info_get_next_parent>("fru_info_get_next_parent_priv", {1}, {1, 2}),
        relative<next_on_fpc>("fru_info_get_next_child_priv", {60}, {60, 61}),
        on_fru<libchs_fan_info_get_next, libchs_fru_fan_info_get_next, 40>("fru_fan_info_get_next_priv",
                                                                           "empty fan list!", 100),
        on_fru<libchs_pem_info_get_next, libchs_fru_pem_info_get_next, 50>("fru_pem_info_get_next_priv",
                                                                           "empty pem list!", 200),
        on_fru<libchs_pic_info_get_next, libchs_fru_pic_info_get_next, 60>("fru_pic_info_get_next_priv",
                                                                           "empty pic list!", 300),
        on_fru<libchs_fpc_info_get_next, libchs_fru_fpc_info_get_next, 130>("fru_fpc_info_get_next_priv",
                                                                            "empty fpc list!", 400),
        on_fru<libchs_sib_info_get_next, libchs_fru_sib_info_get_next, 140>("fru_sib_info_get_next_priv",
                                                                            "empty sib list!", 500),
        on_fru<libchs_fpm_info_get_next, libchs_fru_fpm_info_get_next, 150>("fru_fpm_info_get_next_priv",
                                                                            "empty fpm list!", 600),
        on_fru<libchs_ftc_info_get_next, libchs_fru_ftc_info_get_next, 160>("fru_ftc_info_get_next_priv",
                                                                            "empty ftc list!", 700),
        on_fru<libchs_cb_info_get_next, libchs_fru_cb_info_get_next, 170>("fru_cb_info_get_next_priv", "empty cb list!",
                                                                          800),
        on_fru<libchs_tib_info_get_next, libchs_fru_tib_info_get_next, 200>("fru_tib_info_get_next_priv",
                                                                            "empty tib list!\\n", 1400),
    };
}

struct lookup {
    std::string operation, empty;
    uint32_t known, unknown; // keys
    void *(*find)(uint32_t key);
    step next; // the walk over the list that it looks through
    uint32_t (*key)(const void *record);

    void *first(uint32_t wanted) const {
        const std::vector<void *> all = all_of(next);
        const auto found = std::find_if(all.begin(), all.end(), [&](void *one) { return key(one) == wanted; });
        return found == all.end() ? nullptr : *found;
    }
};

template <auto Find, auto Next>
lookup by_key_in(const char *operation, const char *empty, uint32_t known, uint32_t unknown) {
    return {
        operation,          empty, known, unknown, [](uint32_t wanted) -> void * { return Find(wanted); }, take<Next>,
        key<found_by<Next>>};
}

cepm_data_t *epm_of_type(uint32_t type) { return libchs_epm_data_get_by_type(static_cast<cepm_type_t>(type)); }

std::vector<lookup> lookups() {
    return {
        by_key_in<libchs_i2c_dev_info_by_id, libchs_i2c_dev_info_get_next>("i2c_dev_info_by_id_priv",
                                                                           "Empty i2c device list!", 12, 14),
        by_key_in<libchs_tmpsnr_info_get_by_id, libchs_tmpsnr_info_get_next>("tmpsnr_info_get_by_id_priv",
                                                                             "empty temp sensor list!", 909, 1005),
        by_key_in<libchs_voltsnr_info_get_by_id, libchs_voltsnr_info_get_next>("voltsnr_info_get_by_id_priv",
                                                                               "empty volt sensor list!", 1009, 905),
        by_key_in<libchs_led_info_get_by_id, libchs_led_info_get_next>("led_info_get_by_id_priv", "empty led/lcd list!",
                                                                       1109, 1205),
        by_key_in<libchs_lcd_info_get_by_id, libchs_lcd_info_get_next>("lcd_info_get_by_id_priv", "empty lcd list!",
                                                                       1209, 1105),
        by_key_in<libchs_btn_info_get_by_id, libchs_btn_info_get_next>("btn_info_get_by_id_priv", "empty button list!",
                                                                       1309, 0),
        by_key_in<libchs_fru_info_get_by_id, libchs_fru_info_get_next>("fru_info_get_by_id_priv", "empty fru list!",
                                                                       201, 3),
        // 7: every port's front-panel port
        by_key_in<libchs_bcm_port_info_get_by_port_no, next_port>("bcm_port_info_get_by_port_no_priv",
                                                                  "empty asic list!", 8, 7),
        by_key_in<epm_of_type, libchs_epm_data_get_next>("epm_data_get_by_type_priv", "empty epm list!",
                                                         EPM_TYPE_MAINBOARDID, EPM_TYPE_UNKNOWN),
    };
}

// Tests

class Queries : public testing::Test {
  protected:
    void TearDown() override {
        libchs_release();
        epm_null_ops = {};
    }
};

// Every query with nothing to find: null or -1, with the line of an empty list, or silently.
void expect_nothing(bool logged) {
    const auto expect_line = [logged](const auto &row) {
        EXPECT_EQ(texts_of(take_log(), LOG_ERR), logged ? lines{row.operation + ": " + row.empty} : lines{});
    };
    take_log();
    for (const walk &row : walks()) {
        SCOPED_TRACE(row.operation);
        EXPECT_EQ(row.next(nullptr), nullptr);
        expect_line(row);
        EXPECT_EQ(row.next_of_lost(), nullptr);
        expect_line(row);
    }
    for (const lookup &row : lookups()) {
        SCOPED_TRACE(row.operation);
        EXPECT_EQ(row.find(row.known), nullptr);
        expect_line(row);
    }
    uint32_t id = 77;
    EXPECT_EQ(libdst_fru_info_get_id_by_type_slotno(FRU_TYPE_CB, 0, &id), -1);
    EXPECT_EQ(id, 77U);
    EXPECT_EQ(texts_of(take_log(), LOG_ERR),
              logged ? lines{"fru_info_get_id_by_type_slotno_priv: empty fru list!"} : lines{});
    EXPECT_EQ(libdst_resil_get_fru_list(FRU_TYPE_FPC, 1), nullptr);
    EXPECT_EQ(libdst_resil_module_list_get_next(nullptr, nullptr), nullptr);
    EXPECT_EQ(take_log().size(), 0U);
}

TEST_F(Queries, AnEmptyListIsLoggedUnderTheOperationsName) {
    ASSERT_EQ(load("").status, 0);
    expect_nothing(true);
}

TEST_F(Queries, WithoutAModel) {
    expect_nothing(false);
    ASSERT_LT(load("<VERSION/>").status, 0);
    expect_nothing(true);
    ASSERT_NO_FATAL_FAILURE(load_description(true));
    libchs_release();
    expect_nothing(false);
    EXPECT_EQ(libchs_chassis_epm_data_init(), -1);
}

TEST_F(Queries, AnEmptySlotAnswersForItsOperation) {
    ASSERT_NO_FATAL_FAILURE(load_description(true));
    const chassis_ops_t whole = chassis_priv_ops;
    chassis_priv_ops = {};
    expect_nothing(false);
    EXPECT_EQ(libchs_chassis_info_get(), nullptr);
    EXPECT_EQ(libchs_chassis_epm_data_init(), -1);
    resil_module_list_t module{};
    resil_fru_list_t entry{};
    entry.resil_modules.tqh_first = &module;
    EXPECT_EQ(libdst_resil_module_list_get_next(&entry, nullptr), nullptr);
    EXPECT_EQ(take_log().size(), 0U);
    chassis_priv_ops = whole;
}

// The host puts the slot back, and counts what it does.
int releases;
TEST_F(Queries, InitReleasesWhatAReleaseWithoutTheSlotLeft) {
    ASSERT_NO_FATAL_FAILURE(load_description(true));
    static const auto release = chassis_priv_ops.libc_release;
    chassis_priv_ops.libc_release = nullptr;
    libchs_release();
    releases = 0;
    chassis_priv_ops.libc_release = [] {
        ++releases;
        release();
    };
    load_description(true);
    chassis_priv_ops.libc_release = release;
    EXPECT_EQ(releases, 1);
}

// What the walk finds, and what follows copies, unknown records and records that the walk leaves out.
void expect_walk(const walk &row, const keys &expected) {
    take_log();
    const std::vector<void *> found = all_of(row.next);
    EXPECT_EQ(take_log(), row.end_log());
    keys found_keys;
    for (void *record : found)
        found_keys.push_back(row.type.key(record));
    EXPECT_EQ(found_keys, expected);

    const auto expect = [&](void *result, void *wanted, const char *what) {
        EXPECT_EQ(result, wanted) << what;
        EXPECT_EQ(take_log(), wanted ? std::vector<log_line>{} : row.end_log()) << what;
    };
    for (void *record : found) {
        const auto first = std::find_if(found.begin(), found.end(),
                                        [&](void *one) { return row.type.place(one) == row.type.place(record); });
        expect(row.next_of_copy(record), first + 1 == found.end() ? nullptr : *(first + 1), "a copy");
        expect(row.next_of_lost(record), nullptr, "an unknown record");
    }
    const std::vector<void *> others = all_of(row.others);
    take_log();
    for (void *other : others)
        if (std::find(found.begin(), found.end(), other) == found.end())
            expect(row.next(other), nullptr, "a record left out");
}

// Loads a description in each form and calls check(row) for the rows that the form can fill.
void with_each_form(const auto &rows, bool all, int copies, auto check) {
    for (form source : {form::xml, form::config}) {
        SCOPED_TRACE(source == form::xml ? "XML" : "configuration tree");
        ASSERT_NO_FATAL_FAILURE(load_description(all, copies, source));
        for (const auto &row : rows) {
            SCOPED_TRACE(row.operation);
            if (speaks_of(source, row.operation))
                check(row);
        }
        libchs_release();
    }
}

TEST_F(Queries, WalkOneRecord) {
    with_each_form(walks(), false, 1, [](const walk &row) { expect_walk(row, row.one); });
}

TEST_F(Queries, WalkSeveralRecords) {
    with_each_form(walks(), true, 1, [](const walk &row) { expect_walk(row, row.several); });
}

TEST_F(Queries, WalksOverRepeatedKeysEnd) {
    with_each_form(walks(), true, 2, [](const walk &row) {
        std::vector<void *> found = all_of(row.next);
        ASSERT_EQ(found.size(), row.repeated);
        EXPECT_EQ(row.next_of_copy(found[1]), found[1]) << "a copy of the second stands for the first";
        std::sort(found.begin(), found.end());
        EXPECT_EQ(std::unique(found.begin(), found.end()), found.end()) << "each once";
    });
}

TEST_F(Queries, LookUpTheFirstWithTheKey) {
    for (int copies : {1, 2})
        with_each_form(lookups(), true, copies, [](const lookup &row) {
            take_log();
            void *found = row.find(row.known);
            ASSERT_NE(found, nullptr);
            EXPECT_EQ(row.key(found), row.known);
            EXPECT_EQ(row.find(row.unknown), nullptr);
            EXPECT_EQ(take_log().size(), 0U);
            EXPECT_EQ(found, row.first(row.known));
        });
}

// What the rows do not show

TEST_F(Queries, PortsOfAnAsicThatIsNotThere) {
    ASSERT_NO_FATAL_FAILURE(load_description(true));
    take_log();
    bcm_port_info_t *port = libchs_bcm_port_info_get_by_port_no(5);
    for (uint32_t asic : {31U, 99U}) {
        EXPECT_EQ(libchs_bcm_port_info_get_next(asic, nullptr), nullptr);
        EXPECT_EQ(libchs_bcm_port_info_get_next(asic, port), nullptr);
    }
    EXPECT_EQ(take_log().size(), 0U);
}

TEST_F(Queries, AModelByTypeIsFoundByIdAndType) {
    ASSERT_NO_FATAL_FAILURE(load_description(true));
    fru_model_info_t copy = *libdst_fru_model_info_get_next(nullptr);
    const fru_model_info_t *second = libdst_fru_model_info_get_next(&copy);
    copy.fru_type = FRU_TYPE_PEM;
    EXPECT_EQ(libdst_fru_model_info_get_next(&copy), second);
    EXPECT_EQ(libdst_fru_model_info_get_next_by_type(&copy, FRU_TYPE_FAN), nullptr);
    EXPECT_EQ(libdst_fru_model_info_get_next_by_type(&copy, FRU_TYPE_PEM), nullptr);
}

TEST_F(Queries, ControllersTellDevicesOfAFruApart) {
    ASSERT_EQ(load("<DEVICE type='FRU'><FRUDEV id='4' type='FAN'/></DEVICE>"
                   "<DEVICE type='FAN' ctrl='ADT7470' id='1'><FRUID>4</FRUID></DEVICE>"
                   "<DEVICE type='FAN' ctrl='GFC0812' id='1'><FRUID>4</FRUID></DEVICE>"
                   "<DEVICE type='FAN' ctrl='FANSYSPLD' id='1'><FRUID>4</FRUID></DEVICE>")
                  .status,
              0);
    const auto fans = all_of(with(4, libchs_fru_fan_info_get_next));
    ASSERT_EQ(fans.size(), 3U);
    fan_info_t copy = *fans[1];
    EXPECT_EQ(libchs_fru_fan_info_get_next(4, &copy), fans[2]);
}

TEST_F(Queries, ADeviceWithoutFruIsOnNone) {
    ASSERT_EQ(load("<DEVICE type='FRU'><FRUDEV id='4' type='PIC'/></DEVICE>"
                   "<DEVICE type='PIC' ctrl='PIC' id='1'><FRUID>4</FRUID></DEVICE>"
                   "<DEVICE type='PIC' ctrl='PIC' id='2'><FRUID>5</FRUID></DEVICE>")
                  .status,
              0);
    const auto pics = all_of(libchs_pic_info_get_next);
    ASSERT_EQ(pics.size(), 2U);
    ASSERT_EQ(pics[1]->fru_info, nullptr);
    EXPECT_EQ(all_of(with(4, libchs_fru_pic_info_get_next)), std::vector{pics[0]});
    for (uint32_t fru : {4U, 5U})
        EXPECT_EQ(libchs_fru_pic_info_get_next(fru, pics[1]), nullptr);
}

TEST_F(Queries, TheFruTree) {
    EXPECT_EQ(load("").status, 0);
    take_log();
    EXPECT_EQ(libchs_fru_info_get_next_child(nullptr, nullptr), nullptr);
    const lines no_parent = {"fru_info_get_next_child_priv: input parent should not be NULL!"};
    EXPECT_EQ(texts_of(take_log(), LOG_ERR), no_parent) << "before the empty list";

    ASSERT_NO_FATAL_FAILURE(load_description(true));
    take_log();
    fru_info_t *chassis = libchs_fru_info_get_by_id(1);
    const auto children_of = [](fru_info_t *parent) {
        keys ids;
        for (auto *fru : all_of([parent](fru_info_t *at) { return libchs_fru_info_get_next_child(parent, at); }))
            ids.push_back(fru->id);
        return ids;
    };
    EXPECT_EQ(children_of(chassis), (keys{40, 41, 50, 51, 130, 131, 140, 141, 150, 151, 160, 161, 170, 171, 200, 201}));
    EXPECT_EQ(children_of(libchs_fru_info_get_by_id(60)), keys{});
    const std::string end = "fru_info_get_next_child_priv: could not find the fru info for the parent!";
    EXPECT_EQ(texts_of(take_log(), LOG_ERR), (lines{end, end}));
    EXPECT_EQ(libchs_fru_info_get_next_child(nullptr, libchs_fru_info_get_by_id(60)), nullptr);
    EXPECT_EQ(texts_of(take_log(), LOG_ERR), no_parent);
}

TEST_F(Queries, AFruIdByTypeAndSlot) {
    ASSERT_EQ(load("<DEVICE type='FRU'><FRUDEV id='1' type='CB'><SLOTID>255</SLOTID></FRUDEV>"
                   "<FRUDEV id='2' type='FPC'><SLOTID>1</SLOTID></FRUDEV>"
                   "<FRUDEV id='3' type='FPC'><SLOTID>255</SLOTID></FRUDEV>"
                   "<FRUDEV id='4' type='FPC'><SLOTID>255</SLOTID></FRUDEV></DEVICE>")
                  .status,
              0);
    take_log();
    for (auto *query : {libdst_fru_info_get_id_by_type_slotno, fru_info_get_id_by_type_slotno_priv}) {
        uint32_t id = 77;
        EXPECT_EQ(query(FRU_TYPE_FPC, 255, &id), 0);
        EXPECT_EQ(id, 3U) << "the first";
        for (uint32_t slot : {0U, 256U, 257U, 511U, 0xFFFFFFFFU})
            EXPECT_EQ(query(FRU_TYPE_FPC, slot, &id), -1);
        EXPECT_EQ(query(FRU_TYPE_CB, 1, &id), -1);
        EXPECT_EQ(id, 3U) << "untouched";
    }
    EXPECT_EQ(take_log().size(), 0U);
}

TEST_F(Queries, ResiliencyData) {
    ASSERT_EQ(load_config(R"(RESILMODEL = (
        { Type = "FPC"; ASSEMBLYID = 0x10004; }, { Type = "CB"; ASSEMBLYID = 0xFFFE; },
        { Type = "FPC"; ASSEMBLYID = 0xFFFE; }, { Type = "FPC"; ASSEMBLYID = 0xFFFE; },
        { Type = "FPC"; ASSEMBLYID = 4; MODULE = ( { KEY = 1; }, { KEY = 2; } ); } );
)")
                  .status,
              0);
    take_log();
    std::vector<resil_fru_list_t *> frus;
    for (auto *fru = chs_info.resil_info.tqh_first; fru; fru = fru->resil_fru_next.tqe_next)
        frus.push_back(fru);
    ASSERT_EQ(frus.size(), 5U);
    EXPECT_EQ(libdst_resil_get_fru_list(FRU_TYPE_FPC, 0xFFFE), frus[2]) << "of this kind, and the first";
    EXPECT_EQ(libdst_resil_get_fru_list(FRU_TYPE_CB, 0xFFFE), frus[1]);
    EXPECT_EQ(libdst_resil_get_fru_list(FRU_TYPE_FPC, 4), frus[4]) << "all bits of the entry's id count";
    EXPECT_EQ(libdst_resil_get_fru_list(FRU_TYPE_FPC, 5), nullptr);

    resil_module_list_t *const first = libdst_resil_module_list_get_next(frus[4], nullptr);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->resil_minfo.key, 1U);
    resil_module_list_t *const second = libdst_resil_module_list_get_next(frus[0], first);
    ASSERT_TRUE(second) << "by the module's own link";
    EXPECT_EQ(second->resil_minfo.key, 2U);
    EXPECT_EQ(libdst_resil_module_list_get_next(nullptr, first), second);
    EXPECT_EQ(libdst_resil_module_list_get_next(frus[4], second), nullptr);
    EXPECT_EQ(libdst_resil_module_list_get_next(frus[0], nullptr), nullptr) << "an entry without modules";
    EXPECT_EQ(take_log().size(), 0U);
}

} // namespace
