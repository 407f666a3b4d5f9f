#include "values.h"

#include <cstring>
#include <libxml/xmlerror.h>

namespace dst {

bool out_of_memory() {
    const xmlError *error = xmlGetLastError();
    return error && error->code == XML_ERR_NO_MEMORY;
}

xml_text element_text(xmlDocPtr doc, xmlNodePtr node) {
    return xml_text(xmlNodeListGetString(doc, content_of(node), 1));
}

xml_text attribute(xmlNodePtr node, const char *name) {
    return xml_text(xmlGetNoNsProp(node, reinterpret_cast<const xmlChar *>(name)));
}

bool name_is(const xmlNode *node, const char *name) {
    return node->name && std::strcmp(reinterpret_cast<const char *>(node->name), name) == 0;
}

int id_attr(xmlNodePtr node, uint32_t *id) {
    const xml_text text = attribute(node, "id");
    if (!text)
        return -1;
    *id = static_cast<uint32_t>(decimal(text.get()));
    return 0;
}

template <int32_t (*Convert)(const char *), class T> static int parse(xmlDocPtr doc, xmlNodePtr node, T *value) {
    const xml_text text = element_text(doc, node);
    if (!text)
        return -1;
    *value = static_cast<T>(Convert(text.get()));
    return 0;
}

} // namespace dst

int libdst_parse_tag_int32(xmlDocPtr doc, xmlNodePtr node, int32_t *value) {
    return dst::parse<dst::decimal>(doc, node, value);
}

int libdst_parse_tag_uint32(xmlDocPtr doc, xmlNodePtr node, uint32_t *value) {
    return dst::parse<dst::decimal>(doc, node, value);
}

int libdst_parse_tag_uint8(xmlDocPtr doc, xmlNodePtr node, uint8_t *value) {
    return dst::parse<dst::decimal>(doc, node, value);
}

int libdst_parse_tag_double(xmlDocPtr doc, xmlNodePtr node, double *value) {
    return dst::parse<dst::decimal>(doc, node, value);
}

int libdst_parse_tag_hex(xmlDocPtr doc, xmlNodePtr node, uint32_t *value) {
    return dst::parse<dst::prefixed>(doc, node, value);
}

int libdst_parse_tag_hex16(xmlDocPtr doc, xmlNodePtr node, uint16_t *value) {
    return dst::parse<dst::prefixed>(doc, node, value);
}

int libdst_parse_tag_hex8(xmlDocPtr doc, xmlNodePtr node, uint8_t *value) {
    return dst::parse<dst::prefixed>(doc, node, value);
}

int libdst_parse_tag_string(xmlDocPtr doc, xmlNodePtr node, char *value) {
    const dst::xml_text text = dst::element_text(doc, node);
    if (!text || !value)
        return -1;
    std::strncpy(value, text.get(), 127);
    return 0;
}

int libdst_parse_tag_bool(xmlDocPtr doc, xmlNodePtr node, bool *value) {
    const dst::xml_text text = dst::element_text(doc, node);
    static const char *const words[] = {"false", "true"};
    return dst::kind_of(text, words, 0, 1, value);
}
