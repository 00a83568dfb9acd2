#!/usr/bin/env bash
# Draws the pictures that the README shows: scripts/pictures.sh [FOLDER [PROGRAM]], docs/images by the program of
# the release build without them.
set -euo pipefail
# shellcheck source=scripts/common.sh
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

folder=${1:-$root/docs/images}
program=${2:-$root/build/bin/velorix-batch}
[[ -x $program ]] || fail "there is no build yet: cmake --preset release && cmake --build --preset release"

project=$root/examples/hoekfontein-pumping-main.vlx
mkdir -p "$folder"
"$program" plot "$project" hydraulic --out "$folder/hydraulic.svg"
"$program" plot "$project" duty --out "$folder/duty.svg"
