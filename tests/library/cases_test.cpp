// Every case of tests/cases/ through the built library.
#include <gtest/gtest.h>

#include <algorithm>

#include "../harness/cases.h"
#include "../harness/load.h"
#include "../harness/members.h"
#include "chsinfo/libdst.h"

namespace {

std::string unindented(const std::string &line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

// The lines of a dump that an empty chassis does not print, less their indentation.
std::vector<std::string> beyond(const std::vector<std::string> &empty, const std::vector<std::string> &dump) {
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

using texts = std::vector<std::string>;

texts empty_dump(form source) {
    texts lines = load(source, {}).dump();
    libchs_release();
    return lines;
}

// Loads the case and holds it to what it expects.
void expect_case(form source, const load_case &one) {
    SCOPED_TRACE(one);
    static const texts empty[] = {empty_dump(form::xml), empty_dump(form::config)};
    const load_result result = load(source, one);
    const auto errors = texts_of(result.log, LOG_ERR);
    const auto expected_lines = [&](const char *heading) {
        const auto found = one.expected.find(heading);
        return found == one.expected.end() ? texts{} : found->second;
    };
    if (one.expected.contains("dump") || one.expected.contains("shows") || one.expected.contains("members")) {
        const auto dump = beyond(empty[source == form::config], result.dump());
        EXPECT_EQ(errors, expected_lines("log"));
        EXPECT_EQ(result.status, 0);
        if (one.expected.contains("dump")) {
            EXPECT_EQ(dump, expected_lines("dump"));
        }
        EXPECT_EQ(first_missing(expected_lines("shows"), dump), "");
        const texts members = members_of_model(source);
        const texts expected = expected_lines("members");
        EXPECT_TRUE(std::search(members.begin(), members.end(), expected.begin(), expected.end()) != members.end())
            << "the model is " << testing::PrintToString(members);
    } else {
        ASSERT_EQ(one.expected.size(), 1U) << "a case has one outcome";
        auto [heading, expected] = *one.expected.begin();
        const texts after =
            source == form::xml ? failure_tail(heading) : texts{"Could not parse configuration file!\\n"};
        expected.insert(expected.end(), after.begin(), after.end());
        EXPECT_EQ(errors, expected);
        EXPECT_LT(result.status, 0);
        EXPECT_TRUE(result.dump().empty());
        EXPECT_TRUE(model_is_zero());
    }
    libchs_release();
    EXPECT_TRUE(model_is_zero());
}

std::string name_of_case(const testing::TestParamInfo<load_case> &info) {
    std::string name = info.param.file + "_" + std::to_string(info.param.line);
    for (char &c : name)
        c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    return name;
}

class XmlCase : public testing::TestWithParam<load_case> {};
TEST_P(XmlCase, Loads) { expect_case(form::xml, GetParam()); }
INSTANTIATE_TEST_SUITE_P(Xml, XmlCase, testing::ValuesIn(all_cases()), name_of_case);

class ConfigCase : public testing::TestWithParam<load_case> {};
TEST_P(ConfigCase, Loads) { expect_case(form::config, GetParam()); }
INSTANTIATE_TEST_SUITE_P(Config, ConfigCase, testing::ValuesIn(all_cases(DST_TEST_DATA "/config")), name_of_case);

} // namespace
