// DEVICE elements. A new family: its reader's file and declaration, and its row here.
#include "readers.h"

#define DEVICE_TYPES(ROW, T)                                                                                           \
    ROW(T, CALL, "i2c", libdst_dev_i2c_op)                                                                             \
    ROW(T, CALL, "PIC", libdst_dev_pic_op)                                                                             \
    ROW(T, CALL, "FRU", libdst_dev_fru_op)                                                                             \
    ROW(T, CALL, "optics", libdst_dev_optics_op)                                                                       \
    ROW(T, CALL, "asic", libdst_dev_asic_op)
DST_TABLE(dst_tag_dev_op, xml_tag_parser_chsinfo_t, libdst_chs_info_t, DEVICE_TYPES)

int libdst_device_tag_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    const dst::xml_text type = dst::attribute(device, "type");
    const xml_tag_parser_chsinfo_t *reader = dst::find(dst_tag_dev_op, type.get());
    if (!reader)
        return -1;
    const int rc = reader->tag_parser_op(doc, device, model);
    if (rc < 0)
        dst::log_err(__func__, "could not get device (%s) info!", type.get());
    return rc;
}
