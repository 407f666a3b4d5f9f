// Loading, releasing and what they say, through libchs_init() on the real paths.
#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../harness/load.h"
#include "chsinfo/libdst_priv.h"

namespace {

using testing::Test;
using lines = std::vector<std::string>;

const std::string document_path = "/var/platform/chassis_dst.xml";
const lines not_parsed = {"libdst_xml_parse: Failed to validate Device Specification XML",
                          "libdst_init: Failed to parse Device Specification XML to libchassis info!",
                          "Could not parse configuration file!\\n"};

lines followed_by(lines first, const lines &rest) {
    first.insert(first.end(), rest.begin(), rest.end());
    return first;
}

class Load : public Test {
  protected:
    void SetUp() override { remove_files(); }
    void TearDown() override {
        libchs_release();
        remove_files();
    }
    static void remove_files() {
        for (const auto &file : std::filesystem::directory_iterator("/var/platform"))
            std::filesystem::remove(file);
    }
};

// Runs in a child process without privileges over files that belong to others, or whose owner has no permission.
void without_privileges(const std::function<void()> &checks) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        __user_cap_data_struct none[2] = {};
        if (syscall(SYS_capset, &header, none) != 0)
            _exit(2);
        checks();
        std::fflush(stdout);
        _exit(Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

const lines no_source = {"Fatal: Could not find configuration file /var/platform/chassis_dst.xml OR "
                         "/var/platform/chassis_dst.conf\\n",
                         "Could not parse configuration file!\\n"};

TEST_F(Load, WithoutASourceFails) {
    const load_result result = load();
    EXPECT_EQ(result.status, -1);
    EXPECT_EQ(texts_of(result.log, LOG_ERR), no_source);
    EXPECT_EQ(result.out, "");
}

TEST_F(Load, AnUnreadableDocumentIsNoSource) {
    write_platform_file("chassis_dst.xml", "<CHASSIS/>");
    chmod(document_path.c_str(), 0);
    without_privileges([] {
        const load_result result = load();
        EXPECT_EQ(result.status, -1);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), no_source);
    });
}

TEST_F(Load, SaysEachStepOnce) {
    const load_result result = load("");
    const std::vector<log_line> expected = {
        {LOG_INFO, "Using xml config file /var/platform/chassis_dst.xml"},
        {LOG_DEBUG, "libdst_xml_validation: Could not apply the XInclude process"},
        {LOG_DEBUG, "libdst_xml_parse: Could not apply the XInclude process"},
        {LOG_INFO, "libdst_dev_trans_fpc: fpc info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_sib: sib info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_fpm: fpm info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_ftc: ftc info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_cb: cb info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_pem: pem info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_fan: fan info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_pic: pic info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_tib: tib info list is empty!\\n"},
        {LOG_INFO, "libdst_dev_trans_tmpsnr: temperature sensor info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_voltsnr: voltage sensor info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_led: led info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_lcd: lcd info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_btn: btn info list is empty!"},
        {LOG_INFO, "libdst_dev_trans_fru: fru info list is empty!"},
    };
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(texts_of(result.log, LOG_ERR), lines{});
    ASSERT_EQ(result.log.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(result.log[i].text, expected[i].text);
        EXPECT_EQ(result.log[i].priority, expected[i].priority) << expected[i].text;
    }
}

