// Every key of a configuration tree and the member that it fills.
#include <functional>

#include "../harness/config.h"
#include "chsinfo/libdst/model/kinds.h"

namespace {

using texts = std::vector<std::string>;

class ConfigMembers : public ConfigTest {};

std::string text_of(const char *member) { return member; }
std::string text_of(double member) { return std::to_string(member); }
template <class Int>
    requires(std::is_integral_v<Int> || std::is_enum_v<Int>)
std::string text_of(Int member) { return std::to_string(static_cast<std::int64_t>(member)); }

// The member at the end of a path, through records held by pointer.
template <class R> const R &at(const R &record) { return record; }
template <class R, class First> const auto &at(const R &record, First first, auto... rest) {
    if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(record.*first)>>)
        return at(*(record.*first), rest...);
    else
        return at(record.*first, rest...);
}

// A key of a group, and the member that it fills, as text.
template <class R> struct field {
    std::string key; // none: a member that has its value without
    std::string written;
    std::string kept;
    std::string missing; // what the member holds without the key
    std::function<std::string(const R &)> member;
};
template <class R> field<R> without(const std::string &missing, field<R> one) {
    one.missing = missing;
    return one;
}

// A key that is written like this, with the value that the member then has.
template <class R, class M>
field<R> spelt(const char *key, std::string written, std::string kept, M R::*first, auto... rest) {
    std::remove_cvref_t<decltype(at(std::declval<const R &>(), first, rest...))> zero{};
    return {key, std::move(written), std::move(kept), text_of(zero),
            [=](const R &record) { return text_of(at(record, first, rest...)); }};
}

// 32 bits, the low eight of which are unlike those of the numbers before, and not 0.
std::uint32_t next_number() {
    static std::uint32_t last = 0x12345600;
    return last += last % 0x100 == 0xff ? 2 : 1;
}

// An integer of which the low bits are kept.
template <class R, class M> field<R> number(const char *key, M R::*first, auto... rest) {
    const std::uint32_t value = next_number();
    using member_t = std::remove_cvref_t<decltype(at(std::declval<const R &>(), first, rest...))>;
    return spelt(key, std::to_string(value), text_of(static_cast<member_t>(value)), first, rest...);
}

// A text longer than its member.
template <class R, class M> field<R> text(const char *key, M R::*first, auto... rest) {
    std::string value;
    while (value.size() < 200)
        value += key;
    const std::size_t size = sizeof at(std::declval<const R &>(), first, rest...);
    return spelt(key, '"' + value + '"', value.substr(0, size - 1), first, rest...);
}

// A name of a table; what a missing one gives.
template <class R, class M>
field<R> name(const char *key, const char *written, int kept, int missing, M R::*first, auto... rest) {
    return without(text_of(missing), spelt(key, '"' + std::string(written) + '"', text_of(kept), first, rest...));
}

// A key that this record does not read.
template <class R, class M> field<R> unread(const char *key, M R::*first, auto... rest) {
    auto one = number(key, first, rest...);
    one.kept = one.missing;
    return one;
}

// A member that no key fills.
template <class R, class M> field<R> fixed(int value, M R::*first, auto... rest) {
    return without(text_of(value), spelt("", "", text_of(value), first, rest...));
}

// Where the groups stand in the tree, and what each has besides its fields.
struct place {
    std::string before;
    std::string each;
    std::string after = ");";
    bool strict = false; // a record must have all its keys
};

// Reads groups that have all the fields, and all but one, one after the other.
template <class R> void expect_fields(const place &where, const std::vector<field<R>> &fields, auto records) {
    SCOPED_TRACE(where.before + where.each);
    std::vector<texts> expected;
    std::string groups;
    for (std::size_t left_out = where.strict ? fields.size() : 0; left_out <= fields.size(); ++left_out) {
        groups += (groups.empty() ? "{ " : ", { ") + where.each;
        expected.emplace_back();
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (i != left_out && !fields[i].key.empty())
                groups += " " + fields[i].key + " = " + fields[i].written + ";";
            expected.back().push_back(i != left_out ? fields[i].kept : fields[i].missing);
        }
        groups += " }";
    }
    ASSERT_EQ(read_config(where.before + groups + where.after), 0);
    std::vector<texts> read;
    for (const R &record : records()) {
        read.emplace_back();
        for (const auto &field : fields)
            read.back().push_back(field.member(record));
    }
    EXPECT_EQ(read, expected);
}

