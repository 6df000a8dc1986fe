#!/bin/sh
# Builds everything with clang, warnings as errors and the address and
# undefined-behaviour sanitizers on, and runs the tests of that build: code
# that only GCC accepts, memory errors and leaks are caught before they land.
# Installs clang first when it is missing (run as root on a fresh machine).
#
#   sh tools/check-clang.sh
set -eu
cd "$(dirname "$0")/.."
if ! command -v clang++ >/dev/null 2>&1; then
  apt-get update
  DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends clang
fi
cmake --preset clang
cmake --build build/clang
ctest --test-dir build/clang --output-on-failure
