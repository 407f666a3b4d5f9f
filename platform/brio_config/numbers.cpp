#include "numbers.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace brio {

static bool starts_with(const char *text, const char *start) {
    return std::strncmp(text, start, std::strlen(start)) == 0;
}

static bool is_digit(char c) { return c >= '0' && c <= '9'; }
static bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
static bool starts_name(char c) { return is_letter(c) || c == '*'; }
static bool continues_name(char c) { return starts_name(c) || is_digit(c) || c == '-' || c == '_'; }

static char *skip_digits(char *text) {
    while (is_digit(*text))
        ++text;
    return text;
}

static char *skip_exponent(char *text) {
    if (*text != 'e' && *text != 'E')
        return text;
    char *const digits = text + (text[1] == '+' || text[1] == '-' ? 2 : 1);
    return is_digit(*digits) ? skip_digits(digits) : text;
}

static char *skip_string(char *quote) {
    char *text = quote + 1;
    while (*text && *text != '"')
        text += *text == '\\' && text[1] ? 2 : 1;
    return *text ? text + 1 : text;
}

static char *skip_comment(char *text) {
    char *const end = std::strstr(text + 2, "*/");
    return end ? end + 2 : text + std::strlen(text);
}

// Returns the end of the number, or of the sign or point that is none.
static char *normalise_number(char *number) {
    const bool hexadecimal = starts_with(number, "0x") || starts_with(number, "0X");
    char *end;
    const long long value = std::strtoll(number, &end, hexadecimal ? 16 : 10);
    if (end == number)
        end += *number == '+' || *number == '-';
    if (*end == '.')
        return skip_exponent(skip_digits(end + 1));
    char *const exponent_end = skip_exponent(end);
    if (exponent_end != end || !is_digit(end[-1]))
        return exponent_end;
    char plain[sizeof "0xFFFFFFFF"] = "1e999"; // no longer than the numbers that it replaces
    if (value >= INT32_MIN && value <= UINT32_MAX)
        std::snprintf(plain, sizeof plain, "0x%08X", static_cast<unsigned>(value));
    for (int suffix = 0; suffix < 2 && *end == 'L'; ++suffix)
        *end++ = ' ';
    if (value < INT32_MIN || value > INT32_MAX) {
        std::memset(number, ' ', static_cast<std::size_t>(end - number));
        std::memcpy(number, plain, std::strlen(plain));
    }
    return end;
}

char *normalise(char *text) {
    for (char *at = text; *at;) {
        if ((at == text || at[-1] == '\n') && starts_with(at + std::strspn(at, " \t"), "@include"))
            return at;
        if (*at == '#' || starts_with(at, "//"))
            at += std::strcspn(at, "\n");
        else if (starts_with(at, "/*"))
            at = skip_comment(at);
        else if (*at == '"')
            at = skip_string(at);
        else if (starts_name(*at))
            while (continues_name(*at))
                ++at;
        else if (is_digit(*at) || *at == '.' || *at == '+' || *at == '-')
            at = normalise_number(at);
        else
            ++at;
    }
    return nullptr;
}

} // namespace brio
