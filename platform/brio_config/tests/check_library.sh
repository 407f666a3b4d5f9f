#!/usr/bin/env bash
# What the built library exports and needs.
# Usage: check_library.sh LIBRARY HEADER
set -euo pipefail

expect() { diff <(echo "$2") <(echo "$3") || { echo "$1 (expected <, found >)" && exit 1; }; }

expect "exports against the header" "$(grep -oE '^BRIO_API .*\bbrio_config_\w+\(' "$2" | grep -oE 'brio_config_\w+' | sort)" \
    "$(nm -D --defined-only "$1" | awk '{print $3}' | sort)"
expect "needed libraries" $'libc.so.6\nlibconfig.so.9' "$(readelf -d "$1" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | sort)"
expect "soname" libbrio_config.so.0 "$(readelf -d "$1" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')"
