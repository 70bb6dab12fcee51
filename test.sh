#!/usr/bin/env bash
# Sets everything up, checks the formatting, builds the Debug build with
# AddressSanitizer and UndefinedBehaviorSanitizer, builds the fuzz targets and
# runs each over its seeds and for a short while (FUZZ_SECONDS, 60 by
# default), so that a regression in the parsers fails, builds the Debian
# package and checks what it installs, runs every test through CTest, and
# builds and tests the core layers alone, without Qt.
set -euo pipefail
cd "$(dirname "$0")"
./scripts/install-deps
find src tests bench tools fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 clang-format --dry-run --Werror
cmake --preset asan >/dev/null
cmake --build --preset asan
for target in immediate_line program data_file; do
  if ! ./scripts/fuzz "$target" "${FUZZ_SECONDS:-60}" >"build/fuzz-$target.log" 2>&1; then
    tail -n 60 "build/fuzz-$target.log"
    echo "fuzz: $target found a fault (input in build/fuzz/findings)" >&2
    exit 1
  fi
  grep -E '^stat::number_of_executed_units' "build/fuzz-$target.log" | sed "s/^/fuzz $target: /"
done
# The Debian package, built in its own preset, unpacked and checked.
./scripts/check-package
ctest --preset asan -j2
# The core layers and the command-line tool build and pass their tests
# without any GUI library.
cmake --preset core >/dev/null
cmake --build --preset core
ctest --test-dir build/core -j2 --output-on-failure
