// Memory that runs out: each allocation of the library made to fail, alone and with all after it, on every case.
#include <cstring>
#include <gtest/gtest.h>
#include <libxml/xmlerror.h>
#include <libxml/xmlmemory.h>
#include <set>

#include "../harness/cases.h"
#include "../harness/load.h"
#include "../harness/members.h"
#include "chsinfo/libdst.h"
#include "chsinfo/libdst/xml/load.h"
#include "libxml2.h"

namespace {

int allocations;  // since the last reset
int failing_from; // the first that fails; 0: none
int failing_to;   // the last that fails

void fail_allocations(int from, int to) {
    allocations = 0;
    failing_from = from;
    failing_to = to;
}

} // namespace

extern "C" {
void *__real_calloc(std::size_t count, std::size_t size);
void *__wrap_calloc(std::size_t count, std::size_t size);
void *__wrap_calloc(std::size_t count, std::size_t size) {
    ++allocations;
    const bool fails = failing_from && allocations >= failing_from && allocations <= failing_to;
    return fails ? nullptr : __real_calloc(count, size);
}

// The library asks malloc() for what it can do without.
bool no_malloc;
void *__real_malloc(std::size_t size);
void *__wrap_malloc(std::size_t size);
void *__wrap_malloc(std::size_t size) { return no_malloc ? nullptr : __real_malloc(size); }
}

namespace {

const std::string no_memory = ": could not allocate the memory!";

TEST(Memory, RunsOutInTheReader) {
    int failures = 0;
    for (const load_case &one : all_cases()) {
        SCOPED_TRACE(one);
        fail_allocations(0, 0);
        const int untouched = load(one.document).status;
        const int needed = allocations;
        libchs_release();
        for (int n = 1; n <= needed; ++n) {
            for (int last : {n, INT32_MAX}) {
                fail_allocations(n, last);
                const load_result result = load(one.document);
                fail_allocations(0, 0);
                const auto errors = texts_of(result.log, LOG_ERR);
                ASSERT_LT(result.status, 0) << n;
                ASSERT_TRUE(errors.front().ends_with(no_memory)) << errors.front();
                ASSERT_TRUE(model_is_zero());
                ++failures;
            }
        }
        EXPECT_EQ(load(one.document).status, untouched) << "a following load is as the first";
        libchs_release();
    }
    EXPECT_GT(failures, 100);
}

TEST(Memory, IsNotNeededToLink) {
    for (const load_case &one : all_cases()) {
        SCOPED_TRACE(one);
        const load_result whole = load(one.document);
        const auto linked = members_of_model(form::xml);
        libchs_release();
        no_malloc = true;
        const load_result without = load(one.document);
        no_malloc = false;
        EXPECT_EQ(without.log, whole.log);
        EXPECT_EQ(members_of_model(form::xml), linked);
        libchs_release();
    }
}

// The whole chain, innermost first, of the allocation that fails.
TEST(Memory, IsMissedByTheReaderThatAskedForIt) {
    const std::string fan = R"(<DEVICE type="FAN" ctrl="ADT7470" id="0"><FAN id="0"><SS2RPM/></FAN></DEVICE>)";
    const std::string sensor = R"(<DEVICE type="TMPSNR" ctrl="TMP75" id="0"><THRESHOLD id="0" type="AFO">)"
                               R"(<LIMIT id="0"/><ALARM id="0" type="SYS_RED">1</ALARM></THRESHOLD></DEVICE>)";
    const std::string asic = R"(<DEVICE type="asic"><ASIC id="0"><CHIPBCM><PORT id="0"/></CHIPBCM></ASIC></DEVICE>)";
    const std::vector<std::string> fan_tray = {"libdst_dev_fan_per_tag: failed in parsing fan tag!",
                                               "libdst_dev_fan_adt7470_op: could not get fan info!",
                                               "libdst_dev_fan_op: could not get fan op for the ctrl!",
                                               "libdst_device_tag_op: could not get device (FAN) info!"};
    const std::vector<std::string> threshold = {
        "libdst_dev_tmpsnr_per_threshold_tag_op: failed in parsing temperature sensor threshold tag!",
        "libdst_dev_tmpsnr_per_tag: failed in parsing temperature sensor tag!",
        "libdst_dev_tmpsnr_tmp75_op: could not get temperature sensor info!",
        "libdst_dev_tmpsnr_op: could not get temperature sensor op for the ctrl!",
        "libdst_device_tag_op: could not get device (TMPSNR) info!"};
    const struct {
        std::string document;
        int allocation;
        std::vector<std::string> readers; // the one that asked for memory, then what follows its line
        std::vector<std::string> and_then;
    } cases[] = {
        {fan, 1, {"libdst_dev_fan_op"}, {"libdst_device_tag_op: could not get device (FAN) info!"}},
        {fan, 2, {"libdst_dev_fan_adt7470_op"}, {fan_tray.begin() + 2, fan_tray.end()}},
        {fan, 3, {"libdst_dev_fan_fan_tag_adt7470_op"}, fan_tray},
        {fan,
         4,
         {"libdst_dev_ss2rpm_tag_op", "libdst_dev_fan_fan_tag_adt7470_op: failed in parsing fan/fan tag!"},
         fan_tray},
        {sensor, 3, {"libdst_dev_tmpsnr_per_threshold_tag_op"}, {threshold.begin() + 1, threshold.end()}},
        {sensor, 4, {"libdst_dev_tmpsnr_thres_limit_tag_op"}, threshold},
        {sensor, 5, {"libdst_dev_tmpsnr_thres_alarm_tag_op"}, threshold},
        {asic,
         2,
         {"libdst_dev_asic_cb_port_tag_op"},
         {"libdst_dev_asic_per_chipbcm_tag_op: failed in parsing asic chipbcm tag!",
          "libdst_dev_asic_per_tag: failed in parsing asic tag!", "libdst_dev_asic_op: could not get asic info!",
          "libdst_device_tag_op: could not get device (asic) info!"}},
        {asic, 1, {"libdst_dev_asic_op"}, {"libdst_device_tag_op: could not get device (asic) info!"}},
        {R"(<MODEL id="0" type="CHASSIS"/>)", 1, {"libdst_chsmodel_tag_op"}, {}},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.readers.front());
        auto expected = one.readers;
        expected.front() += no_memory;
        const auto tail = failure_tail("fails");
        expected.insert(expected.end(), one.and_then.begin(), one.and_then.end());
        expected.insert(expected.end(), tail.begin(), tail.end());
        fail_allocations(one.allocation, one.allocation);
        const load_result result = load(one.document);
        fail_allocations(0, 0);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), expected);
        libchs_release();
    }
}

