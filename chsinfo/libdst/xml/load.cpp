#include "load.h"

#include <utility>

#include <libxml/parser.h>
#include <libxml/xinclude.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlschemas.h>
#include <libxml/xmlschemastypes.h>

#include "../model/log.h"
#include "../model/model.h"
#include "chsinfo/paths.h"
#include "readers.h"

namespace dst {

template <auto Free> struct free_with {
    void operator()(auto *object) const { Free(object); }
};
using schema_parser = std::unique_ptr<xmlSchemaParserCtxt, free_with<xmlSchemaFreeParserCtxt>>;
using schema = std::unique_ptr<xmlSchema, free_with<xmlSchemaFree>>;
using schema_validator = std::unique_ptr<xmlSchemaValidCtxt, free_with<xmlSchemaFreeValidCtxt>>;
using document = std::unique_ptr<xmlDoc, free_with<xmlFreeDoc>>;

// Errors of the schema and of the validation carry line numbers only while this default is on; a host may rely on it.
class line_numbers {
  public:
    line_numbers() : before_(xmlLineNumbersDefault(1)) {}
    ~line_numbers() { xmlLineNumbersDefault(before_); }
    line_numbers(const line_numbers &) = delete;
    line_numbers &operator=(const line_numbers &) = delete;

  private:
    int before_;
};

struct schema_types {
    schema_types() = default;
    ~schema_types() { xmlSchemaCleanupTypes(); }
    schema_types(const schema_types &) = delete;
    schema_types &operator=(const schema_types &) = delete;
};

// libxml2 adds file and line to a message only when the callback is fprintf itself.
template <class Callback> static Callback print_to_stream() {
    return reinterpret_cast<Callback>(reinterpret_cast<void (*)()>(std::fprintf));
}

// libxml2 hands out what it has of a document when memory runs out while it reads it: that is no document.
static bool out_of_memory() {
    const xmlError *error = xmlGetLastError();
    return error && error->code == XML_ERR_NO_MEMORY;
}

// The document with everything that XInclude brings in, which never comes from the network; null when it cannot be
// read.
static document read_document(const char *func, const char *path, int options) {
    xmlResetLastError();
    document doc(xmlReadFile(path, nullptr, options));
    if (!doc || out_of_memory())
        return nullptr;
    if (xmlXIncludeProcessFlags(doc.get(), XML_PARSE_NONET) < 1)
        log_at(LOG_DEBUG, func, "Could not apply the XInclude process");
    return out_of_memory() ? nullptr : std::move(doc);
}

xml_source fixed_source() { return {xml_path, schema_path, stdout, stdout}; }

} // namespace dst

void libxml_init(void) {
    xmlInitParser();
    xmlCheckVersion(20901);
}

void libxml_shutdown(void) { xmlCleanupParser(); }

// The objects are declared in the reverse order of their release.
int libdst_xml_validation(const dst::xml_source &source) {
    const dst::line_numbers numbered;
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
    if (!schema)
        return dst::check(__func__, -1, "Unable to parse schemas context");
    parser.reset();
    if (source.schema_dump)
        xmlSchemaDump(source.schema_dump, schema.get());

    doc = dst::read_document(__func__, source.document, 0);
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
    std::fprintf(source.verdict,
                 verdict == 0  ? "%s validates OK!\n"
                 : verdict > 0 ? "%s fails in validation!\n"
                               : "%s validation generated an internal error!\n",
                 source.document);
    return verdict == 0 ? 0 : -1;
}

int libdst_root_handler(xmlDocPtr doc, libdst_chs_info_t *model) {
    xmlNodePtr root = xmlDocGetRootElement(doc);
    if (!root)
        return dst::check(__func__, -1, "Device Specification XML file is empty!");
    const int rc = dst::name_is(root, "CHASSIS") ? libdst_root_tag(doc, root, model) : -1;
    return dst::check(__func__, rc < 0 ? -1 : rc, "Failed to find the root in Device Specification!");
}

static int read_model(const char *func, const char *path, libdst_chs_info_t *model) {
    libxml_init();
    // The same tree as with the plain parse, leaner, and whatever the host did to the parser's defaults.
    const dst::document doc = dst::read_document(func, path, XML_PARSE_COMPACT);
    if (!doc)
        return dst::check(func, -1, "Unable to parse XML file");
    const int rc = libdst_root_handler(doc.get(), model);
    if (rc < 0)
        return dst::check(func, rc, "Unable to convert the DST into chassis info");
    return libdst_dev_transform_handler(model);
}

int libdst_xml_parse(const dst::xml_source &source) {
    libdst_chs_info_t *model = libdst_get_chs_info();
    libdst_info_init(model);
    int rc = dst::check(__func__, libdst_xml_validation(source), "Failed to validate Device Specification XML");
    if (rc >= 0)
        rc = read_model(__func__, source.document, model);
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
