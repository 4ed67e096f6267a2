# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by run.sh, test.sh, package.sh, bench.sh and soak.sh: installs Debian packages that are missing, and builds.

build_packages="g++ cmake ninja-build pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools libgtop2-dev libglib2.0-dev"
window_packages="xvfb xauth openbox xdotool imagemagick x11-utils fonts-dejavu-core libxtst-dev"
check_packages="appstream desktop-file-utils file man-db valgrind iproute2 e2fsprogs"
fuzz_packages="clang-14 libclang-rt-14-dev"

# need_packages <package>...: installs what is missing, as root or through sudo; elsewhere says what to install.
need_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q ' installed$' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            printf 'Packages are missing. Install them as root:\n  apt-get install --no-install-recommends %s\n' "${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    printf 'Installing: %s\n' "${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build <preset> [<target>...]: configures and builds; quiet unless it fails.
build() {
    local preset=$1 targets=()
    shift
    [ $# -gt 0 ] && targets=(--target "$@")
    cmake --preset "$preset" >"build-$preset.log" 2>&1 &&
        cmake --build "build/$preset" -j "$(nproc)" "${targets[@]}" >>"build-$preset.log" 2>&1 ||
        { cat "build-$preset.log" >&2; return 1; }
    mv "build-$preset.log" "build/$preset/build.log"
}