TEST_F(ConfigMembers, KeysOfFrus) {
    using node = fru_module_list_t;
    constexpr auto fru = &node::fru_minfo;
    const auto slot = number("SLOTID", fru, &fru_info_t::slot);
    expect_fields<node>(
        {"FRUS = (", ""},
        {number("id", fru, &fru_info_t::id), name("Type", "PEM", FRU_TYPE_PEM, -1, fru, &fru_info_t::fru_type),
         text("NAME", fru, &fru_info_t::name), slot,
         without(slot.kept, number("LOGICAL_SLOTID", fru, &fru_info_t::logical_slot)),
         spelt("PARENT", "\"77\"", "77", &node::parent_id), number("I2CDEVID", &node::i2cdev_id),
         without("-1", number("I2CDEVEXTID", &node::i2cdev_id_ext)),
         name("REMOVABLE_TYPE", "VIRTUAL", 2, 0, fru, &fru_info_t::fru_removable_type),
         number("DRIVERID", fru, &fru_info_t::driverid), name("EPMVALID", "true", 1, 0, fru, &fru_info_t::epmvalid),
         number("HYST_OFFSET", fru, &fru_info_t::hyst_offset), number("EPMSIZE", fru, &fru_info_t::epmsize),
         number("MAX_ALARM_REASONS", fru, &fru_info_t::max_alarm_reasons)},
        [] { return dst::entries(chs_info.fru_info); });
}

TEST_F(ConfigMembers, NegativeI2cDevicesOfFrus) {
    ASSERT_EQ(read_config("FRUS = ( { I2CDEVID = -5; I2CDEVEXTID = -5; }, { I2CDEVID = -1; }, "
                          "{ I2CDEVID = 0x80000000L; } );\n"),
              0);
    std::vector<std::pair<int, int>> read;
    for (const fru_module_list_t &fru : dst::entries(chs_info.fru_info))
        read.emplace_back(fru.i2cdev_id, fru.i2cdev_id_ext);
    EXPECT_EQ(read, (std::vector<std::pair<int, int>>{{-1, -5}, {-1, -1}, {-1, -1}}));
}

TEST_F(ConfigMembers, KeysOfSimulatedReadings) {
    const std::string data = "FRUS = ( { SIM_FRU_DATA = ( { ";
    const auto first = []() -> sim_fru_data_t & {
        return *chs_info.fru_info.tqh_first->fru_minfo.virtual_fru_data.tqh_first;
    };
    expect_fields<sim_fru_data_t>({"FRUS = ( { SIM_FRU_DATA = (", "", "); } );"},
                                  {text("FRU_PRESENCE", &sim_fru_data_t::presence),
                                   number("TEMPERATURE", &sim_fru_data_t::temperature),
                                   number("FAN_SPEED_RPM", &sim_fru_data_t::fan_rpm),
                                   number("FAN_SPEED_PERCENTAGE", &sim_fru_data_t::fan_speed_percent),
                                   number("INPUT_VOLTAGE", &sim_fru_data_t::input_voltage),
                                   number("OUTPUT_VOLTAGE", &sim_fru_data_t::output_voltage),
                                   number("INPUT_CURRENT", &sim_fru_data_t::input_current),
                                   number("OUTPUT_CURRENT", &sim_fru_data_t::output_current),
                                   number("FAN_AF_TYPE", &sim_fru_data_t::fan_af_type)},
                                  [] { return dst::entries(chs_info.fru_info.tqh_first->fru_minfo.virtual_fru_data); });
    expect_fields<sim_ss2rpm_fan_info_t>({data + "SIM_SS2RPM = (", "", "); } ); } );"},
                                         {number("SIM_SPEED", &sim_ss2rpm_fan_info_t::speed),
                                          number("SIM_RPM", &sim_ss2rpm_fan_info_t::rpm),
                                          number("SIM_TOLERANCE", &sim_ss2rpm_fan_info_t::tolerance),
                                          number("SIM_PWMVAL", &sim_ss2rpm_fan_info_t::pwmval)},
                                         [&] { return dst::entries(first().sim_ss2rpm); });
    expect_fields<sim_tmpsnr_threshold_t>(
        {data + "SIM_THRESHOLD = (", "NAME = \"none\";", "); } ); } );"},
        {number("id", &sim_tmpsnr_threshold_t::id), number("Type", &sim_tmpsnr_threshold_t::aflow_type),
         number("SIM_FIRE", &sim_tmpsnr_threshold_t::fire), spelt("", "", "", &sim_tmpsnr_threshold_t::name)},
        [&] { return dst::entries(first().sim_ts_threshold); });
    expect_fields<sim_limit_t>({data + "SIM_THRESHOLD = ( { SIM_LIMIT = (", "", "); } ); } ); } );"},
                               {number("id", &sim_limit_t::id), number("TEMP", &sim_limit_t::temp),
                                without("-1", number("FANSTEPID", &sim_limit_t::fan_step_id))},
                               [&] { return dst::entries(first().sim_ts_threshold.tqh_first->limit_list); });
    expect_fields<sim_alarm_info_t>({data + "SIM_THRESHOLD = ( { SIM_ALARM = (", "", "); } ); } ); } );"},
                                    {number("id", &sim_alarm_info_t::id), number("LIMIT", &sim_alarm_info_t::alarm),
                                     name("Type", "BADFAN_YELLOW", 3, -1, &sim_alarm_info_t::type)},
                                    [&] { return dst::entries(first().sim_ts_threshold.tqh_first->alarm_list); });
}

