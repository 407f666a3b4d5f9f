// What is done to a file's text before libconfig 1.5 reads it, in place.
//
// libconfig cuts long integers to 32 or 64 bits without a word, and not alike in both widths. Outside comments and
// texts, an integer from -2^31 to 2^32-1 is therefore written anew as one of 32 bits without a suffix, so that arrays
// may mix them, and any other as an infinite floating-point number, which no read takes.
//
// libconfig loses the memory of a text that stands where none may; an exclamation mark in its place is the same error.
#pragma once

namespace brio {

struct refusal {
    const char *reason;   // null: the text may be read
    const char *position; // of what is not supported
};

refusal prepare(char *text);

} // namespace brio
