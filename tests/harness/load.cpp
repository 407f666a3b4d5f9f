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

load_result load_example(const std::string &name) {
    for (const auto &file : std::filesystem::directory_iterator(DST_SHARE "/examples/" + name))
        write_platform_file(file.path().filename(), read_file(file.path()));
    write_platform_file("chassis_dst_schema.xsd", read_file(DST_SHARE "/chassis_dst_schema.xsd"));
    return load();
}

bool model_is_zero() {
    const auto *bytes = reinterpret_cast<const char *>(&chs_info);
    return std::all_of(bytes, bytes + sizeof chs_info, [](char byte) { return byte == 0; });
}
