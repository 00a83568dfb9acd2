#!/usr/bin/env bash
# Takes a Debian 12 machine from nothing to results: installs what is missing, builds, runs.
#
#   ./run.sh                 the desktop program when there is a display, else the headline figures of the examples
#   ./run.sh ARGUMENTS...    velorix-batch with these arguments, its output and its exit status
set -euo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_packages
build release velorix-batch velorix

bin=$root/build/bin
if (($#)); then
    exec "$bin/velorix-batch" "$@"
fi
if [[ -n ${WAYLAND_DISPLAY:-}${DISPLAY:-} ]]; then
    say "Starting the desktop program"
    exec "$bin/velorix"
fi

say "Analysing the examples"
examples=("$root"/examples/*.vlx)
[[ -e ${examples[0]} ]] || fail "there is no project file in $root/examples"
exec "$bin/velorix-batch" analyse "${examples[@]}"
