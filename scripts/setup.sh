# shellcheck shell=bash disable=SC2034
# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the other scripts: installs missing Debian packages and builds.

build_packages=(
    g++ cmake ninja-build pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools libgtop2-dev libglib2.0-dev
)
window_packages=(xvfb xauth openbox xdotool imagemagick x11-utils fonts-dejavu-core libxtst-dev libsm-dev)
check_packages=(appstream desktop-file-utils file man-db valgrind iproute2 e2fsprogs)
# Pinned to the versions of Debian 12: other versions format and warn differently.
style_packages=(clang-format-14 clang-tidy-14)
# For tests under Wayland and of what assistive technology sees, which are skipped without them.
wayland_packages=(weston qtwayland5)
assistive_packages=(at-spi2-core dbus)
# For the test of file systems that don't answer, which uses made-up ones alone without it.
fuse_packages=(libfuse3-dev)
fuzz_packages=(clang libclang-rt-dev)

# missing_packages <package>...: prints those that are not installed, one per line.
missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q ' installed$' || echo "$package"
    done
}

can_install() { [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null; }

# apt_get <argument>...: runs apt-get as root or through sudo.
apt_get() {
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq "$@"
}

install_packages() {
    echo "Installing: $*"
    apt_get install -y --no-install-recommends "$@" >/dev/null
}

# need_packages <package>...: installs what is missing; fails with a message if it may not.
need_packages() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if ! can_install; then
        printf 'Packages are missing. Install them as root:\n  apt-get install --no-install-recommends %s\n' "${missing[*]}" >&2
        return 1
    fi
    apt_get update && install_packages "${missing[@]}"
}

# want_packages <package>...: installs what is missing, as far as the archive has it; never fails.
want_packages() {
    local missing available=() package
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] && can_install || return 0
    # Once the lists are there, what the archive lacks is not asked for again.
    [ -n "$(apt-cache madison "${build_packages[0]}")" ] || apt_get update || true
    for package in "${missing[@]}"; do
        ! apt-cache show "$package" >/dev/null 2>&1 || available+=("$package")
    done
    [ ${#available[@]} -eq 0 ] || install_packages "${available[@]}" || true
}

# build <preset> [<target>...]: configures and builds; quiet unless it fails.
build() {
    local preset=$1 targets=()
    local log=build-$preset.log
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    if ! { cmake --preset "$preset" && cmake --build "build/$preset" -j "$(nproc)" "${targets[@]}"; } >"$log" 2>&1; then
        cat "$log" >&2
        return 1
    fi
    mv "$log" "build/$preset/build.log"
}
