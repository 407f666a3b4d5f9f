#include "load.h"

#include <algorithm>
#include <filesystem>

#include "chsinfo/libdst.h"

std::vector<std::string> load_result::dump() const {
    std::vector<std::string> lines = lines_of(out);
    const auto banner = std::find(lines.begin(), lines.end(), "============== DST info =============");
    return {banner, lines.end()};
}

load_result load() {
    take_log();
    streams_capture streams;
    const int status = libchs_init();
    return {status, take_log(), streams.out(), streams.err()};
}

load_result load(const std::string &document) {
    const bool whole = document.starts_with("<?xml") || document.starts_with("<CHASSIS") ||
                       document.starts_with("<chassis") || document.starts_with("<!");
    write_platform_file("chassis_dst_schema.xsd", read_file(DST_TEST_DATA "/permissive.xsd"));
    write_platform_file("chassis_dst.xml", whole ? document : "<CHASSIS>\n" + document + "</CHASSIS>\n");
    return load();
}

void write_config(const std::string &tree, const std::string &simulation) {
    static const std::vector<std::pair<std::string, std::string>> root_keys = {
        {"VERSION", "0"},
        {"FAMILY", "\"QVL\""},
        {"NDRAMSLOTS", "0"},
        {"NFANSLOTS", "0"},
        {"NPEMSLOTS", "0"},
        {"NFPCSLOTS", "0"},
        {"NFPMSLOTS", "0"},
        {"NFTCSLOTS", "0"},
        {"NCBSLOTS", "0"},
        {"NSIBSLOTS", "0"},
        {"NPICSLOTS", "0"},
        {"NTIBSLOTS", "0"},
        {"NFPGAS", "0"},
        {"NTMPSENSORS", "0"},
        {"NVOLTSENSORS", "0"},
        {"NFPLEDS", "0"},
        {"NBPLEDS", "0"},
        {"FRUMODEL", "{ MODEL = ( { } ); }"},
        {"CHSMODEL", "{ MODEL = ( ); }"},
        {"FRUS", "( )"},
    };
    std::string whole = tree;
    if (tree.find("CHASSIS") != 0) {
        for (const auto &[key, value] : root_keys)
            if (("\n" + tree).find("\n" + key + " =") == std::string::npos)
                whole.append(key).append(" = ").append(value).append(";\n");
        whole = "CHASSIS = {\n" + whole + "};\n";
    }
    write_platform_file("chassis_dst.xml", "");
    write_platform_file("chassis_dst.conf", whole);
    write_platform_file("chassis_dst_sim.conf", simulation.empty() ? "CHASSIS = { };\n" : simulation);
}

load_result load_config(const std::string &tree, const std::string &simulation) {
    write_config(tree, simulation);
    return load();
}

load_result load_example(const std::string &name, form source) {
    write_platform_file("chassis_dst.xml", "");
    for (const auto &file : std::filesystem::directory_iterator(DST_SHARE "/examples/" + name))
        if ((file.path().extension() == ".conf") == (source == form::config))
            write_platform_file(file.path().filename(), read_file(file.path()));
    write_platform_file("chassis_dst_schema.xsd", read_file(DST_SHARE "/chassis_dst_schema.xsd"));
    return load();
}

bool model_is_zero() {
    const auto *bytes = reinterpret_cast<const char *>(&chs_info);
    return std::all_of(bytes, bytes + sizeof chs_info, [](char byte) { return byte == 0; });
}
