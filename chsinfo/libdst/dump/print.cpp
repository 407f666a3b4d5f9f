#include "print.h"

namespace dst {

static void print_value(value shown) {
    if (shown.text)
        std::fputs(shown.text, stdout);
    else
        std::printf(shown.format, shown.number);
}

void print_open(int indent, const char *element, std::initializer_list<attribute> attributes) {
    std::printf("%*s<%s", indent, "", element);
    for (const attribute &attribute : attributes) {
        std::printf(" %s=\"", attribute.name);
        print_value(attribute.shown);
        std::putchar('"');
    }
    std::puts(">");
}

void print_close(int indent, const char *element) { std::printf("%*s</%s>\n", indent, "", element); }

void print_leaf(int indent, const char *element, value shown) {
    if (!shown.format)
        return;
    std::printf("%*s<%s>", indent, "", element);
    print_value(shown);
    std::printf("</%s>\n", element);
}

} // namespace dst