TEST_F(ConfigMembers, KeysOfI2cDevices) {
    using node = libdst_i2cdev_info_t;
    constexpr auto device = &node::i2cdev_info;
    expect_fields<node>(
        {"BUS = { I2CDEV = (", "", "); };"},
        {number("id", device, &i2c_dev_info_t::id), number("I2CADDR", device, &i2c_dev_info_t::i2caddr),
         number("SEGMENT", device, &i2c_dev_info_t::segment), number("DRIVERID", device, &i2c_dev_info_t::driver_id),
         number("MUXADDR", device, &i2c_dev_info_t::muxaddr), number("MUXADDR1", device, &i2c_dev_info_t::muxaddr1),
         number("MUXADDR2", device, &i2c_dev_info_t::muxaddr2), number("SMBUS", device, &i2c_dev_info_t::smbus),
         number("PRESENCE_OFFSET", device, &i2c_dev_info_t::presence_offset),
         number("PRESENCE_SMBUS", device, &i2c_dev_info_t::presence_smbus),
         number("PRESENCE_CPLD_ADDR", device, &i2c_dev_info_t::presence_cpld_addr),
         number("REGOFFSET", device, &i2c_dev_info_t::reg_offset),
         name("Type", "GFC0812", I2C_TYPE_GFC0812, -1, device, &i2c_dev_info_t::type),
         text("NAME", device, &i2c_dev_info_t::name), text("PARENT", device, &i2c_dev_info_t::parent),
         text("LOCATION", device, &i2c_dev_info_t::location), text("SYSPATH", device, &i2c_dev_info_t::syspath),
         fixed(0, device, &i2c_dev_info_t::master_no), fixed(0, device, &i2c_dev_info_t::port_no)},
        [] { return dst::entries(chs_info.chs_cinfo.i2cdev_info_list); });
}

