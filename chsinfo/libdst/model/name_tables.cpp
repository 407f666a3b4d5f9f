// The exported name tables: one row for each enumerator, its text beside it. nullptr is a row without a name: it
// matches nothing and is printed as empty. A new enumerator gets its row here.
#include "names.h"

#include <cstring>
#include <initializer_list>
#include <iterator>

#include "chsinfo/libdst.h"

namespace dst {

// The header gives the bound, and a missing last row would silently become a null one: hence the count.
constexpr bool complete(std::size_t declared, std::initializer_list<int> enumerators) {
    int expected = 0;
    for (int enumerator : enumerators)
        if (enumerator != expected++)
            return false;
    return enumerators.size() == declared;
}

int name_index(const char *const *table, int first, int last, const char *text) {
    for (int index = first; text && index <= last; ++index)
        if (table[index] && std::strcmp(table[index], text) == 0)
            return index;
    return -1;
}

} // namespace dst

#define DST_TEXT(enumerator, text) text,
#define DST_ENUMERATOR(enumerator, text) enumerator,
#define DST_NAME_TABLE(table, ROWS)                                                                                    \
    const char *const table[] = {ROWS(DST_TEXT)};                                                                      \
    static_assert(dst::complete(std::size(table), {ROWS(DST_ENUMERATOR)}),                                             \
                  #table ": a row for each enumerator, in order");

#define I2C_NAMES(NAME)                                                                                                \
    NAME(I2C_TYPE_UNKNOWN, "")                                                                                         \
    NAME(I2C_TYPE_ADT7470, "ADT7470")                                                                                  \
    NAME(I2C_TYPE_PSU, "PSUEPM")                                                                                       \
    NAME(I2C_TYPE_FPC, "FPC")                                                                                          \
    NAME(I2C_TYPE_SIB, "SIB")                                                                                          \
    NAME(I2C_TYPE_FPM, "FPM")                                                                                          \
    NAME(I2C_TYPE_FTC, "FTC")                                                                                          \
    NAME(I2C_TYPE_CB, "CB")                                                                                            \
    NAME(I2C_TYPE_TMPSNR, "TMPSNR")                                                                                    \
    NAME(I2C_TYPE_VOLTSNR, "VOLTSNR")                                                                                  \
    NAME(I2C_TYPE_LED, "LED")                                                                                          \
    NAME(I2C_TYPE_PIC, "PIC")                                                                                          \
    NAME(I2C_TYPE_GFC0812, "GFC0812")                                                                                  \
    NAME(I2C_TYPE_9HV0812, "9HV0812")                                                                                  \
    NAME(I2C_TYPE_MEZZ, "MEZZ")                                                                                        \
    NAME(I2C_TYPE_LCD, "LCD")                                                                                          \
    NAME(I2C_TYPE_MAX, "")
DST_NAME_TABLE(dst_i2c_type, I2C_NAMES)

#define CTRL_NAMES(NAME)                                                                                               \
    NAME(CTRL_TYPE_UNKNOWN, "")                                                                                        \
    NAME(CTRL_TYPE_ADT7470, "ADT7470")                                                                                 \
    NAME(CTRL_TYPE_FANSYSPLD, "FANSYSPLD")                                                                             \
    NAME(CTRL_TYPE_PSUEPM, "PSUEPM")                                                                                   \
    NAME(CTRL_TYPE_FPC, "FPC")                                                                                         \
    NAME(CTRL_TYPE_SIB, "SIB")                                                                                         \
    NAME(CTRL_TYPE_FPM, "FPM")                                                                                         \
    NAME(CTRL_TYPE_FTC, "FTC")                                                                                         \
    NAME(CTRL_TYPE_CB, "CB")                                                                                           \
    NAME(CTRL_TYPE_TMP435, "TMP435")                                                                                   \
    NAME(CTRL_TYPE_TMPGENERIC, "TMPGENERIC")                                                                           \
    NAME(CTRL_TYPE_PIC, "PIC")                                                                                         \
    NAME(CTRL_TYPE_KORVLED, "KORVLED")                                                                                 \
    NAME(CTRL_TYPE_QVLBTN, "QVLBTN")                                                                                   \
    NAME(CTRL_TYPE_CORETEMP, "CORETEMP")                                                                               \
    NAME(CTRL_TYPE_GFC0812, "GFC0812")                                                                                 \
    NAME(CTRL_TYPE_9HV0812, "9HV0812")                                                                                 \
    NAME(CTRL_TYPE_DURNLED, "DURNLED")                                                                                 \
    NAME(CTRL_TYPE_TMP432, "TMP432")                                                                                   \
    NAME(CTRL_TYPE_LTC3880, "LTC3880")                                                                                 \
    NAME(CTRL_TYPE_GENERICLED, "GENERICLED")                                                                           \
    NAME(CTRL_TYPE_LM73, "LM73")                                                                                       \
    NAME(CTRL_TYPE_ZMBLED, "ZMBLED")                                                                                   \
    NAME(CTRL_TYPE_CBEPM, "CBEPM")                                                                                     \
    NAME(CTRL_TYPE_HWMON, "HWMON")                                                                                     \
    NAME(CTRL_TYPE_HMCTEMP, "HMCTEMP")                                                                                 \
    NAME(CTRL_TYPE_TMP75, "TMP75")                                                                                     \
    NAME(CTRL_TYPE_ADS7830, "ADS7830")                                                                                 \
    NAME(CTRL_TYPE_MAX207XX, "MAX207XX")                                                                               \
    NAME(CTRL_TYPE_KXCHIPTEMP, "KXTEMP")                                                                               \
    NAME(CTRL_TYPE_DS1721, nullptr)                                                                                    \
    NAME(CTRL_TYPE_MAX6657, nullptr)                                                                                   \
    NAME(CTRL_TYPE_CPU_CORETMP, nullptr)                                                                               \
    NAME(CTRL_TYPE_GENERICLCD, nullptr)                                                                                \
    NAME(CTRL_TYPE_WQCHIPTEMP, "WQTEMP")                                                                               \
    NAME(CTRL_TYPE_DIETEMP, "DIETEMP")                                                                                 \
    NAME(CTRL_TYPE_TIB, "TIB")                                                                                         \
    NAME(CTRL_TYPE_MAX, "")
DST_NAME_TABLE(dst_ctrl_type, CTRL_NAMES)

#define FRU_NAMES(NAME)                                                                                                \
    NAME(FRU_TYPE_UNKNOWN, "")                                                                                         \
    NAME(FRU_TYPE_CHASSIS, "CHASSIS")                                                                                  \
    NAME(FRU_TYPE_CPU, "")                                                                                             \
    NAME(FRU_TYPE_DRAM, "")                                                                                            \
    NAME(FRU_TYPE_FAN, "FAN")                                                                                          \
    NAME(FRU_TYPE_PEM, "PEM")                                                                                          \
    NAME(FRU_TYPE_PIC, "PIC")                                                                                          \
    NAME(FRU_TYPE_TSENSOR, "TMPSNR")                                                                                   \
    NAME(FRU_TYPE_VSENSOR, "VOLTSNR")                                                                                  \
    NAME(FRU_TYPE_VOLTMETER, "")                                                                                       \
    NAME(FRU_TYPE_LED, "LED")                                                                                          \
    NAME(FRU_TYPE_BTN, "BTN")                                                                                          \
    NAME(FRU_TYPE_CRAFT, "")                                                                                           \
    NAME(FRU_TYPE_FPC, "FPC")                                                                                          \
    NAME(FRU_TYPE_SIB, "SIB")                                                                                          \
    NAME(FRU_TYPE_FPM, "FPM")                                                                                          \
    NAME(FRU_TYPE_FTC, "FTC")                                                                                          \
    NAME(FRU_TYPE_CB, "CB")                                                                                            \
    NAME(FRU_TYPE_SPM, "SPM")                                                                                          \
    NAME(FRU_TYPE_LCD, "LCD")                                                                                          \
    NAME(FRU_TYPE_TIB, "TIB")                                                                                          \
    NAME(FRU_TYPE_MAX, "")
DST_NAME_TABLE(dst_fru_type, FRU_NAMES)

#define DEV_NAMES(NAME)                                                                                                \
    NAME(DST_I2C_DEV_IDX, "i2c")                                                                                       \
    NAME(DST_FAN_DEV_IDX, "FAN")                                                                                       \
    NAME(DST_PSU_DEV_IDX, "PEM")                                                                                       \
    NAME(DST_TMPSNR_DEV_IDX, "TMPSNR")                                                                                 \
    NAME(DST_LED_DEV_IDX, "LED")                                                                                       \
    NAME(DST_PIC_DEV_IDX, "PIC")                                                                                       \
    NAME(DST_FRU_DEV_IDX, "FRU")                                                                                       \
    NAME(DST_OPTICS_DEV_IDX, "optics")                                                                                 \
    NAME(DST_ASIC_DEV_IDX, "asic")                                                                                     \
    NAME(DST_FPC_DEV_IDX, "FPC")                                                                                       \
    NAME(DST_CB_DEV_IDX, "CB")                                                                                         \
    NAME(DST_SIB_DEV_IDX, "SIB")                                                                                       \
    NAME(DST_FPM_DEV_IDX, "FPM")                                                                                       \
    NAME(DST_FTC_DEV_IDX, "FTC")                                                                                       \
    NAME(DST_BTN_DEV_IDX, "BTN")                                                                                       \
    NAME(DST_VOLTSNR_DEV_IDX, "VOLTSNR")                                                                               \
    NAME(DST_LCD_DEV_IDX, "LCD")                                                                                       \
    NAME(DST_TIB_DEV_IDX, "TIB")                                                                                       \
    NAME(DST_MAX_DEVICE, "")
DST_NAME_TABLE(dst_dev_type, DEV_NAMES)

#define FRU_REMOVABLE_NAMES(NAME)                                                                                      \
    NAME(FRU_REMOVABLE_TYPE_UNKNOWN, "")                                                                               \
    NAME(FRU_REMOVABLE_TYPE_FIXED, "FIXED")                                                                            \
    NAME(FRU_REMOVABLE_TYPE_VIRTUAL, "VIRTUAL")                                                                        \
    NAME(FRU_REMOVABLE_TYPE_MAX, "")
DST_NAME_TABLE(dst_fru_removable_type, FRU_REMOVABLE_NAMES)

#define ASIC_CHIP_NAMES(NAME)                                                                                          \
    NAME(CHIP_TYPE_UNKNOWN, "")                                                                                        \
    NAME(CHIP_TYPE_5685, "5685")                                                                                       \
    NAME(CHIP_TYPE_MAX, "")
DST_NAME_TABLE(dst_asic_chip_type, ASIC_CHIP_NAMES)

#define XCVR_NAMES(NAME)                                                                                               \
    NAME(XCVR_TYPE_UNKNOWN, "")                                                                                        \
    NAME(XCVR_TYPE_QSFP, "QSFP")                                                                                       \
    NAME(XCVR_TYPE_MAX, "")
DST_NAME_TABLE(dst_xcvr_type, XCVR_NAMES)

#define PHY_NAMES(NAME)                                                                                                \
    NAME(PHY_TYPE_UNKNOWN, "")                                                                                         \
    NAME(PHY_TYPE_INTERNAL, "INTERNAL_PHY")                                                                            \
    NAME(PHY_TYPE_MAX, "")
DST_NAME_TABLE(dst_phy_type, PHY_NAMES)

#define SCPLD_NAMES(NAME)                                                                                              \
    NAME(SCPLD_TYPE_UNKNOWN, "")                                                                                       \
    NAME(SCPLD_TYPE_0, "SCPLD_TYPE_0")                                                                                 \
    NAME(SCPLD_TYPE_1, "SCPLD_TYPE_1")                                                                                 \
    NAME(SCPLD_TYPE_2, "SCPLD_TYPE_2")                                                                                 \
    NAME(SCPLD_TYPE_3, "SCPLD_TYPE_3")                                                                                 \
    NAME(SCPLD_TYPE_4, "SCPLD_TYPE_4")                                                                                 \
    NAME(SCPLD_TYPE_5, "SCPLD_TYPE_5")                                                                                 \
    NAME(SCPLD_TYPE_6, "SCPLD_TYPE_6")                                                                                 \
    NAME(SCPLD_TYPE_7, "SCPLD_TYPE_7")                                                                                 \
    NAME(SCPLD_TYPE_MAX, "")
DST_NAME_TABLE(dst_scpld_type, SCPLD_NAMES)

#define AFLOW_NAMES(NAME)                                                                                              \
    NAME(FRU_AFLOW_TYPE_NONE, "NONE")                                                                                  \
    NAME(FRU_AFLOW_TYPE_AFO_FB, "AFO")                                                                                 \
    NAME(FRU_AFLOW_TYPE_AFI_BF, "AFI")                                                                                 \
    NAME(FRU_AFLOW_TYPE_UNKNOWN, "UNKNOWN")
DST_NAME_TABLE(dst_aflow_type, AFLOW_NAMES)

#define LED_NAMES(NAME)                                                                                                \
    NAME(LED_TYPE_UNKNOWN, "")                                                                                         \
    NAME(LED_TYPE_BEACON, "BEACON")                                                                                    \
    NAME(LED_TYPE_SYSTEM, "SYSTEM")                                                                                    \
    NAME(LED_TYPE_MASTER, "MASTER")                                                                                    \
    NAME(LED_TYPE_ALARM, "ALARM")                                                                                      \
    NAME(LED_TYPE_MAJ_ALARM, "MAJ_ALARM")                                                                              \
    NAME(LED_TYPE_MIN_ALARM, "MIN_ALARM")                                                                              \
    NAME(LED_TYPE_POWER, "POWER")                                                                                      \
    NAME(LED_TYPE_SSD, "SSD")                                                                                          \
    NAME(LED_TYPE_QIC0_STATUS, "QIC0")                                                                                 \
    NAME(LED_TYPE_QIC1_STATUS, "QIC1")                                                                                 \
    NAME(LED_TYPE_MGMT_P0, "MGMT_P0")                                                                                  \
    NAME(LED_TYPE_MGMT_P1, "MGMT_P1")                                                                                  \
    NAME(LED_TYPE_UPLINK, "UPLINK")                                                                                    \
    NAME(LED_TYPE_PHONE_HOME, "PHONE_HOME")                                                                            \
    NAME(LED_TYPE_FTRAY_STATUS, nullptr)                                                                               \
    NAME(LED_TYPE_FPC_SYSTEM, nullptr)                                                                                 \
    NAME(LED_TYPE_HA, "HA")                                                                                            \
    NAME(LED_TYPE_EM_SLOT, "EM_SLOT")                                                                                  \
    NAME(LED_TYPE_EXT_SSD0, "EXT_SSD0")                                                                                \
    NAME(LED_TYPE_EXT_SSD1, "EXT_SSD1")                                                                                \
    NAME(LED_TYPE_CLOUD, "CLOUD")                                                                                      \
    NAME(LED_TYPE_MAX, "")
DST_NAME_TABLE(dst_led_type, LED_NAMES)

#define LCD_NAMES(NAME)                                                                                                \
    NAME(LCD_TYPE_UNKNOWN, "")                                                                                         \
    NAME(LCD_TYPE_DISPLAY_FP0, "LCD_FP0")                                                                              \
    NAME(LCD_TYPE_MAX, "")
DST_NAME_TABLE(dst_lcd_type, LCD_NAMES)

#define BTN_NAMES(NAME)                                                                                                \
    NAME(BTN_TYPE_UNKNOWN, "")                                                                                         \
    NAME(BTN_TYPE_POWER, "POWER")                                                                                      \
    NAME(BTN_TYPE_RESET, "RESET")                                                                                      \
    NAME(BTN_TYPE_MAX, "")
DST_NAME_TABLE(dst_btn_type, BTN_NAMES)

#define POWER_NAMES(NAME)                                                                                              \
    NAME(FRU_POWER_TYPE_UNKNOWN, "")                                                                                   \
    NAME(FRU_POWER_TYPE_AC, "AC")                                                                                      \
    NAME(FRU_POWER_TYPE_DC, "DC")                                                                                      \
    NAME(FRU_POWER_TYPE_MAX, "")
DST_NAME_TABLE(dst_power_type, POWER_NAMES)

#define CHASSIS_FAMILY_NAMES(NAME)                                                                                     \
    NAME(CHASSIS_FAMILY_NONE, "")                                                                                      \
    NAME(CHASSIS_FAMILY_DUMMY, "DUMMY")                                                                                \
    NAME(CHASSIS_FAMILY_KORV, "KORV")                                                                                  \
    NAME(CHASSIS_FAMILY_PELIAN, "PELIAN")                                                                              \
    NAME(CHASSIS_FAMILY_TIRMOS, "TIRMOS")                                                                              \
    NAME(CHASSIS_FAMILY_KUZ, "KUZ")                                                                                    \
    NAME(CHASSIS_FAMILY_KORV_GEN2, "KORV_GEN2")                                                                        \
    NAME(CHASSIS_FAMILY_DURN, "DURN")                                                                                  \
    NAME(CHASSIS_FAMILY_HASKEL, "HASKEL")                                                                              \
    NAME(CHASSIS_FAMILY_QVL, "QVL")                                                                                    \
    NAME(CHASSIS_FAMILY_ZMB, "ZMB")                                                                                    \
    NAME(CHASSIS_FAMILY_RQ7100MP, "RQ-7100MP")                                                                         \
    NAME(CHASSIS_FAMILY_BRANNO, "BRANNO")                                                                              \
    NAME(CHASSIS_FAMILY_GV, "GV")                                                                                      \
    NAME(CHASSIS_FAMILY_QVL_BRANNO_1RU, "BRANNO_QVL_1RU")                                                              \
    NAME(CHASSIS_FAMILY_QVL_BRANNO_3RU, "BRANNO_QVL_3RU")                                                              \
    NAME(CHASSIS_FAMILY_TOLMAR, "TOLMAR")                                                                              \
    NAME(CHASSIS_FAMILY_MERISOL, "MERISOL")                                                                            \
    NAME(CHASSIS_FAMILY_CALDRE, "CALDRE")                                                                              \
    NAME(CHASSIS_FAMILY_OSTWIN, nullptr)                                                                               \
    NAME(CHASSIS_FAMILY_MAX, "")
DST_NAME_TABLE(dst_chassis_family_type, CHASSIS_FAMILY_NAMES)

#define TMPSNR_THRES_ALARM_NAMES(NAME)                                                                                 \
    NAME(ALARM_TYPE_SYS_RED, "SYS_RED")                                                                                \
    NAME(ALARM_TYPE_SYS_YELLOW, "SYS_YELLOW")                                                                          \
    NAME(ALARM_TYPE_BADFAN_RED, "BADFAN_RED")                                                                          \
    NAME(ALARM_TYPE_BADFAN_YELLOW, "BADFAN_YELLOW")                                                                    \
    NAME(ALARM_TYPE_MAX, "")
DST_NAME_TABLE(dst_tmpsnr_thres_alarm_type, TMPSNR_THRES_ALARM_NAMES)
