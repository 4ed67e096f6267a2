#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the Debian package in build/package/ and checks it: validators, lintian, installed into a clean root, started
# from there on a virtual display, removed without a trace.
set -euo pipefail
cd "$(dirname "$0")"
. ./setup.sh
# Folders of the package must be open to everybody, whatever the umask of the one who packs.
umask 022

need_packages $build_packages $window_packages $check_packages dpkg-dev fakeroot lintian
build release
folder=$PWD/build/package
mkdir -p "$folder"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

step() { printf '%s\n' "$*"; }
fail() { printf '%s\n' "$*" >&2; exit 1; }

# make_package: sets `package`. The day of the changelog stands for the time of everything that is packed, so the
# same sources make the same package.
make_package() {
    local day
    day=$(sed -n 's/^## [^ ]* (\(.*\))$/\1/p' CHANGELOG.md | head -n 1)
    rm -f "$folder"/*.deb
    SOURCE_DATE_EPOCH=$(date -u -d "$day" +%s) cpack -G DEB --config build/release/CPackConfig.cmake -B "$folder" \
        >"$folder/cpack.log" 2>&1 || { cat "$folder/cpack.log" >&2; return 1; }
    package=$(echo "$folder"/*.deb)
}

# Besides errors and warnings also lintian's weaker remarks. Left out of these, with the reason:
# - hardening-no-fortify-functions: it is built with _FORTIFY_SOURCE, but of the few calls that this could guard, the
#   compiler knows all bounds beforehand or none.
# - binary-has-unneeded-section: 30 bytes that name the compiler.
run_lintian() {
    local remarks status=0
    remarks=$(lintian --allow-root --display-info --pedantic \
        --suppress-tags hardening-no-fortify-functions,binary-has-unneeded-section "$package" 2>&1) || status=$?
    [ "$status" -eq 0 ] && [ -z "$remarks" ] || fail "lintian ended with status $status:" "$remarks"
}

# on_root <dpkg argument>...: dpkg on the clean root, where what the package depends on isn't installed. Containers
# are often set to leave out manual pages; here every file counts.
on_root() {
    fakeroot dpkg --root="$work/root" --force-not-root --force-depends --path-include='*' --log="$work/dpkg.log" "$@" \
        >"$work/dpkg.out" 2>&1 || { cat "$work/dpkg.out" >&2; return 1; }
}

install_into_clean_root() {
    mkdir -p "$work/root/var/lib/dpkg/"{info,updates}
    touch "$work/root/var/lib/dpkg/"{status,available}
    on_root --install "$package"
    tests/packaging/installed.sh "$work/root"
}

# Starts it on each page as the actions of the menu entry do, until its window has come and was closed.
start_installed() {
    ./pictures.sh "$work/root/usr/bin/zarn-system-monitor" "$folder/pictures" >"$work/pictures.log" ||
        { cat "$work/pictures.log" >&2; return 1; }
}

remove_from_root() {
    local left
    on_root --remove zarn-system-monitor
    left=$(find "$work/root" -mindepth 1 -path "$work/root/var" -prune -o -print)
    [ -z "$left" ] || fail "left behind after the removal:" "$left"
    [ -z "$(fakeroot dpkg-query --admindir="$work/root/var/lib/dpkg" -W 2>/dev/null)" ] || fail "dpkg still knows the package"
}

step "Packing"
make_package
step "Asking lintian"
run_lintian
step "Installing into a clean root"
install_into_clean_root
step "Validating what was installed"
for file in "$work/root/usr/share/"{applications/*.desktop,metainfo/*.metainfo.xml,man/man1/*.1.gz}; do
    tests/packaging/validate.sh "$file" >/dev/null
done
step "Starting it from there"
SETTLE=1 start_installed
step "Removing"
remove_from_root
step "$package"
