#include "print.h"

namespace dst {

static void print_value(value shown) {
    if (shown.text)
        std::fputs(shown.text, stdout);
    else
        std::printf(shown.format, shown.number);
}

static void print_tag(int indent, const char *element, std::initializer_list<attribute> attributes) {
    std::printf("%*s<%s", indent, "", element);
    for (const attribute &attribute : attributes) {
        std::printf(" %s=\"", attribute.name);
        print_value(attribute.shown);
        std::putchar('"');
    }
    std::putchar('>');
}

void print_open(int indent, const char *element, std::initializer_list<attribute> attributes) {
    print_tag(indent, element, attributes);
    std::putchar('\n');
}

void print_close(int indent, const char *element) { std::printf("%*s</%s>\n", indent, "", element); }

void print_leaf(int indent, const char *element, value shown, std::initializer_list<attribute> attributes) {
    if (!shown.format)
        return;
    print_tag(indent, element, attributes);
    print_value(shown);
    std::printf("</%s>\n", element);
}

} // namespace dst
