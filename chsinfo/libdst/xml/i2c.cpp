// I2C devices, a list: DEVICE type "i2c" with I2CDEV records.
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case.
#include "patterns.h"
#include "readers.h"

using xml_tag_parser_i2cinfo_t = dst::tag_entry<libdst_i2cdev_info_t>;

#define I2CDEV_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "NAME", libdst_dev_i2cdev_name_tag_op, libdst_parse_tag_string, i2cdev_info.name)                    \
    ROW(T, FIELD, "PARENT", libdst_dev_i2cdev_parent_tag_op, libdst_parse_tag_string, i2cdev_info.parent)              \
    ROW(T, FIELD, "I2CADDR", libdst_dev_i2cdev_i2caddr_tag_op, libdst_parse_tag_hex8, i2cdev_info.i2caddr)             \
    ROW(T, FIELD, "SEGMENT", libdst_dev_i2cdev_segment_tag_op, libdst_parse_tag_hex8, i2cdev_info.segment)             \
    ROW(T, FIELD, "LOCATION", libdst_dev_i2cdev_loc_tag_op, libdst_parse_tag_string, i2cdev_info.location)             \
    ROW(T, FIELD, "SYSPATH", libdst_dev_i2cdev_syspath_tag_op, libdst_parse_tag_string, i2cdev_info.syspath)           \
    ROW(T, FIELD, "DRIVERID", libdst_dev_i2cdev_driverid_tag_op, libdst_parse_tag_uint32, i2cdev_info.driver_id)       \
    ROW(T, FIELD, "REGOFFSET", libdst_dev_i2cdev_regoffset_tag_op, libdst_parse_tag_hex8, i2cdev_info.reg_offset)      \
    ROW(T, FIELD, "MUXADDR", libdst_dev_i2cdev_muxaddr_tag_op, libdst_parse_tag_hex8, i2cdev_info.muxaddr)             \
    ROW(T, FIELD, "MUXADDR1", libdst_dev_i2cdev_muxaddr1_tag_op, libdst_parse_tag_hex8, i2cdev_info.muxaddr1)          \
    ROW(T, FIELD, "MUXADDR2", libdst_dev_i2cdev_muxaddr2_tag_op, libdst_parse_tag_hex8, i2cdev_info.muxaddr2)
DST_TABLE(dst_tag_i2c_op, xml_tag_parser_i2cinfo_t, libdst_i2cdev_info_t, I2CDEV_ELEMENTS)

static int libdst_dev_i2c_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

static int libdst_dev_i2c_type_attr(xmlNodePtr node, i2cdev_type_t *type) {
    return dst::type_attr(node, dst_i2c_type, I2C_TYPE_ADT7470, I2C_TYPE_LCD, type);
}

static int libdst_dev_i2cdev_tag(xmlDocPtr doc, xmlNodePtr node, libdst_i2cdev_info_t *entry) {
    return dst::walk(__func__, dst_tag_i2c_op, doc, node, entry, "Could not get i2c info from Device Specification!");
}

int libdst_dev_i2c_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    const char *func = __func__;
    const auto read = [doc, func](xmlNodePtr node, libdst_i2cdev_info_t *entry) {
        i2c_dev_info_t &record = entry->i2cdev_info;
        int rc = dst::check(func, libdst_dev_i2c_id_attr(node, &record.id), "could not get i2c id!");
        if (rc >= 0)
            rc = dst::check(func, libdst_dev_i2c_type_attr(node, &record.type), "couldnot get i2c type!");
        if (rc >= 0)
            rc = dst::check(func, libdst_dev_i2cdev_tag(doc, node, entry), "couldnot get i2c info!");
        return rc;
    };
    return dst::read_list(func, "I2CDEV", device, model->chs_cinfo.i2cdev_info_list, read);
}