// A configuration tree's lists end early where memory runs out, or the read fails.
TEST(Memory, CutsTheListsOfAConfigurationTree) {
    int cut = 0;
    int failures = 0;
    for (const load_case &one : all_cases(DST_TEST_DATA "/config")) {
        SCOPED_TRACE(one);
        fail_allocations(0, 0);
        const load_result whole = load(form::config, one);
        const auto whole_dump = whole.dump();
        const int needed = allocations;
        libchs_release();
        for (int n = 1; n <= needed; ++n) {
            for (int last : {n, INT32_MAX}) {
                SCOPED_TRACE(std::to_string(n) + (last == n ? " alone" : " and all after it"));
                fail_allocations(n, last);
                const load_result result = load(form::config, one);
                fail_allocations(0, 0);
                if (result.status < 0) {
                    ASSERT_TRUE(model_is_zero());
                    ++failures;
                } else if (whole.status == 0) { // without the device that it fails for, a tree may load
                    auto at = whole_dump.begin();
                    for (const std::string &line : result.dump()) {
                        if (line.find(" id=") == line.npos) // counts and references tell of other records
                            continue;
                        at = std::find(at, whole_dump.end(), line);
                        ASSERT_NE(at, whole_dump.end()) << line;
                    }
                    ++cut;
                }
                libchs_release();
            }
        }
        EXPECT_EQ(load(form::config, one).dump(), whole_dump) << "a following load is as the first";
        libchs_release();
    }
    EXPECT_GT(cut, 50);
    EXPECT_GT(failures, 50);
}

