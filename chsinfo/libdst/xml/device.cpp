// DEVICE elements. A new family: its reader's file and declaration, and its row here.
#include "readers.h"

#define DEVICE_TYPES(ROW, T)                                                                                           \
    ROW(T, CALL, "i2c", libdst_dev_i2c_op)                                                                             \
    ROW(T, CALL, "FAN", libdst_dev_fan_op)                                                                             \
    ROW(T, CALL, "FPC", libdst_dev_fpc_op)                                                                             \
    ROW(T, CALL, "SIB", libdst_dev_sib_op)                                                                             \
    ROW(T, CALL, "FPM", libdst_dev_fpm_op)                                                                             \
    ROW(T, CALL, "FTC", libdst_dev_ftc_op)                                                                             \
    ROW(T, CALL, "CB", libdst_dev_cb_op)                                                                               \
    ROW(T, CALL, "PEM", libdst_dev_psu_op)                                                                             \
    ROW(T, CALL, "TMPSNR", libdst_dev_tmpsnr_op)                                                                       \
    ROW(T, CALL, "VOLTSNR", libdst_dev_voltsnr_op)                                                                     \
    ROW(T, CALL, "LED", libdst_dev_ledlcd_op)                                                                          \
    ROW(T, CALL, "LCD", libdst_dev_lcd_op)                                                                             \
    ROW(T, CALL, "BTN", libdst_dev_button_op)                                                                          \
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