TEST_F(ConfigMembers, KeysOfModels) {
    using node = frumodel_module_list_t;
    using model = fru_model_info_t;
    constexpr auto held = &node::frumodel_minfo;
    const std::vector<field<node>> fields = {
        number("id", held, &model::id),
        number("ASSEMBLYID", held, &model::asm_id),
        number("POWER_RATING", held, &model::power_rating),
        number("PEAK_POWER", held, &model::peak_power),
        number("NFANS", held, &model::nfans),
        name("PEM_INPSW_ACT", "true", 1, 0, held, &model::pem_inpsw_act),
        name("PEMTYPE", "DC", 2, 0, held, &model::power_type),
        name("AIRFLOWTYPE", "AFO", 1, 0, held, &model::aflow_type),
        name("Type", "FPM", FRU_TYPE_FPM, -1, held, &model::fru_type),
        text("PARTNO", held, &model::part_number),
        text("NAME", held, &model::name),
        text("DESC", held, &model::desc),
        text("FRUDESC", held, &model::fru_desc),
        name("FRUEMP", "true", 1, 0, held, &model::fru_level_empolicy),
        number("DRIVERID", held, &model::driverid),
        name("FRU_ENH_TEMPTHRESHOLD", "true", 1, 0, held, &model::enh_temp_threshold),
        number("MIN_FAN_SPEED_PERCENT", held, &model::min_fan_speed),
        number("NFEEDS", held, &model::nfeeds)};
    expect_fields<node>({"FRUMODEL = { MODEL = (", "", "); };"}, fields,
                        [] { return dst::entries(chs_info.frumodel_info); });
    expect_fields<node>({"CHSMODEL = { MODEL = (", "", "); };"}, fields,
                        [] { return dst::entries(chs_info.chsmodel_info); });
    expect_fields<ambient_temp_t>(
        {"FRUMODEL = { MODEL = ( { AMBIENT_TEMP_DATA = (", "", "); } ); };"},
        {number("AMBIENT_TEMPERATURE", &ambient_temp_t::temperature),
         number("AMBIENT_FRU_POWER", &ambient_temp_t::max_power),
         number("AMBIENT_FRU_MIC_POWER", &ambient_temp_t::mic_max_power),
         number("AMBIENT_FRU_BANDWIDTH", &ambient_temp_t::bandwidth)},
        [] { return dst::entries(chs_info.frumodel_info.tqh_first->frumodel_minfo.ambient_temp_info); });
}

TEST_F(ConfigMembers, KeysOfResiliencyData) {
    constexpr auto fru = &resil_fru_list_t::resil_finfo;
    constexpr auto module = &resil_module_list_t::resil_minfo;
    constexpr auto error = &resil_error_list_t::resil_einfo;
    expect_fields<resil_fru_list_t>({"RESILMODEL = (", ""},
                                    {number("ASSEMBLYID", fru, &resil_fru_info_t::id),
                                     name("Type", "SIB", FRU_TYPE_SIB, -1, fru, &resil_fru_info_t::type),
                                     number("NMODULES", fru, &resil_fru_info_t::nmodules)},
                                    [] { return dst::entries(chs_info.resil_info); });
    expect_fields<resil_module_list_t>({"RESILMODEL = ( { MODULE = (", "", "); } );"},
                                       {text("MNAME", module, &resil_module_info_t::mname),
                                        number("KEY", module, &resil_module_info_t::key),
                                        number("NERRORS", module, &resil_module_info_t::nerrors)},
                                       [] { return dst::entries(chs_info.resil_info.tqh_first->resil_modules); });
    expect_fields<resil_error_list_t>(
        {"RESILMODEL = ( { MODULE = ( { ERRORS = (", "", "); } ); } );"},
        {number("OFFSET", error, &resil_error_info_t::offset), number("CHANNEL", error, &resil_error_info_t::channel),
         number("THRESHOLD", error, &resil_error_info_t::threshold), number("LIMIT", error, &resil_error_info_t::limit),
         number("PERSIST", error, &resil_error_info_t::persistence), text("DESC", error, &resil_error_info_t::desc)},
        [] { return dst::entries(chs_info.resil_info.tqh_first->resil_modules.tqh_first->resil_errors); });
}

std::string device(const std::string &type, const std::string &ctrl) {
    return "Type = \"" + type + "\"; ctrl = \"" + ctrl + "\";";
}

const std::vector<field<ss2rpm_fan_info_t>> speed_fields = {
    number("SPEED", &ss2rpm_fan_info_t::speed),   number("AFISPEED", &ss2rpm_fan_info_t::afi_speed),
    number("RPM", &ss2rpm_fan_info_t::rpm),       number("TOLERANCE", &ss2rpm_fan_info_t::tolerance),
    number("PWMVAL", &ss2rpm_fan_info_t::pwmval), number("AFIPWMVAL", &ss2rpm_fan_info_t::afi_pwmval)};

template <class Module> Module *first_module() {
    return dst::module_of<Module>(chs_info.fan_info.tqh_first->fan_minfo);
}

