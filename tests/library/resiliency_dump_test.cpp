// The dump of resiliency data, which no XML document holds, and how deep the lines of nested sections stand.
#include <gtest/gtest.h>

#include <cstring>

#include "../harness/append.h"
#include "../harness/load.h"
#include "chsinfo/libdst_priv.h"

namespace {

resil_error_list_t *add_error(resil_module_list_t *module, resil_error_info_t info) {
    auto *error = append(module->resil_errors, &resil_error_list_t::resil_error_next);
    error->resil_einfo = info;
    return error;
}

TEST(ResiliencyDump, ShowsEveryLevel) {
    ASSERT_TRUE(model_is_zero());
    auto *fru = append(chs_info.resil_info, &resil_fru_list_t::resil_fru_next);
    fru->resil_finfo = {FRU_TYPE_FPC, 0xB4E, 7};
    auto *module = append(fru->resil_modules, &resil_module_list_t::resil_module_next);
    module->resil_minfo = {"bridge", 0xAB12, 9};
    add_error(module, {0x1F, 200, 0x80000000, 12, 13, "parity"});
    add_error(module, {0, 1, 2, 3, 4, ""});
    append(fru->resil_modules, &resil_module_list_t::resil_module_next);
    append(chs_info.resil_info, &resil_fru_list_t::resil_fru_next);

    chs_info.chs_cinfo.chs_info.enable_resiliency = 4;
    chs_info.chs_cinfo.chs_info.sib_init_spmb = 5;

    std::string out;
    {
        streams_capture streams;
        display_dst_info();
        out = streams.out();
    }
    libdst_release();
    EXPECT_TRUE(model_is_zero());
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

// The tables of cases compare without indentation.
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
