#include "fingerprint.h"

#include <iterator>

#include "values.h"

namespace dst {

namespace {

// FNV-1a: most texts are of a few bytes, for which looking for the end first, or a call, would cost more.
constexpr std::uint64_t prime = UINT64_C(0x100000001B3);
std::uint64_t hash_of(const xmlChar *text, std::uint64_t hash) {
    for (; text && *text; ++text)
        hash = (hash ^ *text) * prime;
    return hash;
}

class fingerprint {
  public:
    std::uint64_t value() const { return value_; }
    void add(std::uint64_t number) { value_ = (value_ ^ number) * prime; }
    void add_text(const xmlChar *text) {
        value_ = hash_of(text, value_);
        add(0); // no text holds it: what follows is none of it
    }

    // libxml2 keeps a name once for a whole document: it is known by its address.
    void add_name(const xmlChar *text) {
        known_name &known = names_[reinterpret_cast<std::uintptr_t>(text) / 8 % std::size(names_)];
        if (known.text != text) {
            const std::uint64_t hash = hash_of(text, 0);
            known = {text, hash ^ hash >> 32};
        }
        add(known.hash);
    }

  private:
    struct known_name {
        const xmlChar *text;
        std::uint64_t hash;
    };
    std::uint64_t value_ = UINT64_C(0xCBF29CE484222325);
    known_name names_[256] = {};
};

void add_attributes(fingerprint &print, const xmlNode *element) {
    for (const xmlAttr *one = element->properties; one; one = one->next) {
        print.add_name(one->name);
        if (one->ns)
            print.add_name(one->ns->href);
        for (const xmlNode *part = one->children; part; part = part->next) {
            print.add(256U + part->type); // no byte, no node
            print.add_text(part->type == XML_TEXT_NODE ? part->content : part->name);
        }
    }
}

void add_entities(fingerprint &print, const xmlNode *dtd) {
    for (const xmlNode *node = dtd->children; node; node = node->next)
        if (node->type == XML_ENTITY_DECL) {
            print.add_text(node->name);
            print.add(node->type);
            print.add_text(reinterpret_cast<const xmlEntity *>(node)->content);
        }
}

bool is_element(const xmlNode *node) { return node && node->type == XML_ELEMENT_NODE; }

// With a child and a next node told, the order of the nodes is the tree. A text beside an element is nobody's value,
// and no schema can say what it must be.
void add_node(fingerprint &print, const xmlNode *node) {
    if (node->type == XML_TEXT_NODE && (is_element(node->next) || is_element(node->prev)))
        return;
    print.add(4U * node->type + (content_of(node) ? 2 : 0) + (node->next ? 1 : 0));
    switch (node->type) {
    case XML_ELEMENT_NODE:
        print.add_name(node->name);
        if (node->ns)
            print.add_name(node->ns->href);
        return add_attributes(print, node);
    case XML_TEXT_NODE:
    case XML_CDATA_SECTION_NODE:
        return print.add_text(node->content);
    case XML_ENTITY_REF_NODE:
        return print.add_text(node->name);
    case XML_DTD_NODE:
        return add_entities(print, node);
    default: // comments, processing instructions: read by nobody
        return;
    }
}

} // namespace

std::uint64_t fingerprint_of(const xmlDoc *doc) {
    fingerprint print;
    for (const xmlNode *node = doc->children; node; node = next_node(node))
        add_node(print, node);
    return print.value();
}

} // namespace dst
