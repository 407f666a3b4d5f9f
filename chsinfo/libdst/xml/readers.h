// The readers of the XML form, across its files. All fill the model that the root walk hands them and return 0 or more;
// or a negative value, logged under the reporting function's name, with what they built released.
#pragma once

#include <libxml/tree.h>

#include "chsinfo/libdst.h"
#include "rows.h"

using xml_tag_parser_chsinfo_t = dst::tag_entry<libdst_chs_info_t>;

// The root walk: reads the children of the root element into `cinfo`, all or nothing.
int libdst_root_tag(xmlDocPtr pdoc, xmlNodePtr node, libdst_chs_info_t *cinfo);

// The models, elements of the root.
int libdst_frumodel_tag_op(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *model);
int libdst_chsmodel_tag_op(xmlDocPtr doc, xmlNodePtr node, libdst_chs_info_t *model);

// A DEVICE element, by its "type" attribute.
int libdst_device_tag_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);

// The device readers.
int libdst_dev_i2c_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_fan_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_fpc_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_sib_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_fpm_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_ftc_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_cb_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_psu_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_tmpsnr_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_voltsnr_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_ledlcd_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_lcd_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_button_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_pic_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_fru_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_optics_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
int libdst_dev_asic_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model);
