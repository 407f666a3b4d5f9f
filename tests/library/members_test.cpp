// Members that the dump does not show, in the model of a loaded document.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "../harness/load.h"
#include "chsinfo/libdst/model/kinds.h"

namespace {

using numbers = std::vector<std::int64_t>;

class Members : public testing::Test {
  protected:
    // Loads devices that sit on FRU 0.
    static load_result load_devices(const std::string &devices) {
        load_result result = load(R"(<DEVICE type="FRU"><FRUDEV id="0" type="CB"/></DEVICE>)" + devices);
        EXPECT_EQ(result.status, 0);
        return result;
    }
    void TearDown() override { libchs_release(); }
};

numbers cells(const ss2rpm_fan_info_list_t &table) {
    numbers all;
    for (const ss2rpm_fan_info_t &row : dst::entries(table))
        all.insert(all.end(), {row.speed, row.rpm, row.tolerance, row.pwmval, row.afi_speed, row.afi_pwmval});
    return all;
}

// The speed tables of the fans of a module, one after the other.
template <class Module> std::vector<numbers> speed_tables(fan_info_t &tray) {
    std::vector<numbers> tables;
    for (const auto &fan : dst::entries(dst::module_of<Module>(&tray)->fan_info))
        tables.push_back(cells(fan.ss2rpm));
    return tables;
}

constexpr char speeds[] = R"(
    <FAN id="0"><TACH_HIGH_BYTE_REG>0x2b</TACH_HIGH_BYTE_REG>
      <SS2RPM><SPEED>050</SPEED><RPM>0x10</RPM><TOLERANCE>015</TOLERANCE><PWMVAL>0x80</PWMVAL></SS2RPM>
      <SS2RPM><PWMVAL>010</PWMVAL><RPM>-1</RPM></SS2RPM>
      <SS2RPM><SPEED>030</SPEED></SS2RPM>
    </FAN>
    <FAN id="1"/>
    <FAN id="2"><SS2RPM/></FAN></DEVICE>)";

TEST_F(Members, FanSpeedTablesKeepTheirRowsInOrder) {
    std::string trays;
    for (const char *controller : {"ADT7470", "GFC0812", "9HV0812"})
        trays += std::string("<DEVICE type=\"FAN\" id=\"0\" ctrl=\"") + controller + "\">" + speeds;
    load_devices(trays);
    const std::vector<numbers> expected = {
        {50, 0, 15, 128, 0, 0, 0, 4294967295, 0, 8, 0, 0, 30, 0, 0, 0, 0, 0}, {}, {0, 0, 0, 0, 0, 0}};
    std::vector<std::vector<numbers>> read;
    for (fan_info_t &tray : dst::records<dst::fans>(&chs_info)) {
        if (tray.ctrl_type == CTRL_TYPE_ADT7470)
            read.push_back(speed_tables<adt7470_module_info_t>(tray));
        if (tray.ctrl_type == CTRL_TYPE_GFC0812)
            read.push_back(speed_tables<gfc0812_module_info_t>(tray));
        if (tray.ctrl_type == CTRL_TYPE_9HV0812)
            read.push_back(speed_tables<haskel_9hv0812_module_info_t>(tray));
    }
    EXPECT_EQ(read, (std::vector<std::vector<numbers>>(3, expected)));
}

TEST_F(Members, RegistersOfTheSystemPldAreItsOwn) {
    load_devices(R"(
        <DEVICE type="FAN" ctrl="FANSYSPLD" id="0"><NFANS>3</NFANS>
          <FAN id="4"><NAME>A</NAME><TACH_LOW_BYTE_REG>0x9</TACH_LOW_BYTE_REG>
            <PEL_SYSPLD_FAN_CTRL_REG>0x1c</PEL_SYSPLD_FAN_CTRL_REG>
            <PEL_SYSPLD_FAN_CTRL_SHIFT_BITS>010</PEL_SYSPLD_FAN_CTRL_SHIFT_BITS>
            <PEL_SYSPLD_FAN_SPEED_REG>0xFFFFFFFF</PEL_SYSPLD_FAN_SPEED_REG></FAN>
          <FAN id="1"/></DEVICE>)");
    fan_info_t *tray = chs_info.fan_info.tqh_first->fan_minfo;
    const auto &module = *dst::module_of<pelian_fan_syspld_module_info_t>(tray);
    EXPECT_EQ(module.nfans, 3);
    std::vector<std::string> names;
    numbers read;
    for (const pelian_fan_syspld_info_t &fan : dst::entries(module.fan_info)) {
        names.emplace_back(fan.name);
        read.insert(read.end(), {fan.fan_id, fan.fan_ctrl_reg, fan.fan_ctrl_shift_bits, fan.fan_speed_reg});
    }
    EXPECT_EQ(names, (std::vector<std::string>{"A", ""}));
    EXPECT_EQ(read, (numbers{4, 28, 8, 0x7fffffff, 1, 0, 0, 0}));
}

