// Fan trays, single devices: DEVICE type "FAN" with one of four controllers, FAN records with SS2RPM records inside.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case. A new controller: its
// enumerator and name row, its name in the schema, its records and its row of DST_FAN_MODULES in libdst.h, their
// rows in records.h, its fans' leaves in the dump, its table of the fans' elements and its CTRL row here, its case in
// the tray's FAN handler, a case.
#include "patterns.h"
#include "readers.h"

// The speed table of a fan

using xml_tag_parser_ss2rpm_t = dst::tag_entry<ss2rpm_fan_info_t>;

#define SS2RPM_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "SPEED", libdst_dev_ss2rpm_speed_tag_op, libdst_parse_tag_uint32, speed)                             \
    ROW(T, FIELD, "RPM", libdst_dev_ss2rpm_rpm_tag_op, libdst_parse_tag_uint32, rpm)                                   \
    ROW(T, FIELD, "TOLERANCE", libdst_dev_ss2rpm_tolerance_tag_op, libdst_parse_tag_uint32, tolerance)                 \
    ROW(T, FIELD, "PWMVAL", libdst_dev_ss2rpm_pwmval_tag_op, libdst_parse_tag_hex, pwmval)
DST_TABLE(dst_tag_ss2rpm_op, xml_tag_parser_ss2rpm_t, ss2rpm_fan_info_t, SS2RPM_ELEMENTS)

static int read_speed(const char *func, xmlDocPtr doc, xmlNodePtr node, ss2rpm_fan_info_t *speed) {
    return dst::walk(func, dst_tag_ss2rpm_op, doc, node, speed, "failed in parsing ss2rpm tag!");
}

// The fans of a tray, by controller

using xml_tag_parser_fan_fan_t = dst::tag_entry<adt7470_fan_info_t>;
using xml_tag_parser_fan_fan_gfc0812_t = dst::tag_entry<gfc0812_fan_info_t>;
using xml_tag_parser_fan_fan_haskel_9hv0812_t = dst::tag_entry<haskel_9hv0812_fan_info_t>;
using xml_tag_parser_fan_fan_syspld_t = dst::tag_entry<pelian_fan_syspld_info_t>;

#define ADT7470_ELEMENTS(ROW, T)                                                                                       \
    ROW(T, FIELD, "NAME", libdst_dev_fan_fan_name_tag_op, libdst_parse_tag_string, name)                               \
    ROW(T, FIELD, "TACH_LOW_BYTE_REG", libdst_dev_fan_fan_tlbe_tag_op, libdst_parse_tag_hex, tach_low_byte_reg)        \
    ROW(T, FIELD, "TACH_HIGH_BYTE_REG", libdst_dev_fan_fan_thbe_tag_op, libdst_parse_tag_hex, tach_high_byte_reg)      \
    ROW(T, FIELD, "PWM_DUTY_CYCLE_REG", libdst_dev_fan_fan_pdcr_tag_op, libdst_parse_tag_hex, pwm_duty_cycle_reg)      \
    ROW(T, APPEND, "SS2RPM", libdst_dev_ss2rpm_tag_op, ss2rpm, read_speed)
DST_TABLE(dst_tag_fan_fan_op, xml_tag_parser_fan_fan_t, adt7470_fan_info_t, ADT7470_ELEMENTS)

// Two controllers select the fan by a register of its own.
#define SELECTED_FAN_ELEMENTS(ROW, T, name_op, tlbe_op, pdcr_op, eifs_op, ss2rpm_op)                                   \
    ROW(T, FIELD, "NAME", name_op, libdst_parse_tag_string, name)                                                      \
    ROW(T, FIELD, "TACH_LOW_BYTE_REG", tlbe_op, libdst_parse_tag_hex, tach_low_byte_reg)                               \
    ROW(T, FIELD, "PWM_DUTY_CYCLE_REG", pdcr_op, libdst_parse_tag_hex, pwm_duty_cycle_reg)                             \
    ROW(T, FIELD, "FAN_SELECT_REG", eifs_op, libdst_parse_tag_hex, ec_i2cs_fan_select)                                 \
    ROW(T, APPEND, "SS2RPM", ss2rpm_op, ss2rpm, read_speed)

#define GFC0812_ELEMENTS(ROW, T)                                                                                       \
    SELECTED_FAN_ELEMENTS(ROW, T, libdst_dev_fan_fan_name_tag_gfc0812_op, libdst_dev_fan_fan_tlbe_tag_gfc0812_op,      \
                          libdst_dev_fan_fan_pdcr_tag_gfc0812_op, libdst_dev_fan_fan_eifs_tag_gfc0812_op,              \
                          libdst_dev_ss2rpm_tag_gfc0812_op)
