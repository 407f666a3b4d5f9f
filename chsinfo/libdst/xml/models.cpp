// FRU models, a list: FRUMODEL with MODEL records; and chassis models: each MODEL directly under the root is one.
// A new element: its member in libdst.h, its row here, in the dump if it is shown, in the schema, a case.
#include "patterns.h"
#include "readers.h"

using xml_tag_parser_frumodel_t = dst::tag_entry<frumodel_module_list_t>;

// Unlike other kinds, these two fail for an unknown text.
static int libdst_chassis_model_powertype_tag_op(xmlDocPtr doc, xmlNodePtr node, frumodel_module_list_t *to) {
    fru_power_type_t &type = to->frumodel_minfo.power_type;
    type = FRU_POWER_TYPE_UNKNOWN;
    return dst::kind_of(dst::element_text(doc, node), dst_power_type, FRU_POWER_TYPE_AC, FRU_POWER_TYPE_DC, &type);
}

static int libdst_chassis_model_airflowtype_tag_op(xmlDocPtr doc, xmlNodePtr node, frumodel_module_list_t *to) {
    return dst::kind_of(dst::element_text(doc, node), dst_aflow_type, FRU_AFLOW_TYPE_NONE, FRU_AFLOW_TYPE_UNKNOWN,
                        &to->frumodel_minfo.aflow_type);
}

#define MODEL_ELEMENTS(ROW, T)                                                                                         \
    ROW(T, FIELD, "PARTNO", libdst_fru_model_partno_tag_op, libdst_parse_tag_string, frumodel_minfo.part_number)       \
    ROW(T, FIELD, "ASSEMBLYID", libdst_fru_model_assemblyid_tag_op, libdst_parse_tag_hex16, frumodel_minfo.asm_id)     \
    ROW(T, FIELD, "POWER_RATING", libdst_fru_model_power_rating_tag_op, libdst_parse_tag_int32,                        \
        frumodel_minfo.power_rating)                                                                                   \
    ROW(T, FIELD, "NAME", libdst_fru_model_name_tag_op, libdst_parse_tag_string, frumodel_minfo.name)                  \
    ROW(T, FIELD, "DESC", libdst_fru_model_desc_tag_op, libdst_parse_tag_string, frumodel_minfo.desc)                  \
    ROW(T, CALL, "PEMTYPE", libdst_chassis_model_powertype_tag_op)                                                     \
    ROW(T, CALL, "AIRFLOWTYPE", libdst_chassis_model_airflowtype_tag_op)                                               \
    ROW(T, FIELD, "FRUDESC", libdst_fru_model_frudesc_tag_op, libdst_parse_tag_string, frumodel_minfo.fru_desc)        \
    ROW(T, FIELD, "PEAK_POWER", libdst_fru_model_peak_power_tag_op, libdst_parse_tag_int32, frumodel_minfo.peak_power) \
    ROW(T, FIELD, "PEM_INPSW_ACT", libdst_fru_model_pem_inpsw_act_tag_op, libdst_parse_tag_bool,                       \
        frumodel_minfo.pem_inpsw_act)                                                                                  \
    ROW(T, FIELD, "NFANS", libdst_fru_model_nfans_tag_op, libdst_parse_tag_uint8, frumodel_minfo.nfans)                \
    ROW(T, FIELD, "FRUEMP", libdst_fru_model_fru_level_empolicy_tag_op, libdst_parse_tag_bool,                         \
        frumodel_minfo.fru_level_empolicy)                                                                             \
    ROW(T, FIELD, "DRIVERID", libdst_fru_model_driverid_tag_op, libdst_parse_tag_int32, frumodel_minfo.driverid)       \
    ROW(T, FIELD, "FRU_ENH_TEMPTHRESHOLD", libdst_fru_model_enh_temp_threshold_tag_op, libdst_parse_tag_bool,          \
        frumodel_minfo.enh_temp_threshold)                                                                             \
    ROW(T, FIELD, "MIN_FAN_SPEED_PERCENT", libdst_fru_model_min_fan_speed_tag_op, libdst_parse_tag_int32,              \
        frumodel_minfo.min_fan_speed)
DST_TABLE(dst_tag_frumodel_op, xml_tag_parser_frumodel_t, frumodel_module_list_t, MODEL_ELEMENTS)

static int libdst_fru_model_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_fru_model_type_attr(xmlNodePtr node, fru_type_t *type) {
    return dst::type_attr(node, dst_fru_type, FRU_TYPE_CHASSIS, FRU_TYPE_TIB, type);
}

static int libdst_fru_model_per_tag(xmlDocPtr doc, xmlNodePtr node, frumodel_module_list_t *entry) {
    return dst::walk(__func__, dst_tag_frumodel_op, doc, node, entry, "failed in parsing fru model tag!");
}

// One MODEL element, of either list.
static int read_model(const char *func, xmlDocPtr doc, xmlNodePtr node, frumodel_module_list_t *entry) {
    fru_model_info_t &record = entry->frumodel_minfo;
    int rc = dst::check(func, libdst_fru_model_id_attr(node, &record.id), "could not get fru model id!");
    if (rc >= 0)
        rc = dst::check(func, libdst_fru_model_type_attr(node, &record.fru_type), "couldnot get fru model type!");
    if (rc >= 0)
        rc = dst::check(func, libdst_fru_model_per_tag(doc, node, entry), "could not get fru model info!");
    return rc;
}

int libdst_frumodel_tag_op(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *model) {
    const char *func = __func__;
    const auto read = [=](xmlNodePtr child, frumodel_module_list_t *entry) {
        return read_model(func, doc, child, entry);
    };
    return dst::read_list(func, "MODEL", node, model->frumodel_info, read);
}

int libdst_chsmodel_tag_op(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *model) {
    const int rc = dst::append_record(__func__, doc, node, model->chsmodel_info, read_model);
    if (rc < 0)
        dst::release_member(model->chsmodel_info);
    return rc;
}
