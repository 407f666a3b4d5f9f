// The examples that are shipped in both forms: one model, but for what only one of the forms can say.
#include <algorithm>
#include <gtest/gtest.h>

#include "../harness/load.h"
#include "chsinfo/libdst.h"

namespace {

using lines = std::vector<std::string>;

// What one form alone gives, in every place: the lines of the dump from the one that begins so to the one that is so.
struct part {
    std::string begins, ends;
};
const std::vector<part> only_in_xml = {
    {"    <DEVICE type=\"asic\">", "    </DEVICE>"},
    {"    <DEVICE type=\"optics\">", "    </DEVICE>"},
    {"    <DEVICE id=\"401\" type=\"TMPSNR\" ctrl=\"TMPGENERIC\">", "    </DEVICE>"},
    {"    <DEVICE id=\"411\" type=\"TMPSNR\" ctrl=\"TMPGENERIC\">", "    </DEVICE>"},
    {"    <DEVICE id=\"421\" type=\"TMPSNR\" ctrl=\"TMPGENERIC\">", "    </DEVICE>"},
    {"    <DEVICE id=\"431\" type=\"TMPSNR\" ctrl=\"TMPGENERIC\">", "    </DEVICE>"},
    {"    <NBUTTONS>2<", "    <NBUTTONS>2</NBUTTONS>"},
    {"    <RESILIENCY>", "    <RESILIENCY>0</RESILIENCY>"},
    {"    <SIBINITSPMB>", "    <SIBINITSPMB>0</SIBINITSPMB>"},
};
const std::vector<part> only_in_config = {
    {"    <RESILMODEL>", "    </RESILMODEL>"},
    {"    <NBUTTONS>", "    <NBUTTONS>0</NBUTTONS>"},
    {"    <RESILIENCY>0<", "    <RESILIENCY>0</RESILIENCY>"},
    {"    <RESILIENCY>1<", "    <RESILIENCY>1</RESILIENCY>"},
    {"    <SIBINITSPMB>0<", "    <SIBINITSPMB>0</SIBINITSPMB>"},
    {"    <SIBINITSPMB>1<", "    <SIBINITSPMB>1</SIBINITSPMB>"},
};

lines without(const lines &dump, const std::vector<part> &parts) {
    lines rest;
    const part *inside = nullptr;
    for (const std::string &line : dump) {
        for (const part &one : parts)
            if (!inside && line.starts_with(one.begins))
                inside = &one;
        if (!inside)
            rest.push_back(line);
        else if (line == inside->ends)
            inside = nullptr;
    }
    return rest;
}

TEST(Forms, TheExamplesGiveTheSameModelThroughBoth) {
    for (const char *example : {"modular", "fixed-1u"}) {
        SCOPED_TRACE(example);
        const load_result xml = load_example(example, form::xml);
        libchs_release();
        const load_result config = load_example(example, form::config);
        libchs_release();
        EXPECT_EQ(xml.status, 0) << xml.err;
        EXPECT_EQ(config.status, 0);
        const lines from_xml = without(xml.dump(), only_in_xml);
        const lines from_config = without(config.dump(), only_in_config);
        EXPECT_GT(from_xml.size(), 500U);
        const auto [x, c] = std::mismatch(from_xml.begin(), from_xml.end(), from_config.begin(), from_config.end());
        EXPECT_TRUE(x == from_xml.end() && c == from_config.end())
            << "XML: " << (x == from_xml.end() ? "(end)" : *x)
            << "\nconfiguration tree: " << (c == from_config.end() ? "(end)" : *c) << "\nafter " << x - from_xml.begin()
            << " equal lines";
    }
}

} // namespace
