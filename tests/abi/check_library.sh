#!/usr/bin/env bash
# What the built library exports and needs, and that nothing of it runs before main().
# Usage: check_library.sh SOURCE_DIR LIBRARY OBJECT...
set -euo pipefail
source_dir=$1
library=$2
shift 2

# expect WHAT EXPECTED ACTUAL: two lists of lines
failed=0
expect() {
    diff <(echo "$2") <(echo "$3") >/tmp/check_library.$$ || {
        failed=1
        echo "$1 (expected <, found >):"
        cat /tmp/check_library.$$
    }
    rm -f /tmp/check_library.$$
}

mapped=$(sed -n 's/^ *\([a-z_0-9]*\);$/\1/p' "$source_dir/chsinfo/libdst.map" | sort)
exported=$(nm -D --defined-only "$library" | awk '{print $3}' | sort)
expect "exports against libdst.map" "$mapped" "$exported"

declared=$(cat "$source_dir"/chsinfo/libdst.h "$source_dir"/chsinfo/libdst_priv.h | tr '\n' ' ' |
    grep -oE 'DST_API [^;]*;' | grep -oE '\w+ *(\(|\[|;)' | grep -oE '\w+' | sort -u)
expect "exports that no header declares" "" "$(comm -23 <(echo "$exported") <(echo "$declared"))"

needed=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort)
expect "needed libraries" $'libbrio_config.so.0\nlibc.so.6\nlibxml2.so.2' "$needed"
expect "soname" "libdst.so.1" "$(readelf -d "$library" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')"
expect "bound to itself (-Bsymbolic)" "" "$(readelf -d "$library" | grep -i symbolic || true)"
expect "sections that run before main()" "" \
    "$(for object in "$@"; do readelf -SW "$object" | grep -oE '\.(init_array|ctors|preinit_array)' || true; done)"
exit $failed
