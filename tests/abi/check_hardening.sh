#!/usr/bin/env bash
# How the libraries and the tool were compiled and linked.
# Usage: check_hardening.sh FORTIFIED LIBRARY|TOOL|OBJECT...
#   FORTIFIED: 1, or 0 where snprintf() is never checked: in builds that do not optimise, and by clang in C++
set -euo pipefail
fortified=$1
shift

failed=0
# expect WHAT COMMAND...: of $file, the command must succeed
expect() {
    "${@:2}" >/dev/null || { failed=1 && echo "$file: $1"; }
}
# shellcheck disable=SC2317 # called by expect
finds() { grep -qE "$1" <<<"$2"; }

for file in "$@"; do
    if [[ $file == *.o ]]; then
        expect "branch targets and returns are not protected" finds 'IBT, SHSTK' "$(readelf -nW "$file")"
        continue
    fi
    segments=$(readelf -lW "$file")
    imported=$(nm -D --undefined-only "$file")
    expect "its place is fixed" finds '^Elf file type is DYN' "$segments"
    expect "what is relocated stays writable" finds '^ *GNU_RELRO' "$segments"
    expect "the stack may be executed" finds '^ *GNU_STACK.* RW ' "$segments"
    expect "functions are bound late" finds 'BIND_NOW' "$(readelf -dW "$file")"
    expect "returns are not guarded" finds ' __stack_chk_fail\>' "$imported"
    [[ $fortified == 0 ]] || expect "sizes are not checked" finds ' __v?snprintf_chk\>' "$imported"
    expect "a host's function takes the place of its own" diff /dev/null <(comm -12 \
        <(nm -D --defined-only "$file" | awk '$2 == "T" {print $3}' | sort) <(readelf -rW "$file" | awk '{print $5}' | sort))
done
exit $failed
