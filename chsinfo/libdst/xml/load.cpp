#include "load.h"

#include <utility>

#include <libxml/xinclude.h>
#include <libxml/xmlschemas.h>
#include <libxml/xmlschemastypes.h>

#include "../model/broken_pipe.h"
#include "../model/log.h"
#include "../model/model.h"
#include "chsinfo/paths.h"
#include "fingerprint.h"
#include "guard.h"
#include "readers.h"

namespace dst {

template <auto Free> struct free_with {
    void operator()(auto *object) const { Free(object); }
};
using schema_parser = std::unique_ptr<xmlSchemaParserCtxt, free_with<xmlSchemaFreeParserCtxt>>;
using schema = std::unique_ptr<xmlSchema, free_with<xmlSchemaFree>>;
using schema_validator = std::unique_ptr<xmlSchemaValidCtxt, free_with<xmlSchemaFreeValidCtxt>>;
using document = std::unique_ptr<xmlDoc, free_with<xmlFreeDoc>>;

struct schema_types {
    schema_types() = default;
    ~schema_types() { xmlSchemaCleanupTypes(); }
    schema_types(const schema_types &) = delete;
    schema_types &operator=(const schema_types &) = delete;
};

// The document with everything that XInclude brings in, which adds no attributes of its own. Null when it cannot be
// read, or not in full: libxml2 hands out what it has when memory runs out.
static document read_document(const char *func, const char *path, int options) {
    const reading_watch watch;
    document doc(xmlReadFile(path, nullptr, options));
    if (!doc || watch.ran_out_of_memory())
        return nullptr;
    if (xmlXIncludeProcessFlags(doc.get(), XML_PARSE_NONET | XML_PARSE_NOBASEFIX) < 1)
        log_at(LOG_DEBUG, func, "Could not apply the XInclude process");
    return watch.ran_out_of_memory() || libxml2_guard::has_cut() ? nullptr : std::move(doc);
}

// Validation ends without a word at an entity among the texts. (In attributes, entities are read.)
static void complain_of_entity(const xmlDoc *doc) {
    const xmlNode *node = doc->children;
    while (node && node->type != XML_ENTITY_REF_NODE)
        node = next_node(node);
    if (node)
        std::fprintf(stderr, "%s:%ld: element %s: &%s; is no text: write what it stands for\n", doc->URL,
                     xmlGetLineNo(node->parent), node->parent->name, node->name);
}

// Of a validation that breaks off, libxml2 frees the constraints that it followed only when the next has run: one of an
// element that no schema declares.
static void end_validation(xmlSchemaValidCtxt *validator, xmlDoc *doc) {
    xmlNode undeclared{};
    undeclared.type = XML_ELEMENT_NODE;
    undeclared.name = BAD_CAST "";
    undeclared.doc = doc;
    xmlSchemaSetValidStructuredErrors(
        validator, [](void *, auto) {}, nullptr);
    xmlSchemaValidateOneElement(validator, &undeclared);
}

xml_source fixed_source() { return {xml_path, schema_path, stdout, stdout}; }

} // namespace dst

void libxml_init(void) {
    xmlInitParser();
    xmlCheckVersion(20901);
}

void libxml_shutdown(void) { xmlCleanupParser(); }

