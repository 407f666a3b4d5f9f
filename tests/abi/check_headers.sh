#!/usr/bin/env bash
# The installed headers stand alone in every language version that a client may use, and so does what it does with them.
# Usage: check_headers.sh SOURCE_DIR [COMPILER FLAG...]
set -euo pipefail
source_dir=$1
shift
flags=("$@" -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Werror -I"$source_dir")

# compiles COMPILER LANGUAGE STANDARD HEADER
compiles() { "$1" "${flags[@]}" -std="$3" -fsyntax-only -include "$4" -x "$2" - </dev/null; }

for header in chsinfo/libdst.h chsinfo/libdst_priv.h brio_config.h examples/inventory.c; do
    for compiler in gcc clang; do
        compiles $compiler c c11 $header
    done
    for standard in 11 14 17 20; do
        for compiler in g++ clang++; do
            compiles $compiler c++ c++$standard $header
        done
    done
done
for compiler in g++ clang++; do
    compiles $compiler c++ c++20 chsinfo/libdst.hpp
done
