#!/usr/bin/env bash
# Builds the camera manager and starts it on the simulated camera driver.
# Arguments are passed to the program.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --target cameramanager
exec build/bin/cameramanager "$@"
