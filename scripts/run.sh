#!/usr/bin/env bash
# Sets up a fresh machine, builds Purrlodge and starts it. Arguments are passed
# to the program (for example -fdc to choose the data folder again).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build --target purrlodge
exec build/src/purrlodge "$@"