TEST_F(Members, HighByteOfTheTachometerIsPassedOverWhereFansAreSelected) {
    load_devices(std::string(R"(<DEVICE type="FAN" ctrl="GFC0812" id="0">)") + speeds +
                 R"(<DEVICE type="FAN" ctrl="9HV0812" id="1">)" + speeds);
    fan_module_list_t *first = chs_info.fan_info.tqh_first;
    fan_module_list_t *second = first->fan_next.tqe_next;
    EXPECT_EQ(dst::module_of<gfc0812_module_info_t>(first->fan_minfo)->fan_info.tqh_first->tach_high_byte_reg, 0U);
    EXPECT_EQ(dst::module_of<haskel_9hv0812_module_info_t>(second->fan_minfo)->fan_info.tqh_first->tach_high_byte_reg,
              0U);
}

TEST_F(Members, PowerSuppliesHaveNoSpeedTable) {
    load_devices(R"(<DEVICE type="PEM" ctrl="PSUEPM" id="0"><SS2RPM><SPEED>1</SPEED></SS2RPM></DEVICE>)");
    EXPECT_EQ(chs_info.pem_info.tqh_first->pem_minfo->ss2rpm.tqh_first, nullptr);
}

TEST_F(Members, TemperatureSensorsKeepTheLowEightBits) {
    load_devices(R"(
        <DEVICE type="TMPSNR" ctrl="TMP75" id="0">
          <REG_OFFSET>0x1ff</REG_OFFSET><CFPGAID>0x102</CFPGAID><MUX>010</MUX><MUX_CHANNEL>0x4</MUX_CHANNEL>
          <TMP_INDEX>260</TMP_INDEX><FRUTYPE>any FRU</FRUTYPE></DEVICE>
        <DEVICE type="TMPSNR" ctrl="LM73" id="1"/>)");
    numbers read;
    for (const tmpsnr_info_t &sensor : dst::records<dst::tmpsnrs>(&chs_info))
        read.insert(read.end(), {sensor.reg_offset, sensor.cfpga_id, sensor.mux, sensor.mux_channel, sensor.tmp_index});
    EXPECT_EQ(read, (numbers{0xff, 2, 8, 4, 4, 0, 0, 0, 0, 0}));
    EXPECT_STREQ(chs_info.ts_info.tqh_first->ts_minfo->fru_type, "any FRU");
}

TEST_F(Members, VoltageSensorsKeepThirtyTwoBits) {
    load_devices(R"(
        <DEVICE type="VOLTSNR" ctrl="MAX207XX" id="0">
          <REG_OFFSET>0x1ff</REG_OFFSET><MARGIN>010</MARGIN><DEF_VOLTAGE>-1</DEF_VOLTAGE>
          <CONVERSION_FACTOR>2.5</CONVERSION_FACTOR><MUX_ADDR>0x170</MUX_ADDR><MUX_SEGMENT>0x102</MUX_SEGMENT>
          <CFPGAID>0x103</CFPGAID></DEVICE>
        <DEVICE type="VOLTSNR" ctrl="LTC3880" id="1"><CONVERSION_FACTOR>-1e3</CONVERSION_FACTOR></DEVICE>)");
    numbers read;
    std::vector<double> factors;
    for (const voltsnr_info_t &sensor : dst::records<dst::voltsnrs>(&chs_info)) {
        read.insert(read.end(), {sensor.reg_offset, sensor.margin, sensor.def_voltage, sensor.mux_addr,
                                 sensor.mux_segment, sensor.cfpga_id});
        factors.push_back(sensor.conversion_factor);
    }
    EXPECT_EQ(read, (numbers{511, 10, 4294967295, 0x170, 0x102, 0x103, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(factors, (std::vector<double>{2.0, -1.0}));
}

// The LCDs that were announced, each with its reader's source line.
std::ptrdiff_t announced(const std::vector<log_line> &log) {
    return std::count_if(log.begin(), log.end(), [](const log_line &line) {
        int number = 0;
        int end = 0;
        std::sscanf(line.text.c_str(), "libdst_dev_lcd_op:%d Parsing LCD op done successfully!%n", &number, &end);
        return line.priority == LOG_INFO && number > 0 && line.text.size() == static_cast<std::size_t>(end);
    });
}

TEST_F(Members, LcdsAreReadAndAnnounced) {
    const load_result result = load_devices(R"(
        <DEVICE type="LCD" ctrl="GENERICLCD" id="6">
          <DRIVERID>012</DRIVERID><LCDTYPE>LCD_FP0</LCDTYPE><LCDTYPE>LCD_FP1</LCDTYPE><NAME>front</NAME></DEVICE>
        <DEVICE type="LCD" ctrl="GENERICLCD" id="2"><LCDTYPE>lcd_fp0</LCDTYPE></DEVICE>)");
    numbers read;
    for (const lcd_info_t &lcd : dst::records<dst::lcds>(&chs_info)) {
        read.insert(read.end(), {lcd.id, lcd.driver_id, lcd.ctrl_type, lcd.lcd_type});
        EXPECT_EQ(lcd.fru_info, &chs_info.fru_info.tqh_first->fru_minfo);
    }
    EXPECT_EQ(read, (numbers{6, 12, CTRL_TYPE_GENERICLCD, LCD_TYPE_DISPLAY_FP0, 2, 0, CTRL_TYPE_GENERICLCD, 0}));
    EXPECT_STREQ(chs_info.lcd_info.tqh_first->lcd_minfo->name, "front");
    EXPECT_EQ(announced(result.log), 2);
    libchs_release();
    EXPECT_EQ(announced(load(R"(<DEVICE type="LCD" ctrl="GENERICLCD" id="6"><NAME/></DEVICE>)").log), 0);
}

} // namespace
