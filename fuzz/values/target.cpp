// The content of an element, for every value parser, and the same bytes as a name for every name table.
#include <algorithm>
#include <cstring>
#include <iterator>
#include <libxml/parser.h>
#include <string>

#include "../target.h"
#include "chsinfo/libdst/xml/values.h"
#include "chsinfo/libdst_config/keys.h"

namespace {

class element {
  public:
    explicit element(std::string_view content) {
        std::string text = "<!DOCTYPE E [<!ENTITY five '5'>]><E id='";
        text.append(content).append("'>").append(content).append("</E>");
        doc_ = xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, XML_PARSE_RECOVER);
    }
    ~element() { xmlFreeDoc(doc_); }
    element(const element &) = delete;
    element &operator=(const element &) = delete;
    xmlDocPtr doc() const { return doc_; }
    xmlNodePtr node() const { return xmlDocGetRootElement(doc_); }

  private:
    xmlDocPtr doc_;
};

// A parser's value, which stays `before` where there is no text.
template <class T> T parsed(int (*parse)(xmlDocPtr, xmlNodePtr, T *), const element &of, T before, bool has_text) {
    T value = before;
    const int status = parse(of.doc(), of.node(), &value);
    promise(status == (has_text ? 0 : -1), "an element without text, and no other, has no value");
    promise(has_text || value == before, "without a text nothing changes");
    return value;
}

void parse_numbers(const element &of, bool has_text) {
    const auto number = parsed<int32_t>(libdst_parse_tag_int32, of, 99, has_text);
    promise(parsed<uint32_t>(libdst_parse_tag_uint32, of, 99, has_text) == static_cast<uint32_t>(number) &&
                parsed<uint8_t>(libdst_parse_tag_uint8, of, 99, has_text) == static_cast<uint8_t>(number) &&
                parsed<double>(libdst_parse_tag_double, of, 99, has_text) == number,
            "a decimal number is the same in every type, less its high bits");
    const auto hex = parsed<uint32_t>(libdst_parse_tag_hex, of, 99, has_text);
    promise(parsed<uint16_t>(libdst_parse_tag_hex16, of, 99, has_text) == static_cast<uint16_t>(hex) &&
                parsed<uint8_t>(libdst_parse_tag_hex8, of, 99, has_text) == static_cast<uint8_t>(hex),
            "and so is one with a base prefix");
}

void parse_texts(const element &of, const char *text) {
    char stored[129] = {};
    stored[127] = stored[128] = '#';
    promise(libdst_parse_tag_string(of.doc(), of.node(), stored) == (text ? 0 : -1), "a text is a text");
    promise(stored[127] == '#' && stored[128] == '#', "the 128th byte is the record's own");
    promise(std::strncmp(stored, text ? text : "", 127) == 0, "it is stored up to there");
    bool flag = true;
    const int status = libdst_parse_tag_bool(of.doc(), of.node(), &flag);
    const bool is_word = text && (std::strcmp(text, "true") == 0 || std::strcmp(text, "false") == 0);
    promise(status == (is_word ? 0 : -1) && flag == !(text && std::strcmp(text, "false") == 0), "a flag is a word");
}

template <std::size_t Rows> void look_up(const char *const (&table)[Rows], const char *name) {
    const int exact = dst::name_index(table, 0, Rows - 1, name);
    const auto is_it = [name](const char *row) { return row && std::strcmp(row, name) == 0; };
    promise(std::find_if(table, std::end(table), is_it) - table == (exact < 0 ? std::ptrdiff_t{Rows} : exact),
            "the first row that equals the name is found");
    const int begun = libconfig_string2enum_convert(name, table, Rows);
    const auto begins = [name](const char *row) { return row && std::strncmp(row, name, std::strlen(name)) == 0; };
    promise(std::find_if(table, std::end(table), begins) - table == (begun < 0 ? std::ptrdiff_t{Rows} : begun),
            "the first row that begins with the name is found");
    promise(std::strcmp(dst::name_of(table, exact), exact < 0 ? "" : name) == 0, "a row's text is its name");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    const std::string content(reinterpret_cast<const char *>(data), size);
    const element of(content);
    if (of.node()) {
        const dst::xml_text text = dst::element_text(of.doc(), of.node());
        parse_numbers(of, static_cast<bool>(text));
        parse_texts(of, text.get());
        uint32_t id = 99;
        const bool has_id = static_cast<bool>(dst::attribute(of.node(), "id"));
        promise((dst::id_attr(of.node(), &id) == 0) == has_id && (has_id || id == 99), "an id is an attribute");
    }
    const char *name = content.c_str();
    look_up(dst_i2c_type, name);
    look_up(dst_ctrl_type, name);
    look_up(dst_chassis_family_type, name);
    look_up(dst_fru_type, name);
    look_up(dst_fru_removable_type, name);
    look_up(dst_aflow_type, name);
    look_up(dst_power_type, name);
    look_up(dst_tmpsnr_thres_alarm_type, name);
    look_up(dst_led_type, name);
    look_up(dst_lcd_type, name);
    look_up(dst_btn_type, name);
    look_up(dst_scpld_type, name);
    look_up(dst_phy_type, name);
    look_up(dst_xcvr_type, name);
    look_up(dst_asic_chip_type, name);
    look_up(dst_dev_type, name);
    return 0;
}
