// Documents and files that mean harm, or come from a broken tool: each load ends, says why, and leaves the model empty
// or whole.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../harness/load.h"
#include "chsinfo/libdst_priv.h"

namespace {

std::string times(std::size_t count, const std::string &text) {
    std::string all;
    all.reserve(count * text.size());
    while (count--)
        all += text;
    return all;
}
std::string attributes(int count) {
    std::string all;
    for (int i = 0; i < count; ++i)
        all += " a" + std::to_string(i) + "='1'";
    return all;
}
std::string including(const std::string &what) {
    return "<CHASSIS xmlns:xi='http://www.w3.org/2001/XInclude'><VERSION>3</VERSION><xi:include href='" + what +
           "/></CHASSIS>";
}
std::string declaring(const std::string &entities, const std::string &content) {
    return "<!DOCTYPE CHASSIS [" + entities + "]><CHASSIS>" + content + "</CHASSIS>";
}
std::string bomb(const std::string &content) {
    std::string entities = "<!ENTITY a0 'aaaaaaaaaa'>";
    for (int i = 1; i < 11; ++i)
        entities += "<!ENTITY a" + std::to_string(i) + " '" + times(10, "&a" + std::to_string(i - 1) + ";") + "'>";
    return declaring(entities, content);
}
std::string utf16(const std::string &text) {
    std::string wide = "\xFF\xFE";
    for (char c : text)
        wide += {c, '\0'};
    return wide;
}

// Inclusions of the document itself, which is no recursion to libxml2.
std::string own_names() {
    std::string all;
    for (std::size_t slashes = 2; slashes < 10; ++slashes)
        all += "<xi:include href='/var" + times(slashes, "/") + "platform/chassis_dst.xml'/>";
    return all;
}

constexpr char version_3[] = "    <VERSION>3</VERSION>";

struct hostile {
    const char *name;
    std::string document;
    std::string says;   // on standard error or in the log
    bool loads = false; // with version 3
};

std::vector<hostile> hostile_documents() {
    return {
        {"nesting", times(100000, "<A>"), "Excessive depth"},
        {"an attribute twice", "<A a='1' a='1'/>", "Attribute a redefined"},
        {"a long message", "<" + std::string(3000, 'A') + "></B>", std::string(3000, 'A') + " line 2 and B\n"},
        {"an entity bomb in a text", bomb("<VERSION>&a10;</VERSION>"), "entity reference loop"},
        {"an entity bomb in an attribute", bomb("<DEVICE type='&a10;'/>"), "entity reference loop"},
        {"an entity of itself", declaring("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "<VERSION>&a;</VERSION>"),
         "entity reference loop"},
        {"an external entity", declaring("<!ENTITY e SYSTEM 'secret'>", "<VERSION>&e;</VERSION>"),
         "failed in parsing root tag!"},
        {"an external parameter entity", declaring("<!ENTITY % p SYSTEM 'fifo'> %p;", "<VERSION>3</VERSION>"), "",
         true},
        {"an external subset", "<!DOCTYPE CHASSIS SYSTEM 'fifo'><CHASSIS><VERSION>3</VERSION></CHASSIS>", "", true},
        {"inclusion of itself", including("chassis_dst.xml'"), "Could not apply", true},
        {"inclusion of a FIFO", including("fifo'"), "fifo: not a local regular file", true},
        {"of a FIFO as text", including("fifo' parse='text'"), "fifo: not a local regular file", true},
        {"of a FIFO behind escapes", including("fif%6f'"), "not a local regular file", true},
        {"of a FIFO by URL", including("file:///var/platform/fifo'"), "not a local regular file", true},
        {"by a shorter URL", including("file:/var/platform/fifo'"), "not a local regular file", true},
        {"in capitals", including("FILE:/var/platform/fifo'"), "not a local regular file", true},
        {"of this host", including("file://localhost/var/platform/fifo'"), "not a local regular file", true},
        {"with escapes in its name", including("fif%256f'"), "not a local regular file", true},
        {"by an escaped URL", including("file:%2Fvar/platform/%66ifo'"), "not a local regular file", true},
        {"of a folder", including("/var'"), "/var: not a local regular file", true},
        {"of the kernel", including("/proc/version' parse='text'"), "/proc/version: not a local regular file", true},
        {"of more than a load reads", including("huge'"), "huge: a load reads at most 2 GiB"},
        {"of itself by many names", "<CHASSIS xmlns:xi='http://www.w3.org/2001/XInclude'>" + own_names() + "</CHASSIS>",
         "a load opens at most 10,000 files"},
        {"a compressed document", std::string("\x1f\x8b\x08\0", 4) + "......", "compressed files are not read"},
        {"an external entity of a part that is selected", including("entity.xml' xpointer='xpointer(/CHASSIS/*)'"),
         "external entities and DTDs are not read", true},
        {"of the network", including("http://127.0.0.1:9/x.xml'"), "not a local regular file", true},
        {"UTF-16", utf16("<?xml version='1.0' encoding='UTF-16'?><CHASSIS><VERSION>3</VERSION></CHASSIS>"), "", true},
        {"UTF-16 by its mark alone", utf16("<CHASSIS><VERSION>3</VERSION></CHASSIS>"), "", true},
        {"half a character", utf16("<CHASSIS><VERSION>3</VERSION></CHASSIS>") + "x", "", true},
        {"bytes that are no UTF-8", "<VERSION>\xFF\xFE</VERSION>", "not proper UTF-8"},
        {"an unknown encoding", "<?xml version='1.0' encoding='KLINGON'?><CHASSIS/>", "Unsupported encoding"},
        {"a NUL byte", std::string("<VERSION>1") + '\0' + "3</VERSION>", "Char 0x0 out of allowed range"},
        {"a processing instruction by the name of an element", "<?VERSION 3?>", "failed in parsing root tag!"},
        {"the same where a text may be missing", "<VERSION>3</VERSION><?FEATURE 3?>", "", true},
        {"and in records", "<VERSION>3</VERSION><DEVICE type='optics'><?PORT?><PORT id='1'><?SCPLD?></PORT></DEVICE>",
         "", true},
        {"an entity by the name of an element",
         declaring("<!ENTITY SCPLD '<OFFSET>5</OFFSET>'><!ENTITY OFFSET '6'>",
                   "<VERSION>3</VERSION><DEVICE type='optics'><PORT id='1'>&SCPLD;</PORT></DEVICE>"),
         "", true},
    };
}

// These take a while; the memory checker passes them over.
std::vector<hostile> large_documents() {
    return {
        {"a huge text", "<VERSION>" + times(100, std::string(1000000, '1')) + "</VERSION>", "huge text node"},
        {"a million attributes", "<VERSION>3</VERSION>" + times(1000, "<A" + attributes(1000) + "/>"), "", true},
        {"many of one element", "<VERSION>3</VERSION><A" + attributes(20000) + "/>", "", true},
    };
}

class Hostile : public testing::Test {
  protected:
    void SetUp() override {
        mkfifo("/var/platform/fifo", 0600);
        mkfifo("/var/platform/fif%6f", 0600);
        write_platform_file("secret", "42");
        write_platform_file("entity.xml", declaring("<!ENTITY e SYSTEM 'secret'>", "<FEATURE>&e;</FEATURE>"));
        write_platform_file("huge", "<FEATURE>1</FEATURE>");
        truncate64("/var/platform/huge", INT64_C(3) << 30);
    }
    void TearDown() override {
        libchs_release();
        for (const auto &file : std::filesystem::directory_iterator("/var/platform"))
            std::filesystem::remove(file);
    }
};

void expect_clean_end(const hostile &one) {
    SCOPED_TRACE(one.name);
    const bool whole = one.document.starts_with("<?xml") || one.document.find_first_of("\xFF\x1F") == 0;
    const load_result result =
        whole ? (load(""), write_platform_file("chassis_dst.xml", one.document), load()) : load(one.document);
    std::string said = result.err;
    for (const log_line &line : result.log)
        said += line.text + "\n";
    EXPECT_NE(said.find(one.says), std::string::npos) << said.substr(0, 2000);
    EXPECT_EQ(result.status == 0, one.loads) << said.substr(0, 2000);
    const auto dump = result.dump();
    if (one.loads)
        EXPECT_EQ(std::count(dump.begin(), dump.end(), version_3), 1);
    else
        EXPECT_TRUE(model_is_zero());
    libchs_release();
}

TEST_F(Hostile, DocumentsEndInALoadOrInAClearFailure) {
    for (const hostile &one : hostile_documents())
        expect_clean_end(one);
}

TEST_F(Hostile, LargeDocumentsToo) {
    for (const hostile &one : large_documents())
        expect_clean_end(one);
}

// Cut after each of its bytes, a document is refused.
TEST_F(Hostile, CutDocumentsAreRefused) {
    const std::string document = "<?xml version=\"1.0\"?><CHASSIS><!-- c --><VERSION>3</VERSION>"
                                 "<DEVICE type=\"FRU\"><FRUDEV id=\"1\" type=\"CB\"><![CDATA[x]]></FRUDEV></DEVICE>"
                                 "</CHASSIS>";
    load("");
    for (std::size_t length = 1; length < document.size(); ++length) {
        write_platform_file("chassis_dst.xml", document.substr(0, length));
        ASSERT_LT(load().status, 0) << length;
        ASSERT_TRUE(model_is_zero()) << length;
    }
    write_platform_file("chassis_dst.xml", document);
    EXPECT_EQ(load().status, 0);
}

// Neither the environment nor an included file brings in other files. A catalogue or DTD that is read complains.
TEST_F(Hostile, CataloguesAndExternalDtdsAreNotRead) {
    for (const char *name : {"catalogue", "dtd"})
        write_platform_file(name, "<!broken");
    write_platform_file("included.xml", "<?oasis-xml-catalog catalog='/var/platform/catalogue'?>"
                                        "<!DOCTYPE FEATURE SYSTEM 'dtd'><FEATURE>5</FEATURE>");
    setenv("XML_CATALOG_FILES", "/var/platform/catalogue", 1);
    for (const char *file : {"included.xml'", "missing.xml'"}) {
        const load_result result = load(including(file));
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err.find("broken"), std::string::npos) << result.err;
        EXPECT_EQ(chs_info.chs_cinfo.chs_info.feature, *file == 'i' ? 5U : 0U);
    }
    unsetenv("XML_CATALOG_FILES");
}

// What is no regular file is refused before it is opened, in the place of any of the files.
TEST_F(Hostile, FilesThatAreNoFiles) {
    for (const char *name : {"chassis_dst.xml", "chassis_dst_schema.xsd"}) {
        const std::string path = std::string("/var/platform/") + name;
        for (mode_t kind : {S_IFIFO, S_IFDIR}) {
            SCOPED_TRACE(path);
            load("<VERSION>3</VERSION>");
            unlink(path.c_str());
            ASSERT_EQ(kind == S_IFIFO ? mkfifo(path.c_str(), 0600) : mkdir(path.c_str(), 0700), 0);
            const load_result result = load();
            EXPECT_LT(result.status, 0);
            EXPECT_NE(result.err.find(path + ": not a local regular file"), std::string::npos) << result.err;
            EXPECT_TRUE(model_is_zero());
            ASSERT_EQ(kind == S_IFIFO ? unlink(path.c_str()) : rmdir(path.c_str()), 0);
        }
    }
}

} // namespace
