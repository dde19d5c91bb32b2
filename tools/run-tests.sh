#!/usr/bin/env bash
# Builds the project with warnings as errors and runs the test suite.
#   tools/run-tests.sh                          plain build in build/
#   tools/run-tests.sh --sanitize address,undefined
#   tools/run-tests.sh --sanitize thread --label threads
set -euo pipefail
cd "$(dirname "$0")/.."

sanitize=""
label=""
while [ $# -gt 0 ]; do
    case "$1" in
        --sanitize) sanitize="$2"; shift 2 ;;
        --label) label="$2"; shift 2 ;;
        *) echo "unknown argument: $1" >&2; exit 2 ;;
    esac
done

build_dir=build
[ -n "$sanitize" ] && build_dir="build-$(echo "$sanitize" | tr ',' '-')"

cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCIRRO_WERROR=ON -DCIRRO_SANITIZE="$sanitize" \
    -DCIRRO_BUILD_BENCHMARKS="$([ -z "$sanitize" ] && echo ON || echo OFF)"

if [ -n "$label" ]; then
    cmake --build "$build_dir" --target "cirro_tests_$label"
    ctest --test-dir "$build_dir" --output-on-failure -j2 -L "$label"
else
    cmake --build "$build_dir"
    ctest --test-dir "$build_dir" --output-on-failure -j2
fi