TEST_F(Load, PrintsTheSchemaTheVerdictAndTheModel) {
    const load_result result = load("<VERSION>3</VERSION><FAMILY>QVL</FAMILY><FEATURE>-2</FEATURE>");
    const std::string dump = R"(/var/platform/chassis_dst.xml validates OK!


============== DST info =============
<CHASSIS>
    <VERSION>3</VERSION>
    <FAMILY>QVL</FAMILY>
    <NDRAMSLOTS>0</NDRAMSLOTS>
    <NFANSLOTS>0</NFANSLOTS>
    <NFPCSLOTS>0</NFPCSLOTS>
    <NSIBSLOTS>0</NSIBSLOTS>
    <NFPMSLOTS>0</NFPMSLOTS>
    <NFTCSLOTS>0</NFTCSLOTS>
    <NCBSLOTS>0</NCBSLOTS>
    <NPEMSLOTS>0</NPEMSLOTS>
    <NPICSLOTS>0</NPICSLOTS>
    <NFPGAS>0</NFPGAS>
    <NTMPSENSORS>0</NTMPSENSORS>
    <NVOLTSENSORS>0</NVOLTSENSORS>
    <NFPLEDS>0</NFPLEDS>
    <NBPLEDS>0</NBPLEDS>
    <NBUTTONS>0</NBUTTONS>
    <FEATURE>-2</FEATURE>
    <RESILIENCY>0</RESILIENCY>
    <SIBINITSPMB>0</SIBINITSPMB>
</CHASSIS>
)";
    const std::size_t at = result.out.find(document_path);
    ASSERT_NE(at, std::string::npos);
    EXPECT_EQ(result.out.substr(at), dump);
    const std::string schema = result.out.substr(0, at);
    EXPECT_TRUE(schema.starts_with("Schemas: ")) << schema;
    EXPECT_NE(schema.find("CHASSIS"), std::string::npos);
    EXPECT_EQ(result.err, "");
}

struct failing_load {
    const char *name;
    const char *schema; // null: the permissive one; "": none
    const char *document;
    lines log;
    const char *out_ends; // what standard output ends with
    const char *err_has;  // what standard error shows
};

const char strict_schema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
<xs:element name="CHASSIS"><xs:complexType><xs:sequence>
<xs:element name="VERSION" type="xs:int"/></xs:sequence></xs:complexType></xs:element></xs:schema>)";

const failing_load failing_loads[] = {
    {"schema missing",
     "",
     "<CHASSIS/>",
     {"libdst_xml_validation: Unable to parse schemas context"},
     "",
     "chassis_dst_schema.xsd: No such file or directory"},
    {"schema cut off",
     "<xs:schema",
     "<CHASSIS/>",
     {"libdst_xml_validation: Unable to parse schemas context"},
     "",
     "xsd:1:"},
    {"schema is something else",
     "<a/>",
     "<CHASSIS/>",
     {"libdst_xml_validation: Unable to parse schemas context"},
     "",
     "not a schema"},
    {"document cut off",
     nullptr,
     "<CHASSIS>\n<VERSION>",
     {"libdst_xml_validation: Failed in parsing Device Specification XML file /var/platform/chassis_dst.xml!\\n"},
     "",
     "chassis_dst.xml:2:"},
    {"document of white space",
     nullptr,
     "\n",
     {"libdst_xml_validation: Failed in parsing Device Specification XML file /var/platform/chassis_dst.xml!\\n"},
     "",
     "Start tag expected"},
    {"document breaks the schema",
     strict_schema,
     "<CHASSIS>\n<VERSION>\nthree</VERSION></CHASSIS>",
     {},
     "/var/platform/chassis_dst.xml fails in validation!\n",
     "chassis_dst.xml:2: element VERSION: Schemas validity error"},
    {"an entity among the texts",
     strict_schema,
     "<!DOCTYPE CHASSIS [<!ENTITY three '3'>]><CHASSIS>\n<VERSION>&three;</VERSION></CHASSIS>",
     {},
     "/var/platform/chassis_dst.xml validation generated an internal error!\n",
     "chassis_dst.xml:2: element VERSION: &three; is no text"},
    {"root not in the schema", nullptr, "<box/>", {}, "/var/platform/chassis_dst.xml fails in validation!\n", "box"},
};

TEST_F(Load, FailsInValidation) {
    for (const failing_load &one : failing_loads) {
        SCOPED_TRACE(one.name);
        write_platform_file("chassis_dst_schema.xsd",
                            one.schema ? one.schema : read_file(DST_TEST_DATA "/permissive.xsd"));
        write_platform_file("chassis_dst.xml", one.document);
        const load_result result = load();
        EXPECT_EQ(result.status, -1);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), followed_by(one.log, not_parsed));
        EXPECT_TRUE(result.out.ends_with(one.out_ends)) << result.out;
        EXPECT_NE(result.err.find(one.err_has), std::string::npos) << result.err;
        EXPECT_TRUE(model_is_zero());
        EXPECT_EQ(dst_chs_info, nullptr);
    }
}

