#!/bin/sh
# Runs a Windows program under Wine: run-wine.sh PREFIX PROGRAM [ARGUMENTS...]
# The prefix belongs to the build; it is made on first use. Nothing asks questions or opens
# windows of its own.
set -eu
prefix=$1
shift
export WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
# Without a locale Wine makes no file whose name has more than ASCII in it.
export LC_ALL=C.UTF-8
mkdir -p "$prefix"
(
    flock 9
    if [ ! -e "$prefix/ready" ]; then
        wine wineboot --init >/dev/null 2>&1
        touch "$prefix/ready"
    fi
) 9>"$prefix/lock"
exec wine "$@"
