// A load of a document through libchs_init(), on the real paths, with everything it said.
#pragma once

#include <string>
#include <vector>

#include "capture.h"
#include "sandbox.h"

struct load_result {
    int status;
    std::vector<log_line> log;
    std::string out;
    std::string err;

    // The lines of the dump; none when nothing was dumped.
    std::vector<std::string> dump() const;
};

// Calls libchs_init() on what stands in /var/platform.
load_result load();

// The same with this document and a schema that lets everything through. A fragment becomes the content of CHASSIS.
load_result load(const std::string &document);

// The same from a configuration tree. A fragment, which is the content of the group CHASSIS, gets the root keys that it
// lacks and a read cannot do without or remarks on; without a simulation tree there is an empty one.
load_result load_config(const std::string &tree, const std::string &simulation = "");

// Puts what load_config() loads into /var/platform.
void write_config(const std::string &tree, const std::string &simulation = "");

// The same with a shipped example: the document, against the shipped schema, or the configuration tree.
enum class form { xml, config };
load_result load_example(const std::string &name, form source = form::xml);

// Whether every byte of `chs_info` is zero.
bool model_is_zero();
