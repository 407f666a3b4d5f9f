// What is done to a file's text before libconfig reads it.
#pragma once

namespace brio {

// Writes every integer outside comments and texts anew, in place, since libconfig 1.5 cuts long ones to 32 or 64 bits
// without a word, and differently in either width. From -2^31 to 2^32-1 it becomes one of 32 bits without a suffix, so
// that arrays may mix them; any other becomes an infinite floating-point number, which no read takes.
// Returns the line that begins with an @include, where it stops; null when there is none.
char *normalise(char *text);

} // namespace brio
