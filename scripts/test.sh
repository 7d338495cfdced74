#!/usr/bin/env bash
# Installs what is missing, builds everything with AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/installa-dipendenze.sh

cartella=build-test
cmake -S . -B "$cartella" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSCHEDINE_SANITIZE=ON
cmake --build "$cartella" -j "$(nproc)"

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
ctest --test-dir "$cartella" --output-on-failure -j "$(nproc)"
# Hostile input: the file readers fuzzed for a bounded time (SCHEDINE_FUZZ=0 skips it).
[ "${SCHEDINE_FUZZ:-1}" = 0 ] || scripts/fuzz.sh