// What is logged, and whether the devices after the one in need are still read. The FRU model takes the first
// allocation, the devices the next ones.
TEST(Memory, IsMissedByTheConfigurationReaderThatAskedForIt) {
    using lines = std::vector<std::string>;
    const std::string missed = ": could not allocate the memory!";
    const struct {
        std::string type, ctrl, reader, handler; // the reader's name, and the handler's line, where they log
        bool goes_on;                            // with the device after it
        std::string keys = {};
    } cases[] = {
        {"FPC", "FPC", "libconfig_dev_fpc_op", "libconfig_device_fpc_data_get: failed to parse fpc tag", true},
        {"FPM", "FPM", "libconfig_dev_fpm_op", "libconfig_device_fpm_data_get: failed to parse fpm tag", true},
        {"FTC", "FTC", "libconfig_dev_ftc_op", "libconfig_device_ftc_data_get: failed to parse ftc tag", true},
        {"CB", "CB", "libconfig_dev_cb_op", "libconfig_device_cb_data_get: failed to parse cb tag ", true},
        {"SIB", "SIB", "libconfig_dev_sib_op", "libconfig_device_sib_data_get: failed to parse sib tag ", true},
        {"TIB", "TIB", "libconfig_dev_tib_op", "libconfig_device_tib_data_get: failed to parse tib tag\\n", true},
        {"PEM", "PSUEPM", "libconfig_dev_psu_psuepm_op", "libconfig_device_psu_data_get: failed to parse pem tag",
         true},
        {"FAN", "ADT7470", "libconfig_dev_fan_adt7470_op", "", false, "id = 0; FAN = ( );"},
        {"FAN", "GFC0812", "libconfig_dev_fan_gfc0812_op", "", false, "id = 0; FAN = ( );"},
        {"FAN", "9HV0812", "libconfig_dev_fan_haskel_9hv0812_op", "", false, "id = 0; FAN = ( );"},
        {"FAN", "FANSYSPLD", "libconfig_dev_fan_syspld_op", "", false, "id = 0; FAN = ( );"},
        {"TMPSNR", "CORETEMP", "libconfig_dev_tmpsnr_tmp435_op",
         "libconfig_device_tmpsnr_op: failed to parse temp sensor tag CORETEMP", true},
        {"TMPSNR", "KXTEMP", "libconfig_dev_tmpsnr_kxchiptemp_op",
         "libconfig_device_tmpsnr_op: failed to parse temp sensor tag KXTEMP", true},
        {"VOLTSNR", "ADS7830", "libconfig_dev_voltsnr_ads7830_op", "", false},
        {"LED", "CB", "", "", false},
        {"BTN", "QVLBTN", "", "", false},
        {"PIC", "PIC", "", "", false},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.type + " " + one.ctrl);
        const std::string tree = "DEVICES = ( { Type = \"" + one.type + "\"; ctrl = \"" + one.ctrl + "\"; " + one.keys +
                                 R"( }, { Type = "PIC"; ctrl = "PIC"; FRUID = 7; } );
FRUS = ( { id = 0; PARENT = "NULL"; }, { id = 7; PARENT = "NULL"; } );
)";
        for (const bool in_reader : {false, true}) { // else for the node
            fail_allocations(2 + in_reader, 2 + in_reader);
            const load_result result = load_config(tree);
            fail_allocations(0, 0);
            lines expected;
            if (in_reader && !one.reader.empty())
                expected.push_back(one.reader + missed + (one.type == "TIB" ? "\\n" : ""));
            if (in_reader && !one.handler.empty())
                expected.push_back(one.handler);
            EXPECT_EQ(texts_of(result.log, LOG_ERR), expected);
            EXPECT_EQ(result.status, 0);
            const pic_module_list_t *pic = chs_info.pic_info.tqh_first;
            EXPECT_EQ(pic && pic->fru_id == 7, in_reader && one.goes_on);
            libchs_release();
        }
    }
    const struct {
        int allocation;
        const char *line;
    } resiliency[] = {{1, "libconfig_resilmodel_fru_data_read:749 Memory Allocation Failed"},
                      {2, "libconfig_resil_module_data_read:700 Memory Allocation Failed"},
                      {3, "libconfig_resil_error_data_read:651 Memory Allocation Failed"}};
    for (const auto &one : resiliency) {
        fail_allocations(one.allocation, one.allocation);
        const load_result result = load_config("RESILMODEL = ( { MODULE = ( { ERRORS = ( { } ); } ); } );\n");
        fail_allocations(0, 0);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), lines{one.line});
        EXPECT_EQ(result.status, 0);
        libchs_release();
    }
}

bool present(cepm_type_t) { return true; }
int fill(cepm_data_t *data, cepm_type_t type) {
    data->cepm_type = type;
    return 0;
}

TEST(Memory, RunsOutForEpmData) {
    epm_null_ops = {present, fill};
    for (int n : {1, 2}) {
        fail_allocations(n, n);
        const load_result result = load("");
        fail_allocations(0, 0);
        EXPECT_EQ(result.status, -1);
        EXPECT_EQ(texts_of(result.log, LOG_ERR),
                  std::vector<std::string>{
                      "chassis_epm_data_init_priv: could not allocate the memory for creating EPM data.!"});
        EXPECT_EQ(chs_info.cepm_info.tqh_first, nullptr);
        EXPECT_NE(libchs_chassis_info_get(), nullptr);
        libchs_release();
    }
    epm_null_ops = {};
}

