// Calls of libxml2 that fail, and documents that are others when they are read: each gives its line, and the load ends
// cleanly.
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

enum class call { none, new_parser, new_validator, validate, first_read, second_read, read, interrupted };
call failing = call::none;
std::string exchanged_for; // what stands in the place of the document when it is read again

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
    if (document_reads == 2 && !exchanged_for.empty())
        write_platform_file("chassis_dst.xml", exchanged_for);
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
        EXPECT_EQ(result.err.starts_with("/var/platform/chassis_dst_schema.xsd: Input/output error\n"),
                  one.fails == call::read);
        EXPECT_TRUE(result.out.ends_with(one.out_ends)) << result.out;
        EXPECT_TRUE(model_is_zero());
        libchs_release();
    }
    failing = call::interrupted;
    EXPECT_EQ(load("<CHASSIS><VERSION>1</VERSION></CHASSIS>").status, 0);
    EXPECT_EQ(failing, call::none);
    libchs_release();
}

// In the place of a valid document, nothing is read that differs where a reader looks.
TEST(Libxml2, ReadsTheDocumentThatWasValidated) {
    const struct {
        const char *validated, *read;
        bool same = false;
    } pairs[] = {
        {"<chassis>1</chassis>", "<chassis>2</chassis>"},
        {"<chassis><B/></chassis>", "<chassis><C/></chassis>"},
        {"<chassis><B/><C/></chassis>", "<chassis><B><C/></B></chassis>"},
        {"<chassis b='1'/>", "<chassis b='2'/>"},
        {"<chassis b='1'/>", "<chassis c='1'/>"},
        {"<chassis b='1'/>", "<chassis xml:b='1'/>"},
        {"<chassis>1</chassis>", "<chassis xmlns='n'>1</chassis>"},
        {"<chassis>1</chassis>", "<chassis><![CDATA[1]]></chassis>"},
        {"<!DOCTYPE chassis [<!ENTITY e '1'>]><chassis b='&e;'/>",
         "<!DOCTYPE chassis [<!ENTITY e '2'>]><chassis b='&e;'/>"},
        {"<chassis><D a='0'/><!----><E/></chassis>", "<chassis><D a='0!'/><E/></chassis>"},
        {"<chassis>abc<!----><!----></chassis>", "<chassis>abc!<!----></chassis>"},
        {"<chassis> <B/> </chassis>", "<chassis>\n<B/><!-- c -->\n</chassis>"},
        {"<chassis><B/><!-- c --></chassis>", "<chassis><B/><!-- d --></chassis>", true},
    };
    for (const auto &one : pairs) {
        SCOPED_TRACE(one.read);
        exchanged_for = std::string("<?xml version='1.0'?>") + one.read;
        document_reads = 0;
        const load_result result = load(std::string("<?xml version='1.0'?>") + one.validated);
        EXPECT_EQ(texts_of(result.log, LOG_ERR).at(0),
                  one.same ? "libdst_root_handler: Failed to find the root in Device Specification!"
                           : "libdst_xml_parse: Unable to parse XML file");
    }
    exchanged_for.clear();
}

} // namespace