// The trays of a controller, their fans, and the fans' speed tables where they have one.
template <class Module, class Fan>
void expect_fan_fields(const std::string &ctrl, ctrl_type_t type, const std::vector<field<Fan>> &fan_fields) {
    using node = fan_module_list_t;
    constexpr auto tray = &node::fan_minfo;
    const std::string opened = "DEVICES = ( { " + device("FAN", ctrl) + " id = 4; FAN = (";
    expect_fields<node>({"DEVICES = (", device("FAN", ctrl) + " id = 4; FAN = ( { } ); SLOTID = 5;"},
                        {text("NAME", tray, &fan_info_t::name), number("DRIVERID", tray, &fan_info_t::driver_id),
                         number("FRUID", &node::fru_id), fixed(4, tray, &fan_info_t::id),
                         fixed(0, tray, &fan_info_t::slot), fixed(type, tray, &fan_info_t::ctrl_type)},
                        [] { return dst::entries(chs_info.fan_info); });
    expect_fields<Fan>({opened, "", "); } );"}, fan_fields,
                       [] { return dst::entries(first_module<Module>()->fan_info); });
    EXPECT_EQ(first_module<Module>()->nfans, type == CTRL_TYPE_FANSYSPLD ? 0 : fan_fields.size() + 1);
    if constexpr (requires(Fan fan) { fan.ss2rpm; })
        expect_fields<ss2rpm_fan_info_t>({opened + "{ SS2RPM = (", "", "); } ); } );"}, speed_fields, [] {
            return dst::entries(first_module<Module>()->fan_info.tqh_first->ss2rpm);
        });
}

template <class Fan> std::vector<field<Fan>> selected_fan_fields() {
    return {number("id", &Fan::fan_id),
            text("NAME", &Fan::name),
            number("TACH_LOW_BYTE_REG", &Fan::tach_low_byte_reg),
            unread("TACH_HIGH_BYTE_REG", &Fan::tach_high_byte_reg),
            number("PWM_DUTY_CYCLE_REG", &Fan::pwm_duty_cycle_reg),
            number("FAN_SELECT_REG", &Fan::ec_i2cs_fan_select)};
}

TEST_F(ConfigMembers, KeysOfFanTrays) {
    expect_fan_fields<adt7470_module_info_t, adt7470_fan_info_t>(
        "ADT7470", CTRL_TYPE_ADT7470,
        {number("id", &adt7470_fan_info_t::fan_id), text("NAME", &adt7470_fan_info_t::name),
         number("TACH_LOW_BYTE_REG", &adt7470_fan_info_t::tach_low_byte_reg),
         number("TACH_HIGH_BYTE_REG", &adt7470_fan_info_t::tach_high_byte_reg),
         number("PWM_DUTY_CYCLE_REG", &adt7470_fan_info_t::pwm_duty_cycle_reg),
         number("SPEED_REG", &adt7470_fan_info_t::speed_reg)});
    expect_fan_fields<gfc0812_module_info_t>("GFC0812", CTRL_TYPE_GFC0812, selected_fan_fields<gfc0812_fan_info_t>());
    expect_fan_fields<haskel_9hv0812_module_info_t>("9HV0812", CTRL_TYPE_9HV0812,
                                                    selected_fan_fields<haskel_9hv0812_fan_info_t>());
    expect_fan_fields<pelian_fan_syspld_module_info_t, pelian_fan_syspld_info_t>(
        "FANSYSPLD", CTRL_TYPE_FANSYSPLD,
        {number("id", &pelian_fan_syspld_info_t::fan_id), text("NAME", &pelian_fan_syspld_info_t::name),
         number("PEL_SYSPLD_FAN_CTRL_REG", &pelian_fan_syspld_info_t::fan_ctrl_reg),
         number("PEL_SYSPLD_FAN_CTRL_SHIFT_BITS", &pelian_fan_syspld_info_t::fan_ctrl_shift_bits),
         number("PEL_SYSPLD_FAN_SPEED_REG", &pelian_fan_syspld_info_t::fan_speed_reg)});
}

// A device of one controller, whose record `held` points to: the keys that all kinds have, then `more`.
template <class K, class Record>
void expect_device_fields(const char *type, const char *ctrl, ctrl_type_t ctrl_type, Record *K::entry_t::*held,
                          std::vector<field<typename K::entry_t>> fields, const char *also = "", bool strict = false) {
    using node = typename K::entry_t;
    fields.push_back(number("id", held, &Record::id));
    fields.push_back(number("DRIVERID", held, &Record::driver_id));
    fields.push_back(number("FRUID", &node::fru_id));
    if constexpr (requires(Record record) { record.name; })
        fields.push_back(text("NAME", held, &Record::name));
    fields.push_back(fixed(ctrl_type, held, &Record::ctrl_type));
    expect_fields<node>({"DEVICES = (", device(type, ctrl) + also, ");", strict}, fields,
                        [] { return dst::entries(K::list(&chs_info)); });
}

