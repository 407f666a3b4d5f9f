// The shipped schema against the documents of tests/schema/: a case is a fragment of CHASSIS, put behind a chassis with
// the I2C devices 0 and 7 and the FRUs 1 and 2, and
//   --- valid
//   --- refused          LINE TEXT: in this line of the fragment, with this in the message
#include <algorithm>
#include <gtest/gtest.h>

#include "../harness/cases.h"
#include "../harness/load.h"
#include "chsinfo/libdst/xml/load.h"

namespace {

const std::string chassis =
    R"(<CHASSIS><DEVICE type="i2c"><I2CDEV id="0" type="CB"/><I2CDEV id="7" type="PIC"/></DEVICE>)"
    R"(<DEVICE type="FRU"><FRUDEV id="1" type="CHASSIS"><PARENT>NULL</PARENT></FRUDEV>)"
    R"(<FRUDEV id="2" type="PIC"><PARENT>1</PARENT></FRUDEV></DEVICE>)";

class Schema : public testing::TestWithParam<load_case> {};

TEST_P(Schema, TellsRightFromWrong) {
    const load_case &one = GetParam();
    SCOPED_TRACE(one);
    write_platform_file("document.xml", chassis + "\n" + one.document + "</CHASSIS>\n");
    int status = 0;
    const auto messages = [&status] {
        streams_capture streams;
        status =
            libdst_xml_validation({"/var/platform/document.xml", DST_SHARE "/chassis_dst_schema.xsd", nullptr, stdout});
        return lines_of(streams.err());
    }();
    if (one.expected.contains("valid")) {
        EXPECT_EQ(status, 0);
        EXPECT_EQ(messages, std::vector<std::string>{});
        return;
    }
    EXPECT_EQ(status, -1);
    ASSERT_FALSE(one.expected.at("refused").empty());
    for (const std::string &wanted : one.expected.at("refused")) {
        const std::size_t blank = wanted.find(' ');
        const std::string place = "/var/platform/document.xml:" + std::to_string(std::stoi(wanted) + 1) + ":";
        const bool told = std::any_of(messages.begin(), messages.end(), [&](const std::string &message) {
            return message.starts_with(place) && message.find(wanted.substr(blank + 1)) != std::string::npos;
        });
        EXPECT_TRUE(told) << wanted << "\ninstead of\n" << testing::PrintToString(messages);
    }
}

INSTANTIATE_TEST_SUITE_P(Xml, Schema, testing::ValuesIn(all_cases(DST_SCHEMA_CASES)));

} // namespace
