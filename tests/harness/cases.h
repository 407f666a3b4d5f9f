// The text tables in tests/cases/: a description, and what loading it gives. XML documents stand in the folder itself,
// configuration trees in config/. In a .cases file:
//
//   === what the case shows
//   <DEVICE type="i2c">...            a fragment of CHASSIS, or a whole document or tree
//   --- simulation                    with a configuration tree: the simulation tree's content of CHASSIS
//   --- dump                          it loads: the dump, less what an empty chassis prints
//   --- shows                         or: lines that the dump shows, in this order, others between them
//   --- members                       or: lines of members_of_model(), one right after the other
//   --- log                           with it: the lines at LOG_ERR (none without this heading)
//   --- fails                         or the root walk fails: the lines at LOG_ERR, less the fixed ones after them
//   --- fails linking                 or the linking fails: likewise
// A fragment of a configuration tree is completed (see load_config); its dump is that less what the completion prints.
//
// Indentation of expected lines does not count. Lines before the first case are a comment.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "load.h"

struct load_case {
    std::string file;
    int line;
    std::string name;
    std::string document;
    std::string simulation;
    std::map<std::string, std::vector<std::string>> expected; // by heading
};

std::ostream &operator<<(std::ostream &out, const load_case &one); // where it stands: file and line

// The cases of all .cases files of a folder; without one, of tests/cases/.
std::vector<load_case> all_cases(const std::string &folder = DST_TEST_DATA);

// Loads what the case describes.
load_result load(form source, const load_case &one);

// The lines that follow those of a "fails" heading, in the XML form.
std::vector<std::string> failure_tail(const std::string &heading);
