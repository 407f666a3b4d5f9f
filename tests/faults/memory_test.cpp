// Memory that runs out: each allocation of the library made to fail, alone and with all after it, on every case.
#include <cstring>
#include <gtest/gtest.h>
#include <libxml/xmlmemory.h>

#include "../harness/cases.h"
#include "../harness/load.h"
#include "chsinfo/libdst.h"
#include "chsinfo/libdst/xml/load.h"

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

// libxml2's own memory, once the document has passed validation: a chassis is read whole or not at all.
namespace xml_memory {

int requests;
int failing_from;
int failing_to;

bool fails() {
    ++requests;
    return failing_from && requests >= failing_from && requests <= failing_to;
}
void *allocate(std::size_t size) { return fails() ? nullptr : std::malloc(size); }
void *reallocate(void *block, std::size_t size) { return fails() ? nullptr : std::realloc(block, size); }
char *duplicate(const char *text) { return fails() ? nullptr : strdup(text); }

} // namespace xml_memory

TEST(Memory, RunsOutInLibxml2) {
    xmlMemSetup(std::free, xml_memory::allocate, xml_memory::reallocate, xml_memory::duplicate);
    const std::string document = R"(<DEVICE type="i2c"><I2CDEV id="1" type="CB"><NAME>a &lt; b</NAME></I2CDEV></DEVICE>
        <DEVICE type="FRU"><FRUDEV id="1" type="CB"><PARENT>NULL</PARENT><I2CDEVID>1</I2CDEVID></FRUDEV></DEVICE>
        <VERSION>3</VERSION><DEVICE type="PIC" ctrl="PIC" id="1"><FRUID>1</FRUID></DEVICE>)";
    const auto whole = load(document).dump();
    libchs_release();
    xml_memory::requests = 0;
    {
        streams_capture streams;
        libdst_xml_validation();
    }
    const int validation = xml_memory::requests;
    xml_memory::requests = 0;
    load(document);
    const int needed = xml_memory::requests;
    libchs_release();
    int failures = 0;
    for (int n = validation + 1; n <= needed; ++n) {
        for (int last : {n, INT32_MAX}) {
            SCOPED_TRACE(std::to_string(n) + (last == n ? " alone" : " and all after it"));
            xml_memory::requests = 0;
            xml_memory::failing_from = n;
            xml_memory::failing_to = last;
            const load_result result = load(document);
            xml_memory::failing_from = 0;
            if (result.status < 0) {
                ++failures;
                EXPECT_TRUE(model_is_zero());
                EXPECT_FALSE(texts_of(result.log, LOG_ERR).empty());
            } else {
                EXPECT_TRUE(result.dump() == whole);
            }
            libchs_release();
        }
    }
    EXPECT_GT(failures, 50);
    xmlMemSetup(std::free, std::malloc, std::realloc, strdup);
}

} // namespace
