// Texts, attributes and numbers of a document, and the value parsers that every element handler ends in.
#pragma once

#include <cstdint>
#include <libxml/tree.h>
#include <memory>

#include "../model/names.h"
#include "../model/numbers.h"
#include "chsinfo/libdst.h"

// Each takes the element's own text. Returns 0; or -1, the target unchanged, for an element without text (and for a
// Boolean that is neither "true" nor "false"). Numbers are read up to the first character that does not fit and clamped
// to the signed 32-bit range on every platform.
int libdst_parse_tag_int32(xmlDocPtr doc, xmlNodePtr node, int32_t *value);
int libdst_parse_tag_uint32(xmlDocPtr doc, xmlNodePtr node, uint32_t *value);
int libdst_parse_tag_uint8(xmlDocPtr doc, xmlNodePtr node, uint8_t *value);
// A decimal integer: fractions and exponents are not read.
int libdst_parse_tag_double(xmlDocPtr doc, xmlNodePtr node, double *value);
// With base prefix: 0x.. hexadecimal, 0.. octal, else decimal; the low bits are stored.
int libdst_parse_tag_hex(xmlDocPtr doc, xmlNodePtr node, uint32_t *value);
int libdst_parse_tag_hex16(xmlDocPtr doc, xmlNodePtr node, uint16_t *value);
int libdst_parse_tag_hex8(xmlDocPtr doc, xmlNodePtr node, uint8_t *value);
// Stores at most 127 bytes and fills up to there with NUL: the target is a zero-filled array of at least 128.
int libdst_parse_tag_string(xmlDocPtr doc, xmlNodePtr node, char *value);
int libdst_parse_tag_bool(xmlDocPtr doc, xmlNodePtr node, bool *value);

namespace dst {

struct xml_text_free {
    void operator()(xmlChar *text) const { xmlFree(text); }
};
// A text that libxml2 allocated; null when there is none.
class xml_text {
  public:
    explicit xml_text(xmlChar *text) : text_(text) {}
    explicit operator bool() const { return text_ != nullptr; }
    const char *get() const { return reinterpret_cast<const char *>(text_.get()); }

  private:
    std::unique_ptr<xmlChar, xml_text_free> text_;
};

// Where an element's content begins; null for any other node, whose children (an entity reference's declaration) are
// none.
inline xmlNodePtr content_of(const xmlNode *node) { return node->type == XML_ELEMENT_NODE ? node->children : nullptr; }

// The next node of a document, as written; null at its end.
inline const xmlNode *next_node(const xmlNode *node) {
    if (const xmlNode *child = content_of(node))
        return child;
    while (node && !node->next)
        node = node->parent;
    return node ? node->next : nullptr;
}

// Whether libxml2 missed memory since its last error was reset: what it handed out since may be cut or missing.
bool out_of_memory();

xml_text element_text(xmlDocPtr doc, xmlNodePtr node);
xml_text attribute(xmlNodePtr node, const char *name);

bool name_is(const xmlNode *node, const char *name);

// The attribute "id", decimal. Returns 0, or -1 when it is absent.
int id_attr(xmlNodePtr node, uint32_t *id);

// Stores the index of the first row from `first` to `last` that equals `text`. Returns 0; or -1, the target unchanged,
// without a text or an equal row.
template <class E> int kind_of(const xml_text &text, const char *const *table, int first, int last, E *kind) {
    const int index = name_index(table, first, last, text.get());
    if (index < 0)
        return -1;
    *kind = static_cast<E>(index);
    return 0;
}
template <class E> int type_attr(xmlNodePtr node, const char *const *table, int first, int last, E *type) {
    return kind_of(attribute(node, "type"), table, first, last, type);
}

} // namespace dst
