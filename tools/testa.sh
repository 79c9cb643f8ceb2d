#!/usr/bin/env bash
# Sets up what is missing, builds, and runs every test twice: as built for play, and again
# under AddressSanitizer and UndefinedBehaviorSanitizer. Fails when any test fails.
set -euo pipefail
cd "$(dirname "$0")/.."
nucleos="$(nproc)"

bash tools/prepara.sh
cmake -S . -B build
cmake --build build -j"$nucleos"
ctest --test-dir build --output-on-failure -j"$nucleos"

# Leaks of the libraries below the game are not its faults; memory errors and undefined
# behaviour are, and stop the run.
export ASAN_OPTIONS="detect_leaks=0:halt_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
cmake -S . -B build-sanitizado -DCMAKE_BUILD_TYPE=Debug -DCORVINA_SANITIZE=ON -DCORVINA_BENCH=OFF
cmake --build build-sanitizado -j"$nucleos"
ctest --test-dir build-sanitizado --output-on-failure -j"$nucleos"
