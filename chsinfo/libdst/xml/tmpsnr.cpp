// Temperature sensors, single devices: DEVICE type "TMPSNR" with one of ten chips, THRESHOLD records with LIMIT and
// ALARM records inside.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case. A new chip: its
// enumerator and name row, its name in the schema, its CTRL row here, a case.
#include "patterns.h"
#include "readers.h"

// Limits

static int libdst_dev_tmpsnr_thres_limit_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

using xml_tag_parser_tmpsnr_thres_limit_t = dst::tag_entry<limit_t>;

#define LIMIT_ELEMENTS(ROW, T)                                                                                         \
    ROW(T, FIELD, "TEMP", libdst_dev_tmpsnr_thres_limit_temp_tag_op, libdst_parse_tag_uint32, temp)                    \
    ROW(T, FIELD, "FANSTEPID", libdst_dev_tmpsnr_thres_limit_fanstepid_tag_op, libdst_parse_tag_int32, fan_step_id)
DST_TABLE(dst_tag_tmpsnr_thres_limit_op, xml_tag_parser_tmpsnr_thres_limit_t, limit_t, LIMIT_ELEMENTS)

static int read_limit(const char *func, xmlDocPtr doc, xmlNodePtr node, limit_t *limit) {
    limit->fan_step_id = -1;
    const int rc = dst::check(func, libdst_dev_tmpsnr_thres_limit_id_attr(node, &limit->id),
                              "could not get temperature sensor threshold limit id!");
    return rc < 0 ? rc
                  : dst::walk(func, dst_tag_tmpsnr_thres_limit_op, doc, node, limit,
                              "failed in parsing temperature sensor threshold limit tag!");
}

// Alarms: the value is the element's own text.

static int libdst_dev_tmpsnr_thres_alarm_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_dev_tmpsnr_thres_alarm_type_attr(xmlNodePtr node, alarm_type_t *type) {
    return dst::type_attr(node, dst_tmpsnr_thres_alarm_type, ALARM_TYPE_SYS_RED, ALARM_TYPE_BADFAN_YELLOW, type);
}

static int read_alarm(const char *func, xmlDocPtr doc, xmlNodePtr node, alarm_info_t *alarm) {
    int rc = dst::check(func, libdst_dev_tmpsnr_thres_alarm_id_attr(node, &alarm->id),
                        "Could not get temperature sensor threshold alarm id!");
    if (rc >= 0)
        rc = dst::check(func, libdst_dev_tmpsnr_thres_alarm_type_attr(node, &alarm->type),
                        "Could not get temperature sensor alarm type!");
    if (rc >= 0)
        rc = dst::check(func, libdst_parse_tag_uint32(doc, node, &alarm->alarm), "Could not get alarm value!");
    return rc;
}

// Thresholds

static int libdst_dev_tmpsnr_threshold_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_dev_tmpsnr_threshold_type_attr(xmlNodePtr node, fru_aflow_type_t *type) {
    return dst::type_attr(node, dst_aflow_type, FRU_AFLOW_TYPE_NONE, FRU_AFLOW_TYPE_UNKNOWN, type);
}

using xml_tag_parser_tmpsnr_threshold_t = dst::tag_entry<tmpsnr_threshold_t>;

#define THRESHOLD_ELEMENTS(ROW, T)                                                                                     \
    ROW(T, FIELD, "NAME", libdst_dev_tmpsnr_thres_name_tag_op, libdst_parse_tag_string, name)                          \
    ROW(T, APPEND, "LIMIT", libdst_dev_tmpsnr_thres_limit_tag_op, limit_list, read_limit)                              \
    ROW(T, FIELD, "FIRE", libdst_dev_tmpsnr_thres_fire_tag_op, libdst_parse_tag_uint32, fire)                          \
    ROW(T, APPEND, "ALARM", libdst_dev_tmpsnr_thres_alarm_tag_op, alarm_list, read_alarm)
DST_TABLE(dst_tag_tmpsnr_threshold_op, xml_tag_parser_tmpsnr_threshold_t, tmpsnr_threshold_t, THRESHOLD_ELEMENTS)

static int read_threshold(const char *func, xmlDocPtr doc, xmlNodePtr node, tmpsnr_threshold_t *threshold) {
    dst::list_init(threshold->alarm_list);
    dst::list_init(threshold->limit_list);
    int rc = dst::check(func, libdst_dev_tmpsnr_threshold_id_attr(node, &threshold->id),
                        "could not get temperature sensor threshold id!");
    if (rc >= 0)
        rc = dst::check(func, libdst_dev_tmpsnr_threshold_type_attr(node, &threshold->aflow_type),
                        "could not get temperature sensor threshold type!");
    return rc < 0 ? rc
                  : dst::walk(func, dst_tag_tmpsnr_threshold_op, doc, node, threshold,
                              "failed in parsing temperature sensor threshold tag!");
}

// Sensors

static int libdst_dev_tmpsnr_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct tmpsnr : dst::family<dst::tmpsnrs> {
    static constexpr dst::family_words words{"temperature sensor", "temperature sensor", "temperature sensor",
                                             "temperature sensor", "failed in parsing temperature sensor tag!"};
    static constexpr auto id_attr = libdst_dev_tmpsnr_id_attr;
    static void init(tmpsnr_info_t &sensor) { dst::list_init(sensor.threshold_list); }
};

