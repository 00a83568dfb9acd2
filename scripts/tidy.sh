#!/usr/bin/env bash
# Runs clang-tidy over the sources of the release build: scripts/tidy.sh [FOLDER OR FILE...], src without one.
set -euo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

command -v clang-tidy-14 >/dev/null || fail "clang-tidy is not here: apt-get install clang-tidy-14"
[[ -e $root/build/compile_commands.json ]] || fail "there is no build yet: cmake --preset release"

(($#)) || set -- "$root/src"
find "$@" -name '*.cpp' -print0 | xargs -0 -n1 -P"$(nproc)" clang-tidy-14 -p "$root/build" --quiet
