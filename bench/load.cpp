// Loads of both forms, and what a load cannot avoid: the bare work of the libraries below. Each run is one of them.
#include <cstdlib>
#include <cstring>
#include <malloc.h>

#include <libconfig.h>
#include <libxml/parser.h>
#include <libxml/xinclude.h>
#include <libxml/xmlschemas.h>

#include "chsinfo/libdst/model/kinds.h"
#include "chsinfo/libdst/model/log.h"
#include "chsinfo/libdst/xml/load.h"
#include "chsinfo/libdst_config/load.h"
#include "measure.h"

namespace bench {

static double heap_in_use() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

// KiB. Unlike ru_maxrss, what the process was before exec does not count.
static double peak_memory() {
    double peak = 0;
    char line[128];
    FILE *status = std::fopen("/proc/self/status", "r");
    while (status && std::fgets(line, sizeof line, status))
        if (std::strncmp(line, "VmHWM:", 6) == 0)
            peak = std::strtod(line + 6, nullptr);
    if (status)
        std::fclose(status);
    return peak;
}

// The entries of the model's lists, not what their records hold.
template <class... Kinds> static double count(libdst_chs_info_t *model) {
    double records = 0;
    const auto add = [&](const auto &list) {
        for ([[maybe_unused]] const auto &entry : dst::entries(list))
            ++records;
    };
    (add(Kinds::list(model)), ...);
    return records;
}
static double records() {
    using namespace dst;
    return count<i2c_devices, frus, fans, pems, fpcs, sibs, fpms, ftcs, cbs, tibs, tmpsnrs, voltsnrs, leds, lcds, btns,
                 pics, asics, optics, fru_models, chassis_models>(libdst_get_chs_info());
}

// The stream that the verdict is printed on: notes the time.
class verdict_stream {
  public:
    explicit verdict_stream(double &printed_at)
        : file_(fopencookie(&printed_at, "w", {nullptr, note, nullptr, nullptr})) {
        std::setvbuf(file_, nullptr, _IONBF, 0);
    }
    ~verdict_stream() { std::fclose(file_); }
    verdict_stream(const verdict_stream &) = delete;
    verdict_stream &operator=(const verdict_stream &) = delete;
    FILE *get() const { return file_; }

  private:
    static ssize_t note(void *printed_at, const char *, std::size_t size) {
        *static_cast<double *>(printed_at) = cpu_time();
        return static_cast<ssize_t>(size);
    }