using xml_tag_parser_tmpsnrinfo_t = dst::tag_entry<tmpsnr_module_list_t>;

#define TMPSNR_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FRUID, "FRUID", libdst_dev_tmpsnr_per_fruid_tag_op, tmpsnr)                                                 \
    ROW(T, FIELD, "DRIVERID", libdst_dev_tmpsnr_per_driverid_tag_op, libdst_parse_tag_uint32, ts_minfo->driver_id)     \
    ROW(T, FIELD, "REG_OFFSET", libdst_dev_tmpsnr_per_regoffset_tag_op, libdst_parse_tag_hex8, ts_minfo->reg_offset)   \
    ROW(T, FIELD, "CFPGAID", libdst_dev_tmpsnr_per_cfpgaid_tag_op, libdst_parse_tag_hex8, ts_minfo->cfpga_id)          \
    ROW(T, APPEND, "THRESHOLD", libdst_dev_tmpsnr_per_threshold_tag_op, ts_minfo->threshold_list, read_threshold)      \
    ROW(T, FIELD, "MUX", libdst_dev_tmpsnr_per_mux_tag_op, libdst_parse_tag_hex8, ts_minfo->mux)                       \
    ROW(T, FIELD, "MUX_CHANNEL", libdst_dev_tmpsnr_per_mux_channel_tag_op, libdst_parse_tag_hex8,                      \
        ts_minfo->mux_channel)                                                                                         \
    ROW(T, FIELD, "TMP_INDEX", libdst_dev_tmpsnr_per_tmp_index_tag_op, libdst_parse_tag_hex8, ts_minfo->tmp_index)     \
    ROW(T, FIELD, "FRUTYPE", libdst_dev_tmpsnr_per_fru_type_tag_op, libdst_parse_tag_string, ts_minfo->fru_type)
DST_TABLE(dst_tag_tmpsnrinfo_op, xml_tag_parser_tmpsnrinfo_t, tmpsnr_module_list_t, TMPSNR_ELEMENTS)

static int libdst_dev_tmpsnr_per_tag(xmlDocPtr doc, xmlNodePtr device, tmpsnr_module_list_t *node) {
    return dst::walk(__func__, dst_tag_tmpsnrinfo_op, doc, device, node, tmpsnr::words.walk);
}

#define TMPSNR_CONTROLLERS(ROW, T)                                                                                     \
    ROW(T, CTRL, "TMP435", libdst_dev_tmpsnr_tmp435_op, tmpsnr, CTRL_TYPE_TMP435, libdst_dev_tmpsnr_per_tag)           \
    ROW(T, CTRL, "TMPGENERIC", libdst_dev_tmpsnr_tmpgeneric_op, tmpsnr, CTRL_TYPE_TMPGENERIC,                          \
        libdst_dev_tmpsnr_per_tag)                                                                                     \
    ROW(T, CTRL, "CORETEMP", libdst_dev_tmpsnr_coretemp_op, tmpsnr, CTRL_TYPE_CORETEMP, libdst_dev_tmpsnr_per_tag)     \
    ROW(T, CTRL, "TMP432", libdst_dev_tmpsnr_tmp432_op, tmpsnr, CTRL_TYPE_TMP432, libdst_dev_tmpsnr_per_tag)           \
    ROW(T, CTRL, "LM73", libdst_dev_tmpsnr_lm73_op, tmpsnr, CTRL_TYPE_LM73, libdst_dev_tmpsnr_per_tag)                 \
    ROW(T, CTRL, "HMCTEMP", libdst_dev_tmpsnr_hmctemp_op, tmpsnr, CTRL_TYPE_HMCTEMP, libdst_dev_tmpsnr_per_tag)        \
    ROW(T, CTRL, "TMP75", libdst_dev_tmpsnr_tmp75_op, tmpsnr, CTRL_TYPE_TMP75, libdst_dev_tmpsnr_per_tag)              \
    ROW(T, CTRL, "KXTEMP", libdst_dev_tmpsnr_kxchiptemp_op, tmpsnr, CTRL_TYPE_KXCHIPTEMP, libdst_dev_tmpsnr_per_tag)   \
    ROW(T, CTRL, "WQTEMP", libdst_dev_tmpsnr_wqchiptemp_op, tmpsnr, CTRL_TYPE_WQCHIPTEMP, libdst_dev_tmpsnr_per_tag)   \
    ROW(T, CTRL, "DIETEMP", libdst_dev_tmpsnr_dietemp_op, tmpsnr, CTRL_TYPE_DIETEMP, libdst_dev_tmpsnr_per_tag)
DST_TABLE(dst_tag_tmpsnr_op, xml_tag_parser_tmpsnrinfo_t, tmpsnr_module_list_t, TMPSNR_CONTROLLERS)

int libdst_dev_tmpsnr_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    return dst::read_device<tmpsnr>(__func__, dst_tag_tmpsnr_op, doc, device, model);
}
