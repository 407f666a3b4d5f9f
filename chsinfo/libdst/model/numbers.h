// Numbers in the texts of both forms.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace dst {

// Up to the first character that does not fit, clamped to 32 bits on every platform. Base 0: with base prefix.
inline int32_t number(const char *text, int base) {
    return static_cast<int32_t>(std::clamp<long>(std::strtol(text, nullptr, base), INT32_MIN, INT32_MAX));
}
inline int32_t decimal(const char *text) { return number(text, 10); }
inline int32_t prefixed(const char *text) { return number(text, 0); }

// The id of a FRU's parent: 0xFFFFFFFF for "NULL", which is none.
inline uint32_t parent_id(const char *text) {
    return std::strcmp(text, "NULL") == 0 ? 0xFFFFFFFF : static_cast<uint32_t>(decimal(text));
}

} // namespace dst