// Beyond what libxml2 keeps of a line by default.
TEST_F(Load, NamesTheLineInALongDocument) {
    write_platform_file("chassis_dst_schema.xsd", strict_schema);
    write_platform_file("chassis_dst.xml",
                        "<CHASSIS>" + std::string(70000, '\n') + "<VERSION>three</VERSION></CHASSIS>");
    const load_result result = load();
    EXPECT_NE(result.err.find("chassis_dst.xml:70001: element VERSION"), std::string::npos) << result.err;
}

// Parts in folders: nothing is added to an element that comes from there, and what is missing is said with its place.
TEST_F(Load, TakesPartsFromFolders) {
    std::filesystem::create_directory("/var/platform/sub");
    write_platform_file("chassis_dst_schema.xsd", strict_schema);
    write_platform_file("chassis_dst.xml", "<CHASSIS xmlns:xi='http://www.w3.org/2001/XInclude'>"
                                           "<xi:include href='sub/version.xml'/></CHASSIS>");
    write_platform_file("sub/version.xml", "<VERSION>3</VERSION>");
    EXPECT_EQ(load().status, 0);
    write_platform_file("sub/version.xml", "<VERSION xmlns:xi='http://www.w3.org/2001/XInclude'>\n"
                                           "<xi:include href='gone.xml'/></VERSION>");
    const load_result result = load();
    EXPECT_NE(result.err.find("sub/gone.xml: No such file or directory\n"
                              "/var/platform/sub/version.xml:2: element include: XInclude error : could not load "),
              std::string::npos)
        << result.err;
    std::filesystem::remove_all("/var/platform/sub");
}

TEST_F(Load, FailsForAnotherRoot) {
    const load_result result = load("<chassis/>");
    EXPECT_EQ(result.status, -1);
    EXPECT_EQ(texts_of(result.log, LOG_ERR),
              (lines{"libdst_root_handler: Failed to find the root in Device Specification!",
                     "libdst_xml_parse: Unable to convert the DST into chassis info",
                     "libdst_init: Failed to parse Device Specification XML to libchassis info!",
                     "Could not parse configuration file!\\n"}));
    EXPECT_NE(result.out.find("validates OK!"), std::string::npos);
}

TEST_F(Load, TakesWhatXIncludeBringsIn) {
    write_platform_file("pics.xml", "<DEVICE type=\"PIC\" ctrl=\"PIC\" id=\"4\"><NAME>included</NAME></DEVICE>");
    const load_result result = load("<xi:include xmlns:xi=\"http://www.w3.org/2001/XInclude\" href=\"pics.xml\"/>"
                                    "<DEVICE type=\"FRU\"><FRUDEV id=\"0\" type=\"PIC\"/></DEVICE>");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(texts_of(result.log, LOG_DEBUG), lines{});
    ASSERT_NE(chs_info.pic_info.tqh_first, nullptr);
    EXPECT_STREQ(chs_info.pic_info.tqh_first->pic_minfo->name, "included");
    EXPECT_EQ(chs_info.pic_info.tqh_first->pic_minfo->fru_info, &chs_info.fru_info.tqh_first->fru_minfo);
}

// Each shipped example, against the shipped schema: what tests/golden/ holds is what a reader of the document expects.
TEST_F(Load, TheShippedExamplesLoadAsTheyRead) {
    for (const auto &example : std::filesystem::directory_iterator(DST_SHARE "/examples")) {
        SCOPED_TRACE(example.path());
        const load_result result = load_example(example.path().filename());
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(texts_of(result.log, LOG_ERR), lines{});
        const auto dump = result.dump();
        const auto golden = lines_of(read_file(DST_GOLDEN "/" + example.path().filename().string() + ".dump"));
        const auto [differs, expected] = std::mismatch(dump.begin(), dump.end(), golden.begin(), golden.end());
        EXPECT_TRUE(differs == dump.end() && expected == golden.end())
            << "line " << differs - dump.begin() + 1 << ":\n"
            << (differs == dump.end() ? "(end)" : *differs) << "\ninstead of\n"
            << (expected == golden.end() ? "(end)" : *expected);
        for (const auto *fru = chs_info.fru_info.tqh_first; fru; fru = fru->fru_next.tqe_next)
            EXPECT_EQ(fru->fru_minfo.parent == nullptr, fru->fru_minfo.fru_type == FRU_TYPE_CHASSIS)
                << fru->fru_minfo.name;
    }
}

