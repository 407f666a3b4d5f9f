#include "load.h"

#include <cstring>
#include <strings.h>
#include <sys/stat.h>
#include <utility>

#include <libxml/catalog.h>
#include <libxml/parser.h>
#include <libxml/uri.h>
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

// The file that a name or URL stands for, as libxml2 opens it; null for what is not local.
static const char *local_path(const char *url) {
    for (const char *scheme : {"file://localhost/", "file:///", "file:/"})
        if (strncasecmp(url, scheme, std::strlen(scheme)) == 0)
            return url + std::strlen(scheme) - 1;
    return std::strstr(url, "://") ? nullptr : url;
}

// What is there by this name may not be opened: it is not local, or no regular file and might wait forever.
static bool is_barred(const char *url) {
    const char *path = local_path(url);
    if (!path || std::strcmp(path, "-") == 0)
        return true;
    struct stat found;
    for (const char *name : {path, url}) // some of libxml2's openers do not know all schemes
        if (stat(name, &found) == 0 && !S_ISREG(found.st_mode))
            return true;
    return false;
}

static xmlExternalEntityLoader load_regular_file;

// Refuses, before it is opened, whatever libxml2 would load that is no local regular file, or is part of a document
// that is being read: included ones, unlike the main one, would bring in their DTD. The schema, which alone is parsed
// with its entities, may.
static xmlParserInputPtr load_guarded(const char *url, const char *id, xmlParserCtxtPtr parser) {
    const char *refusal = nullptr;
    const xml_text unescaped(BAD_CAST xmlURIUnescapeString(url, 0, nullptr)); // libxml2 tries both
    if (!url || is_barred(url) || (unescaped && is_barred(unescaped.get())))
        refusal = "not a local regular file";
    else if (parser && parser->inputNr > 0 && !(parser->options & XML_PARSE_NOENT))
        refusal = "external entities and DTDs are not read";
    if (!refusal)
        return load_regular_file(url, id, parser);
    xmlGenericError(xmlGenericErrorContext, "%s: %s\n", url, refusal);
    return nullptr;
}

// Has libxml2 load local regular files alone, by the names that the documents give: no catalogue, of the environment or
// of a document, tells of others. The host's loader, which still loads them, and its catalogues are put back.
class regular_files_only {
  public:
    regular_files_only() : catalogues_(xmlCatalogGetDefaults()) {
        load_regular_file = xmlGetExternalEntityLoader();
        xmlSetExternalEntityLoader(load_guarded);
        xmlCatalogSetDefaults(XML_CATA_ALLOW_NONE);
    }
    ~regular_files_only() {
        xmlCatalogSetDefaults(catalogues_);
        xmlSetExternalEntityLoader(load_regular_file);
    }
    regular_files_only(const regular_files_only &) = delete;
    regular_files_only &operator=(const regular_files_only &) = delete;

  private:
    const xmlCatalogAllow catalogues_;
};

// Notices memory that ran out although a later error hides it. The messages go on to the host's function.
class memory_watch {
  public:
    memory_watch() : print_(xmlGenericError), context_(xmlGenericErrorContext) {
        xmlResetLastError();
        xmlSetGenericErrorFunc(this, notice);
    }
    ~memory_watch() { xmlSetGenericErrorFunc(context_, print_); }
    memory_watch(const memory_watch &) = delete;
    memory_watch &operator=(const memory_watch &) = delete;
    bool ran_out() const { return ran_out_ || out_of_memory(); }

  private:
    [[gnu::format(printf, 2, 3)]] static void notice(void *watch, const char *format, ...) {
        va_list arguments;
        va_start(arguments, format);
        static_cast<memory_watch *>(watch)->pass_on(format, arguments);
        va_end(arguments);
    }
    void pass_on(const char *format, va_list arguments) {
        ran_out_ = ran_out_ || out_of_memory();
        char message[1024]; // what libxml2 prints at once is shorter, but for long names
        if (std::vsnprintf(message, sizeof message, format, arguments) >= static_cast<int>(sizeof message))
            message[sizeof message - 2] = '\n';
        xmlSetGenericErrorFunc(context_, print_); // libxml2's own function looks at the context that is set
        print_(context_, "%s", message);
        xmlSetGenericErrorFunc(this, notice);
    }

