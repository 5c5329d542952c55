#!/bin/bash
# Makes an archive of a minimal Debian system, with a compiler and Python, from the mirror that this
# machine is configured for. An archive that is newer than this script is kept.
#   minimal_root.sh ARCHIVE
set -euo pipefail
archive=$1
[ "$archive" -nt "$0" ] && exit
command -v mmdebstrap >/dev/null || { echo "Install the package mmdebstrap." >&2; exit 1; }

. /etc/os-release
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# What this machine's own apt is told about proxies and time limits.
apt-config dump | grep '^Acquire::[a-z]*::\|^Acquire::Check' >"$work/apt.conf" || true
echo 'Acquire::Languages "none";' >>"$work/apt.conf"
mapfile -t sources < <(find /etc/apt -maxdepth 2 -name '*.list' -o -name '*.sources' |
    while read -r file; do grep -q '^[^#]' "$file" && echo "$file"; done)

# What the packages depend on, and a compiler for hosts. Documents and translations of the system
# itself are left out, and large parts of the compiler that no host needs; our own packages install
# everything.
mmdebstrap --variant=apt --include=g++,pkg-config,python3,libedit2 \
    --aptopt="$work/apt.conf" \
    --dpkgopt='path-exclude=/usr/share/locale/*' --dpkgopt='path-exclude=/usr/share/man/*' \
    --dpkgopt='path-exclude=/usr/share/doc/*' \
    --dpkgopt='path-exclude=/usr/*/*lto-dump*' --dpkgopt='path-exclude=/usr/lib/gcc/*/lto1' \
    --dpkgopt='path-exclude=/usr/lib/*/lib*san.*' \
    --customize-hook='rm -f "$1"/etc/dpkg/dpkg.cfg.d/99mmdebstrap' \
    --customize-hook='chroot "$1" useradd --create-home --shell /bin/sh tester' \
    "$VERSION_CODENAME" "$work/root.tar" "${sources[@]}" >"$archive.log" 2>&1 ||
    { cat "$archive.log" >&2; exit 1; }
mv "$work/root.tar" "$archive"
