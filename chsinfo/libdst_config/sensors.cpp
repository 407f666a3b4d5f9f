// Temperature and voltage sensors: "DEVICES" groups of "Type" "TMPSNR" and "VOLTSNR".
// A new key: its member in libdst.h, its line here and in the dump, a case. A new controller: its enumerator and name
// row, its row here, a case.
#include "chsinfo/libdst_priv.h"
#include "devices.h"

// Temperature sensors

using tmpsnr_node_t = tmpsnr_module_list_t;

static int read_thresholds(void *handle, tmpsnr_node_t *node) {
    dst::list_init(node->ts_minfo->threshold_list);
    return brio_config_subtree_get(handle, "THRESHOLD", node, libconfig_config_tmp_threshold_get);
}

static void no_registers(void *, tmpsnr_info_t *) {}
static void registers(void *handle, tmpsnr_info_t *sensor) {
    dst::int_key(handle, "REG_OFFSET", sensor->reg_offset);
    dst::int_key(handle, "CFPGAID", sensor->cfpga_id);
}

// Takes the keys that are there; fails without "THRESHOLD", with the record in place.
static int read_lenient(const char *func, ctrl_type_t type, void (*more_keys)(void *, tmpsnr_info_t *), void *handle,
                        tmpsnr_node_t *node) {
    tmpsnr_info_t *sensor = dst::hold_record<dst::tmpsnrs>(node, type);
    if (!sensor)
        return dst::check(func, -1, dst::no_memory);
    dst::int_key(handle, "id", sensor->id);
    dst::int_key(handle, "DRIVERID", sensor->driver_id);
    more_keys(handle, sensor);
    dst::int_key(handle, "FRUID", node->fru_id);
    return read_thresholds(handle, node);
}

// Insists on every key but "THRESHOLD": without one there is no record.
static int read_strict(const char *func, ctrl_type_t type, const char *chip, void *handle, tmpsnr_node_t *node) {
    tmpsnr_info_t *sensor = dst::hold_record<dst::tmpsnrs>(node, type);
    if (!sensor)
        return dst::check(func, -1, dst::no_memory);
    const char *missing = dst::int_key(handle, "REG_OFFSET", sensor->reg_offset) == BRIO_CONFIG_FAIL ? "reg_offset"
                          : dst::int_key(handle, "id", sensor->id) == BRIO_CONFIG_FAIL               ? "id"
                          : dst::int_key(handle, "DRIVERID", sensor->driver_id) == BRIO_CONFIG_FAIL  ? "driverid"
                          : dst::int_key(handle, "FRUID", node->fru_id) == BRIO_CONFIG_FAIL          ? "fru id"
                                                                                                     : nullptr;
    if (missing) {
        dst::log_err(func, "failed to parse %s of %s!", missing, chip);
        dst::release(sensor);
        node->ts_minfo = nullptr;
        return -1;
    }
    return read_thresholds(handle, node);
}

#define TMPSNR_CONTROLLERS(ROW)                                                                                        \
    ROW(lenient, "TMP435", libconfig_dev_tmpsnr_tmp435_op, CTRL_TYPE_TMP435, no_registers)                             \
    ROW(another, "CORETEMP", libconfig_dev_tmpsnr_tmp435_op)                                                           \
    ROW(lenient, "TMP432", libconfig_dev_tmpsnr_tmp432_op, CTRL_TYPE_TMP432, registers)                                \
    ROW(lenient, "LM73", libconfig_dev_tmpsnr_lm73_op, CTRL_TYPE_LM73, no_registers)                                   \
    ROW(strict, "HMCTEMP", libconfig_dev_tmpsnr_hmctemp_op, CTRL_TYPE_HMCTEMP, "hmctemp")                              \
    ROW(lenient, "TMP75", libconfig_dev_tmpsnr_tmp75_op, CTRL_TYPE_TMP75, registers)                                   \
    ROW(strict, "KXTEMP", libconfig_dev_tmpsnr_kxchiptemp_op, CTRL_TYPE_KXCHIPTEMP, "kxchiptemp")                      \
    ROW(strict, "WQTEMP", libconfig_dev_tmpsnr_wqchiptemp_op, CTRL_TYPE_WQCHIPTEMP, "wqchiptemp")                      \
    ROW(lenient, "DIETEMP", libconfig_dev_tmpsnr_dietemp_op, CTRL_TYPE_DIETEMP, no_registers)
#define TMPSNR_READER(form, ...) TMPSNR_READER_##form(__VA_ARGS__)
#define TMPSNR_READER_lenient(ctrl, handler, type, more_keys)                                                          \
    static int handler(void *handle, tmpsnr_node_t *node) {                                                            \
        return read_lenient(__func__, type, more_keys, handle, node);                                                  \
    }
#define TMPSNR_READER_strict(ctrl, handler, type, chip)                                                                \
    static int handler(void *handle, tmpsnr_node_t *node) { return read_strict(__func__, type, chip, handle, node); }
