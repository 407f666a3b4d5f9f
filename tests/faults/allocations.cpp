// Every allocation of a life of the library made to fail, whoever asks for it: alone, and with all after it. Each try
// is a process of its own; it initialises, releases and initialises again, once the allocations work. Usage:
// allocations [--all]     --all: each allocation; without: as many as a few seconds allow
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <libconfig.h>
#include <libxml/xmlschemas.h>
#include <link.h>
#include <string>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../harness/sandbox.h"
#include "chsinfo/libdst_priv.h"

namespace {

// The allocator

int requests;
int failing_from; // 0: none
int failing_to;
int beyond_help; // how deep inside calls that do not survive it

bool fails() {
    if (beyond_help)
        return false;
    ++requests;
    return failing_from && requests >= failing_from && requests <= failing_to;
}

// Blocks that the library itself, or its configuration-tree library, has asked for.
struct range {
    std::uintptr_t begin, end;
};
range ours[2];
int ranges;
constexpr std::size_t slots = 1 << 16;
void *live[slots];

bool from_ours(void *caller) {
    const auto address = reinterpret_cast<std::uintptr_t>(caller);
    for (int i = 0; i < ranges; ++i)
        if (address >= ours[i].begin && address < ours[i].end)
            return true;
    return false;
}
void **slot_of(void *block) {
    std::size_t at = (reinterpret_cast<std::uintptr_t>(block) >> 4) % slots;
    while (live[at] && live[at] != block)
        at = (at + 1) % slots;
    return &live[at];
}
void *noted(void *block, void *caller) {
    if (block && from_ours(caller))
        *slot_of(block) = block;
    return block;
}
void forget(void *block) {
    if (!block || !ranges)
        return;
    void **slot = slot_of(block);
    if (!*slot)
        return;
    *slot = nullptr; // and what was put behind it because of it is put again
    for (std::size_t at = static_cast<std::size_t>(slot - live + 1) % slots; live[at]; at = (at + 1) % slots) {
        void *moved = live[at];
        live[at] = nullptr;
        *slot_of(moved) = moved;
    }
}
int live_blocks() {
    int count = 0;
    for (void *block : live)
        count += block != nullptr;
    return count;
}

int find_ours(dl_phdr_info *object, std::size_t, void *) {
    if (!std::strstr(object->dlpi_name, "libdst.so") && !std::strstr(object->dlpi_name, "libbrio_config.so"))
        return 0;
    for (int i = 0; i < object->dlpi_phnum; ++i)
        if (object->dlpi_phdr[i].p_type == PT_LOAD && (object->dlpi_phdr[i].p_flags & PF_X)) {
            const std::uintptr_t begin = object->dlpi_addr + object->dlpi_phdr[i].p_vaddr;
            ours[ranges++] = {begin, begin + object->dlpi_phdr[i].p_memsz};
        }
    return 0;
}

template <class Call> Call *next(const char *name) { return reinterpret_cast<Call *>(dlsym(RTLD_NEXT, name)); }

} // namespace

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void __libc_free(void *block);

void *malloc(std::size_t size) { return fails() ? nullptr : noted(__libc_malloc(size), __builtin_return_address(0)); }
void *calloc(std::size_t count, std::size_t size) {
    return fails() ? nullptr : noted(__libc_calloc(count, size), __builtin_return_address(0));
}
void *realloc(void *block, std::size_t size) {
    if (fails())
        return nullptr;
    forget(block);
    return noted(__libc_realloc(block, size), __builtin_return_address(0));
}
void free(void *block) {
    forget(block);
    __libc_free(block);
}