    FILE *file_;
};

// The bare work

// The text of every element without child elements.
static void read_texts(xmlDocPtr doc, xmlNodePtr element) {
    bool leaf = true;
    for (xmlNodePtr child = element->children; child; child = child->next)
        if (child->type == XML_ELEMENT_NODE) {
            leaf = false;
            read_texts(doc, child);
        }
    if (leaf)
        xmlFree(xmlNodeListGetString(doc, element->children, 1));
}

static xmlDocPtr parse(const char *document, int options) {
    xmlDocPtr doc = xmlReadFile(document, nullptr, options);
    if (doc)
        xmlXIncludeProcessFlags(doc, XML_PARSE_NONET);
    return doc;
}

static bool bare_xml(const char *document, const char *schema_file, FILE *schema_dump, double &validated_at) {
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewParserCtxt(schema_file);
    xmlSchemaPtr schema = xmlSchemaParse(parser);
    xmlSchemaFreeParserCtxt(parser);
    xmlSchemaDump(schema_dump, schema);
    xmlDocPtr doc = parse(document, 0);
    xmlSchemaValidCtxtPtr validator = xmlSchemaNewValidCtxt(schema);
    const bool valid = xmlSchemaValidateDoc(validator, doc) == 0;
    validated_at = cpu_time();
    xmlSchemaFreeValidCtxt(validator);
    xmlFreeDoc(doc);
    xmlSchemaFree(schema);
    doc = parse(document, XML_PARSE_COMPACT); // the least that a reader needs
    read_texts(doc, xmlDocGetRootElement(doc));
    xmlFreeDoc(doc);
    xmlCleanupParser();
    return valid;
}

// Looks at every setting; the sum keeps that from being left out.
static double sum_of_settings(const config_setting_t *setting) {
    double sum = config_setting_name(setting) ? config_setting_name(setting)[0] : 0;
    switch (config_setting_type(setting)) {
    case CONFIG_TYPE_INT:
        return sum + config_setting_get_int(setting);
    case CONFIG_TYPE_FLOAT:
        return sum + config_setting_get_float(setting);
    case CONFIG_TYPE_STRING:
        return sum + config_setting_get_string(setting)[0];
    default:
        for (int i = 0; i < config_setting_length(setting); ++i)
            sum += sum_of_settings(config_setting_get_elem(setting, static_cast<unsigned>(i)));
        return sum;
    }
}

// The trees stay, as those of a load do.
static bool bare_config(const char *file, const char *sim_folder) {
    static config_t trees[2];
    char sim_file[4096];
    std::snprintf(sim_file, sizeof sim_file, "%s/chassis_dst_sim.conf", sim_folder);
    double sum = 0;
    for (config_t &tree : trees) {
        config_init(&tree);
        if (config_read_file(&tree, &tree == trees ? file : sim_file))
            sum += sum_of_settings(config_root_setting(&tree));
    }
    return sum != 0;
}

// The runs

// load() and bare() are what scripts/bench has the instructions counted of.
[[gnu::noinline]] static bool load(bool xml, const char *file, const char *other, FILE *dump, FILE *verdict) {
    return xml ? libdst_init({file, other, dump, verdict}) == 0 : libdst_config_init({file, other, verdict}) == 0;
}

[[gnu::noinline]] static bool bare(bool xml, const char *file, const char *other, FILE *dump, double &validated_at) {
    return xml ? bare_xml(file, other, dump, validated_at) : bare_config(file, other);
}

// A load; linking again what is linked takes as long as the first time.
static bool measure_load(results &found, bool xml, const char *file, const char *other, FILE *dump) {
    double verdict_at = 0;
    const verdict_stream verdict(verdict_at);
    dst::log_sink = [](int, const char *, va_list) {}; // what a line costs is the log daemon's affair
    const double start = cpu_time();
    const bool loaded = load(xml, file, other, dump, verdict.get());
    const double end = cpu_time();
    found.add("peak", peak_memory());
    found.add("time", end - start);
    if (xml)
        found.add("reading", end - verdict_at);
    found.add("records", records());
    found.add("linking", time_of([] { libdst_dev_transform_handler(libdst_get_chs_info()); }));
    found.add("dump", time_of([] {
                  display_dst_info();
                  std::fflush(stdout);
              }));
    found.add("release", time_of(libdst_release));
    return loaded;
}

static bool measure_bare(results &found, bool xml, const char *file, const char *other, FILE *dump) {
    double validated_at = 0;
    const double start = cpu_time();
    const bool done = bare(xml, file, other, dump, validated_at);
    const double end = cpu_time();
    found.add("peak", peak_memory());
    found.add("time", end - start);
    if (xml)
        found.add("reading", end - validated_at);
    return done;
}

// The first cycle makes what the C library keeps for good.
static bool measure_cycles(results &found, bool xml, const char *file, const char *other, FILE *dump, int cycles) {
    double model = 0;
    double after_first = 0;
    bool loaded = true;
    for (int i = 0; i <= cycles; ++i) {
        loaded = load(xml, file, other, dump, dump) && loaded;
        display_dst_info();
        model = heap_in_use();
        libdst_release();
        if (i == 0)
            after_first = heap_in_use();
    }
    const double left = heap_in_use();
    found.add("heap", model - left);
    found.add("left", left - after_first);
    return loaded;
}

} // namespace bench

// bench_load load|bare|CYCLES xml DOCUMENT SCHEMA
// bench_load load|bare|CYCLES conf FILE SIMULATION-FOLDER
// CYCLES more than one load and release; what is in use then is exact only without the C library's per-thread cache.
int main(int count, char **words) {
    if (count != 5)
        return 2;
    bench::results found;
    FILE *nowhere = std::fopen("/dev/null", "w");
    const bool xml = std::strcmp(words[2], "xml") == 0;
    bool done;
    if (std::strcmp(words[1], "load") == 0)
        done = bench::measure_load(found, xml, words[3], words[4], nowhere);
    else if (std::strcmp(words[1], "bare") == 0)
        done = bench::measure_bare(found, xml, words[3], words[4], nowhere);
    else
        done = bench::measure_cycles(found, xml, words[3], words[4], nowhere, std::atoi(words[1]));
    std::fclose(nowhere);
    return done ? 0 : 1;
}
