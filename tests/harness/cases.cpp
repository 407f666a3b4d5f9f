#include "cases.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "capture.h"
#include "sandbox.h"

static void read_cases(const std::filesystem::path &path, std::vector<load_case> &cases) {
    int number = 0;
    std::string heading;
    bool inside = false;
    for (const std::string &line : lines_of(read_file(path))) {
        ++number;
        if (line.starts_with("=== ")) {
            cases.push_back({path.stem(), number, line.substr(4), "", "", {}});
            inside = true;
            heading.clear();
        } else if (!inside) {
            continue;
        } else if (line.starts_with("--- ")) {
            heading = line.substr(4);
            if (heading != "simulation")
                cases.back().expected[heading];
        } else if (heading.empty()) {
            cases.back().document += line + "\n";
        } else if (heading == "simulation") {
            cases.back().simulation += line + "\n";
        } else if (!line.empty()) {
            cases.back().expected[heading].push_back(line.substr(line.find_first_not_of(' ')));
        }
    }
}

std::ostream &operator<<(std::ostream &out, const load_case &one) {
    return out << one.file << ".cases:" << one.line << ": " << one.name;
}

std::vector<load_case> all_cases(const std::string &folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".cases")
            paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<load_case> cases;
    for (const auto &path : paths)
        read_cases(path, cases);
    return cases;
}

load_result load(form source, const load_case &one) {
    if (source == form::xml)
        return load(one.document);
    return load_config(one.document, one.simulation.empty() ? "" : "CHASSIS = {\n" + one.simulation + "};\n");
}

std::vector<std::string> failure_tail(const std::string &heading) {
    std::vector<std::string> tail;
    if (heading == "fails")
        tail = {"libdst_root_tag: failed in parsing root tag!",
                "libdst_root_handler: Failed to find the root in Device Specification!",
                "libdst_xml_parse: Unable to convert the DST into chassis info"};
    else if (heading != "fails linking")
        throw std::invalid_argument("unknown heading: " + heading);
    tail.insert(tail.end(), {"libdst_init: Failed to parse Device Specification XML to libchassis info!",
                             "Could not parse configuration file!\\n"});
    return tail;
}