// libxml2 2.9.14 crashes when memory runs out while it parses a schema or validates, libconfig 1.5 wherever it does.
#define BEYOND_HELP(result, call, parameters, arguments)                                                               \
    result call parameters {                                                                                           \
        ++beyond_help;                                                                                                 \
        result outcome = next<decltype(call)>(#call) arguments;                                                        \
        --beyond_help;                                                                                                 \
        return outcome;                                                                                                \
    }
BEYOND_HELP(xmlSchemaPtr, xmlSchemaParse, (xmlSchemaParserCtxtPtr parser), (parser))
BEYOND_HELP(xmlSchemaValidCtxtPtr, xmlSchemaNewValidCtxt, (xmlSchemaPtr schema), (schema))
BEYOND_HELP(int, xmlSchemaValidateDoc, (xmlSchemaValidCtxtPtr validator, xmlDocPtr doc), (validator, doc))
BEYOND_HELP(int, config_read_string, (config_t * config, const char *text), (config, text))
void config_init(config_t *config) {
    ++beyond_help;
    next<decltype(config_init)>("config_init")(config);
    --beyond_help;
}
}

namespace {

// A life

int printed; // where standard output goes

std::string printed_model() {
    std::fflush(stdout);
    if (ftruncate(printed, 0) != 0 || lseek(printed, 0, SEEK_SET) != 0)
        return "";
    display_dst_info();
    std::fflush(stdout);
    std::string text(static_cast<std::size_t>(lseek(printed, 0, SEEK_END)), '\0');
    return pread(printed, text.data(), text.size(), 0) < 0 ? "" : text;
}

bool model_is_zero() {
    const auto *bytes = reinterpret_cast<const char *>(&chs_info);
    return std::all_of(bytes, bytes + sizeof chs_info, [](char byte) { return byte == 0; });
}

[[noreturn]] void wrong(const char *what) {
    std::fprintf(stderr, "%s\n", what);
    _exit(1);
}

void check(bool holds, const char *what) {
    if (!holds)
        wrong(what);
}

constexpr int not_reached = 3; // the run needed fewer allocations

[[noreturn]] void live_once(int from, int to, bool whole_or_nothing) {
    epm_null_ops = {[](cepm_type_t) { return true; }, [](cepm_data_t *, cepm_type_t) { return 0; }};
    check(libchs_init() == 0, "the first initialisation");
    const std::string whole = printed_model();
    libchs_release();
    check(live_blocks() == 0, "blocks of ours left by the first life");

    requests = 0;
    failing_from = from;
    failing_to = to;
    const int rc = libchs_init();
    failing_from = 0;
    const bool reached = requests >= from;
    check(rc == 0 || rc < 0, "a positive result");
    if (!dst_chs_info) {
        check(rc < 0, "success without a model");
        check(model_is_zero(), "half a model after a failed read");
    } else {
        check(rc == 0 || !chs_info.cepm_info.tqh_first, "EPM data after a failed EPM initialisation");
        const std::string model = printed_model();
        check(whole_or_nothing ? model == whole : !model.empty(), "not the whole model");
    }
    libchs_release();
    check(model_is_zero(), "a model after its release");
    check(live_blocks() == 0, "blocks of ours left");

    check(libchs_init() == 0, "a following initialisation");
    check(printed_model() == whole, "another model in a following initialisation");
    libchs_release();
    check(live_blocks() == 0, "blocks of ours left by a following life");
    _exit(reached ? 0 : not_reached);
}

// The number of tries, or -1 after the first that went wrong.
int each_allocation(const char *form, bool whole_or_nothing, int step) {
    int tries = 0;
    for (int n = 1;; n += step) {
        for (int last : {n, INT32_MAX}) {
            const pid_t child = fork();
            if (child == 0)
                live_once(n, last, whole_or_nothing);
            int status = 0;
            waitpid(child, &status, 0);
            if (WIFEXITED(status) && WEXITSTATUS(status) == not_reached)
                return tries;
            if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
                std::fprintf(stderr, "%s: allocation %d %s: %s %d\n", form, n, last == n ? "alone" : "and all after it",
                             WIFSIGNALED(status) ? "signal" : "exit status",
                             WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status));
                return -1;
            }
            ++tries;
        }
    }
}