TEST_F(ConfigMembers, KeysOfBoardsAndPowerSupplies) {
    using cb = cb_module_list_t;
    expect_device_fields<dst::fpcs>("FPC", "FPC", CTRL_TYPE_FPC, &fpc_module_list_t::fpc_minfo, {});
    expect_device_fields<dst::sibs>("SIB", "SIB", CTRL_TYPE_SIB, &sib_module_list_t::sib_minfo, {});
    expect_device_fields<dst::fpms>("FPM", "FPM", CTRL_TYPE_FPM, &fpm_module_list_t::fpm_minfo, {});
    expect_device_fields<dst::ftcs>("FTC", "FTC", CTRL_TYPE_FTC, &ftc_module_list_t::ftc_minfo, {});
    expect_device_fields<dst::tibs>("TIB", "TIB", CTRL_TYPE_TIB, &tib_module_list_t::tib_minfo, {});
    expect_device_fields<dst::pems>("PEM", "PSUEPM", CTRL_TYPE_PSUEPM, &pem_module_list_t::pem_minfo, {});
    expect_device_fields<dst::cbs>("CB", "CB", CTRL_TYPE_CB, &cb::cb_minfo,
                                   {number("NTSENSORS", &cb::cb_minfo, &cb_info_t::ntsensors),
                                    number("NVSENSORS", &cb::cb_minfo, &cb_info_t::nvsensors)});
    expect_fields<ss2rpm_fan_info_t>({"DEVICES = ( { " + device("PEM", "PSUEPM") + " SS2RPM = (", "", "); } );"},
                                     speed_fields,
                                     [] { return dst::entries(chs_info.pem_info.tqh_first->pem_minfo->ss2rpm); });
}

TEST_F(ConfigMembers, KeysOfTemperatureSensors) {
    using node = tmpsnr_module_list_t;
    constexpr auto sensor = &node::ts_minfo;
    const auto reg = number("REG_OFFSET", sensor, &tmpsnr_info_t::reg_offset);
    const auto fpga = number("CFPGAID", sensor, &tmpsnr_info_t::cfpga_id);
    const auto no_reg = unread("REG_OFFSET", sensor, &tmpsnr_info_t::reg_offset);
    const auto no_fpga = unread("CFPGAID", sensor, &tmpsnr_info_t::cfpga_id);
    const auto expect_chip = [&](const char *ctrl, ctrl_type_t type, std::vector<field<node>> fields,
                                 bool strict = false) {
        for (auto member : {&tmpsnr_info_t::mux, &tmpsnr_info_t::mux_channel, &tmpsnr_info_t::tmp_index})
            fields.push_back(fixed(0, sensor, member));
        expect_device_fields<dst::tmpsnrs>("TMPSNR", ctrl, type, sensor, fields,
                                           "THRESHOLD = ( { } ); MUX = 1; MUX_CHANNEL = 2; TMP_INDEX = 3;", strict);
        EXPECT_EQ(texts_of(take_log(), LOG_ERR), texts{});
    };
    expect_chip("TMP435", CTRL_TYPE_TMP435, {no_reg, no_fpga});
    expect_chip("CORETEMP", CTRL_TYPE_CORETEMP, {no_reg, no_fpga});
    expect_chip("TMP432", CTRL_TYPE_TMP432, {reg, fpga});
    expect_chip("LM73", CTRL_TYPE_LM73, {no_reg, no_fpga});
    expect_chip("HMCTEMP", CTRL_TYPE_HMCTEMP, {reg, no_fpga}, true);
    expect_chip("TMP75", CTRL_TYPE_TMP75, {reg, fpga});
    expect_chip("KXTEMP", CTRL_TYPE_KXCHIPTEMP, {reg, no_fpga}, true);
    expect_chip("WQTEMP", CTRL_TYPE_WQCHIPTEMP, {reg, no_fpga}, true);
    expect_chip("DIETEMP", CTRL_TYPE_DIETEMP, {no_reg, no_fpga});

    const std::string opened = "DEVICES = ( { " + device("TMPSNR", "LM73") + " THRESHOLD = (";
    const auto first = []() -> tmpsnr_threshold_t & {
        return *chs_info.ts_info.tqh_first->ts_minfo->threshold_list.tqh_first;
    };
    expect_fields<tmpsnr_threshold_t>(
        {opened, "", "); } );"},
        {number("id", &tmpsnr_threshold_t::id), number("Type", &tmpsnr_threshold_t::aflow_type),
         number("FIRE", &tmpsnr_threshold_t::fire), text("NAME", &tmpsnr_threshold_t::name)},
        [] { return dst::entries(chs_info.ts_info.tqh_first->ts_minfo->threshold_list); });
    expect_fields<limit_t>({opened + "{ LIMIT = (", "", "); } ); } );"},
                           {number("id", &limit_t::id), number("TEMP", &limit_t::temp),
                            without("-1", number("FANSTEPID", &limit_t::fan_step_id))},
                           [&] { return dst::entries(first().limit_list); });
    expect_fields<alarm_info_t>({opened + "{ ALARM = (", "", "); } ); } );"},
                                {number("id", &alarm_info_t::id), number("LIMIT", &alarm_info_t::alarm),
                                 name("Type", "SYS_YELLOW", 1, -1, &alarm_info_t::type)},
                                [&] { return dst::entries(first().alarm_list); });
}

