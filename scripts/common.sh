# Steps shared by run.sh and test.sh: install what is missing, configure, build. To be sourced by bash.
# All of it reports to standard error, so that standard output belongs to the programs that are run.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The same file compiled in another clone is found in the cache too.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

say() { printf '==> %s\n' "$*" >&2; }

fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

listed_packages() { sed 's/#.*//' "$root/packages.txt" | xargs -n1; }

is_installed() { [[ $(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]; }

as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

install_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        fail "this script installs with apt-get, which is not here. Install what packages.txt lists in your" \
            "system's own way, then build with: cmake --preset release && cmake --build --preset release"
    fi

    local package missing=()
    while read -r package; do
        is_installed "$package" || missing+=("$package")
    done < <(listed_packages)
    ((${#missing[@]})) || return 0

    say "Installing ${missing[*]}"
    ((EUID == 0)) || command -v sudo >/dev/null ||
        fail "installing needs root, and there is no sudo here. As root: apt-get install ${missing[*]}"
    as_root apt-get update -q >&2 || fail "apt-get update failed; see above"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
        -o DPkg::Lock::Timeout=120 "${missing[@]}" >&2 || fail "apt-get could not install ${missing[*]}; see above"
}

check_cmake() {
    local least found
    least=$(sed -n 's/^cmake_minimum_required(VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
    found=$(cmake --version | sed -n '1s/[^0-9]*\([0-9.]*\).*/\1/p')
    [[ $(printf '%s\n' "$least" "$found" | sort -V | head -n1) == "$least" ]] ||
        fail "CMake $least or later is needed, $(command -v cmake) is $found"
}

# build PRESET [TARGET...]: configures the preset and builds the targets, all without one. Whoever builds, the
# options are the same, so that run.sh after test.sh finds everything built.
build() {
    local preset=$1 launcher=() targets=()
    shift
    (($# == 0)) || targets=(--target "$@")
    command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

    say "Building the $preset preset"
    check_cmake
    (
        cd "$root" &&
            cmake --preset "$preset" --log-level=WARNING -DVELORIX_WERROR=ON "${launcher[@]}" &&
            cmake --build --preset "$preset" "${targets[@]}"
    ) >&2 || fail "the $preset build failed; see above"
}
