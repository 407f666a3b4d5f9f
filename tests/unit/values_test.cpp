// The value parsers, on elements as documents write them.
#include <cstring>
#include <gtest/gtest.h>
#include <libxml/parser.h>

#include "chsinfo/libdst/xml/load.h"
#include "chsinfo/libdst/xml/values.h"

namespace {

// An element with this content; freed with the fixture.
class Values : public testing::Test {
  protected:
    xmlNodePtr element(const std::string &content) {
        const std::string text = "<!DOCTYPE E [<!ENTITY five '5'>]><E>" + content + "</E>";
        xmlFreeDoc(doc);
        doc = xmlReadMemory(text.data(), static_cast<int>(text.size()), "values.xml", nullptr, XML_PARSE_COMPACT);
        return xmlDocGetRootElement(doc);
    }
    void TearDown() override { xmlFreeDoc(doc); }
    xmlDocPtr doc = nullptr;
};

struct number_case {
    const char *text;
    int64_t decimal, prefixed; // as the 32-bit parsers store them, signed
};

const number_case numbers[] = {
    {"0", 0, 0},
    {" \n 4 ", 4, 4},
    {"4abc", 4, 4},
    {"abc", 0, 0},
    {" ", 0, 0},
    {"+7", 7, 7},
    {"-1", -1, -1},
    {"--1", 0, 0},
    {"2.5", 2, 2},
    {"1e3", 1, 1},
    {"010", 10, 8},
    {"08", 8, 0},
    {"0x1f", 0, 31},
    {"0X1F", 0, 31},
    {"-0x10", 0, -16},
    {"0x", 0, 0},
    {"2147483647", INT32_MAX, INT32_MAX},
    {"2147483648", INT32_MAX, INT32_MAX},
    {"4294967295", INT32_MAX, INT32_MAX},
    {"0xFFFFFFFF", 0, INT32_MAX},
    {"0x80000000", 0, INT32_MAX},
    {"-2147483648", INT32_MIN, INT32_MIN},
    {"-2147483649", INT32_MIN, INT32_MIN},
    {"99999999999999999999", INT32_MAX, INT32_MAX},
    {"-99999999999999999999", INT32_MIN, INT32_MIN},
    {"<![CDATA[12]]>", 12, 12},
    {"1<!-- -->2", 12, 12},
    {"1<x>9</x>2", 12, 12},
    {"1&five;&#x36;", 156, 156},
};

TEST_F(Values, Numbers) {
    for (const number_case &one : numbers) {
        SCOPED_TRACE(one.text);
        xmlNodePtr node = element(one.text);
        int32_t int32 = 99;
        uint32_t uint32 = 99, hex = 99;
        uint16_t hex16 = 99;
        uint8_t uint8 = 99, hex8 = 99;
        double real = 99;
        EXPECT_EQ(libdst_parse_tag_int32(doc, node, &int32), 0);
        EXPECT_EQ(libdst_parse_tag_uint32(doc, node, &uint32), 0);
        EXPECT_EQ(libdst_parse_tag_uint8(doc, node, &uint8), 0);
        EXPECT_EQ(libdst_parse_tag_double(doc, node, &real), 0);
        EXPECT_EQ(libdst_parse_tag_hex(doc, node, &hex), 0);
        EXPECT_EQ(libdst_parse_tag_hex16(doc, node, &hex16), 0);
        EXPECT_EQ(libdst_parse_tag_hex8(doc, node, &hex8), 0);
        EXPECT_EQ(int32, one.decimal);
        EXPECT_EQ(uint32, static_cast<uint32_t>(one.decimal));
        EXPECT_EQ(uint8, one.decimal & 0xff);
        EXPECT_EQ(real, static_cast<double>(one.decimal));
        EXPECT_EQ(hex, static_cast<uint32_t>(one.prefixed));
        EXPECT_EQ(hex16, one.prefixed & 0xffff);
        EXPECT_EQ(hex8, one.prefixed & 0xff);
    }
}

TEST_F(Values, WithoutTextNothingChanges) {
    for (const char *content : {"", "<!-- no text -->", "<x>9</x>"}) {
        SCOPED_TRACE(content);
        xmlNodePtr node = element(content);
        uint32_t number = 99;
        uint8_t byte = 99;
        double real = 99;
        bool flag = true;
        char text[128] = "before";
        EXPECT_EQ(libdst_parse_tag_uint32(doc, node, &number), -1);
        EXPECT_EQ(libdst_parse_tag_hex8(doc, node, &byte), -1);
        EXPECT_EQ(libdst_parse_tag_double(doc, node, &real), -1);
        EXPECT_EQ(libdst_parse_tag_bool(doc, node, &flag), -1);
        EXPECT_EQ(libdst_parse_tag_string(doc, node, text), -1);
        EXPECT_EQ(number, 99U);
        EXPECT_EQ(byte, 99U);
        EXPECT_EQ(real, 99.0);
        EXPECT_TRUE(flag);
        EXPECT_STREQ(text, "before");
    }
}

TEST_F(Values, Texts) {
    for (std::size_t length : {1U, 126U, 127U, 128U, 200U}) {
        char text[129];
        std::memset(text, '#', sizeof text);
        const std::string written(length, 'n');
        EXPECT_EQ(libdst_parse_tag_string(doc, element(written), text), 0);
        std::string expected = written.substr(0, 127);
        expected.resize(127, '\0');
        EXPECT_EQ(std::string(text, 127), expected);
        EXPECT_EQ(text[127], '#') << "the 128th byte is the record's own";
    }
    EXPECT_EQ(libdst_parse_tag_string(doc, element("text"), nullptr), -1);
}

TEST_F(Values, Booleans) {
    const struct {
        const char *text;
        int status;
        bool value;
    } cases[] = {{"true", 0, true},    {"false", 0, false}, {"True", -1, true}, {" true", -1, true},
                 {"true\n", -1, true}, {"1", -1, true},     {"tru", -1, true},  {"truer", -1, true}};
    for (const auto &one : cases) {
        bool value = true;
        EXPECT_EQ(libdst_parse_tag_bool(doc, element(one.text), &value), one.status) << one.text;
        EXPECT_EQ(value, one.value) << one.text;
    }
}

} // namespace
