#include "guard.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <strings.h>

#include <libxml/uri.h>

#include "platform/files.h"
#include "values.h"

namespace dst {

static libxml2_guard *standing;
static bool reads_document;

// Files

// The file that a name or URL stands for; null for what is not local.
static const char *local_path(const char *url) {
    for (const char *scheme : {"file://localhost/", "file:///", "file:/"})
        if (strncasecmp(url, scheme, std::strlen(scheme)) == 0)
            return url + std::strlen(scheme) - 1;
    return std::strstr(url, "://") ? nullptr : url;
}

static bool is_compressed(int fd) {
    static constexpr char gzip[] = {'\x1F', '\x8B'};
    static constexpr char xz[] = {'\xFD', '7', 'z', 'X', 'Z', '\0'};
    char head[sizeof xz];
    return pread(fd, head, sizeof head, 0) == sizeof head &&
           (std::memcmp(head, gzip, sizeof gzip) == 0 || std::memcmp(head, xz, sizeof xz) == 0);
}

// What libxml2 hands back to the callbacks of an input: a number, which nobody follows.
static void *context_of(int fd) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    return reinterpret_cast<void *>(static_cast<std::intptr_t>(fd));
}
static int descriptor_of(void *context) { return static_cast<int>(reinterpret_cast<std::intptr_t>(context)); }

libxml2_guard::libxml2_guard() : loader_(xmlGetExternalEntityLoader()) {
    standing = this;
    xmlSetExternalEntityLoader(open_input);
}

libxml2_guard::~libxml2_guard() {
    xmlSetExternalEntityLoader(loader_);
    standing = nullptr;
}

bool libxml2_guard::has_cut() { return standing && standing->cut_; }

xmlParserInputPtr libxml2_guard::open_input(const char *url, const char *, xmlParserCtxtPtr parser) {
    return standing->open_url(url ? url : "", parser);
}

constexpr char too_many_files[] = "a load opens at most 10,000 files";
constexpr char too_many_bytes[] = "a load reads at most 2 GiB";
static_assert(max_files == 10000 && max_document_bytes == INT64_C(2) << 30, "the texts say so");

constexpr char not_local[] = "not a local regular file";

static xmlParserInputPtr refuse(const char *url, const char *reason) {
    xmlGenericError(xmlGenericErrorContext, "%s: %s\n", url, reason);
    return nullptr;
}

xmlParserInputPtr libxml2_guard::cut(const char *url, const char *reason) {
    refuse(url, reason);
    cut_ = true;
    return nullptr;
}

xmlParserInputPtr libxml2_guard::open_url(const char *url, xmlParserCtxtPtr parser) {
    if (cut_)
        return nullptr;
    if (reads_document && parser && parser->input_id > 1) // not its first input
        return refuse(url, "external entities and DTDs are not read");
    const xml_text unescaped(BAD_CAST xmlURIUnescapeString(url, 0, nullptr));
    const char *const path = local_path(url);
    const char *const plain_path = unescaped ? local_path(unescaped.get()) : path;
    if (!path || !plain_path)
        return refuse(url, not_local);
    int opened = open_plain_file(plain_path);
    if (opened < 0 && errno == ENOENT)
        opened = open_plain_file(path);
    descriptor file(opened);
    if (opened < 0)
        return refuse(url, errno ? std::strerror(errno) : not_local);
    return input_of(file, url, parser);
}

xmlParserInputPtr libxml2_guard::input_of(descriptor &file, const char *url, xmlParserCtxtPtr parser) {
    struct stat64 status {};
    if (is_compressed(file.get()))
        return refuse(url, "compressed files are not read");
    if (files_ == max_files)
        return cut(url, too_many_files);
    if (fstat64(file.get(), &status) == 0 && status.st_size > max_document_bytes - bytes_)
        return cut(url, too_many_bytes);
    ++files_;
    xmlParserInputBufferPtr buffer =
        xmlParserInputBufferCreateIO(read_input, close_input, context_of(file.get()), XML_CHAR_ENCODING_NONE);
    if (!buffer)
        return nullptr;
    file.release();
    xmlParserInputPtr input = xmlNewIOInputStream(parser, buffer, XML_CHAR_ENCODING_NONE);
    if (input)
        input->filename = reinterpret_cast<char *>(xmlCanonicPath(BAD_CAST url));
    else
        xmlFreeParserInputBuffer(buffer);
    return input;
}

// A file that was opened is cut where it cannot be read any more, or where it grows.
void libxml2_guard::cut(int fd, const char *reason) {
    char link[sizeof "/proc/self/fd/" + 3 * sizeof fd];
    char path[PATH_MAX] = "a file of the description";
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    if (length > 0)
        path[length] = '\0';
    cut(path, reason);
}

int libxml2_guard::read_input(void *context, char *buffer, int size) {
    const int fd = descriptor_of(context);
    ssize_t count;
    do
        count = read(fd, buffer, static_cast<std::size_t>(size));
    while (count < 0 && errno == EINTR);
    if (count < 0)
        standing->cut(fd, std::strerror(errno));
    else if ((standing->bytes_ += count) > max_document_bytes)
        standing->cut(fd, too_many_bytes);
    return standing->cut_ ? -1 : static_cast<int>(count);
}

int libxml2_guard::close_input(void *context) { return close(descriptor_of(context)); }

// Messages

// libxml2 says a message's file, line and kind only to its own function and to fprintf(), which prints into a stream
// here.
reading_watch::reading_watch()
    : print_(xmlGenericError), print_context_(xmlGenericErrorContext), report_(xmlStructuredError),
      report_context_(xmlStructuredErrorContext), stream_(fopencookie(this, "w", {nullptr, write, nullptr, nullptr})) {
    xmlResetLastError();
    reads_document = true;
    if (stream_ && std::setvbuf(stream_, line_, _IOLBF, sizeof line_) == 0)
        take_over();
    else
        ran_out_ = true;
}

reading_watch::~reading_watch() {
    if (stream_)
        std::fclose(stream_);
    give_back();
    reads_document = false;
}

bool reading_watch::ran_out_of_memory() const { return ran_out_ || out_of_memory(); }

void reading_watch::take_over() {
    xmlSetGenericErrorFunc(stream_, print_to_stream<xmlGenericErrorFunc>());
    if (report_)
        xmlSetStructuredErrorFunc(this, [](void *watch, auto error) {
            auto *self = static_cast<reading_watch *>(watch);
            self->ran_out_ = self->ran_out_ || error->code == XML_ERR_NO_MEMORY;
            self->report_(self->report_context_, error);
        });
}

void reading_watch::give_back() const {
    xmlSetGenericErrorFunc(print_context_, print_);
    xmlSetStructuredErrorFunc(report_context_, report_);
}

// libxml2's own function looks at the context that is set. After a cut, of thousands that follow, the first message
// says where it was.
ssize_t reading_watch::write(void *watch, const char *text, std::size_t size) {
    auto *self = static_cast<reading_watch *>(watch);
    self->ran_out_ = self->ran_out_ || out_of_memory();
    if (libxml2_guard::has_cut() && std::exchange(self->cut_said_, true))
        return static_cast<ssize_t>(size);
    self->give_back();
    self->print_(self->print_context_, "%.*s", static_cast<int>(size), text);
    self->take_over();
    return static_cast<ssize_t>(size);
}

} // namespace dst
