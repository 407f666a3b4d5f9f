// A life of the library, as a host leads it.
#pragma once

#include <cstddef>

// Initialises with what `load` reads, and prints it; asks every query, for every record; releases. A model that is
// refused must be zero, and so must be what a release leaves. `limit`: no walk may give more records. Returns whether
// the model was loaded.
bool live(int (*load)(), std::size_t limit);
