// LEDs, LCDs and buttons, single devices: DEVICE types "LED", "LCD" and "BTN".
// A new element: its member in libdst.h, its row here, in the dump and in the schema, a case. A new controller: its
// enumerator and name row, its name in the schema, its CTRL row here, a case. A new kind of one of them: its enumerator
// and name row.
#include "patterns.h"
#include "readers.h"

// LEDs

static int libdst_dev_ledlcd_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct led : dst::family<dst::leds> {
    static constexpr dst::family_words words{"led", "led", "led", "led",
                                             "failed in parsing the elements under led/led tag!"};
    static constexpr auto id_attr = libdst_dev_ledlcd_id_attr;
};

using xml_tag_parser_ledlcdinfo_t = dst::tag_entry<ledlcd_module_list_t>;

#define LED_ELEMENTS(ROW, T)                                                                                           \
    ROW(T, FIELD, "NAME", libdst_dev_ledlcd_per_name_tag_op, libdst_parse_tag_string, ll_minfo->name)                  \
    ROW(T, KIND, "LEDTYPE", libdst_dev_led_per_type_tag_op, dst_led_type, LED_TYPE_BEACON, LED_TYPE_CLOUD,             \
        ll_minfo->led_type)                                                                                            \
    ROW(T, FRUID, "FRUID", libdst_dev_ledlcd_per_fruid_tag_op, led)                                                    \
    ROW(T, FIELD, "DRIVERID", libdst_dev_ledlcd_per_driverid_tag_op, libdst_parse_tag_uint32, ll_minfo->driver_id)
DST_TABLE(dst_tag_ledlcdinfo_op, xml_tag_parser_ledlcdinfo_t, ledlcd_module_list_t, LED_ELEMENTS)

static int libdst_dev_ledlcd_per_tag(xmlDocPtr doc, xmlNodePtr device, ledlcd_module_list_t *node) {
    return dst::walk(__func__, dst_tag_ledlcdinfo_op, doc, device, node, led::words.walk);
}

#define LED_CONTROLLERS(ROW, T)                                                                                        \
    ROW(T, CTRL, "KORVLED", libdst_dev_led_korvled_op, led, CTRL_TYPE_KORVLED, libdst_dev_ledlcd_per_tag)              \
    ROW(T, CTRL, "DURNLED", libdst_dev_led_durnled_op, led, CTRL_TYPE_DURNLED, libdst_dev_ledlcd_per_tag)              \
    ROW(T, CTRL, "GENERICLED", libdst_dev_led_genericled_op, led, CTRL_TYPE_GENERICLED, libdst_dev_ledlcd_per_tag)
DST_TABLE(dst_tag_led_op, xml_tag_parser_ledlcdinfo_t, ledlcd_module_list_t, LED_CONTROLLERS)

int libdst_dev_ledlcd_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    return dst::read_device<led>(__func__, dst_tag_led_op, doc, device, model);
}

// LCDs

static int libdst_dev_lcd_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct lcd : dst::family<dst::lcds> {
    static constexpr dst::family_words words{"lcd", "lcd", "lcd", "lcd",
                                             "failed in parsing the elements under lcd tag!"};
    static constexpr auto id_attr = libdst_dev_lcd_id_attr;
};

using xml_tag_parser_lcdinfo_t = dst::tag_entry<lcd_module_list_t>;

#define LCD_ELEMENTS(ROW, T)                                                                                           \
    ROW(T, FIELD, "NAME", libdst_dev_lcd_per_name_tag_op, libdst_parse_tag_string, lcd_minfo->name)                    \
    ROW(T, KIND, "LCDTYPE", libdst_dev_lcd_per_type_tag_op, dst_lcd_type, LCD_TYPE_DISPLAY_FP0, LCD_TYPE_DISPLAY_FP0,  \
        lcd_minfo->lcd_type)                                                                                           \
    ROW(T, FRUID, "FRUID", libdst_dev_lcd_per_fruid_tag_op, lcd)                                                       \
    ROW(T, FIELD, "DRIVERID", libdst_dev_lcd_per_driverid_tag_op, libdst_parse_tag_uint32, lcd_minfo->driver_id)
DST_TABLE(dst_tag_lcdinfo_op, xml_tag_parser_lcdinfo_t, lcd_module_list_t, LCD_ELEMENTS)

static int libdst_dev_lcd_per_tag(xmlDocPtr doc, xmlNodePtr device, lcd_module_list_t *node) {
    return dst::walk(__func__, dst_tag_lcdinfo_op, doc, device, node, lcd::words.walk);
}

#define LCD_CONTROLLERS(ROW, T)                                                                                        \
    ROW(T, CTRL, "GENERICLCD", libdst_dev_lcd_genericlcd_op, lcd, CTRL_TYPE_GENERICLCD, libdst_dev_lcd_per_tag)
DST_TABLE(dst_tag_lcd_op, xml_tag_parser_lcdinfo_t, lcd_module_list_t, LCD_CONTROLLERS)

int libdst_dev_lcd_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    const int rc = dst::read_device<lcd>(__func__, dst_tag_lcd_op, doc, device, model);
    if (rc >= 0)
        dst::log_plain(LOG_INFO, "%s:%d Parsing LCD op done successfully!", __func__, __LINE__);
    return rc;
}

// Buttons

static int libdst_dev_button_id_attr(xmlNodePtr node, uint32_t *id) { return dst::id_attr(node, id); }

struct button : dst::family<dst::btns> {
    static constexpr dst::family_words words{"btn", "btn", "btn", "button",
                                             "failed in parsing the elements under button tag!"};
    static constexpr auto id_attr = libdst_dev_button_id_attr;
};

using xml_tag_parser_buttoninfo_t = dst::tag_entry<button_module_list_t>;

#define BUTTON_ELEMENTS(ROW, T)                                                                                        \
    ROW(T, FIELD, "NAME", libdst_dev_button_per_name_tag_op, libdst_parse_tag_string, btn_minfo->name)                 \
    ROW(T, KIND, "BTNTYPE", libdst_dev_button_per_type_tag_op, dst_btn_type, BTN_TYPE_POWER, BTN_TYPE_RESET,           \
        btn_minfo->button_type)                                                                                        \
    ROW(T, FRUID, "FRUID", libdst_dev_button_per_fruid_tag_op, button)                                                 \
    ROW(T, FIELD, "DRIVERID", libdst_dev_button_per_driverid_tag_op, libdst_parse_tag_uint32, btn_minfo->driver_id)
DST_TABLE(dst_tag_buttoninfo_op, xml_tag_parser_buttoninfo_t, button_module_list_t, BUTTON_ELEMENTS)

static int libdst_dev_button_per_tag(xmlDocPtr doc, xmlNodePtr device, button_module_list_t *node) {
    return dst::walk(__func__, dst_tag_buttoninfo_op, doc, device, node, button::words.walk);
}

#define BUTTON_CONTROLLERS(ROW, T)                                                                                     \
    ROW(T, CTRL, "QVLBTN", libdst_dev_btn_qvlbtn_op, button, CTRL_TYPE_QVLBTN, libdst_dev_button_per_tag)
DST_TABLE(dst_tag_btn_op, xml_tag_parser_buttoninfo_t, button_module_list_t, BUTTON_CONTROLLERS)

int libdst_dev_button_op(xmlDocPtr doc, xmlNodePtr device, libdst_chs_info_t *model) {
    return dst::read_device<button>(__func__, dst_tag_btn_op, doc, device, model);
}
