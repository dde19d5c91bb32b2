#!/usr/bin/env bash
# Builds the support file reader's libFuzzer target with clang, AddressSanitizer
# and UBSan (in
# build-fuzz/, apart from the normal build), writes the seed corpus and runs
# the fuzzer. Arguments go to libFuzzer, for example:
#   tools/fuzz-supportfile.sh -max_total_time=60
#   tools/fuzz-supportfile.sh -runs=10000000
# Inputs of up to 4 KB: a count and a camera section fit, and small inputs
# keep the search fast. Crashing inputs land in build-fuzz/fuzz-findings/.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v clang++ >/dev/null; then
    echo "clang++ is not installed; the fuzzer is not built" >&2
    exit 0
fi

CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCIRRO_FUZZ=ON -DCIRRO_SANITIZE= -DCIRRO_BUILD_TESTS=OFF -DCIRRO_BUILD_BENCHMARKS=OFF \
    >/dev/null
cmake --build build-fuzz --target fuzz_supportfilereader supportfile_seeds

mkdir -p build-fuzz/fuzz-corpus build-fuzz/fuzz-seeds build-fuzz/fuzz-findings
build-fuzz/bin/supportfile_seeds build-fuzz/fuzz-seeds
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
build-fuzz/bin/fuzz_supportfilereader -max_len=4096 -rss_limit_mb=2048 -timeout=10 \
    -artifact_prefix=build-fuzz/fuzz-findings/ "$@" build-fuzz/fuzz-corpus build-fuzz/fuzz-seeds
