// Loading the XML form: validation, then reading, of the fixed files or of those that the caller names.
#pragma once

#include <cstdint>
#include <cstdio>
#include <libxml/tree.h>

#include "chsinfo/libdst_priv.h"

namespace dst {

// What a load reads and where it prints. The schema dump is left out where `schema_dump` is null.
struct xml_source {
    const char *document;
    const char *schema;
    FILE *schema_dump;
    FILE *verdict;
};

// The fixed paths; standard output.
xml_source fixed_source();

} // namespace dst

// Reads the document into `chs_info`, linked; on failure `chs_info` is all zero.
int libdst_init(const dst::xml_source &source);
int libdst_xml_parse(const dst::xml_source &source = dst::fixed_source());

// Checks the document against the schema and prints the verdict. 0 for a valid document, else -1. `fingerprint`, where
// it is not null, is set to that of a valid document.
int libdst_xml_validation(const dst::xml_source &source = dst::fixed_source(), std::uint64_t *fingerprint = nullptr);

// Checks the root element and reads it into the model.
int libdst_root_handler(xmlDocPtr doc, libdst_chs_info_t *model);
