#!/usr/bin/env bash
# Sets up what is missing, builds, and runs every test three times: as built for play; as a
# distribution builds it (Release, with Debian's hardening flags); and under AddressSanitizer
# and UndefinedBehaviorSanitizer. Warnings are errors in all three. Fails when any test fails.
set -euo pipefail
cd "$(dirname "$0")/.."
nucleos="$(nproc)"

bash tools/prepara.sh
cmake -S . -B build -DCORVINA_WERROR=ON
cmake --build build -j"$nucleos"
ctest --test-dir build --output-on-failure -j"$nucleos"

# As a packager builds: its own flags, optimised, so that a false warning of the optimiser or a
# flag of theirs can't break the package unseen.
(
  CXXFLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
  LDFLAGS="$(dpkg-buildflags --get LDFLAGS)"
  export CXXFLAGS LDFLAGS
  cmake -S . -B build-release -DCMAKE_BUILD_TYPE=Release -DCORVINA_WERROR=ON -DCORVINA_BENCH=OFF
  cmake --build build-release -j"$nucleos"
  ctest --test-dir build-release --output-on-failure -j"$nucleos"
)

# Leaks of the libraries below the game are not its faults; memory errors and undefined
# behaviour are, and stop the run.
export ASAN_OPTIONS="detect_leaks=0:halt_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
cmake -S . -B build-sanitizado -DCMAKE_BUILD_TYPE=Debug -DCORVINA_SANITIZE=ON -DCORVINA_BENCH=OFF \
  -DCORVINA_WERROR=ON
cmake --build build-sanitizado -j"$nucleos"
ctest --test-dir build-sanitizado --output-on-failure -j"$nucleos"
