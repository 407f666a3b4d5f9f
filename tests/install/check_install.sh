#!/usr/bin/env bash
# Installs into a scratch prefix and uses the result as a newcomer would: pkg-config, a C client, dstctl.
# Usage: check_install.sh SOURCE_DIR BUILD_DIR LIBRARY_PATH [COMPILER FLAG...]
set -euo pipefail
source_dir=$1
build_dir=$2
library_path=$3
shift 3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix=$scratch/prefix
examples=$prefix/share/libdst/examples
fail() {
    echo "check_install: $*"
    exit 1
}

cmake --install "$build_dir" --prefix "$prefix" >/dev/null
for file in lib/libdst.so.1 lib/libdst.so lib/pkgconfig/libdst.pc include/chsinfo/libdst.h include/chsinfo/libdst.hpp \
    include/chsinfo/libdst_priv.h include/chsinfo/chassis_ops.def bin/dstctl share/libdst/chassis_dst_schema.xsd; do
    [ -e "$prefix/$file" ] || fail "$file is not installed"
done

export PKG_CONFIG_PATH=$prefix/lib/pkgconfig LD_LIBRARY_PATH=$prefix/lib:$library_path
# shellcheck disable=SC2046 # pkg-config prints words
gcc "$@" -std=c11 -Wall -Wextra -Wpedantic -Werror -o "$scratch/client" "$source_dir/tests/install/client.c" \
    $(pkg-config --cflags --libs libdst) -Wl,--allow-shlib-undefined
# The folder of the description is the client's own, in a mount namespace.
# shellcheck disable=SC2016 # expanded by the inner shell
client_output=$(unshare --mount $([ "$(id -u)" = 0 ] || echo --map-root-user) bash -ec '
    mount -t tmpfs tmpfs /var
    mkdir /var/platform
    cp "$1"/small/*.xml "$1"/../chassis_dst_schema.xsd /var/platform
    "$2"' inner "$examples" "$scratch/client")
diff "$source_dir/tests/install/client.expected" <(grep '^client: ' <<<"$client_output") || fail "the client's output"

# dstctl WANTED_STATUS ARGUMENT...: leaves its output in $scratch/out and $scratch/err
dstctl() {
    local wanted=$1 status=0
    shift
    "$prefix/bin/dstctl" "$@" >"$scratch/out" 2>"$scratch/err" || status=$?
    [ "$status" = "$wanted" ] || fail "dstctl $*: status $status instead of $wanted: $(cat "$scratch/err")"
}
dstctl 0 show "$examples/small/chassis_dst.xml"
diff "$scratch/out" <(sed '1,/validates OK!/d' <<<"$client_output" | grep -v '^client: ') || fail "dstctl prints the dump alone"
grep -q 'validates OK!' "$scratch/err" || fail "the verdict on standard error"
echo '<CHASSIS><VERSION>x</VERSION></CHASSIS>' >"$scratch/wrong.xml"
dstctl 1 show "$scratch/wrong.xml"
[ ! -s "$scratch/out" ] || fail "a wrong description prints no dump"
grep -q 'error: libdst_init: Failed to parse' "$scratch/err" || fail "the log lines on standard error"
echo '<schema' >"$scratch/chassis_dst_schema.xsd"
dstctl 1 show "$scratch/wrong.xml"
grep -q 'Unable to parse schemas context' "$scratch/err" || fail "the schema beside the document comes first"
dstctl 0 show --schema "$prefix/share/libdst/chassis_dst_schema.xsd" "$examples/small/chassis_dst.xml"
dstctl 2 show "$scratch/absent.xml"
dstctl 2 show --schema "$scratch/absent.xsd" "$scratch/wrong.xml"
dstctl 2 show "$scratch"
for words in "" "show" "show --schema" "show one two" "show --other one" "sing"; do
    # shellcheck disable=SC2086 # words
    dstctl 2 $words
    grep -q '^usage:' "$scratch/err" || fail "usage for: dstctl $words"
done
