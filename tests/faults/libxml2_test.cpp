// Calls of libxml2 that fail, and a document that is another one when it is read: each gives its line, and the load
// ends cleanly.
#include <cerrno>
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <unistd.h>

#include "../harness/load.h"
#include "chsinfo/libdst.h"
#include "libxml2.h"

int document_reads;

namespace {

enum class call { none, new_parser, new_validator, validate, first_read, second_read, exchanged, read, interrupted };
call failing = call::none;

} // namespace

extern "C" {
xmlSchemaParserCtxtPtr __real_xmlSchemaNewParserCtxt(const char *path);
xmlSchemaValidCtxtPtr __real_xmlSchemaNewValidCtxt(xmlSchemaPtr schema);
ssize_t __real_read(int fd, void *buffer, std::size_t size);
int __real_xmlSchemaValidateDoc(xmlSchemaValidCtxtPtr validator, xmlDocPtr doc);
xmlDocPtr __real_xmlReadFile(const char *path, const char *encoding, int options);

xmlSchemaParserCtxtPtr __wrap_xmlSchemaNewParserCtxt(const char *path) {
    return failing == call::new_parser ? nullptr : __real_xmlSchemaNewParserCtxt(path);
}
xmlSchemaValidCtxtPtr __wrap_xmlSchemaNewValidCtxt(xmlSchemaPtr schema) {
    return failing == call::new_validator ? nullptr : __real_xmlSchemaNewValidCtxt(schema);
}
int __wrap_xmlSchemaValidateDoc(xmlSchemaValidCtxtPtr validator, xmlDocPtr doc) {
    return failing == call::validate ? -1 : __real_xmlSchemaValidateDoc(validator, doc);
}
ssize_t __wrap_read(int fd, void *buffer, std::size_t size) {
    if (failing == call::read || failing == call::interrupted) {
        errno = failing == call::read ? EIO : EINTR;
        failing = call::none;
        return -1;
    }
    return __real_read(fd, buffer, size);
}
xmlDocPtr __wrap_xmlReadFile(const char *path, const char *encoding, int options) {
    ++document_reads;
    const bool fails =
        (failing == call::first_read && document_reads == 1) || (failing == call::second_read && document_reads == 2);
    if (failing == call::exchanged && document_reads == 2)
        write_platform_file("chassis_dst.xml", "<CHASSIS><VERSION>2</VERSION></CHASSIS>");
    return fails ? nullptr : __real_xmlReadFile(path, encoding, options);
}
}

namespace {

TEST(Libxml2, FailsCallByCall) {
    const std::string not_valid = "libdst_xml_parse: Failed to validate Device Specification XML";
    const struct {
        call fails;
        std::vector<std::string> log;
        const char *out_ends;
    } cases[] = {
        {call::new_parser, {"libdst_xml_validation: Unable to parse schemas file", not_valid}, ""},
        {call::read, {"libdst_xml_validation: Unable to parse schemas context", not_valid}, ""},
        {call::first_read,
         {"libdst_xml_validation: Failed in parsing Device Specification XML file /var/platform/chassis_dst.xml!\\n",
          not_valid},
         ""},
        {call::new_validator,
         {"libdst_xml_validation: Failed in creating a new schema for parsing /var/platform/chassis_dst.xml\\n",
          not_valid},
         ""},
        {call::validate, {not_valid}, "/var/platform/chassis_dst.xml validation generated an internal error!\n"},
        {call::second_read, {"libdst_xml_parse: Unable to parse XML file"}, "validates OK!\n"},
        {call::exchanged, {"libdst_xml_parse: Unable to parse XML file"}, "validates OK!\n"},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(static_cast<int>(one.fails));
        failing = one.fails;
        document_reads = 0;
        const load_result result = load("<CHASSIS><VERSION>1</VERSION></CHASSIS>");
        failing = call::none;
        auto expected = one.log;
        expected.insert(expected.end(), {"libdst_init: Failed to parse Device Specification XML to libchassis info!",
                                         "Could not parse configuration file!\\n"});
        EXPECT_EQ(result.status, -1);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), expected);
        EXPECT_TRUE(result.out.ends_with(one.out_ends)) << result.out;
        EXPECT_TRUE(model_is_zero());
        libchs_release();
    }
    failing = call::interrupted;
    EXPECT_EQ(load("<CHASSIS><VERSION>1</VERSION></CHASSIS>").status, 0);
    EXPECT_EQ(failing, call::none);
    libchs_release();
}

} // namespace
