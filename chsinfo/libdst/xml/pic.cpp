// PICs, single devices: DEVICE type "PIC" with the controller "PIC".
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case. A new controller: its
// enumerator and name row, its name in the schema, its CTRL row here, a case.
#include "patterns.h"
#include "readers.h"

static int libdst_dev_pic_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct pic : dst::family<dst::pics> {
    static constexpr dst::family_words words{"pic", "pic", "pic", "pic", "failed in parsing pic tag!"};
    static constexpr auto id_attr = libdst_dev_pic_id_attr;
};

using xml_tag_parser_picinfo_t = dst::tag_entry<pic_module_list_t>;

#define PIC_ELEMENTS(ROW, T)                                                                                           \
    ROW(T, FIELD, "NAME", libdst_dev_pic_name_tag_op, libdst_parse_tag_string, pic_minfo->name)                        \
    ROW(T, FRUID, "FRUID", libdst_dev_pic_fruid_tag_op, pic)                                                           \
    ROW(T, FIELD, "DRIVERID", libdst_dev_pic_driverid_tag_op, libdst_parse_tag_uint32, pic_minfo->driver_id)           \
    ROW(T, FIELD, "PICI2CID", libdst_dev_pic_pici2cid_tag_op, libdst_parse_tag_hex8, pic_minfo->pic_i2cid)             \
    ROW(T, FIELD, "CAPABILITY", libdst_dev_pic_capability_tag_op, libdst_parse_tag_uint32, pic_minfo->capablility)
DST_TABLE(dst_tag_picinfo_op, xml_tag_parser_picinfo_t, pic_module_list_t, PIC_ELEMENTS)

static int libdst_dev_pic_per_tag(xmlDocPtr doc, xmlNodePtr device, pic_module_list_t *node) {
    return dst::walk(__func__, dst_tag_picinfo_op, doc, device, node, pic::words.walk);
}

#define PIC_CONTROLLERS(ROW, T) ROW(T, CTRL, "PIC", libdst_dev_pic_pic_op, pic, CTRL_TYPE_PIC, libdst_dev_pic_per_tag)
DST_TABLE(dst_tag_pic_op, xml_tag_parser_picinfo_t, pic_module_list_t, PIC_CONTROLLERS)

int libdst_dev_pic_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    return dst::read_device<pic>(__func__, dst_tag_pic_op, doc, device, model);
}
