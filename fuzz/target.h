// What every target includes: the two functions that libFuzzer, or replay.cpp, calls, and the check of a promise.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

extern "C" {
int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size); // in target.cpp
int LLVMFuzzerInitialize(int *argc, char ***argv);                 // in quiet.cpp
}

// A broken promise ends the process: that is what makes an input a finding.
void promise(bool kept, const char *what);

// An input in two parts: what stands before and after the first line "---".
inline std::pair<std::string_view, std::string_view> parts_of(const uint8_t *data, std::size_t size) {
    constexpr std::string_view separator = "\n---\n";
    const std::string_view input(reinterpret_cast<const char *>(data), size);
    const std::size_t end = input.find(separator);
    if (end == std::string_view::npos)
        return {input, {}};
    return {input.substr(0, end + 1), input.substr(end + separator.size())};
}
