#!/usr/bin/env bash
# Sets up a fresh machine, builds everything and runs every test: the core and
# GUI tests, then the core tests again under AddressSanitizer and UBSan, then
# each fuzz target for a short while (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh
jobs=$(nproc)

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j "$jobs"
mkdir -p build/tests/runtime && chmod 700 build/tests/runtime
ctest --test-dir build --output-on-failure -j "$jobs"

cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug \
  -DPURRLODGE_SANITIZE=ON -DPURRLODGE_BUILD_GUI=OFF
cmake --build build-sanitize -j "$jobs"
ctest --test-dir build-sanitize --output-on-failure -j "$jobs"

scripts/fuzz.sh
