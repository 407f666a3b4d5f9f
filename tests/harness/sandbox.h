// A mount namespace of the test program's own, with an empty, private /var/platform.
#pragma once

#include <string>

// To be called first in main(), before any thread. Ends the program with a line that says why where the machine does
// not allow it (neither root nor user namespaces).
void enter_sandbox();

// Files of /var/platform. An empty text removes the file.
void write_platform_file(const std::string &name, const std::string &content);
std::string read_file(const std::string &path);