DST_TABLE(dst_tag_fan_fan_gfc0812_op, xml_tag_parser_fan_fan_gfc0812_t, gfc0812_fan_info_t, GFC0812_ELEMENTS)

#define HASKEL_9HV0812_ELEMENTS(ROW, T)                                                                                \
    SELECTED_FAN_ELEMENTS(ROW, T, libdst_dev_fan_fan_name_tag_haskel_9hv0812_op,                                       \
                          libdst_dev_fan_fan_tlbe_tag_haskel_9hv0812_op,                                               \
                          libdst_dev_fan_fan_pdcr_tag_haskel_9hv0812_op,                                               \
                          libdst_dev_fan_fan_eifs_tag_haskel_9hv0812_op, libdst_dev_ss2rpm_tag_haskel_9hv0812_op)
DST_TABLE(dst_tag_fan_fan_haskel_9hv0812_op, xml_tag_parser_fan_fan_haskel_9hv0812_t, haskel_9hv0812_fan_info_t,
          HASKEL_9HV0812_ELEMENTS)

#define SYSPLD_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "NAME", libdst_dev_fan_fan_syspld_name_tag_op, libdst_parse_tag_string, name)                        \
    ROW(T, FIELD, "PEL_SYSPLD_FAN_CTRL_REG", libdst_dev_fan_fan_ctrl_tag_op, libdst_parse_tag_hex, fan_ctrl_reg)       \
    ROW(T, FIELD, "PEL_SYSPLD_FAN_CTRL_SHIFT_BITS", libdst_dev_fan_fan_clsh_tag_op, libdst_parse_tag_hex,              \
        fan_ctrl_shift_bits)                                                                                           \
    ROW(T, FIELD, "PEL_SYSPLD_FAN_SPEED_REG", libdst_dev_fan_fan_spdr_tag_op, libdst_parse_tag_hex, fan_speed_reg)
DST_TABLE(dst_tag_fan_fan_syspld_op, xml_tag_parser_fan_fan_syspld_t, pelian_fan_syspld_info_t, SYSPLD_ELEMENTS)

