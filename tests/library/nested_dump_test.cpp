// How deep the lines of nested sections stand in the dump; the tables of cases compare without indentation.
#include <gtest/gtest.h>

#include "../harness/load.h"
#include "chsinfo/libdst.h"

namespace {

TEST(NestedDump, ShowsEveryLevelOfResiliencyData) {
    const std::string out = load_config(R"(RESILIENCY = 4; SIBINITSPMB = 5;
        RESILMODEL = (
            { Type = "FPC"; ASSEMBLYID = 0xB4E; NMODULES = 7; MODULE = (
                { MNAME = "bridge"; KEY = 0xAB12; NERRORS = 9; ERRORS = (
                    { OFFSET = 0x1F; CHANNEL = 200; THRESHOLD = 0x80000000; LIMIT = 12; PERSIST = 13; DESC = "parity"; },
                    { CHANNEL = 1; THRESHOLD = 2; LIMIT = 3; PERSIST = 4; } ); },
                { } ); },
            { } );
)")
                                .out;
    libchs_release();
    EXPECT_NE(out.find("    <RESILIENCY>4</RESILIENCY>\n    <SIBINITSPMB>5</SIBINITSPMB>\n"), std::string::npos) << out;
    const auto section = out.find("    <RESILMODEL>");
    ASSERT_NE(section, std::string::npos) << out;
    EXPECT_EQ(out.substr(section), R"(    <RESILMODEL>
        <FRU Type="FPC" ASSEMBLYID="0xb4e">
            <MODULE>
            <KEY>ab12</KEY>
            <NERRORS>9</NERRORS>
            <MNAME>bridge</MNAME>
                <ERRORS>
                <OFFSET>1f</OFFSET>
                <CHANNEL>200</CHANNEL>
                <THRESHOLD>-2147483648</THRESHOLD>
                <LIMIT>12</LIMIT>
                <PERSIST>13</PERSIST>
                <DESC>parity</DESC>
                </ERRORS>
                <ERRORS>
                <OFFSET>0</OFFSET>
                <CHANNEL>1</CHANNEL>
                <THRESHOLD>2</THRESHOLD>
                <LIMIT>3</LIMIT>
                <PERSIST>4</PERSIST>
                <DESC></DESC>
                </ERRORS>
            </MODULE>
            <MODULE>
            <KEY>0</KEY>
            <NERRORS>0</NERRORS>
            <MNAME></MNAME>
            </MODULE>
        </FRU>
        <FRU Type="" ASSEMBLYID="0x0">
        </FRU>
    </RESILMODEL>
</CHASSIS>
)");
}

TEST(NestedDump, LinesStandAsDeepAsTheirElements) {
    const auto dump = load(R"(
        <FRUMODEL><MODEL id="1" type="FAN"/></FRUMODEL><MODEL id="1" type="CHASSIS"/>
        <DEVICE type="asic"><ASIC id="1"><CHIPBCM><PORT id="1"/></CHIPBCM></ASIC></DEVICE>
        <DEVICE type="optics"><PORT id="1"/></DEVICE>)")
                          .dump();
    ASSERT_GT(dump.size(), 100U);
    std::size_t depth = 0;
    for (auto line = dump.begin() + 1; line != dump.end(); ++line) {
        const std::size_t indent = line->find_first_not_of(' ');
        const bool closes = line->compare(indent, 2, "</") == 0;
        const bool leaf = !closes && line->find("</") != std::string::npos;
        depth -= closes;
        EXPECT_EQ(indent, 4 * depth) << *line;
        depth += !closes && !leaf;
    }
    EXPECT_EQ(depth, 0U);
    libchs_release();
}

} // namespace
