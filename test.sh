#!/usr/bin/env bash
# Installs what is missing, checks the format, then builds and tests the release and the sanitizer build.
set -euo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

check_format() {
    local folders=()
    for folder in src tests bench; do
        [[ ! -d $root/$folder ]] || folders+=("$root/$folder")
    done
    say "Checking the format"
    find "${folders[@]}" \( -name '*.h' -o -name '*.cpp' \) -print0 |
        xargs -0 clang-format-14 --dry-run -Werror ||
        fail "the files above are not formatted; clang-format-14 -i FILE mends one"
}

run_tests() {
    say "Testing $1"
    UBSAN_OPTIONS=print_stacktrace=1 ctest --test-dir "$root/$1" --output-on-failure --no-tests=error \
        --parallel "$(nproc)" || fail "tests of $1 failed; see above"
}

install_packages
check_format
build release
run_tests build
build sanitize
run_tests build-sanitize
say "All checks passed"