#define TMPSNR_READER_another(ctrl, handler)
#define TMPSNR_ENTRY(form, ctrl, handler, ...) {ctrl, handler},
TMPSNR_CONTROLLERS(TMPSNR_READER)
using libconfig_tag_parser_tmpsnrinfo_t = dst::controller_entry<tmpsnr_node_t>;
static const libconfig_tag_parser_tmpsnrinfo_t config_tag_tmpsnr_op[] = {
    TMPSNR_CONTROLLERS(TMPSNR_ENTRY){nullptr, nullptr}};

// A sensor without a record, for want of a known controller, of memory or of a key that a strict reader insists on, is
// dropped and the walk goes on.
brio_cfg_status_t libconfig_device_tmpsnr_op(void *handle, void *data) {
    auto found = dst::read_device<dst::tmpsnrs>(handle, config_tag_tmpsnr_op);
    if (!found.node)
        return BRIO_CONFIG_FAIL;
    if (found.known && found.result != 0)
        dst::log_err(__func__, "failed to parse temp sensor tag %s", dst::text_of(handle, "ctrl"));
    if (tmpsnr_info_t *sensor = found.node->ts_minfo) {
        dst::ctrl_type_key(handle, sensor);
        dst::int_key(handle, "id", sensor->id);
        dst::append_device(static_cast<libdst_chs_info_t *>(data), found);
    }
    return BRIO_CONFIG_SUCCESS;
}

// Voltage sensors

using voltsnr_node_t = voltsnr_module_list_t;

static void ltc3880_keys(void *handle, voltsnr_info_t *sensor) {
    dst::int_key(handle, "REG_OFFSET", sensor->reg_offset);
}
static void max207xx_keys(void *handle, voltsnr_info_t *sensor) {
    brio_config_float_read(handle, "CONVERSION_FACTOR", &sensor->conversion_factor);
    dst::int_key(handle, "MUX_ADDR", sensor->mux_addr);
    dst::int_key(handle, "MUX_SEGMENT", sensor->mux_segment);
    dst::int_key(handle, "CFPGAID", sensor->cfpga_id);
}
static void ads7830_keys(void *handle, voltsnr_info_t *sensor) {
    dst::int_key(handle, "REG_OFFSET", sensor->reg_offset);
    brio_config_float_read(handle, "CONVERSION_FACTOR", &sensor->conversion_factor);
    dst::int_key(handle, "CFPGAID", sensor->cfpga_id);
}

static int read_voltsnr(const char *func, ctrl_type_t type, void (*chip_keys)(void *, voltsnr_info_t *), void *handle,
                        voltsnr_node_t *node) {
    voltsnr_info_t *sensor = dst::hold_record<dst::voltsnrs>(node, type);
    if (!sensor)
        return dst::check(func, -1, dst::no_memory);
    dst::int_key(handle, "FRUID", node->fru_id);
    chip_keys(handle, sensor);
    dst::text_key(handle, "NAME", sensor->name);
    dst::int_key(handle, "id", sensor->id);
    dst::int_key(handle, "DRIVERID", sensor->driver_id);
    dst::int_key(handle, "MARGIN", sensor->margin);
    dst::int_key(handle, "DEF_VOLTAGE", sensor->def_voltage);
    return 0;
}

#define VOLTSNR_CONTROLLERS(ROW)                                                                                       \
    ROW("LTC3880", libconfig_dev_voltsnr_ltc3880_op, CTRL_TYPE_LTC3880, ltc3880_keys)                                  \
    ROW("MAX207XX", libconfig_dev_voltsnr_max207xx_op, CTRL_TYPE_MAX207XX, max207xx_keys)                              \
    ROW("ADS7830", libconfig_dev_voltsnr_ads7830_op, CTRL_TYPE_ADS7830, ads7830_keys)
#define VOLTSNR_READER(ctrl, handler, type, chip_keys)                                                                 \
    static int handler(void *handle, voltsnr_node_t *node) {                                                           \
        return read_voltsnr(__func__, type, chip_keys, handle, node);                                                  \
    }
#define VOLTSNR_ENTRY(ctrl, handler, ...) {ctrl, handler},
VOLTSNR_CONTROLLERS(VOLTSNR_READER)
using libconfig_tag_parser_voltsnrinfo_t = dst::controller_entry<voltsnr_node_t>;
static const libconfig_tag_parser_voltsnrinfo_t config_tag_voltsnr_op[] = {
    VOLTSNR_CONTROLLERS(VOLTSNR_ENTRY){nullptr, nullptr}};

brio_cfg_status_t libconfig_device_voltsnr_op(void *handle, void *data) {
    return dst::read_strict_device<dst::voltsnrs>(handle, config_tag_voltsnr_op, data, [=](auto *sensor) {
        dst::ctrl_type_key(handle, sensor);
        dst::int_key(handle, "id", sensor->id);
    });
}