// With the source line of the reader, which is not said here.
TEST_F(Load, AnnouncesLcds) {
    const std::string begin = "libdst_dev_lcd_op:";
    const auto announced = [&begin](const std::string &lcd) {
        lines ends;
        for (const std::string &line : texts_of(load(lcd).log, LOG_INFO))
            if (line.starts_with(begin)) {
                EXPECT_TRUE(std::isdigit(line[begin.size()])) << line;
                ends.push_back(line.substr(line.find_first_not_of("0123456789", begin.size())));
            }
        return ends;
    };
    EXPECT_EQ(
        announced(
            "<DEVICE type='FRU'><FRUDEV id='0' type='CB'/></DEVICE><DEVICE type='LCD' ctrl='GENERICLCD' id='6'/>"),
        lines{" Parsing LCD op done successfully!"});
    EXPECT_EQ(announced("<DEVICE type='LCD' ctrl='GENERICLCD' id='6'><NAME/></DEVICE>"), lines{});
}

TEST_F(Load, SaysThatFrusStayUnlinkedWithoutI2cDevices) {
    const load_result result = load("<DEVICE type=\"FRU\"><FRUDEV id=\"0\" type=\"CB\"/></DEVICE>");
    EXPECT_EQ(texts_of(result.log, LOG_INFO).back(), "libdst_dev_trans_fru: i2c dev info list is empty!");
}

const char two_of_each[] = R"(
<DEVICE type="i2c"><I2CDEV id="0" type="CB"/><I2CDEV id="1" type="CB"/></DEVICE>
<DEVICE type="FRU"><FRUDEV id="0" type="CB"/><FRUDEV id="1" type="FPC"/></DEVICE>
<DEVICE type="PIC" ctrl="PIC" id="0"/><DEVICE type="PIC" ctrl="PIC" id="1"/>
)";

TEST_F(Load, GoesThroughTheStatesOfItsLife) {
    EXPECT_EQ(libdst_get_chs_info(), &chs_info);
    EXPECT_EQ(libchs_chassis_info_get(), nullptr);
    EXPECT_EQ(libchs_fru_info_get_next(nullptr), nullptr);
    EXPECT_TRUE(take_log().empty()) << "no table is bound";

    ASSERT_LT(load("<VERSION/>").status, 0);
    EXPECT_EQ(libchs_chassis_info_get(), nullptr);
    EXPECT_EQ(libchs_fru_info_get_next(nullptr), nullptr);
    EXPECT_EQ(libchs_chassis_epm_data_init(), -1);
    EXPECT_EQ(texts_of(take_log(), LOG_ERR), (lines{"chassis_info_get_priv: ERROR: Chassis information not present.",
                                                    "fru_info_get_next_priv: empty fru list!"}));

    ASSERT_EQ(load(two_of_each).status, 0);
    const auto first = load(two_of_each).dump();
    EXPECT_EQ(load(two_of_each).dump(), first) << "initialised while ready: released first";
    EXPECT_EQ(libchs_chassis_info_get(), &chs_info.chs_cinfo.chs_info);
    EXPECT_EQ(dst_chs_info, &chs_info);
    uint32_t id = 77;
    EXPECT_EQ(libdst_fru_info_get_id_by_type_slotno(FRU_TYPE_FPC, 0, &id), 0);
    EXPECT_EQ(id, 1U);

    libchs_release();
    EXPECT_EQ(dst_chs_info, nullptr);
    EXPECT_TRUE(model_is_zero());
    libchs_release();
    EXPECT_EQ(load(two_of_each).dump(), first);
}

// Only a negative status of the slot ends libchs_init() before the EPM data is asked for.
TEST_F(Load, APositiveStatusOfTheInitialiserGoesOn) {
    ASSERT_EQ(load(two_of_each).status, 0);
    const chassis_ops_t whole = chassis_priv_ops;
    chassis_priv_ops.libc_init = [] { return 5; };
    epm_null_ops = {};
    EXPECT_EQ(load(two_of_each).status, -1) << "the EPM initialisation runs, and has no model";
    chassis_priv_ops.libc_init = [] { return -7; };
    EXPECT_EQ(load(two_of_each).status, -7);
    chassis_priv_ops = whole;
}

