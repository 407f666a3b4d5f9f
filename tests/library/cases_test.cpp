// Every case of tests/cases/ through the built library.
#include <gtest/gtest.h>

#include <algorithm>

#include "../harness/cases.h"
#include "../harness/load.h"
#include "chsinfo/libdst.h"

namespace {

std::string unindented(const std::string &line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

// The lines of a dump that an empty chassis does not print, less their indentation.
std::vector<std::string> beyond_empty(const std::vector<std::string> &dump) {
    static const std::vector<std::string> empty = [] {
        auto lines = load("").dump();
        libchs_release();
        return lines;
    }();
    std::vector<std::string> rest;
    for (std::size_t i = 0, at = 0; i < dump.size(); ++i) {
        const bool header = at < empty.size() && dump[i] == empty[at];
        const bool leaf = i < 22;
        if (header || leaf)
            ++at;
        if (!header)
            rest.push_back(unindented(dump[i]));
    }
    return rest;
}

// The first of these lines that the dump does not show after the ones before it; empty when it shows all.
std::string first_missing(const std::vector<std::string> &wanted, const std::vector<std::string> &dump) {
    auto at = dump.begin();
    for (const std::string &line : wanted) {
        at = std::find(at, dump.end(), line);
        if (at == dump.end())
            return line;
        ++at;
    }
    return "";
}

class Case : public testing::TestWithParam<load_case> {};

TEST_P(Case, Loads) {
    const load_case &one = GetParam();
    SCOPED_TRACE(one);
    beyond_empty({});
    const load_result result = load(one.document);
    const auto errors = texts_of(result.log, LOG_ERR);
    const auto expected_lines = [&](const char *heading) {
        const auto found = one.expected.find(heading);
        return found == one.expected.end() ? std::vector<std::string>{} : found->second;
    };
    if (one.expected.contains("dump") || one.expected.contains("shows")) {
        const auto dump = beyond_empty(result.dump());
        EXPECT_EQ(errors, expected_lines("log"));
        EXPECT_EQ(result.status, 0);
        if (one.expected.contains("dump")) {
            EXPECT_EQ(dump, expected_lines("dump"));
        }
        EXPECT_EQ(first_missing(expected_lines("shows"), dump), "");
    } else {
        ASSERT_EQ(one.expected.size(), 1U) << "a case has one outcome";
        auto [heading, expected] = *one.expected.begin();
        const auto tail = failure_tail(heading);
        expected.insert(expected.end(), tail.begin(), tail.end());
        EXPECT_EQ(errors, expected);
        EXPECT_LT(result.status, 0);
        EXPECT_TRUE(result.dump().empty());
        EXPECT_TRUE(model_is_zero());
    }
    libchs_release();
    EXPECT_TRUE(model_is_zero());
}

INSTANTIATE_TEST_SUITE_P(Xml, Case, testing::ValuesIn(all_cases()), [](const auto &info) {
    std::string name = info.param.file + "_" + std::to_string(info.param.line);
    for (char &c : name)
        c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    return name;
});

} // namespace