static int libdst_dev_fan_fan_id_attr(xmlDocPtr, xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

// A per-fan reader: appends a fan to the module that the tray begins.
template <class Module>
static int read_fan(const char *func, const auto *table, xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    return dst::append_filled(func, dst::module_of<Module>(to->fan_minfo)->fan_info, [=](auto *fan) {
        if constexpr (requires { fan->ss2rpm; })
            dst::list_init(fan->ss2rpm);
        const int rc = dst::check(func, libdst_dev_fan_fan_id_attr(doc, node, &fan->fan_id), "could not get fan id!");
        return rc < 0 ? rc : dst::walk(func, table, doc, node, fan, "failed in parsing fan/fan tag!");
    });
}

static int libdst_dev_fan_fan_tag_adt7470_op(xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    return read_fan<adt7470_module_info_t>(__func__, dst_tag_fan_fan_op, doc, node, to);
}
static int libdst_dev_fan_fan_tag_gfc0812_op(xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    return read_fan<gfc0812_module_info_t>(__func__, dst_tag_fan_fan_gfc0812_op, doc, node, to);
}
static int libdst_dev_fan_fan_tag_haskel_9hv0812_op(xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    return read_fan<haskel_9hv0812_module_info_t>(__func__, dst_tag_fan_fan_haskel_9hv0812_op, doc, node, to);
}
static int libdst_dev_fan_fan_syspld_tag_op(xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    return read_fan<pelian_fan_syspld_module_info_t>(__func__, dst_tag_fan_fan_syspld_op, doc, node, to);
}

static int libdst_dev_fan_fan_tag_op(xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    if (!to)
        return dst::check(__func__, -1, "fan_list can not be null!");
    switch (to->fan_minfo->ctrl_type) {
    case CTRL_TYPE_GFC0812:
        return libdst_dev_fan_fan_tag_gfc0812_op(doc, node, to);
    case CTRL_TYPE_9HV0812:
        return libdst_dev_fan_fan_tag_haskel_9hv0812_op(doc, node, to);
    case CTRL_TYPE_ADT7470:
        return libdst_dev_fan_fan_tag_adt7470_op(doc, node, to);
    default:
        return dst::check(__func__, -1, "Unsupported fan control type!");
    }
}

// Trays

static int libdst_dev_fan_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct fan : dst::family<dst::fans> {
    static constexpr dst::family_words words{"fan", "fan", "fan", "fan", "failed in parsing fan tag!"};
    static constexpr auto id_attr = libdst_dev_fan_id_attr;
};

// A tray of one controller: the node points at the tray that begins the module.
template <class Module> struct fan_module : fan {
    using record_t = Module;
    static fan_info_t &head(Module &module) { return module.fan_tray_info; }
    static void hold(fan_module_list_t *node, Module *module) {
        node->fan_minfo = module ? &module->fan_tray_info : nullptr;
    }
    static void init(Module &module) { dst::list_init(module.fan_info); }
};

using xml_tag_parser_faninfo_t = dst::tag_entry<fan_module_list_t>;

// The number of fans stands at the same place in every module.
static int libdst_dev_fan_nfans_tag_op(xmlDocPtr doc, xmlNodePtr node, fan_module_list_t *to) {
    return libdst_parse_tag_uint8(doc, node, &dst::module_of<generic_fan_module_info_t>(to->fan_minfo)->nfans);
}

#define TRAY_ELEMENTS(ROW, T)                                                                                          \
    ROW(T, FIELD, "NAME", libdst_dev_fan_name_tag_op, libdst_parse_tag_string, fan_minfo->name)                        \
    ROW(T, CALL, "NFANS", libdst_dev_fan_nfans_tag_op)                                                                 \
    ROW(T, FIELD, "DRIVERID", libdst_dev_fan_driverid_tag_op, libdst_parse_tag_uint32, fan_minfo->driver_id)           \
    ROW(T, FRUID, "FRUID", libdst_dev_fan_fruid_tag_op, fan)
TRAY_ELEMENTS(DST_HANDLER, fan_module_list_t)

#define FANINFO_ELEMENTS(ROW, T) TRAY_ELEMENTS(ROW, T) ROW(T, CALL, "FAN", libdst_dev_fan_fan_tag_op)
DST_ENTRIES(dst_tag_faninfo_op, xml_tag_parser_faninfo_t, fan_module_list_t, FANINFO_ELEMENTS)

#define FANINFO_SYSPLD_ELEMENTS(ROW, T) TRAY_ELEMENTS(ROW, T) ROW(T, CALL, "FAN", libdst_dev_fan_fan_syspld_tag_op)
DST_ENTRIES(dst_tag_faninfo_syspld_op, xml_tag_parser_faninfo_t, fan_module_list_t, FANINFO_SYSPLD_ELEMENTS)

static int libdst_dev_fan_per_tag(xmlDocPtr doc, xmlNodePtr device, fan_module_list_t *node) {
    return dst::walk(__func__, dst_tag_faninfo_op, doc, device, node, fan::words.walk);
}

static int libdst_dev_fan_syspld_per_tag(xmlDocPtr doc, xmlNodePtr device, fan_module_list_t *node) {
    return dst::walk(__func__, dst_tag_faninfo_syspld_op, doc, device, node, fan::words.walk);
}

#define FAN_CONTROLLERS(ROW, T)                                                                                        \
    ROW(T, CTRL, "ADT7470", libdst_dev_fan_adt7470_op, fan_module<adt7470_module_info_t>, CTRL_TYPE_ADT7470,           \
        libdst_dev_fan_per_tag)                                                                                        \
    ROW(T, CTRL, "FANSYSPLD", libdst_dev_fan_syspld_op, fan_module<pelian_fan_syspld_module_info_t>,                   \
        CTRL_TYPE_FANSYSPLD, libdst_dev_fan_syspld_per_tag)                                                            \
    ROW(T, CTRL, "GFC0812", libdst_dev_fan_gfc0812_op, fan_module<gfc0812_module_info_t>, CTRL_TYPE_GFC0812,           \
        libdst_dev_fan_per_tag)                                                                                        \
    ROW(T, CTRL, "9HV0812", libdst_dev_fan_haskel_9hv0812_op, fan_module<haskel_9hv0812_module_info_t>,                \
        CTRL_TYPE_9HV0812, libdst_dev_fan_per_tag)
DST_TABLE(dst_tag_fan_op, xml_tag_parser_faninfo_t, fan_module_list_t, FAN_CONTROLLERS)

int libdst_dev_fan_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    return dst::read_device<fan>(__func__, dst_tag_fan_op, doc, device, model);
}
