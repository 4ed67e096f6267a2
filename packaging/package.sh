#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package in build/package/ and checks it: runs lintian, installs it into a clean root, validates the
# installed files, starts the program from there on a virtual display and removes it without a trace.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh
umask 022 # of the folders in the package

need_packages "${build_packages[@]}" "${window_packages[@]}" "${check_packages[@]}" dpkg-dev fakeroot lintian
build release
folder=$PWD/build/package
mkdir -p "$folder"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { printf '%s\n' "$*" >&2; exit 1; }

# make_package: sets `package`. All files carry the date of the changelog, which makes the package reproducible.
make_package() {
    local day
    day=$(sed -n 's/^## [^ ]* (\(.*\))$/\1/p' CHANGELOG.md | head -n 1)
    rm -f "$folder"/*.deb
    # In a folder without brackets, which cpack takes for a pattern: the package would be empty.
    SOURCE_DATE_EPOCH=$(date -u -d "$day" +%s) cpack -G DEB --config build/release/CPackConfig.cmake -B "$work/cpack" \
        >"$folder/cpack.log" 2>&1 || { cat "$folder/cpack.log" >&2; return 1; }
    mv "$work/cpack/"*.deb "$folder"
    package=$(echo "$folder"/*.deb)
}

# Fails on any remark of lintian, including info and pedantic ones, except
# - hardening-no-fortify-functions: the program is built with _FORTIFY_SOURCE, but for each of the few calls that this
#   could guard the compiler knows either all bounds or none.
# - binary-has-unneeded-section: 30 bytes that name the compiler.
# - appstream-metadata-validation-failed: validate.sh tells what is accepted. Old versions cannot suppress it.
run_lintian() {
    local remarks status=0
    remarks=$(lintian --allow-root --display-info --pedantic \
        --suppress-tags hardening-no-fortify-functions,binary-has-unneeded-section "$package" 2>&1) || status=$?
    remarks=$(grep -v ': appstream-metadata-validation-failed ' <<<"$remarks" || true)
    if [ "$status" -ne 0 ] || [ -n "$remarks" ]; then
        fail "lintian exited with $status:" "$remarks"
    fi
}

# on_root <dpkg argument>...: dpkg on the clean root, without the package's dependencies. Containers often exclude
# manual pages; here every file is installed.
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

# Starts the program on each page as the actions of the menu entry do and closes its window.
start_installed() {
    scripts/pictures.sh "$work/root/usr/bin/zarn-system-monitor" "$folder/pictures" >"$work/pictures.log" ||
        { cat "$work/pictures.log" >&2; return 1; }
}

remove_from_root() {
    local left
    on_root --remove zarn-system-monitor
    left=$(find "$work/root" -mindepth 1 -path "$work/root/var" -prune -o -print)
    [ -z "$left" ] || fail "left behind by the removal:" "$left"
    [ -z "$(fakeroot dpkg-query --admindir="$work/root/var/lib/dpkg" -W 2>/dev/null)" ] || fail "dpkg still knows the package"
}

echo "Building the package"
make_package
echo "Running lintian"
run_lintian
echo "Installing into a clean root"
install_into_clean_root
echo "Validating the installed files"
for file in "$work/root/usr/share/"{applications/*.desktop,metainfo/*.metainfo.xml,man/man1/*.1.gz}; do
    tests/packaging/validate.sh "$file" >/dev/null
done
echo "Starting the installed program"
SETTLE=1 start_installed
echo "Removing"
remove_from_root
echo "$package"