// EPM data

lines asked;
int fill_result[EPM_TYPE_MAX];
bool present(cepm_type_t type) {
    asked.push_back("present " + std::to_string(type));
    return true;
}
bool only_cpu_present(cepm_type_t type) { return present(type) && type == EPM_TYPE_CPUBOARDID; }
int fill(cepm_data_t *data, cepm_type_t type) {
    asked.push_back("fill " + std::to_string(type));
    data->cepm_type = type;
    data->cepm_data.serial_no = static_cast<uint8_t>(type);
    return fill_result[type];
}

struct epm_case {
    const char *name;
    epm_data_init_ops_t host;
    int main_board, cpu_board; // what the fill operation returns
    int status;
    lines asked, log;
    std::vector<int> types; // of the records
};

TEST_F(Load, AsksTheHostForEpmData) {
    const epm_case cases[] = {
        {"no host", {nullptr, nullptr}, 0, 0, 0, {}, {}, {}},
        {"no presence operation", {nullptr, fill}, 0, 0, 0, {}, {}, {}},
        {"no fill operation", {present, nullptr}, 0, 0, 0, {"present 1", "present 2"}, {}, {0, 0}},
        {"both boards", {present, fill}, 0, 0, 0, {"present 1", "fill 1", "present 2", "fill 2"}, {}, {1, 2}},
        {"one board", {only_cpu_present, fill}, 0, 0, 0, {"present 1", "present 2", "fill 2"}, {}, {2}},
        {"a positive result", {present, fill}, 0, 4, 4, {"present 1", "fill 1", "present 2", "fill 2"}, {}, {1, 2}},
        {"the first fails",
         {present, fill},
         -5,
         0,
         -5,
         {"present 1", "fill 1"},
         {"chassis_epm_data_init_priv: could not get epm data (1)!"},
         {}},
        {"the second fails",
         {present, fill},
         0,
         -6,
         -6,
         {"present 1", "fill 1", "present 2", "fill 2"},
         {"chassis_epm_data_init_priv: could not get epm data (2)!"},
         {}},
    };
    for (const epm_case &one : cases) {
        SCOPED_TRACE(one.name);
        epm_null_ops = one.host;
        fill_result[EPM_TYPE_MAINBOARDID] = one.main_board;
        fill_result[EPM_TYPE_CPUBOARDID] = one.cpu_board;
        asked.clear();
        const load_result result = load(two_of_each);
        EXPECT_EQ(result.status, one.status);
        EXPECT_EQ(asked, one.asked);
        EXPECT_EQ(texts_of(result.log, LOG_ERR), one.log);
        std::vector<int> types;
        for (const auto *epm = chs_info.cepm_info.tqh_first; epm; epm = epm->cepm_next.tqe_next)
            types.push_back(epm->cepm_minfo.cepm_type);
        EXPECT_EQ(types, one.types);
        EXPECT_NE(libchs_chassis_info_get(), nullptr) << "the model stays";
    }
    epm_null_ops = {present, fill};
    fill_result[EPM_TYPE_MAINBOARDID] = fill_result[EPM_TYPE_CPUBOARDID] = 0;
    EXPECT_EQ(libchs_chassis_epm_data_init(), 0);
    EXPECT_EQ(libchs_chassis_epm_data_init(), 0) << "again: the old records are freed";
    ASSERT_NE(libchs_epm_data_get_by_type(EPM_TYPE_CPUBOARDID), nullptr);
    EXPECT_EQ(libchs_epm_data_get_by_type(EPM_TYPE_CPUBOARDID)->cepm_data.serial_no, EPM_TYPE_CPUBOARDID);
    fill_result[EPM_TYPE_CPUBOARDID] = -6;
    EXPECT_EQ(libchs_chassis_epm_data_init(), -6);
    EXPECT_EQ(libchs_epm_data_get_next(nullptr), nullptr) << "failing empties the list, of old records too";
    libchs_release();
    EXPECT_TRUE(model_is_zero());
    epm_null_ops = {};
}

} // namespace