// libxml2's own memory, once the document has passed validation, in which libxml2 crashes: a chassis is read whole or
// not at all. How much libxml2 asks for differs from load to load, with the seed of its hash tables.
namespace xml_memory {

int requests;
int failing_from;
int failing_to;

bool fails() {
    if (document_reads < 2)
        return false;
    ++requests;
    return failing_from && requests >= failing_from && requests <= failing_to;
}

std::set<void *> live;
void *noted(void *block) {
    if (block)
        live.insert(block);
    return block;
}
void release(void *block) {
    live.erase(block);
    std::free(block);
}
void *allocate(std::size_t size) { return fails() ? nullptr : noted(std::malloc(size)); }
void *reallocate(void *block, std::size_t size) {
    if (fails())
        return nullptr;
    live.erase(block);
    return noted(std::realloc(block, size));
}
char *duplicate(const char *text) { return fails() ? nullptr : static_cast<char *>(noted(strdup(text))); }

} // namespace xml_memory

void report_nothing(void *, xmlErrorPtr) {}

TEST(Memory, RunsOutInLibxml2) {
    xmlMemSetup(xml_memory::release, xml_memory::allocate, xml_memory::reallocate, xml_memory::duplicate);
    write_platform_file("more.xml", R"(<FRUMODEL><MODEL id="1" type="FAN"><NAME>included</NAME></MODEL></FRUMODEL>)");
    const std::string document = R"(<DEVICE type="i2c"><I2CDEV id="1" type="CB"><NAME>a &lt; b</NAME></I2CDEV></DEVICE>
        <FEATURE>7</FEATURE><xi:include xmlns:xi="http://www.w3.org/2001/XInclude" href="more.xml"/>
        <DEVICE type="FRU"><FRUDEV id="1" type="CB"><PARENT>NULL</PARENT><I2CDEVID>1</I2CDEVID></FRUDEV></DEVICE>
        <VERSION>3</VERSION><DEVICE type="PIC" ctrl="PIC" id="1"><FRUID>1</FRUID></DEVICE>)";
    const auto whole = load(document).dump();
    libchs_release();
    const auto load_anew = [&] {
        document_reads = 0;
        xml_memory::requests = 0;
        return load(document);
    };
    load_anew();
    const int needed = xml_memory::requests;
    libchs_release();
    EXPECT_EQ(xml_memory::live.size(), 0U);
    int failures = 0;
    for (int n = 1; n <= needed; ++n) {
        for (int last : {n, INT32_MAX}) {
            SCOPED_TRACE(std::to_string(n) + (last == n ? " alone" : " and all after it"));
            xml_memory::failing_from = n;
            xml_memory::failing_to = last;
            const load_result result = load_anew();
            xml_memory::failing_from = 0;
            if (result.status < 0) {
                ++failures;
                EXPECT_TRUE(model_is_zero());
                EXPECT_FALSE(texts_of(result.log, LOG_ERR).empty());
            } else {
                EXPECT_TRUE(result.dump() == whole);
            }
            libchs_release();
            while (!xml_memory::live.empty()) // libxml2 itself forgets some where it fails
                xml_memory::release(*xml_memory::live.begin());
        }
    }
    EXPECT_GT(failures, 50);
    xmlMemSetup(std::free, std::malloc, std::realloc, strdup);
}

// Both readings lose the same, and a later error hides it; the host has a structured error function, which libxml2
// calls instead of the other.
TEST(Memory, RunsOutAlikeInBothReadings) {
    static constexpr std::size_t most = 1 << 20;
    xmlMemSetup(
        std::free, [](std::size_t size) { return size < most ? std::malloc(size) : nullptr; },
        [](void *block, std::size_t size) { return size < most ? std::realloc(block, size) : nullptr; }, strdup);
    write_platform_file("long.xml",
                        "<FRUMODEL><MODEL id='1'><NAME>" + std::string(3 * most, 'n') + "</NAME></MODEL></FRUMODEL>");
    for (const xmlStructuredErrorFunc report : {xmlStructuredErrorFunc(), report_nothing}) {
        xmlSetStructuredErrorFunc(nullptr, report);
        EXPECT_LT(load("<CHASSIS xmlns:xi='http://www.w3.org/2001/XInclude'><VERSION>3</VERSION>"
                       "<xi:include href='long.xml'/><xi:include href='gone.xml'/></CHASSIS>")
                      .status,
                  0);
    }
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    xmlMemSetup(std::free, std::malloc, std::realloc, strdup);
    write_platform_file("long.xml", "");
}

} // namespace