TEST_F(ConfigMembers, KeysOfVoltageSensors) {
    constexpr auto sensor = &voltsnr_module_list_t::vs_minfo;
    const auto expect_chip = [&](const char *ctrl, ctrl_type_t type, bool reg, bool factor, bool mux, bool fpga) {
        const auto number_if = [&](bool read, const char *key, auto member) {
            return read ? number(key, sensor, member) : unread(key, sensor, member);
        };
        const std::string no_factor = text_of(0.0);
        expect_device_fields<dst::voltsnrs>("VOLTSNR", ctrl, type, sensor,
                                            {number_if(reg, "REG_OFFSET", &voltsnr_info_t::reg_offset),
                                             number("MARGIN", sensor, &voltsnr_info_t::margin),
                                             number("DEF_VOLTAGE", sensor, &voltsnr_info_t::def_voltage),
                                             spelt("CONVERSION_FACTOR", "-2.5", factor ? text_of(-2.5) : no_factor,
                                                   sensor, &voltsnr_info_t::conversion_factor),
                                             number_if(mux, "MUX_ADDR", &voltsnr_info_t::mux_addr),
                                             number_if(mux, "MUX_SEGMENT", &voltsnr_info_t::mux_segment),
                                             number_if(fpga, "CFPGAID", &voltsnr_info_t::cfpga_id)});
    };
    expect_chip("LTC3880", CTRL_TYPE_LTC3880, true, false, false, false);
    expect_chip("MAX207XX", CTRL_TYPE_MAX207XX, false, true, true, true);
    expect_chip("ADS7830", CTRL_TYPE_ADS7830, true, true, false, true);
}

TEST_F(ConfigMembers, KeysOfIndicatorsAndPics) {
    constexpr auto led = &ledlcd_module_list_t::ll_minfo;
    constexpr auto button = &button_module_list_t::btn_minfo;
    constexpr auto pic = &pic_module_list_t::pic_minfo;
    for (const auto &[ctrl, type] :
         std::vector<std::pair<const char *, ctrl_type_t>>{{"KORVLED", CTRL_TYPE_KORVLED},
                                                           {"DURNLED", CTRL_TYPE_DURNLED},
                                                           {"GENERICLED", CTRL_TYPE_GENERICLED},
                                                           {"ZMBLED", CTRL_TYPE_ZMBLED},
                                                           {"CB", CTRL_TYPE_CB}})
        expect_device_fields<dst::leds>("LED", ctrl, type, led,
                                        {name("LEDTYPE", "POWER", LED_TYPE_POWER, -1, led, &led_info_t::led_type)});
    expect_device_fields<dst::btns>("BTN", "QVLBTN", CTRL_TYPE_QVLBTN, button,
                                    {name("BTNTYPE", "POWER", BTN_TYPE_POWER, -1, button, &btn_info_t::button_type)});
    expect_device_fields<dst::pics>(
        "PIC", "PIC", CTRL_TYPE_PIC, pic,
        {number("CAPABILITY", pic, &pic_info_t::capablility), number("PICI2CID", pic, &pic_info_t::pic_i2cid)});
}
} // namespace
