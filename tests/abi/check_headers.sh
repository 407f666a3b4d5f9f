#!/usr/bin/env bash
# The installed headers stand alone in every language version that a client may use.
# Usage: check_headers.sh SOURCE_DIR [COMPILER FLAG...]
set -euo pipefail
source_dir=$1
shift
warnings=(-Wall -Wextra -Wpedantic -Werror)
for header in libdst.h libdst_priv.h; do
    for compiler in gcc clang; do
        "$compiler" "$@" -std=c11 "${warnings[@]}" -fsyntax-only -I"$source_dir" -include "chsinfo/$header" -x c - </dev/null
    done
    for standard in 11 14 17 20; do
        for compiler in g++ clang++; do
            "$compiler" "$@" -std=c++$standard "${warnings[@]}" -fsyntax-only -I"$source_dir" -include "chsinfo/$header" \
                -x c++ - </dev/null
        done
    done
done