    xmlGenericErrorFunc print_;
    void *context_;
    bool ran_out_ = false;
};

// The document with everything that XInclude brings in; null when it cannot be read, or not in full for want of memory:
// libxml2 hands out what it has then.
static document read_document(const char *func, const char *path, int options) {
    memory_watch memory;
    document doc(xmlReadFile(path, nullptr, options));
    if (!doc || memory.ran_out())
        return nullptr;
    if (xmlXIncludeProcessFlags(doc.get(), XML_PARSE_NONET) < 1)
        log_at(LOG_DEBUG, func, "Could not apply the XInclude process");
    return memory.ran_out() ? nullptr : std::move(doc);
}

// Nodes and attributes of a document.
static std::size_t size_of(const xmlDoc *doc) {
    std::size_t count = 0;
    const auto *root = reinterpret_cast<const xmlNode *>(doc);
    for (const xmlNode *node = doc->children; node && node != root;) {
        ++count;
        for (const xmlAttr *attr = node->type == XML_ELEMENT_NODE ? node->properties : nullptr; attr; attr = attr->next)
            ++count;
        if (xmlNodePtr child = content_of(node)) {
            node = child;
            continue;
        }
        while (node != root && !node->next)
            node = node->parent;
        node = node == root ? root : node->next;
    }
    return count;
}

xml_source fixed_source() { return {xml_path, schema_path, stdout, stdout}; }

} // namespace dst

void libxml_init(void) {
    xmlInitParser();
    xmlCheckVersion(20901);
}

void libxml_shutdown(void) { xmlCleanupParser(); }

// The objects are declared in the reverse order of their release.
int libdst_xml_validation(const dst::xml_source &source, std::size_t *size) {
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
    if (verdict == 0 && size)
        *size = dst::size_of(doc.get());
    return verdict == 0 ? 0 : -1;
}

int libdst_root_handler(xmlDocPtr doc, libdst_chs_info_t *model) {
    xmlNodePtr root = xmlDocGetRootElement(doc);
    if (!root)
        return dst::check(__func__, -1, "Device Specification XML file is empty!");
    const int rc = dst::name_is(root, "CHASSIS") ? libdst_root_tag(doc, root, model) : -1;
    return dst::check(__func__, rc < 0 ? -1 : rc, "Failed to find the root in Device Specification!");
}

// `size` is that of the valid document: one of another size is another one, or not the whole of it, since libxml2 loses
// inclusions in silence when memory runs out.
static int read_model(const char *func, const char *path, std::size_t size, libdst_chs_info_t *model) {
    libxml_init();
    // The same tree as with the plain parse, leaner, and whatever the host did to the parser's defaults.
    const dst::document doc = dst::read_document(func, path, XML_PARSE_COMPACT);
    if (!doc || dst::size_of(doc.get()) != size)
        return dst::check(func, -1, "Unable to parse XML file");
    const int rc = libdst_root_handler(doc.get(), model);
    if (rc < 0)
        return dst::check(func, rc, "Unable to convert the DST into chassis info");
    return libdst_dev_transform_handler(model);
}

int libdst_xml_parse(const dst::xml_source &source) {
    libdst_chs_info_t *model = libdst_get_chs_info();
    libdst_info_init(model);
    const dst::regular_files_only guard;
    std::size_t size = 0;
    int rc = dst::check(__func__, libdst_xml_validation(source, &size), "Failed to validate Device Specification XML");
    if (rc >= 0)
        rc = read_model(__func__, source.document, size, model);
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