// The objects are declared in the reverse order of their release.
int libdst_xml_validation(const dst::xml_source &source, std::uint64_t *fingerprint) {
    // For the messages, whatever the host prefers.
    const dst::exchanged<int> numbered(xmlLineNumbersDefaultValue, 1);
    const dst::schema_types types;
    dst::schema schema;
    dst::document doc;
    dst::schema_validator validator;
    dst::schema_parser parser(xmlSchemaNewParserCtxt(source.schema));
    if (!parser)
        return dst::check(__func__, -1, "Unable to parse schemas file");
    xmlSchemaSetParserErrors(parser.get(), dst::print_to_stream<xmlSchemaValidityErrorFunc>(),
                             dst::print_to_stream<xmlSchemaValidityWarningFunc>(), stderr);
    schema.reset(xmlSchemaParse(parser.get()));
    if (!schema || dst::libxml2_guard::has_cut())
        return dst::check(__func__, -1, "Unable to parse schemas context");
    parser.reset();
    if (source.schema_dump)
        xmlSchemaDump(source.schema_dump, schema.get());

    doc = dst::read_document(__func__, source.document, XML_PARSE_BIG_LINES);
    if (!doc) {
        dst::log_err(__func__, "Failed in parsing Device Specification XML file %s!\n", source.document);
        return -1;
    }
    validator.reset(xmlSchemaNewValidCtxt(schema.get()));
    if (!validator) {
        dst::log_err(__func__, "Failed in creating a new schema for parsing %s\n", source.document);
        return -1;
    }
    xmlSchemaSetValidErrors(validator.get(), dst::print_to_stream<xmlSchemaValidityErrorFunc>(),
                            dst::print_to_stream<xmlSchemaValidityWarningFunc>(), stderr);
    const int verdict = xmlSchemaValidateDoc(validator.get(), doc.get());
    if (verdict < 0) {
        dst::complain_of_entity(doc.get());
        dst::end_validation(validator.get(), doc.get());
    }
    std::fprintf(source.verdict,
                 verdict == 0  ? "%s validates OK!\n"
                 : verdict > 0 ? "%s fails in validation!\n"
                               : "%s validation generated an internal error!\n",
                 source.document);
    if (verdict == 0 && fingerprint)
        *fingerprint = dst::fingerprint_of(doc.get());
    return verdict == 0 ? 0 : -1;
}

int libdst_root_handler(xmlDocPtr doc, libdst_chs_info_t *model) {
    xmlNodePtr root = xmlDocGetRootElement(doc);
    if (!root)
        return dst::check(__func__, -1, "Device Specification XML file is empty!");
    const int rc = dst::name_is(root, "CHASSIS") ? libdst_root_tag(doc, root, model) : -1;
    return dst::check(__func__, rc < 0 ? -1 : rc, "Failed to find the root in Device Specification!");
}

// `fingerprint` is that of the valid document: with another one it is another document, or not the whole of it, since
// libxml2 loses inclusions in silence when memory runs out.
static int read_model(const char *func, const char *path, std::uint64_t fingerprint, libdst_chs_info_t *model) {
    libxml_init();
    // The same tree as with the plain parse, leaner.
    const dst::document doc = dst::read_document(func, path, XML_PARSE_COMPACT);
    if (!doc || dst::fingerprint_of(doc.get()) != fingerprint)
        return dst::check(func, -1, "Unable to parse XML file");
    const int rc = libdst_root_handler(doc.get(), model);
    if (rc < 0)
        return dst::check(func, rc, "Unable to convert the DST into chassis info");
    return libdst_dev_transform_handler(model);
}

static int read_guarded(const char *func, const dst::xml_source &source, libdst_chs_info_t *model) {
    const dst::libxml2_guard guard;
    std::uint64_t valid = 0;
    const int rc = libdst_xml_validation(source, &valid);
    if (rc < 0)
        return dst::check(func, rc, "Failed to validate Device Specification XML");
    return read_model(func, source.document, valid, model);
}

int libdst_xml_parse(const dst::xml_source &source) {
    libdst_chs_info_t *model = libdst_get_chs_info();
    libdst_info_init(model);
    const dst::broken_pipe_guard printing;
    const int rc = read_guarded(__func__, source, model);
    if (rc < 0)
        libdst_release();
    libxml_shutdown();
    return rc;
}

int libdst_init(const dst::xml_source &source) {
    return dst::check(__func__, libdst_xml_parse(source),
                      "Failed to parse Device Specification XML to libchassis info!");
}

int libdst_init(void) { return libdst_init(dst::fixed_source()); }
