// What is done to a file's text before libconfig reads it, in place.
//
// libconfig 1.5 cuts long integers to 32 or 64 bits without a word, and not alike in both widths. Outside comments and
// texts, an integer from -2^31 to 2^32-1 is therefore written anew as one of 32 bits without a suffix, so that arrays
// may mix them, the upper half in hexadecimal; any other as an infinite floating-point number, which no read takes.
//
// Later versions read more than 1.5, and some of it as something else: 010 is octal, 0b101 and 0o17 are numbers, a list
// may end in a comma. Leading zeros are therefore left out, and an exclamation mark, an error in all versions, takes
// the place of a letter that directly follows a number, and of a bracket that follows a comma.
//
// libconfig loses the memory of a text that stands where none may; the mark in its place is the same error.
#pragma once

namespace brio {

struct refusal {
    const char *reason;   // null: the text may be read
    const char *position; // of what is not supported
};

refusal prepare(char *text);

} // namespace brio
