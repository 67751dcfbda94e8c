# shellcheck shell=bash
# Shared by the scripts: what a build needs, and how it is built. To be sourced.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

fail() {
    printf '%s\n' "$*" >&2
    exit 3
}

have_command() { command -v "$1" >/dev/null; }
have_header() { echo "#include <$1>" | g++ -std=c++20 -E -x c++ - >/dev/null 2>&1; }
have_python() { python3 -c 'import sys; sys.exit(sys.version_info < (3, 11))' 2>/dev/null; }

# The Debian packages that are missing: for the program, with the word `tests` for the tests as well, with `browser`
# for those that look at HTML reports, which are skipped without one, with `coverage` for its measurement, with
# `fuzz` for the fuzz targets, and with `lint` for the checks of the sources.
missing_packages() {
    have_command cmake || echo cmake
    have_command ninja || echo ninja-build
    have_command g++ || echo g++
    have_header toml++/toml.h || echo libtomlplusplus-dev
    have_header CLI/CLI.hpp || echo libcli11-dev
    have_header fmt/format.h || echo libfmt-dev
    have_header eigen3/Eigen/Dense || echo libeigen3-dev
    have_header nlohmann/json.hpp || echo nlohmann-json3-dev
    [[ -f /usr/share/javascript/chart.js/chart.min.js ]] || echo libjs-chart.js
    [[ " $* " != *" browser "* ]] || have_command chromium || echo chromium
    if [[ " $* " == *" coverage "* ]]; then
        have_command llvm-cov-14 || echo llvm-14
    fi
    if [[ " $* " == *" fuzz "* || " $* " == *" coverage "* ]]; then
        have_command clang++-14 || echo clang-14
        compgen -G '/usr/lib/llvm-14/lib/clang/*/lib/linux/libclang_rt.fuzzer*' >/dev/null ||
            echo libclang-rt-14-dev
    fi
    if [[ " $* " == *" lint "* ]]; then
        have_command git || echo git
        have_command clang-format || echo clang-format
        have_command clang-tidy || echo clang-tidy
    fi
    [[ " $* " == *" tests "* ]] || return 0
    have_header gtest/gtest.h || echo libgtest-dev
    have_python || echo python3
    have_command gfortran || echo gfortran
    have_command readelf || echo binutils
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

install_missing() {
    local packages
    mapfile -t packages < <(missing_packages "$@")
    ((${#packages[@]})) || return 0
    if ! have_command apt-get || { ((EUID != 0)) && ! have_command sudo; }; then
        fail "The build needs these Debian packages, or what they hold, and cannot install them: ${packages[*]}"
    fi
    echo "installing ${packages[*]}"
    as_root apt-get -q update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q install -y --no-install-recommends "${packages[@]}" \
        </dev/null
    mapfile -t packages < <(missing_packages "$@")
    ((${#packages[@]} == 0)) || fail "Still missing or too old after the installation: ${packages[*]}"
}

# configure PRESET [CMAKE-OPTION…]
configure() {
    local launcher=()
    if have_command ccache; then
        launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    (cd "$root" && cmake --preset "$1" "${launcher[@]}" "${@:2}")
}

# quietly COMMAND…: its output is shown only when it fails.
quietly() {
    local log
    log=$(mktemp)
    if ! ("$@") >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
