#!/usr/bin/env bash
# Installs into a scratch prefix and uses the result as a newcomer would: pkg-config, clients in C and C++, dstctl.
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
documents=$prefix/share/doc/libdst/examples
fail() {
    echo "check_install: $*"
    exit 1
}

cmake --install "$build_dir" --prefix "$prefix" >/dev/null
for file in lib/libdst.so.1 lib/libdst.so lib/libbrio_config.so.0 lib/pkgconfig/libdst.pc include/brio_config.h \
    include/chsinfo/libdst.h include/chsinfo/libdst.hpp include/chsinfo/libdst_priv.h include/chsinfo/chassis_ops.def bin/dstctl share/libdst/chassis_dst_schema.xsd; do
    [ -e "$prefix/$file" ] || fail "$file is not installed"
done

export PKG_CONFIG_PATH=$prefix/lib/pkgconfig LD_LIBRARY_PATH=$prefix/lib:$library_path
warnings=(-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Werror)
read -ra includes < <(pkg-config --cflags libdst)
read -ra library < <(pkg-config --libs libdst)
library+=("-Wl,--allow-shlib-undefined")
width=("$@")
# builds CLIENT SOURCE: with gcc, after clang has found nothing to warn of
builds() {
    local gcc=gcc clang=clang flags=("${width[@]}" "${warnings[@]}" "${includes[@]}")
    case $2 in
    *.c) flags+=(-std=c11) ;;
    *.cpp) flags+=(-std=c++20) gcc=g++ clang=clang++ ;;
    esac
    $clang "${flags[@]}" -fsyntax-only "$2"
    $gcc "${flags[@]}" -o "$scratch/$1" "$2" "${library[@]}"
}
# readme LANGUAGE: its example
readme() { sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/{/^\`\`\`/!p}" "$source_dir/README.md"; }
readme c >"$scratch/readme.c"
{ readme cpp; echo 'int main() { print_fans(); }'; } >"$scratch/readme.cpp"
builds client "$source_dir/tests/install/client.c"
builds queries "$source_dir/tests/install/queries.c"
builds inventory_c "$documents/inventory.c"
builds inventory_cpp "$documents/inventory.cpp"
builds epm "$documents/epm.c"
builds readme_c "$scratch/readme.c"
builds readme_cpp "$scratch/readme.cpp"

# run CLIENT EXAMPLE FORM, the form being xml or conf. The folder of the description is the client's own, in a mount namespace.
run() {
    # shellcheck disable=SC2016,SC2046 # expanded by the inner shell; no word at all for root
    unshare --mount $([ "$(id -u)" = 0 ] || echo --map-root-user) bash -ec '
        mount -t tmpfs tmpfs /var
        mkdir /var/platform
        cp "$1"/*."$2" "$3" /var/platform
        "$4"' inner "$examples/$2" "$3" "$prefix/share/libdst/chassis_dst_schema.xsd" "$scratch/$1"
}
# prints CLIENT EXAMPLE FORM EXPECTED: what the client prints after the model
prints() {
    diff "$source_dir/tests/install/$4" <(run "$1" "$2" "$3" | sed '1,/^<\/CHASSIS>$/d') || fail "$1 on $2, $3"
}
client_output=$(run client small xml)
diff "$source_dir/tests/install/client.expected" <(grep '^client: ' <<<"$client_output") || fail "the client's output"
[ "$(run readme_c small xml | grep -c '^[^<].* on nothing$')" = 1 ] || fail "what the README's example prints"
prints queries modular xml queries.expected
prints inventory_c fixed-1u xml inventory.expected
prints inventory_cpp fixed-1u conf inventory.expected
mkdir "$examples/loop" "$examples/epm" "$scratch/0-0051"
cp "$source_dir/tests/install/loop.conf" "$examples/loop/chassis_dst.conf"
prints inventory_c loop conf loop.expected
prints inventory_cpp loop conf loop.expected
# The main board's EEPROM; that of the CPU board is not there.
cp "$examples/small/chassis_dst.xml" "$examples/epm"
sed "s#/sys/bus/i2c/devices#$scratch#" "$examples/small/i2c.xml" >"$examples/epm/i2c.xml"
{ printf '\177\260\002\377\013\134\001\002REV 01 of 12740-01234567AB1234'; head -c 79 /dev/zero; } >"$scratch/0-0051/eeprom"
prints epm epm xml epm.expected
for query in $(grep -oE '\blib(chs|dst)_[a-z0-9_]+,' "$source_dir/chsinfo/chassis_ops.def" | tr -d ,); do
    grep -q "$query(" "$source_dir/tests/install/queries.c" || fail "queries.c does not call $query()"
done

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
dstctl 0 show "$examples/fixed-1u/chassis_dst.conf"
status=0
"$prefix/bin/dstctl" show "$examples/small/chassis_dst.xml" >/dev/full 2>/dev/null || status=$?
[ "$status" = 2 ] || fail "dstctl show ends with $status when its output is lost"
grep -q 'error: 10: changed ID is !' "$scratch/err" || fail "the simulation tree beside the configuration tree"
grep -q '^</CHASSIS>$' "$scratch/out" || fail "the model of a configuration tree"
printf 'CHASSIS = {\nVERSION 1;\n};\n' >"$scratch/wrong.conf"
dstctl 1 show "$scratch/wrong.conf"
[ ! -s "$scratch/out" ] || fail "a wrong configuration tree prints nothing on standard output"
grep -q 'wrong.conf:2: syntax error' "$scratch/err" || fail "what is wrong with a configuration tree"
dstctl 2 show --schema "$prefix/share/libdst/chassis_dst_schema.xsd" "$examples/fixed-1u/chassis_dst.conf"
dstctl 2 show "$scratch/absent.xml"
mv "$prefix/share/libdst/chassis_dst_schema.xsd" "$scratch/away.xsd"
dstctl 2 show "$examples/small/chassis_dst.xml"
grep -q 'name one with --schema' "$scratch/err" || fail "what to do without a schema"
mv "$scratch/away.xsd" "$prefix/share/libdst/chassis_dst_schema.xsd"
dstctl 2 show --schema "$scratch/absent.xsd" "$scratch/wrong.xml"
dstctl 2 show "$scratch"
for words in "" "show" "show --schema" "show one two" "show --other one" "sing"; do
    # shellcheck disable=SC2086 # words
    dstctl 2 $words
    grep -q '^usage:' "$scratch/err" || fail "usage for: dstctl $words"
done
