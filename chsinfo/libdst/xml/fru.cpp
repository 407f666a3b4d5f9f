// FRUs, a list: DEVICE type "FRU" with FRUDEV records.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case.
#include "patterns.h"
#include "readers.h"

using xml_tag_parser_fruinfo_t = dst::tag_entry<fru_module_list_t>;

static constexpr char logical_slot_element[] = "LOGICAL_SLOTID";

static int libdst_dev_fru_per_parent_tag_op(xmlDocPtr doc, xmlNodePtr node, fru_module_list_t *to) {
    const dst::xml_text text = dst::element_text(doc, node);
    if (!text)
        return -1;
    to->parent_id = dst::parent_id(text.get());
    return 0;
}

// An I2C device id, or -1 for none.
static int i2c_device_tag(const char *func, xmlDocPtr doc, xmlNodePtr node, int32_t *id, const char *failure) {
    const dst::xml_text text = dst::element_text(doc, node);
    const int32_t value = text ? dst::decimal(text.get()) : INT32_MIN;
    if (value < -1)
        return dst::check(func, -1, failure);
    *id = value;
    return 0;
}

static int libdst_dev_fru_per_i2cdevid_tag_op(xmlDocPtr doc, xmlNodePtr node, fru_module_list_t *to) {
    return i2c_device_tag(__func__, doc, node, &to->i2cdev_id, "could not get fru i2cid!");
}

static int libdst_dev_fru_per_i2cext_tag_op(xmlDocPtr doc, xmlNodePtr node, fru_module_list_t *to) {
    return i2c_device_tag(__func__, doc, node, &to->i2cdev_id_ext, "could not get fru ext i2cid!");
}

#define FRUDEV_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "NAME", libdst_dev_fru_per_name_tag_op, libdst_parse_tag_string, fru_minfo.name)                     \
    ROW(T, FIELD, "SLOTID", libdst_dev_fru_per_slotid_tag_op, libdst_parse_tag_uint8, fru_minfo.slot)                  \
    ROW(T, CALL, "PARENT", libdst_dev_fru_per_parent_tag_op)                                                           \
    ROW(T, CALL, "I2CDEVID", libdst_dev_fru_per_i2cdevid_tag_op)                                                       \
    ROW(T, CALL, "I2CDEVEXTID", libdst_dev_fru_per_i2cext_tag_op)                                                      \
    ROW(T, KIND, "TYPE", libdst_dev_fru_per_type_tag_op, dst_fru_removable_type, FRU_REMOVABLE_TYPE_FIXED,             \
        FRU_REMOVABLE_TYPE_VIRTUAL, fru_minfo.fru_removable_type)                                                      \
    ROW(T, FIELD, "VIRTUAL_FRU_STAT_FILE", libdst_dev_fru_virtual_stat_file_op, libdst_parse_tag_string,               \
        fru_minfo.virtual_fru_stats_file_name)                                                                         \
    ROW(T, FIELD, "DRIVERID", libdst_dev_fru_per_driverid_tag_op, libdst_parse_tag_uint32, fru_minfo.driverid)         \
    ROW(T, FIELD, "EPMVALID", libdst_dev_fru_per_epmvalid_tag_op, libdst_parse_tag_bool, fru_minfo.epmvalid)           \
    ROW(T, FIELD, "EPMSIZE", libdst_dev_fru_per_epmsize_tag_op, libdst_parse_tag_uint32, fru_minfo.epmsize)            \
    ROW(T, FIELD, logical_slot_element, libdst_dev_fru_per_lslotid_tag_op, libdst_parse_tag_uint8,                     \
        fru_minfo.logical_slot)                                                                                        \
    ROW(T, FIELD, "HYST_OFFSET", libdst_dev_fru_per_hyst_offset_tag_op, libdst_parse_tag_uint32,                       \
        fru_minfo.hyst_offset)                                                                                         \
    ROW(T, FIELD, "MAX_ALARM_REASONS", libdst_dev_fru_per_max_alarm_reasons_tag_op, libdst_parse_tag_uint32,           \
        fru_minfo.max_alarm_reasons)
DST_TABLE(dst_tag_fruinfo_op, xml_tag_parser_fruinfo_t, fru_module_list_t, FRUDEV_ELEMENTS)

static int libdst_dev_fru_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_dev_fru_type_attr(xmlNodePtr node, fru_type_t *type) {
    return dst::type_attr(node, dst_fru_type, FRU_TYPE_CHASSIS, FRU_TYPE_TIB, type);
}

static int libdst_dev_fru_per_tag(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *, fru_module_list_t *entry,
                                  bool *logical_slot_seen) {
    for (const xmlNode *child = dst::content_of(node); child; child = child->next)
        if (dst::name_is(child, logical_slot_element))
            *logical_slot_seen = true;
    return dst::walk(__func__, dst_tag_fruinfo_op, doc, node, entry, "failed in parsing root tag!");
}

int libdst_dev_fru_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    const char *func = __func__;
    const auto read = [=](xmlNodePtr node, fru_module_list_t *entry) {
        fru_info_t &record = entry->fru_minfo;
        bool logical_slot_seen = false;
        entry->i2cdev_id_ext = -1;
        int rc = dst::check(func, libdst_dev_fru_id_attr(node, &record.id), "could not get fru id!");
        if (rc >= 0)
            rc = dst::check(func, libdst_dev_fru_type_attr(node, &record.fru_type), "couldnot get fru type!");
        if (rc >= 0)
            rc = dst::check(func, libdst_dev_fru_per_tag(doc, node, model, entry, &logical_slot_seen),
                            "could not get fru info!");
        if (rc < 0)
            return rc;
        if (!logical_slot_seen)
            record.logical_slot = record.slot;
        ++model->chs_cinfo.chs_info.nfrus;
        return rc;
    };
    const int rc = dst::read_list(func, "FRUDEV", device, model->fru_info, read);
    if (rc < 0)
        model->chs_cinfo.chs_info.nfrus = 0;
    return rc;
}
