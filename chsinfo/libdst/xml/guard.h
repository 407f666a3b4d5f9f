// What a load does to libxml2 for its own length: its settings, the files that it opens, its messages. All of it is
// process-wide or the thread's; while a guard stands, nobody else may use libxml2.
#pragma once

#include <cstdint>
#include <cstdio>
#include <utility>

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include "platform/files.h"

namespace dst {

// libxml2 adds file and line to a message only when the callback is fprintf itself, or its own.
template <class Callback> Callback print_to_stream() {
    return reinterpret_cast<Callback>(reinterpret_cast<void (*)()>(std::fprintf));
}

// A variable that holds another value while this stands.
template <class T> class exchanged {
  public:
    exchanged(T &place, T value) : place_(place), before_(std::exchange(place, value)) {}
    ~exchanged() { place_ = before_; }
    exchanged(const exchanged &) = delete;
    exchanged &operator=(const exchanged &) = delete;

  private:
    T &place_;
    const T before_;
};

// What the host chose for its own documents changes nothing in a load. libxml2 opens local regular files alone, by the
// names that the documents give, through no loader, callback or catalogue of the host, and within the limits of
// platform/files.h. A file that is refused is named to the host's error function, with the reason. To end before
// xmlCleanupParser(), which may free what the settings stand in.
class libxml2_guard {
  public:
    libxml2_guard();
    ~libxml2_guard();
    libxml2_guard(const libxml2_guard &) = delete;
    libxml2_guard &operator=(const libxml2_guard &) = delete;

    // Whether a file was cut, or left out at a limit: what libxml2 made of it must not be used. False without a guard.
    static bool has_cut();

  private:
    static xmlParserInputPtr open_input(const char *url, const char *id, xmlParserCtxtPtr parser);
    static int read_input(void *context, char *buffer, int size);
    static int close_input(void *context);
    xmlParserInputPtr open_url(const char *url, xmlParserCtxtPtr parser);
    xmlParserInputPtr input_of(descriptor &file, const char *url, xmlParserCtxtPtr parser);
    xmlParserInputPtr cut(const char *url, const char *reason);
    void cut(int fd, const char *reason);

    const exchanged<int> entities_{xmlSubstituteEntitiesDefaultValue, 0};
    const exchanged<int> validity_{xmlDoValidityCheckingDefaultValue, 0};
    const xmlExternalEntityLoader loader_;
    int files_ = 0;
    std::int64_t bytes_ = 0;
    bool cut_ = false;
};

// While a document is read: what it or an included file would bring in by entities or a DTD is not opened, unlike with
// a schema; and memory that runs out is noticed although a later error hides it. Messages go on to the host's function.
class reading_watch {
  public:
    reading_watch();
    ~reading_watch();
    reading_watch(const reading_watch &) = delete;
    reading_watch &operator=(const reading_watch &) = delete;
    bool ran_out_of_memory() const;

  private:
    static ssize_t write(void *watch, const char *text, std::size_t size);
    void take_over();
    void give_back() const;

    const xmlGenericErrorFunc print_;
    void *const print_context_;
    const xmlStructuredErrorFunc report_;
    void *const report_context_;
    FILE *stream_;
    char line_[1024];
    bool ran_out_ = false;
    bool cut_said_ = false;
};

} // namespace dst