constexpr char document[] = R"(<CHASSIS xmlns:xi="http://www.w3.org/2001/XInclude"><VERSION>3</VERSION>
<DEVICE type="i2c"><I2CDEV id="1" type="CB"><NAME>a &lt; b</NAME></I2CDEV></DEVICE><FEATURE>7</FEATURE>
<DEVICE type="FRU"><FRUDEV id="1" type="CB"><PARENT>NULL</PARENT><I2CDEVID>1</I2CDEVID></FRUDEV></DEVICE>
<DEVICE type="PIC" ctrl="PIC" id="1"><FRUID>1</FRUID></DEVICE><xi:include href="more.xml"/></CHASSIS>)";
constexpr char included[] = R"(<FRUMODEL><MODEL id="1" type="FAN"><NAME>included</NAME></MODEL></FRUMODEL>)";
constexpr char tree[] = R"(CHASSIS = { VERSION = 1; FAMILY = "QVL"; NDRAMSLOTS = 0; NFANSLOTS = 0; NPEMSLOTS = 0;
NPICSLOTS = 0; NFPGAS = 0; NTMPSENSORS = 0; NFPLEDS = 0; NBPLEDS = 0;
FRUMODEL = { MODEL = ( { id = 1; AMBIENT_TEMP_DATA = ( { } ); } ); }; CHSMODEL = { MODEL = ( { } ); };
RESILMODEL = ( { MODULE = ( { ERRORS = ( { } ); } ); } ); BUS = { I2CDEV = ( { id = 1; } ); };
FRUS = ( { id = 1; PARENT = "NULL"; I2CDEVID = -1; SIM_ASSEMBLY_DATA = [ 1 ];
  SIM_FRU_DATA = ( { SIM_SS2RPM = ( { } ); SIM_THRESHOLD = ( { SIM_LIMIT = ( { } ); SIM_ALARM = ( { } ); } ); } ); } );
DEVICES = ( { Type = "FAN"; ctrl = "ADT7470"; id = 1; FRUID = 1; FAN = ( { SS2RPM = ( { } ); } ); },
  { Type = "PEM"; ctrl = "PSUEPM"; FRUID = 1; SS2RPM = ( { } ); }, { Type = "CB"; ctrl = "CB"; FRUID = 1; },
  { Type = "TMPSNR"; ctrl = "KXTEMP"; REG_OFFSET = 1; id = 1; DRIVERID = 1; FRUID = 1;
    THRESHOLD = ( { LIMIT = ( { } ); ALARM = ( { } ); } ); },
  { Type = "VOLTSNR"; ctrl = "ADS7830"; FRUID = 1; }, { Type = "LED"; ctrl = "CB"; FRUID = 1; },
  { Type = "PIC"; ctrl = "PIC"; FRUID = 1; } ); };)";
constexpr char simulation[] = "CHASSIS = { FRUS = ( { id = 1; SIM_FRU_DATA = ( { } ); } ); };";

} // namespace

int main(int count, char **words) {
    const bool all = count > 1 && std::strcmp(words[1], "--all") == 0;
    enter_sandbox();
    dl_iterate_phdr(find_ours, nullptr);
    printed = memfd_create("printed", 0);
    if (ranges != 2 || printed < 0 || !std::freopen("/dev/null", "w", stdout) || dup2(printed, STDOUT_FILENO) < 0)
        wrong("no libraries, or no place for standard output");
    const int silent = dup(STDERR_FILENO);
    write_platform_file("chassis_dst_schema.xsd", read_file(DST_TEST_DATA "/permissive.xsd"));

    write_platform_file("chassis_dst.xml", document);
    write_platform_file("more.xml", included);
    const int xml_tries = each_allocation("XML", true, all ? 1 : 7);
    write_platform_file("chassis_dst.xml", "");
    write_platform_file("chassis_dst.conf", tree);
    write_platform_file("chassis_dst_sim.conf", simulation);
    const int config_tries = each_allocation("configuration tree", false, 1);
    dprintf(silent, "%d tries with an XML document, %d with a configuration tree\n", xml_tries, config_tries);
    return xml_tries > 100 && config_tries > 50 ? 0 : 1;
}
