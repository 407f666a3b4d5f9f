// Whether two readings of a document gave the same.
#pragma once

#include <cstdint>
#include <libxml/tree.h>

namespace dst {

// Of everything that a reader can see: kinds, names, attributes, texts, and the entities that attributes may name.
std::uint64_t fingerprint_of(const xmlDoc *doc);

} // namespace dst
