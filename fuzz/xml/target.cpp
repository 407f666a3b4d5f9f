// An XML document, and after a line "---" a file that it can include as "101". A document that is refused is read once
// more as libxml2 mends it, so that also what is not well-formed reaches the readers. What is well-formed is also
// loaded with the shipped schema, which takes longer than all the rest.
#include <cstdio>
#include <libxml/parser.h>

#include "../life.h"
#include "../memory_file.h"
#include "chsinfo/libdst/xml/load.h"

// libxml2 2.9.14 forgets an included text at a byte that is no character.
extern "C" const char *__lsan_default_suppressions() { return "leak:xmlNewText\nleak:xmlNewIOInputStream\n"; }

static xmlDocPtr mended;

static int load_with(const char *schema) { return libdst_init({"/proc/self/fd/100", schema, nullptr, stdout}); }
static int load_document() { return load_with(DST_PERMISSIVE_SCHEMA); }
static int load_validated() { return load_with(DST_SHIPPED_SCHEMA); }

static int load_mended() {
    const int rc = mended ? libdst_root_handler(mended, libdst_get_chs_info()) : -1;
    if (rc >= 0 && libdst_dev_transform_handler(libdst_get_chs_info()) == 0)
        return 0;
    libdst_release();
    return -1;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size) {
    static const memory_file document(100);
    static const memory_file included(101);
    const auto [text, inclusion] = parts_of(data, size);
    document.write(text);
    included.write(inclusion);
    mended = xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, XML_PARSE_RECOVER);
    const bool loaded = live(load_document, size);
    if (!loaded)
        live(load_mended, size);
    if (mended && (mended->properties & XML_DOC_WELLFORMED))
        promise(!live(load_validated, size) || loaded, "what the shipped schema lets through, a laxer one does");
    xmlFreeDoc(mended);
    return 0;
}
