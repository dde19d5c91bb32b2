#!/usr/bin/env bash
# Starts the camera manager under Xvfb on the default simulated fleet and
# writes PNG files of its windows. Run it as a normal user, from a checkout
# that user owns: the program is meant to be started so.
#   tools/screenshots.sh [output directory]     (default: build/screenshots)
set -euo pipefail
if [ "$(id -u)" = 0 ]; then
    echo "screenshots: running as root, so the main window shows the privilege warning;" \
        "take pictures for the README as a normal user" >&2
fi
cd "$(dirname "$0")/.."
output="${1:-build/screenshots}"
mkdir -p "$output"
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build --target cirro_screenshots
export CIRRO_SIM_SCENARIO= CIRRO_CONFIG_ROOT="$(mktemp -d)"
trap 'rm -rf "$CIRRO_CONFIG_ROOT"' EXIT
xvfb-run -a -s "-screen 0 1600x1000x24" build/bin/cirro_screenshots "$output"
