// An XML document, and after a line "---" a file that it can include as "101". A document that is refused is read once
// more as libxml2 mends it, so that also what is not well-formed reaches the readers.
#include <cstdio>
#include <libxml/parser.h>

#include "../life.h"
#include "../memory_file.h"
#include "chsinfo/libdst/xml/load.h"

static xmlDocPtr mended;

static int load_document() { return libdst_init({"/proc/self/fd/100", DST_PERMISSIVE_SCHEMA, nullptr, stdout}); }

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
    if (live(load_document, size))
        return 0;
    mended = xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, XML_PARSE_RECOVER);
    live(load_mended, size);
    xmlFreeDoc(mended);
    return 0;
}
