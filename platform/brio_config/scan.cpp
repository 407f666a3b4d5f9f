#include "scan.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace brio {

// libconfig reads about 2000 levels.
constexpr int max_depth = 1000;

static bool starts_with(const char *text, const char *start) {
    return std::strncmp(text, start, std::strlen(start)) == 0;
}

template <char... Set> static bool is_one_of(char c) { return ((c == Set) || ...); }
static bool is_blank(char c) { return is_one_of<' ', '\t', '\n', '\f', '\r'>(c); }
static bool is_digit(char c) { return c >= '0' && c <= '9'; }
static bool is_hex_digit(char c) { return is_digit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
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

// Null when there is no end.
static char *skip_string(char *quote) {
    char *text = quote + 1;
    while (*text && *text != '"')
        text += *text == '\\' && text[1] ? 2 : 1;
    return *text ? text + 1 : nullptr;
}

// Null when there is no end.
static char *skip_block_comment(char *text) {
    for (text += 2; *text; ++text)
        if (starts_with(text, "*/"))
            return text + 2;
    return nullptr;
}

// At the end of a file, libconfig takes a comment without a line feed for an error.
static char *skip_line_comment(char *text) {
    char *const end = text + std::strcspn(text, "\n");
    std::fill(text, end, ' ');
    return end;
}

// Returns the end of the number, or of the sign that is none.
static char *rewrite_number(char *number) {
    const bool hexadecimal = starts_with(number, "0x") || starts_with(number, "0X");
    char *end;
    const long long value = std::strtoll(number, &end, hexadecimal ? 16 : 10);
    const bool has_sign = *number == '+' || *number == '-';
    char *const digits = number + has_sign;
    if (end == number)
        end = digits;
    if (*end == '.')
        return skip_exponent(skip_digits(end + 1));
    char *const exponent_end = skip_exponent(end);
    if (exponent_end != end || !is_hex_digit(end[-1]))
        return exponent_end;
    for (int suffix = 0; suffix < 2 && *end == 'L'; ++suffix)
        *end++ = ' ';
    const bool is_int = value >= INT32_MIN && value <= INT32_MAX;
    const bool reads_as_octal = *digits == '0' && is_digit(digits[1]);
    if (is_int && !reads_as_octal)
        return end;
    char plain[sizeof "-2147483648"] = "1e999"; // no longer than the number that it replaces
    if (is_int)
        std::snprintf(plain, sizeof plain, "%d", static_cast<int>(value));
    else if (value > 0 && value <= UINT32_MAX)
        std::snprintf(plain, sizeof plain, "0x%08X", static_cast<unsigned>(value));
    std::fill(number, end, ' ');
    // A name before the sign stays apart.
    std::copy(plain, plain + std::strlen(plain), digits);
    return end;
}

refusal prepare(char *text) {
    char last = '\0'; // of the token before
    char brackets[max_depth];
    int depth = 0;
    for (char *at = text; *at;) {
        if ((at == text || at[-1] == '\n') && starts_with(at + std::strspn(at, " \t"), "@include"))
            return {"@include is not supported", at};
        if (*at == '#' || starts_with(at, "//")) {
            at = skip_line_comment(at);
            continue;
        }
        if (starts_with(at, "/*")) {
            char *const end = skip_block_comment(at);
            if (!end)
                return {"a comment without an end", at};
            at = end;
            continue;
        }
        if (is_blank(*at)) {
            ++at;
            continue;
        }
        const char first = *at;
        if (first == '"') {
            char *const end = skip_string(at);
            if (!end)
                return {"a text without an end", at};
            const bool in_values = last == ',' && depth > 0 && brackets[depth - 1] != '{';
            if (!in_values && !is_one_of<'=', ':', '(', '[', '"'>(last))
                *at = '!';
            at = end;
        } else if (starts_name(first)) {
            while (continues_name(*at))
                ++at;
        } else if (is_digit(first) || is_one_of<'+', '-', '.'>(first)) {
            at = rewrite_number(at);
            if (continues_name(*at))
                *at = '!';
        } else {
            if (is_one_of<'{', '(', '['>(first)) {
                if (depth == max_depth)
                    return {"nested too deeply", at};
                brackets[depth++] = first;
            } else if (is_one_of<'}', ')', ']'>(first)) {
                depth -= depth > 0;
                if (last == ',' && first != '}')
                    *at = '!';
            }
            ++at;
        }
        last = first;
    }
    return {};
}

} // namespace brio
