#!/usr/bin/env bash
# Sets everything up, builds the Debug build with AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs every test through CTest; then builds
# the Debian package and checks what it installs.
set -euo pipefail
cd "$(dirname "$0")"
./scripts/install-deps
cmake --preset asan >/dev/null
cmake --build --preset asan
ctest --preset asan -j2
# The Debian package, built in its own preset, unpacked and checked.
./scripts/check-package
